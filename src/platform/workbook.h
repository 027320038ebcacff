#pragma once

#include <cstddef>
#include <list>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace velmar {

/// A workbook in memory, with the operations of a workbook application under their usual names.
/// Rows and columns count from 1. Colours are numbers with red in the lowest byte; sizes of letters
/// and heights of rows are points, widths of columns are characters. Texts are in code page 1252.
/// Nothing here knows of files: see workbook_app.h. What leads out of a sheet raises error 1004.

class SheetRange;
class Worksheet;

/// The numbers that the operations know.
namespace xl {
inline constexpr int kRows = 1'048'576;  ///< of a sheet
inline constexpr int kColumns = 16'384;
inline constexpr int kNone = -4142;
inline constexpr int kAutomatic = -4105;
inline constexpr int kCenter = -4108;
inline constexpr int kLeft = -4131;
inline constexpr int kRight = -4152;
inline constexpr int kUp = -4162;
inline constexpr int kContinuous = 1;
inline constexpr int kHairline = 1;  ///< weights of borders
inline constexpr int kThin = 2;
inline constexpr int kMedium = -4138;
inline constexpr int kSolid = 1;
inline constexpr int kPortrait = 1;
// Borders of a range.
inline constexpr int kDiagonalDown = 5;
inline constexpr int kDiagonalUp = 6;
inline constexpr int kEdgeLeft = 7;
inline constexpr int kEdgeTop = 8;
inline constexpr int kEdgeBottom = 9;
inline constexpr int kEdgeRight = 10;
inline constexpr int kInsideVertical = 11;
inline constexpr int kInsideHorizontal = 12;
}  // namespace xl

/// The letters of a cell or of a part of its text.
struct CellFont {
  std::string name = "Arial";
  double size = 8;
  bool bold = false;
  bool italic = false;
  bool underline = false;
  int colour = 0;

  bool operator==(const CellFont&) const = default;
};

/// A side of a cell: no line where the weight is 0, else a weight of xl.
struct CellBorders {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  bool operator==(const CellBorders&) const = default;
};

struct CellFormat {
  CellFont font;
  std::optional<int> interior;  ///< colour of the ground
  CellBorders borders;
  int horizontal = 0;  ///< alignments of xl; 0 for the usual one
  int vertical = 0;
  bool wrap = false;
  std::string number_format;  ///< empty for the general one

  bool operator==(const CellFormat&) const = default;
};

/// Letters of its own for a part of a cell's text, from `start` on, counted from 1.
struct CellPiece {
  std::size_t start = 1;
  std::size_t length = 0;
  CellFont font;

  bool operator==(const CellPiece&) const = default;
};

using CellValue = std::variant<std::monostate, std::string, double>;

struct Cell {
  CellValue value;
  CellFormat format;
  std::vector<CellPiece> pieces;

  bool operator==(const Cell&) const = default;
};

/// The place of a cell.
struct CellPlace {
  int row = 1;
  int column = 1;

  // NOLINTNEXTLINE(modernize-use-nullptr): the check misreads a comparison that is made.
  auto operator<=>(const CellPlace&) const = default;
};

/// A block of cells, both ends included.
struct CellBlock {
  CellPlace first;
  CellPlace last;

  bool operator==(const CellBlock&) const = default;
};

/// How a sheet is printed. Margins are inches. "&P" and "&N" in a header or footer stand for the
/// page and the number of pages.
struct PageSetup {
  std::string left_header, center_header, right_header;
  std::string left_footer, center_footer, right_footer;
  double left_margin = 0.7, right_margin = 0.7, top_margin = 0.75, bottom_margin = 0.75;
  double header_margin = 0.3, footer_margin = 0.3;
  bool center_horizontally = false;
  bool center_vertically = false;
  int orientation = xl::kPortrait;
};

/// A chart of columns over a block of cells, a series a row.
struct SheetChart {
  CellBlock place;                                      ///< that it covers
  CellBlock categories;                                 ///< one row
  std::vector<std::pair<CellPlace, CellBlock>> series;  ///< name and values
  std::string title;
};

/// A picture (PNG) over a block of cells.
struct SheetPicture {
  CellBlock place;
  std::string png;
};

/// What can be changed of the letters of a range, all cells of it at once.
class RangeFont {
 public:
  explicit RangeFont(SheetRange& range) : range_(range) {}
  RangeFont& Name(std::string_view name);
  RangeFont& Size(double points);
  RangeFont& Bold(bool bold);
  RangeFont& Underline(bool underline);
  RangeFont& Color(int colour);

 private:
  SheetRange& range_;
};

/// Cells of a sheet: a block, whole columns ("A:Z") or whole rows ("5:750"). It is a view: what is
/// done to it is done to the sheet, which must outlive it.
class SheetRange {
 public:
  SheetRange(Worksheet& sheet, CellBlock block, bool whole_rows, bool whole_columns)
      : sheet_(sheet), block_(block), whole_rows_(whole_rows), whole_columns_(whole_columns) {}

  const CellBlock& block() const { return block_; }
  int Row() const { return block_.first.row; }

  /// Puts a value into every cell; of merged cells into the first one, the others keep none. An
  /// empty text leaves the cells without a value. Whole columns and rows raise error 1004.
  SheetRange& Value(std::string_view text);
  SheetRange& Value(double number);

  RangeFont Font() { return RangeFont(*this); }
  /// The ground; nothing for none.
  SheetRange& Interior(std::optional<int> colour);
  /// The palette colour of an index as Interior: 6 is yellow. Another index raises error 1004.
  SheetRange& InteriorColorIndex(int index);
  /// A line on the borders of an index of xl; the weight 0 takes it away, from the neighbours too.
  /// The diagonals have no lines here: only 0 does anything to them, and that is nothing.
  SheetRange& Borders(int index, int weight);
  SheetRange& HorizontalAlignment(int alignment);
  SheetRange& VerticalAlignment(int alignment);
  SheetRange& WrapText(bool wrap);
  SheetRange& NumberFormat(std::string_view format);
  SheetRange& ColumnWidth(double characters);  ///< up to 255, else error 1004; 0 hides
  SheetRange& RowHeight(double points);        ///< up to 409, else error 1004; 0 hides

  /// Joins the cells to one, which keeps the first value. A block that overlaps another merged one
  /// takes its place.
  SheetRange& Merge();

  /// Inserts as many empty rows as it has, and moves what lay there downwards: cells, merged
  /// blocks, heights, page breaks, pictures and charts behind. The new rows have the format and the
  /// height of the row above them.
  SheetRange& Insert();

  /// Copies whole rows with values, formats, pieces, merged blocks and heights to the rows that
  /// begin with the target's first, on the same sheet or another one, also over one another. What
  /// lay in the target's rows goes; its page breaks, pictures and charts stay.
  void Copy(SheetRange target) const;

  /// The letters of a part of the first cell's text, `start` counted from 1. What goes beyond the
  /// text is left out; another value of the cell takes them away.
  void Characters(std::size_t start, std::size_t length, const CellFont& font);

 private:
  friend class RangeFont;
  /// Changes the format of every cell.
  template <typename Change>
  SheetRange& Format(const Change& change);
  SheetRange& Put(const CellValue& value);
  /// A part of the range; whole columns or rows stay so where it is more than one row or column.
  SheetRange Part(CellBlock block) const;
  /// Lines on one side of the cells of a part.
  void Line(CellBlock block, int CellBorders::*side, int weight) const;
  /// Lines at an edge; those that the cells beyond it have there become the same.
  void Edge(CellBlock block, int CellBorders::*side, CellBlock beyond, int CellBorders::*opposite,
            int weight) const;

  Worksheet& sheet_;
  CellBlock block_;
  bool whole_rows_;
  bool whole_columns_;
};

/// A sheet. Formats of whole columns and rows hold for cells that are made later.
class Worksheet {
 public:
  explicit Worksheet(std::string name) : name_(std::move(name)) {}

  const std::string& name() const { return name_; }

  SheetRange Cells(int row, int column);
  /// Cells by address: "A1", "A1:M4", "A:Z", "5:750". Another text raises error 1004.
  SheetRange Range(std::string_view address);

  /// The last row with a value in a column, as a walk upwards from the end finds it; 1 without one.
  int LastRow(int column) const;

  /// A new page begins with that row; the first one raises error 1004.
  void AddPageBreak(int above_row);

  /// The format of a cell, or the one that its row or column has for it.
  const CellFormat& FormatAt(CellPlace place) const;

  // For the writer, and for tests.
  const std::map<CellPlace, Cell>& cells() const { return cells_; }
  const std::map<int, CellFormat>& column_formats() const { return column_formats_; }
  const std::map<int, CellFormat>& row_formats() const { return row_formats_; }
  const std::map<int, double>& column_widths() const { return column_widths_; }
  const std::map<int, double>& row_heights() const { return row_heights_; }
  const std::vector<CellBlock>& merged() const { return merged_; }
  const std::set<int>& page_breaks() const { return page_breaks_; }

  std::optional<PageSetup> page_setup;
  bool gridlines = true;
  std::vector<SheetChart> charts;
  std::vector<SheetPicture> pictures;
  CellPlace selected;  ///< the cell that is selected when the file is opened

 private:
  friend class SheetRange;
  friend class Workbook;

  /// The format of a cell that was not made yet.
  const CellFormat& Inherited(CellPlace place) const;
  /// A cell, made where it is missing.
  Cell& Made(CellPlace place);
  /// Whether the cell is one of merged cells and not their first.
  bool Covered(CellPlace place) const;

  void InsertRows(int row, int count);
  void CopyRows(int first, int last, Worksheet& target, int to) const;
  void ClearRows(int first, int last);

  std::string name_;
  std::map<CellPlace, Cell> cells_;
  // A cell in a row and a column that both have a format is always made, so that neither format
  // has to give way.
  std::map<int, CellFormat> column_formats_;
  std::map<int, CellFormat> row_formats_;
  std::map<int, double> column_widths_;
  std::map<int, double> row_heights_;
  std::vector<CellBlock> merged_;
  std::set<int> page_breaks_;
};

/// A workbook. Sheets keep their place in memory as long as they exist.
class Workbook {
 public:
  /// As the application makes one: `sheets` sheets with default names ("Foglio1" and so on).
  explicit Workbook(int sheets = 3);

  std::size_t Count() const { return sheets_.size(); }
  /// A sheet by its number, counted from 1, or its name, without regard to case; error 9 where
  /// there is none.
  Worksheet& Sheet(std::size_t number);
  Worksheet& Sheet(std::string_view name);
  const std::list<Worksheet>& sheets() const { return sheets_; }

  /// A new sheet behind the last, with the next default name.
  Worksheet& Add();
  /// Gives a sheet another name: 1 to 31 characters, none of them one of []:*?/\, no "'" at an end,
  /// and no other sheet's; else error 1004.
  void Rename(Worksheet& sheet, std::string_view name);
  /// Takes a sheet out. The last one stays, which raises error 1004; a name that no sheet has
  /// raises error 9.
  void Delete(std::string_view name);

  void Select(const Worksheet& sheet);                ///< error 9 for one of another workbook
  std::size_t selected() const { return selected_; }  ///< number of the selected sheet, from 1

 private:
  std::list<Worksheet>::iterator Find(std::string_view name);

  std::list<Worksheet> sheets_;
  int made_ = 0;  ///< sheets so far, for the default names
  std::size_t selected_ = 1;
};

}  // namespace velmar
