#include "publish/square_grid.h"

#include <string>

#include "model/columns.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/form.h"

namespace velmar {

namespace {

using colour::Rgb;

constexpr double kRowHeight = 17;
constexpr double kNameSize = 7;
constexpr double kFieldSize = 9;
constexpr int kNameColour = Rgb(70, 70, 70);
constexpr int kFieldColour = Rgb(0, 70, 140);
constexpr int kYellowIndex = 6;

constexpr double kWestEnd = -180;
constexpr double kSouthEnd = -90;

// Of the lines of the statistics.
constexpr Column kWorkedSquare{16, 4};
constexpr Column kOwnSquare{16, 4};  ///< of the DX
constexpr Column kOtherSquare{48, 4};

/// The parts of the fields on the grid. The first square of each tells its field by its letters.
constexpr std::string_view kFields[] = {"A18:C22", "D18:M22", "N18:P22", "A23:C32", "D23:M32",
                                        "N23:P32", "A33:C37", "D33:M37", "N33:P37"};

/// The name of the square in a cell: letters of the field, then digits.
std::string SquareIn(CellPlace cell) {
  const auto [first, last] = square_grid::kCells;
  const int column =
      static_cast<int>((square_grid::kNorthWest.longitude - kWestEnd) / square_grid::kDegreesWide) +
      cell.column - first.column;
  const int row =
      static_cast<int>(square_grid::kNorthWest.latitude - kSouthEnd) - 1 - (cell.row - first.row);
  return {static_cast<char>('A' + column / 10), static_cast<char>('A' + row / 10),
          static_cast<char>('0' + column % 10), static_cast<char>('0' + row % 10)};
}

void FrameField(Worksheet& sheet, std::string_view block) {
  SheetRange field = sheet.Range(block);
  for (const int edge : {xl::kEdgeLeft, xl::kEdgeTop, xl::kEdgeBottom, xl::kEdgeRight}) {
    field.Borders(edge, xl::kMedium);
  }
  constexpr std::size_t kLetters = 2;
  const CellPlace first = field.block().first;
  SheetRange cell = sheet.Cells(first.row, first.column);
  CellFont letters = sheet.cells().at(first).format.font;
  letters.size = kFieldSize;
  letters.bold = true;
  letters.colour = kFieldColour;
  cell.Characters(1, kLetters, letters);
}

}  // namespace

std::optional<CellPlace> CellOfSquare(std::string_view square) {
  const auto [first, last] = square_grid::kCells;
  for (int row = first.row; row <= last.row; ++row) {
    for (int column = first.column; column <= last.column; ++column) {
      if (SquareIn({row, column}) == square) {
        return CellPlace{row, column};
      }
    }
  }
  return std::nullopt;
}

void DrawSquareGrid(Worksheet& sheet) {
  const auto [first, last] = square_grid::kCells;
  for (int row = first.row; row <= last.row; ++row) {
    for (int column = first.column; column <= last.column; ++column) {
      sheet.Cells(row, column).Value(SquareIn({row, column}));
    }
  }
  SheetRange grid = sheet.Range("A18:P37");
  grid.RowHeight(kRowHeight);
  grid.HorizontalAlignment(xl::kCenter).VerticalAlignment(xl::kCenter);
  grid.Font().Size(kNameSize).Color(kNameColour);
  grid.Borders(xl::kInsideVertical, xl::kThin).Borders(xl::kInsideHorizontal, xl::kThin);
  for (const std::string_view field : kFields) {
    FrameField(sheet, field);
  }
}

void MarkWorkedSquares(Worksheet& sheet, std::string_view statistics) {
  LineReader lines(statistics);
  for (std::string_view line; lines.Next(line);) {
    if (!Holds(line, "Squares")) {
      continue;
    }
    if (const auto cell = CellOfSquare(Cut(line, kWorkedSquare))) {
      sheet.Cells(cell->row, cell->column).InteriorColorIndex(kYellowIndex);
    }
  }
}

void MarkDxSquares(Worksheet& sheet, std::string_view statistics) {
  LineReader lines(statistics);
  for (std::string_view line; lines.Next(line);) {
    if (!Holds(line, "QSO DX")) {
      continue;
    }
    for (const std::string_view square : {Cut(line, kOwnSquare), Cut(line, kOtherSquare)}) {
      if (const auto cell = CellOfSquare(square)) {
        SheetRange end = sheet.Cells(cell->row, cell->column).Interior(colour::kRed);
        end.Font().Bold(true).Color(colour::kWhite);
      }
    }
  }
}

}  // namespace velmar
