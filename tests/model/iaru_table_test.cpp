#include "model/iaru_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "model/lines.h"
#include "model/text.h"

namespace velmar {
namespace {

std::vector<std::string> BlockNames() {
  std::vector<std::string> names;
  for (const IaruBlock& block : IaruBlocks()) {
    names.emplace_back(block.name);
  }
  return names;
}

TEST(IaruTable, BlocksStandInTheOrderOfTheirCalls) {
  EXPECT_EQ(BlockNames(),
            (std::vector<std::string>{"archivio2", "Archivio3", "archivio4", "archivio5",
                                      "archivio6", "archivio7", "archivio8", "arcchivio9",
                                      "archivio9", "archivio10", "archivio11"}));
  std::string_view last;
  for (const IaruBlock& block : IaruBlocks()) {
    for (const std::string_view row : SplitLines(block.rows)) {
      const std::string_view call = Cut(row, iaru_row::kCall);
      ASSERT_LE(last, call) << "in " << block.name;
      last = call;
    }
  }
}

TEST(IaruTable, EachRowHasACallAndALocator) {
  for (const std::string_view row : LoadIaruTable()) {
    EXPECT_FALSE(Trim(Cut(row, iaru_row::kCall)).empty()) << row;
    EXPECT_FALSE(Trim(Cut(row, iaru_row::kLocator)).empty()) << row;
    EXPECT_NE(row.front(), ' ') << row;
    EXPECT_LE(row.size(), 18U) << row;
  }
}

TEST(IaruTable, OneBlockStandsInTheProgramAndIsNotLoaded) {
  const auto table = LoadIaruTable();
  std::vector<std::string_view> expected;
  std::set<std::string_view> left_out;
  for (const IaruBlock& block : IaruBlocks()) {
    const auto rows = SplitLines(block.rows);
    EXPECT_FALSE(rows.empty()) << block.name;
    if (block.name == "arcchivio9") {
      left_out.insert(rows.begin(), rows.end());
    } else {
      expected.insert(expected.end(), rows.begin(), rows.end());
    }
  }
  EXPECT_EQ(table, expected);
  EXPECT_TRUE(std::ranges::none_of(
      table, [&left_out](std::string_view row) { return left_out.contains(row); }));
}

}  // namespace
}  // namespace velmar
