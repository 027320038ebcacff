#include "model/iaru_table.h"

#include "model/lines.h"

namespace velmar {

namespace {

/// Stands in the program and is not loaded. That is meant so: its rows are found by no look-up.
constexpr std::string_view kBlockLeftOut = "arcchivio9";

}  // namespace

std::vector<std::string_view> LoadIaruTable() {
  std::vector<std::string_view> table;
  for (const IaruBlock& block : IaruBlocks()) {
    if (block.name == kBlockLeftOut) {
      continue;
    }
    const auto rows = SplitLines(block.rows);
    table.insert(table.end(), rows.begin(), rows.end());
  }
  return table;
}

}  // namespace velmar
