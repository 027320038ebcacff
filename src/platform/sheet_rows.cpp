#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/error.h"
#include "platform/workbook.h"

namespace velmar {

namespace {

/// Adds `count` to the rows of all keys from row `from` on. The order of the keys stays, so that
/// each one goes back to its place without a search.
template <typename Map, typename RowOf>
void ShiftKeys(Map& map, int from, int count, const RowOf& row_of) {
  for (auto at = map.end(); at != map.begin() && row_of(std::prev(at)->first) >= from;) {
    auto node = map.extract(std::prev(at));
    row_of(node.key()) += count;
    at = map.insert(at, std::move(node));
  }
}

constexpr auto kOwnRow = [](auto& row) -> auto& {
  return row;
};
constexpr auto kRowOfPlace = [](auto& place) -> auto& {
  return place.row;
};

/// A block behind the new rows moves, one that reaches over them grows.
void ShiftBlock(CellBlock& block, int from, int count) {
  for (int* row : {&block.first.row, &block.last.row}) {
    *row += *row >= from ? count : 0;
  }
}

template <typename Value>
void CopyRow(std::map<int, Value>& map, int from, int to) {
  if (const auto row = map.find(from); row != map.end()) {
    map.insert_or_assign(to, Value(row->second));
  }
}

template <typename Value>
void EraseRows(std::map<int, Value>& map, int first, int last) {
  map.erase(map.lower_bound(first), map.upper_bound(last));
}

void MindTheEnd(int row) {
  if (row > xl::kRows) {
    throw RunTimeError(ErrorNumber::kWorkbookRefused, "rows beyond the end of the sheet");
  }
}

}  // namespace

void Worksheet::InsertRows(int row, int count) {
  if (!cells_.empty() && cells_.rbegin()->first.row >= row) {
    MindTheEnd(cells_.rbegin()->first.row + count);
  }
  ShiftKeys(cells_, row, count, kRowOfPlace);
  ShiftKeys(row_heights_, row, count, kOwnRow);
  ShiftKeys(row_formats_, row, count, kOwnRow);
  std::set<int> breaks;
  for (const int above : page_breaks_) {
    breaks.insert(breaks.end(), above >= row ? above + count : above);
  }
  page_breaks_ = std::move(breaks);
  for (CellBlock& block : merged_) {
    ShiftBlock(block, row, count);
  }
  for (SheetPicture& picture : pictures) {
    ShiftBlock(picture.place, row, count);
  }
  for (SheetChart& chart : charts) {
    ShiftBlock(chart.place, row, count);
    ShiftBlock(chart.categories, row, count);
    for (auto& [name, values] : chart.series) {
      name.row += name.row >= row ? count : 0;
      ShiftBlock(values, row, count);
    }
  }

  const auto above = cells_.lower_bound({row - 1, 1});
  const auto behind_above = cells_.lower_bound({row, 1});
  for (int to = row; to < row + count; ++to) {
    for (auto cell = above; cell != behind_above; ++cell) {
      cells_[{to, cell->first.column}].format = cell->second.format;
    }
    CopyRow(row_heights_, row - 1, to);
    CopyRow(row_formats_, row - 1, to);
  }
}

void Worksheet::ClearRows(int first, int last) {
  cells_.erase(cells_.lower_bound({first, 1}), cells_.lower_bound({last + 1, 1}));
  EraseRows(row_heights_, first, last);
  EraseRows(row_formats_, first, last);
  std::erase_if(merged_, [&](const CellBlock& block) {
    return block.first.row <= last && block.last.row >= first;
  });
}

void Worksheet::CopyRows(int first, int last, Worksheet& target, int to) const {
  const int down = to - first;
  MindTheEnd(last + down);
  // Taken before anything is put, since the rows may overlap.
  Worksheet taken(name_);
  taken.column_formats_ = column_formats_;
  for (auto cell = cells_.lower_bound({first, 1}); cell != cells_.end() && cell->first.row <= last;
       ++cell) {
    taken.cells_.emplace_hint(taken.cells_.end(),
                              CellPlace{cell->first.row + down, cell->first.column}, cell->second);
  }
  for (int row = first; row <= last; ++row) {
    if (const auto height = row_heights_.find(row); height != row_heights_.end()) {
      taken.row_heights_.emplace_hint(taken.row_heights_.end(), row + down, height->second);
    }
    if (const auto format = row_formats_.find(row); format != row_formats_.end()) {
      taken.row_formats_.emplace_hint(taken.row_formats_.end(), row + down, format->second);
    }
  }
  for (CellBlock block : merged_) {
    if (block.first.row >= first && block.last.row <= last) {
      block.first.row += down;
      block.last.row += down;
      taken.merged_.push_back(block);
    }
  }
  // What only a column's format told here would look otherwise under the target's columns.
  std::set<int> columns;
  for (const auto* formats : {&column_formats_, &std::as_const(target.column_formats_)}) {
    for (const auto& [column, format] : *formats) {
      columns.insert(column);
    }
  }
  constexpr int kNoRow = 0;
  for (const int column : columns) {
    if (taken.row_formats_.empty() &&
        Inherited({kNoRow, column}) == target.Inherited({kNoRow, column})) {
      continue;
    }
    for (int row = first + down; row <= last + down; ++row) {
      taken.Made({row, column});
    }
  }

  target.ClearRows(to, last + down);
  target.cells_.merge(taken.cells_);
  target.row_heights_.merge(taken.row_heights_);
  target.row_formats_.merge(taken.row_formats_);
  target.merged_.insert(target.merged_.end(), taken.merged_.begin(), taken.merged_.end());
}

}  // namespace velmar
