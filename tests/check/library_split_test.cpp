// The library, parted for the check of one log.

#include "check/library_split.h"

#include <gtest/gtest.h>

#include "model/text.h"
#include "platform/error.h"
#include "support/boxes.h"

namespace velmar::test {
namespace {

constexpr std::string_view kRow = "IK2QAA      I1QXX       JN44BB 100";

std::string Owned(std::string_view owner) {
  return Join(Pad(owner, 12), kRow.substr(12));
}

Names Texts(const std::vector<std::string_view>& rows) {
  return {rows.begin(), rows.end()};
}

TEST(LibrarySplit, PartsByTheOwnerAlone) {
  const std::string worked = "IZ9QBC      IK2QAA      JN45AA 100";
  const Names others = {Owned("IK2QAAX"), Owned(" IK2QAA"), Owned("IK2QAA/4"), worked,
                        Owned("IK2QA")};
  const std::string second = Join(Left(kRow, 30), " 7");
  std::string text = Join(kRow, "\r\n");
  for (const std::string& row : others) {
    text += row + "\r\n";
  }
  text += second;
  const LibrarySplit split = SplitLibrary(text, "IK2QAA");
  EXPECT_EQ(Texts(split.log), (Names{std::string(kRow), second}));
  EXPECT_EQ(Texts(split.others), others);
}

TEST(LibrarySplit, OwnersAreComparedInTheirTwelveColumns) {
  const std::string text = "EA8/IK2QAA/PI1QXX       JN44BB 100\r\n";
  EXPECT_EQ(SplitLibrary(text, "EA8/IK2QAA/P").log.size(), 1U);
  EXPECT_EQ(SplitLibrary(text, "EA8/IK2QAA/").log.size(), 0U);
}

TEST(LibrarySplit, ShortWrongAndDeletedRowsCountNowhere) {
  const std::string text =
      Join("\r\n", Left(kRow, 29), "\r\n", Left(kRow, 30), "\r\n", kRow, " ERROR\r\n",
           Owned("IZ9QBC"), "DELETED\r\n", "ERROR", Owned("IZ9QBC"), "\r\n", kRow, " error\r\n");
  const LibrarySplit split = SplitLibrary(text, "IK2QAA");
  EXPECT_EQ(Texts(split.log), (Names{std::string(Left(kRow, 30)), Join(kRow, " error")}));
  EXPECT_TRUE(split.others.empty());
}

TEST(LibrarySplit, OnlyRowsThatCountFillTheTable) {
  const std::string other = Owned("IZ9QBC");
  std::string text;
  for (std::size_t row = 0; row < kMostLibraryRows; ++row) {
    text += Join(row % 2 == 0 ? kRow : std::string_view(other), "\n");
  }
  EXPECT_EQ(SplitLibrary(text + "short\n", "IK2QAA").log.size(), kMostLibraryRows / 2);
  try {
    SplitLibrary(Join(text, kRow), "IK2QAA");
    ADD_FAILURE() << "taken";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kSubscript);
  }
}

}  // namespace
}  // namespace velmar::test
