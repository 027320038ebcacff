#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "model/columns.h"

namespace velmar {

/// The built-in table of calls and locators. Nobody confirms what it says: data/iaru_table/ tells
/// where its rows come from. Some calls and locators are irregular, and some rows end early.
namespace iaru_row {
inline constexpr Column kCall{1, 12}, kLocator{13, 6};
static_assert(FollowOneAnother({kCall, kLocator}));
}  // namespace iaru_row

/// A part of the table, as it stands in the program.
struct IaruBlock {
  std::string_view name;
  std::string_view rows;  ///< each ended by LF
};

/// All blocks, in the order of their calls.
std::span<const IaruBlock> IaruBlocks();

/// The rows of the blocks that are loaded, in order. They are views into the program itself, and
/// stay good as long as it runs.
std::vector<std::string_view> LoadIaruTable();

}  // namespace velmar
