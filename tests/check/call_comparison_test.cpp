// How near two calls are.

#include "check/call_comparison.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar::test {
namespace {

/// The number at the end of each test's label and what it shows; "A" for the anagram, which leaves
/// the label.
std::string Grades(std::string_view wanted, std::string_view candidate) {
  const CallComparison comparison = CompareCalls(wanted, candidate);
  if (IdenticalCall(wanted, comparison)) {
    return Join("0", comparison.in_place_map);
  }
  std::string grades;
  for (const GradedCall& hit : GradeCall(wanted, candidate, comparison)) {
    const std::string label(hit.label);
    EXPECT_TRUE(label.empty() || label.starts_with("            Call più simile "_a)) << label;
    EXPECT_EQ(label.empty(), hit.grade == CallGrade::kAnagram);
    EXPECT_EQ(hit.text.substr(0, 10),
              hit.grade == CallGrade::kOneError ? " (1 err.) " : " (2 err.) ");
    grades += Join(grades.empty() ? "" : " ", label.empty() ? "A" : label.substr(label.size() - 1),
                   hit.text.substr(10));
  }
  return grades;
}

TEST(CallComparison, EachTestHitsWhereItsSumsSaySo) {
  const struct {
    const char *wanted, *candidate, *grades;
  } cases[] = {
      {"IW9QQQ", "IW9QQQ", "0IW9QQQ"},
      {"IW9QQQ", "IW9QQQ/P", "0IW9QQQ"},
      {"IK2ABC", "IK2ABD", "2IK2AB_"},
      {"IK2ABC", "IK2AB", "2IK2AB_"},
      {"IK2ABC", "IK3ABC", "2IK_ABC 5IK_ABC"},
      {"IW9QQQ", "IW9QQP", "3IW9QQ_"},
      {"IW9QQQ", "IW9QQ", "3IW9QQ_"},
      {"IK2ABC", "IK2AXY", "4IK2A__"},
      {"IW9QQQ/P", "IW9QQQ", "4IW9QQQ__"},
      {"IK2ABC", "IK2ACB", "AIK2A__"},
      {"IK2ABC", "DL1ABC", "5___ABC"},
      {"ABC2KI", "IK7ABC2KI", "5ABC2KI"},  // all present, none in place
      {"IK2ABC", "IK2CAB", ""},
      {"IK2ABC", "IK7XYZ", ""},
      {"IK2ABC", "", ""},
  };
  for (const auto& [wanted, candidate, grades] : cases) {
    EXPECT_EQ(Grades(wanted, candidate), grades) << wanted << " against " << candidate;
  }
}

TEST(CallComparison, AShortCallNeverHasTwoErrors) {
  EXPECT_EQ(Grades("I1AB", "I1CD"), "");
  EXPECT_EQ(Grades("I1AB", "I1BA"), "");
  EXPECT_EQ(Grades("I1AB", "I1AC"), "2I1A_");
  EXPECT_EQ(Grades("I1ABC", "I1AXY"), "4I1A__");
  EXPECT_EQ(Grades("I1ABC", "I1ACB"), "AI1A__");
  EXPECT_EQ(Grades("I1A", "I1A"), "0I1A");
  EXPECT_EQ(Grades("I1A", "I1B"), "2I1_");
}

TEST(CallComparison, OnlyTenPlacesOfALongCallCount) {
  EXPECT_EQ(Grades("IK2ABCDEFG", "IK2ABCDEFG"), "0IK2ABCDEFG");
  EXPECT_EQ(Grades("IK2ABCDEFGH", "IK2ABCDEFGH"), "2IK2ABCDEFG 5IK2ABCDEFG");
  EXPECT_EQ(Grades("IK2ABCDEFGHJ", "IK2ABCDEFGHJ"), "4IK2ABCDEFG 5IK2ABCDEFG");
  EXPECT_EQ(Grades("IK2ABCDEFGHJ", "IK2ABCDEFGXY"), "4IK2ABCDEFG");
}

TEST(CallComparison, AGapTakesAnyRunOfCharacters) {
  const struct {
    const char *text, *word;
    std::size_t most;
    bool fits;
  } cases[] = {{"IW9QQQ", "IW9QQ", 9, true},
               {"IW9QQ", "IW9QQQ", 9, true},
               {"IW9QAAAQQ", "IW9QQQ", 9, true},
               {"IW9QQQ", "IW9QAAAQQ", 9, false},
               {"IK2ABC", "XK2ABC", 9, true},
               {"IK2ABC", "IK2ABX", 9, true},
               {"IK2ABC", "IK2AXY", 9, false},
               {"IK2ABC", "IK2ACB", 9, false},
               {"A", "AQA", 9, false},  // both ends would share the letter
               {"AA", "AQA", 9, true},
               {"ik2abc", "IK2ABC", 9, false},
               {"", "I", 9, true},
               {"IK2ABC", "", 9, false},
               {"IK2ABCDEFGHJ", "IK2ABCDEXGHJ", 9, true},
               {"IK2ABCDEFGHJ", "IK2ABCDEFXHJ", 9, false},
               {"IK2ABCDEFGHJ", "IK2ABCDEFXHJ", 12, true},
               {"IK2ABCDEFGHJ", "IK2ABCDEFGHX", 12, true}};
  for (const auto& [text, word, most, fits] : cases) {
    EXPECT_EQ(FitsWithOneGap(text, word, most), fits) << text << " in " << word << ", " << most;
  }
}

}  // namespace
}  // namespace velmar::test
