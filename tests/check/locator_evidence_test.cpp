#include "check/locator_evidence.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmar {
namespace {

using Strings = std::vector<std::string>;

TEST(JudgeLocator, TheLastRuleThatAppliesStands) {
  const struct {
    int same, other;
    const char* text;
    bool believed_wrong, doubt, good;
  } cases[] = {{0, 0, " ho un DUBBIO !! ", false, true, false},
               {0, 1, " DUBBIO ", false, true, false},
               {0, 2, "          ", true, false, false},
               {1, 0, "Locator OK", false, false, true},
               {1, 1, " ho un DUBBIO !! ", false, true, false},
               {1, 2, "          ", true, false, false},
               {2, 1, "Locator OK", false, false, true},
               {3, 3, " ho un DUBBIO !! ", false, true, false},
               {3, 4, "          ", true, false, false},
               {9, 1, "Locator OK", false, false, true}};
  for (const auto& [same, other, text, believed_wrong, doubt, good] : cases) {
    const LocatorVerdict verdict = JudgeLocator(same, other);
    EXPECT_EQ(verdict.text, text) << same << " " << other;
    EXPECT_EQ(verdict.believed_wrong, believed_wrong) << same << " " << other;
    EXPECT_EQ(verdict.doubt, doubt) << same << " " << other;
    EXPECT_EQ(verdict.good, good) << same << " " << other;
  }
}

TEST(GatherEvidence, ListsTheQsosWithTheCallAndMarksThem) {
  const std::vector<std::string_view> others = {
      "IZ9QBC      I1QXX       JN44BB 100", "IZ9QBC      I1QXXA      JN44BC 100",
      "IV3QYY      I1QXX       JN44BC 20", "IV3QYY      IK2QAA      JN44BC 20",
      "IV3QYZ      I1QXX       JN44BA 5"};
  const LocatorEvidence evidence = GatherEvidence(others, "I1QXX       ", "JN44BC");
  EXPECT_EQ(evidence.rows,
            (Strings{"IZ9QBC      I1QXX       JN44BB *", "IV3QYY      I1QXX       JN44BC <---",
                     "IV3QYZ      I1QXX       JN44BA *"}));
  EXPECT_EQ(evidence.same, 1);
  EXPECT_EQ(evidence.other, 2);
  EXPECT_TRUE(GatherEvidence(others, "DL1QAA      ", "JN44BC").rows.empty());
}

}  // namespace
}  // namespace velmar
