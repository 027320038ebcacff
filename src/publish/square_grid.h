#pragma once

#include <optional>
#include <string_view>

#include "platform/workbook.h"
#include "publish/map_outlines.h"

namespace velmar {

/// The map of squares on the sheet of the statistics: a cell a square, each with its name, from the
/// Atlantic to the Aegean. A column is two degrees wide, a row one degree high.
namespace square_grid {
inline constexpr CellBlock kCells{{18, 1}, {37, 16}};
inline constexpr double kDegreesWide = 2;              ///< a cell
inline constexpr double kDegreesHigh = 1;              ///< a cell
inline constexpr GeoPoint kNorthWest{-6, 55};          ///< corner of the first cell
inline constexpr CellBlock kItaly{{25, 7}, {37, 13}};  ///< the squares that Italy lies in
}  // namespace square_grid

/// The cell of a square, by its four characters; nothing for one beyond the grid.
std::optional<CellPlace> CellOfSquare(std::string_view square);

/// Writes the names of the squares, and frames the fields.
void DrawSquareGrid(Worksheet& sheet);

/// Gives the squares that the lines of the statistics tell as worked a yellow ground.
void MarkWorkedSquares(Worksheet& sheet, std::string_view statistics);

/// Gives both ends of the DX a red ground.
void MarkDxSquares(Worksheet& sheet, std::string_view statistics);

}  // namespace velmar
