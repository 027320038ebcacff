#include <algorithm>
#include <iterator>

#include "platform/error.h"
#include "platform/workbook.h"

namespace velmar {

namespace {

[[noreturn]] void Refuse(const char* about) {
  throw RunTimeError(ErrorNumber::kWorkbookRefused, about);
}

bool Overlap(const CellBlock& one, const CellBlock& other) {
  return one.first.row <= other.last.row && other.first.row <= one.last.row &&
         one.first.column <= other.last.column && other.first.column <= one.last.column;
}

/// Calls `act` with each cell of the block that was made.
template <typename Act>
void ForMade(std::map<CellPlace, Cell>& cells, const CellBlock& block, const Act& act) {
  auto at = cells.lower_bound(block.first);
  while (at != cells.end() && at->first.row <= block.last.row) {
    const CellPlace place = at->first;
    if (place.column < block.first.column) {
      at = cells.lower_bound({place.row, block.first.column});
    } else if (place.column > block.last.column) {
      at = cells.lower_bound({place.row + 1, block.first.column});
    } else {
      act(at->second);
      ++at;
    }
  }
}

}  // namespace

RangeFont& RangeFont::Name(std::string_view name) {
  range_.Format([&](CellFormat& format) { format.font.name = name; });
  return *this;
}

RangeFont& RangeFont::Size(double points) {
  range_.Format([&](CellFormat& format) { format.font.size = points; });
  return *this;
}

RangeFont& RangeFont::Bold(bool bold) {
  range_.Format([&](CellFormat& format) { format.font.bold = bold; });
  return *this;
}

RangeFont& RangeFont::Underline(bool underline) {
  range_.Format([&](CellFormat& format) { format.font.underline = underline; });
  return *this;
}

RangeFont& RangeFont::Color(int colour) {
  range_.Format([&](CellFormat& format) { format.font.colour = colour; });
  return *this;
}

template <typename Change>
SheetRange& SheetRange::Format(const Change& change) {
  const auto& [first, last] = block_;
  if (whole_columns_ || whole_rows_) {
    auto& formats = whole_columns_ ? sheet_.column_formats_ : sheet_.row_formats_;
    const auto& crossing = whole_columns_ ? sheet_.row_formats_ : sheet_.column_formats_;
    const int begin = whole_columns_ ? first.column : first.row;
    const int end = whole_columns_ ? last.column : last.row;
    for (int line = begin; line <= end; ++line) {
      for (const auto& [cross, format] : crossing) {
        sheet_.Made(whole_columns_ ? CellPlace{cross, line} : CellPlace{line, cross});
      }
      change(formats[line]);
    }
    ForMade(sheet_.cells_, block_, [&](Cell& cell) { change(cell.format); });
    return *this;
  }
  for (int row = first.row; row <= last.row; ++row) {
    auto at = sheet_.cells_.lower_bound({row, first.column});
    for (int column = first.column; column <= last.column; ++column) {
      const CellPlace place{row, column};
      if (at != sheet_.cells_.end() && at->first == place) {
        change(at->second.format);
        ++at;
        continue;
      }
      const CellFormat& inherited = sheet_.Inherited(place);
      Cell cell{{}, inherited, {}};
      change(cell.format);
      if (cell.format != inherited) {
        sheet_.cells_.emplace_hint(at, place, std::move(cell));
      }
    }
  }
  return *this;
}

SheetRange& SheetRange::Put(const CellValue& value) {
  if (whole_rows_ || whole_columns_) {
    Refuse("a value for whole rows or columns");
  }
  if (value.index() == 0) {
    ForMade(sheet_.cells_, block_, [](Cell& cell) {
      cell.value = {};
      cell.pieces.clear();
    });
    return *this;
  }
  for (int row = block_.first.row; row <= block_.last.row; ++row) {
    for (int column = block_.first.column; column <= block_.last.column; ++column) {
      if (!sheet_.Covered({row, column})) {
        Cell& cell = sheet_.Made({row, column});
        cell.value = value;
        cell.pieces.clear();
      }
    }
  }
  return *this;
}

SheetRange& SheetRange::Value(std::string_view text) {
  return Put(text.empty() ? CellValue() : CellValue(std::string(text)));
}

SheetRange& SheetRange::Value(double number) {
  return Put(number);
}

SheetRange& SheetRange::Interior(std::optional<int> colour) {
  return Format([&](CellFormat& format) { format.interior = colour; });
}

SheetRange& SheetRange::InteriorColorIndex(int index) {
  constexpr int kYellowIndex = 6;
  constexpr int kYellow = 0x00FFFF;
  if (index != kYellowIndex) {
    Refuse("a colour that the palette lacks");
  }
  return Interior(kYellow);
}

SheetRange SheetRange::Part(CellBlock block) const {
  return {sheet_, block, whole_rows_ && block.first.column != block.last.column,
          whole_columns_ && block.first.row != block.last.row};
}

void SheetRange::Line(CellBlock block, int CellBorders::*side, int weight) const {
  Part(block).Format([&](CellFormat& format) { format.borders.*side = weight; });
}

void SheetRange::Edge(CellBlock block, int CellBorders::*side, CellBlock beyond,
                      int CellBorders::*opposite, int weight) const {
  Line(block, side, weight);
  if (beyond.first.row < 1 || beyond.last.row > xl::kRows || beyond.first.column < 1 ||
      beyond.last.column > xl::kColumns) {
    return;
  }
  // A line between two cells is told by both of them or by one; the neighbour's word may not stand
  // against the new one.
  Part(beyond).Format([&](CellFormat& format) {
    if (format.borders.*opposite != 0) {
      format.borders.*opposite = weight;
    }
  });
}

SheetRange& SheetRange::Borders(int index, int weight) {
  using Sides = CellBorders;
  const auto [top, left] = block_.first;
  const auto [bottom, right] = block_.last;
  switch (index) {
    case xl::kEdgeLeft:
      Edge({{top, left}, {bottom, left}}, &Sides::left, {{top, left - 1}, {bottom, left - 1}},
           &Sides::right, weight);
      break;
    case xl::kEdgeTop:
      Edge({{top, left}, {top, right}}, &Sides::top, {{top - 1, left}, {top - 1, right}},
           &Sides::bottom, weight);
      break;
    case xl::kEdgeBottom:
      Edge({{bottom, left}, {bottom, right}}, &Sides::bottom,
           {{bottom + 1, left}, {bottom + 1, right}}, &Sides::top, weight);
      break;
    case xl::kEdgeRight:
      Edge({{top, right}, {bottom, right}}, &Sides::right, {{top, right + 1}, {bottom, right + 1}},
           &Sides::left, weight);
      break;
    case xl::kInsideVertical:
      Line({{top, left}, {bottom, right - 1}}, &Sides::right, weight);
      Line({{top, left + 1}, {bottom, right}}, &Sides::left, weight);
      break;
    case xl::kInsideHorizontal:
      Line({{top, left}, {bottom - 1, right}}, &Sides::bottom, weight);
      Line({{top + 1, left}, {bottom, right}}, &Sides::top, weight);
      break;
    case xl::kDiagonalDown:
    case xl::kDiagonalUp:
      break;
    default:
      Refuse("a border of no index");
  }
  return *this;
}

SheetRange& SheetRange::HorizontalAlignment(int alignment) {
  return Format([&](CellFormat& format) { format.horizontal = alignment; });
}

SheetRange& SheetRange::VerticalAlignment(int alignment) {
  return Format([&](CellFormat& format) { format.vertical = alignment; });
}

SheetRange& SheetRange::WrapText(bool wrap) {
  return Format([&](CellFormat& format) { format.wrap = wrap; });
}

SheetRange& SheetRange::NumberFormat(std::string_view number_format) {
  return Format([&](CellFormat& format) { format.number_format = number_format; });
}

SheetRange& SheetRange::ColumnWidth(double characters) {
  constexpr double kWidest = 255;
  if (whole_rows_ || !(characters >= 0 && characters <= kWidest)) {
    Refuse("a width that no column can have");
  }
  for (int column = block_.first.column; column <= block_.last.column; ++column) {
    sheet_.column_widths_[column] = characters;
  }
  return *this;
}

SheetRange& SheetRange::RowHeight(double points) {
  constexpr double kHighest = 409;
  if (whole_columns_ || !(points >= 0 && points <= kHighest)) {
    Refuse("a height that no row can have");
  }
  for (int row = block_.first.row; row <= block_.last.row; ++row) {
    sheet_.row_heights_[row] = points;
  }
  return *this;
}

SheetRange& SheetRange::Merge() {
  std::erase_if(sheet_.merged_, [&](const CellBlock& other) { return Overlap(other, block_); });
  if (block_.first == block_.last) {
    return *this;
  }
  Cell kept;
  ForMade(sheet_.cells_, block_, [&](Cell& cell) {
    if (kept.value.index() == 0) {
      kept = cell;
    }
    cell.value = {};
    cell.pieces.clear();
  });
  if (kept.value.index() != 0) {
    Cell& first = sheet_.Made(block_.first);
    first.value = std::move(kept.value);
    first.pieces = std::move(kept.pieces);
  }
  sheet_.merged_.push_back(block_);
  return *this;
}

SheetRange& SheetRange::Insert() {
  if (whole_columns_) {
    Refuse("columns to be inserted");
  }
  sheet_.InsertRows(block_.first.row, block_.last.row - block_.first.row + 1);
  return *this;
}

void SheetRange::Copy(SheetRange target) const {
  if (whole_columns_ || target.whole_columns_) {
    Refuse("columns to be copied");
  }
  sheet_.CopyRows(block_.first.row, block_.last.row, target.sheet_, target.block_.first.row);
}

void SheetRange::Characters(std::size_t start, std::size_t length, const CellFont& font) {
  const auto found = sheet_.cells_.find(block_.first);
  const auto* text =
      found == sheet_.cells_.end() ? nullptr : std::get_if<std::string>(&found->second.value);
  const std::size_t begin = std::max<std::size_t>(start, 1);
  if (text == nullptr || begin > text->size() || length == 0) {
    return;
  }
  const std::size_t end = begin + std::min(length, text->size() - begin + 1);
  std::vector<CellPiece> pieces{{begin, end - begin, font}};
  for (const CellPiece& piece : found->second.pieces) {
    const std::size_t piece_end = piece.start + piece.length;
    if (piece.start < begin) {
      pieces.push_back({piece.start, std::min(piece_end, begin) - piece.start, piece.font});
    }
    if (piece_end > end) {
      const std::size_t rest = std::max(piece.start, end);
      pieces.push_back({rest, piece_end - rest, piece.font});
    }
  }
  std::sort(pieces.begin(), pieces.end(),
            [](const CellPiece& one, const CellPiece& other) { return one.start < other.start; });
  found->second.pieces = std::move(pieces);
}

}  // namespace velmar
