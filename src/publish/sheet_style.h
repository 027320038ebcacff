#pragma once

#include <string_view>

#include "platform/workbook.h"
#include "publish/map_colours.h"

/// How the tables of the sheet of the statistics look.
namespace velmar::sheet_style {

inline constexpr int kHeadGround = map_colour::Rgb(242, 242, 242);
inline constexpr int kTitleGround = map_colour::Rgb(221, 217, 196);

/// Thin lines around and between cells, and their texts in the middle.
inline SheetRange Frame(SheetRange range) {
  for (int border = xl::kEdgeLeft; border <= xl::kInsideHorizontal; ++border) {
    range.Borders(border, xl::kThin);
  }
  range.HorizontalAlignment(xl::kCenter).VerticalAlignment(xl::kCenter);
  return range;
}

/// A bold text over a whole block, on a ground of its own.
inline void WriteHeading(Worksheet& sheet, std::string_view block, std::string_view text) {
  SheetRange range = Frame(sheet.Range(block));
  range.Merge().Interior(kTitleGround).Value(text);
  range.Font().Bold(true);
}

}  // namespace velmar::sheet_style
