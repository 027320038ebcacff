#include "platform/xlsx_sheet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "platform/ansi.h"
#include "platform/error.h"

namespace velmar {

namespace {

/// Pixels of a block of cells as the library reckons them when it looks for the cell where a
/// picture ends. Its columns are those of other letters, but the file keeps the cell alone.
struct Pixels {
  double width = 0;
  double height = 0;
};

/// A trifle more than one, for scales: rounding may not let a picture end within its last cell.
constexpr double kMore = 1 + 1e-9;

class SheetWriter {
 public:
  SheetWriter(lxw_workbook* file, lxw_worksheet* to, const Worksheet& sheet, XlsxFormats& formats)
      : file_(file), to_(to), sheet_(sheet), formats_(formats), name_(FileText(sheet.name())) {}

  void Write() {
    WriteColumns();
    WriteRows();
    WriteMerged();
    WriteCells();
    WriteView();
    if (sheet_.page_setup) {
      WritePageSetup(*sheet_.page_setup);
    }
    for (const SheetPicture& picture : sheet_.pictures) {
      Place(picture);
    }
    for (const SheetChart& chart : sheet_.charts) {
      Place(chart);
    }
  }

 private:
  static lxw_row_t Row(int row) { return static_cast<lxw_row_t>(row - 1); }
  static lxw_col_t Column(int column) { return static_cast<lxw_col_t>(column - 1); }

  void WriteColumns();
  void WriteRows();
  void WriteMerged();
  void WriteCells();
  void WriteText(CellPlace place, const std::string& text, const Cell& cell);
  void WriteView();
  void WritePageSetup(const PageSetup& setup);
  void Place(const SheetPicture& picture);
  void Place(const SheetChart& chart);
  Pixels PixelsOf(const CellBlock& block) const;

  lxw_workbook* file_;
  lxw_worksheet* to_;
  const Worksheet& sheet_;
  XlsxFormats& formats_;
  std::string name_;
};

/// The width to tell the library, which adds the margins of a column by letters with digits of 7
/// pixels; those of the file's letters have 6.
double FileWidth(double characters) {
  constexpr double kMargins = 5;
  return characters + kMargins / 6 - kMargins / 7;
}

template <typename Value>
const Value* Find(const std::map<int, Value>& map, int key) {
  const auto found = map.find(key);
  return found == map.end() ? nullptr : &found->second;
}

/// The keys of both maps.
template <typename One, typename Other>
std::set<int> Keys(const std::map<int, One>& one, const std::map<int, Other>& other) {
  std::set<int> keys;
  for (const auto& [key, value] : one) {
    keys.insert(keys.end(), key);
  }
  for (const auto& [key, value] : other) {
    keys.insert(key);
  }
  return keys;
}

void SheetWriter::WriteColumns() {
  for (const int column : Keys(sheet_.column_widths(), sheet_.column_formats())) {
    const double* width = Find(sheet_.column_widths(), column);
    const CellFormat* format = Find(sheet_.column_formats(), column);
    lxw_row_col_options options{};
    options.hidden = width != nullptr && *width == 0 ? LXW_TRUE : LXW_FALSE;
    MindWriter(worksheet_set_column_opt(to_, Column(column), Column(column),
                                        width == nullptr ? LXW_DEF_COL_WIDTH
                                        : *width == 0    ? 0
                                                         : FileWidth(*width),
                                        format == nullptr ? nullptr : formats_.Of(*format),
                                        &options));
  }
}

void SheetWriter::WriteRows() {
  for (const int row : Keys(sheet_.row_heights(), sheet_.row_formats())) {
    const double* height = Find(sheet_.row_heights(), row);
    const CellFormat* format = Find(sheet_.row_formats(), row);
    MindWriter(worksheet_set_row(to_, Row(row), height == nullptr ? LXW_DEF_ROW_HEIGHT : *height,
                                 format == nullptr ? nullptr : formats_.Of(*format)));
  }
}

void SheetWriter::WriteMerged() {
  // Without a format the library writes no cells for the block, which have formats of their own.
  for (const auto& [first, last] : sheet_.merged()) {
    MindWriter(worksheet_merge_range(to_, Row(first.row), Column(first.column), Row(last.row),
                                     Column(last.column), "", nullptr));
  }
}

void SheetWriter::WriteCells() {
  CellPlace last;
  for (const auto& [place, cell] : sheet_.cells()) {
    const lxw_row_t row = Row(place.row);
    const lxw_col_t column = Column(place.column);
    if (const auto* text = std::get_if<std::string>(&cell.value)) {
      WriteText(place, *text, cell);
    } else if (const auto* number = std::get_if<double>(&cell.value)) {
      MindWriter(worksheet_write_number(to_, row, column, *number, formats_.Of(cell.format)));
    } else {
      MindWriter(worksheet_write_blank(to_, row, column, formats_.Of(cell.format)));
    }
    last = {std::max(last.row, place.row), std::max(last.column, place.column)};
  }
  // Most texts of a classification look like numbers and are texts on purpose.
  std::array<char, LXW_MAX_CELL_RANGE_LENGTH> used{};
  lxw_rowcol_to_range(used.data(), 0, 0, Row(last.row), Column(last.column));
  MindWriter(worksheet_ignore_errors(to_, LXW_IGNORE_NUMBER_STORED_AS_TEXT, used.data()));
}

void SheetWriter::WriteText(CellPlace place, const std::string& text, const Cell& cell) {
  std::vector<std::pair<std::string, lxw_format*>> parts;
  const auto add = [&](std::size_t from, std::size_t to, const CellFont& font) {
    if (from < to) {
      CellFormat format = cell.format;
      format.font = font;
      parts.emplace_back(FileText(text.substr(from, to - from)), formats_.Of(format));
    }
  };
  std::size_t done = 0;
  for (const CellPiece& piece : cell.pieces) {
    add(done, piece.start - 1, cell.format.font);
    done = piece.start - 1 + piece.length;
    add(piece.start - 1, done, piece.font);
  }
  add(done, text.size(), cell.format.font);
  if (parts.size() == 1) {
    MindWriter(worksheet_write_string(to_, Row(place.row), Column(place.column),
                                      parts[0].first.c_str(), parts[0].second));
    return;
  }
  std::vector<lxw_rich_string_tuple> tuples;
  tuples.reserve(parts.size());
  for (auto& [part, format] : parts) {
    tuples.push_back({format, part.data()});
  }
  std::vector<lxw_rich_string_tuple*> list;
  list.reserve(parts.size() + 1);
  for (lxw_rich_string_tuple& tuple : tuples) {
    list.push_back(&tuple);
  }
  list.push_back(nullptr);
  MindWriter(worksheet_write_rich_string(to_, Row(place.row), Column(place.column), list.data(),
                                         formats_.Of(cell.format)));
}

void SheetWriter::WriteView() {
  if (!sheet_.gridlines) {
    worksheet_gridlines(to_, LXW_HIDE_ALL_GRIDLINES);
  }
  const CellPlace selected = sheet_.selected;
  worksheet_set_selection(to_, Row(selected.row), Column(selected.column), Row(selected.row),
                          Column(selected.column));
  std::vector<lxw_row_t> breaks;
  for (const int above_row : sheet_.page_breaks()) {
    breaks.push_back(Row(above_row));
  }
  if (!breaks.empty()) {
    breaks.push_back(0);
    MindWriter(worksheet_set_h_pagebreaks(to_, breaks.data()));
  }
}

void SheetWriter::WritePageSetup(const PageSetup& setup) {
  const auto line = [](const std::string& left, const std::string& center,
                       const std::string& right) {
    std::string whole;
    for (const auto& [code, text] : {std::pair("&L", &left), {"&C", &center}, {"&R", &right}}) {
      whole += text->empty() ? "" : code + FileText(*text);
    }
    return whole;
  };
  constexpr std::uint8_t kA4 = 9;
  worksheet_set_paper(to_, kA4);
  worksheet_set_margins(to_, setup.left_margin, setup.right_margin, setup.top_margin,
                        setup.bottom_margin);
  lxw_header_footer_options options{};
  options.margin = setup.header_margin;
  MindWriter(worksheet_set_header_opt(
      to_, line(setup.left_header, setup.center_header, setup.right_header).c_str(), &options));
  options.margin = setup.footer_margin;
  MindWriter(worksheet_set_footer_opt(
      to_, line(setup.left_footer, setup.center_footer, setup.right_footer).c_str(), &options));
  if (setup.center_horizontally) {
    worksheet_center_horizontally(to_);
  }
  if (setup.center_vertically) {
    worksheet_center_vertically(to_);
  }
  if (setup.orientation != xl::kPortrait) {
    worksheet_set_landscape(to_);
  }
}

Pixels SheetWriter::PixelsOf(const CellBlock& block) const {
  Pixels pixels;
  for (int column = block.first.column; column <= block.last.column; ++column) {
    const double* width = Find(sheet_.column_widths(), column);
    const bool hidden = width != nullptr && *width == 0;
    pixels.width += width == nullptr ? LXW_DEF_COL_WIDTH_PIXELS
                    : hidden         ? 0
                                     : std::floor(FileWidth(*width) * 7 + 0.5) + 5;
  }
  for (int row = block.first.row; row <= block.last.row; ++row) {
    const double* height = Find(sheet_.row_heights(), row);
    pixels.height +=
        height == nullptr ? LXW_DEF_ROW_HEIGHT_PIXELS : std::floor(*height * 4.0 / 3.0);
  }
  return pixels;
}

void SheetWriter::Place(const SheetPicture& picture) {
  lxw_image_options options{};
  options.object_position = LXW_OBJECT_MOVE_AND_SIZE;
  MindWriter(worksheet_insert_image_buffer_opt(
      to_, Row(picture.place.first.row), Column(picture.place.first.column),
      reinterpret_cast<const unsigned char*>(picture.png.data()), picture.png.size(), &options));
  // Only now the library has read how large the picture, its last one, is by itself.
  lxw_object_properties* placed = STAILQ_FIRST(to_->image_props);
  while (STAILQ_NEXT(placed, list_pointers) != nullptr) {
    placed = STAILQ_NEXT(placed, list_pointers);
  }
  constexpr double kScreen = 96;  // dots an inch
  const Pixels block = PixelsOf(picture.place);
  placed->x_scale = kMore * block.width / (placed->width * kScreen / placed->x_dpi);
  placed->y_scale = kMore * block.height / (placed->height * kScreen / placed->y_dpi);
}

void SheetWriter::Place(const SheetChart& chart) {
  lxw_chart* made = workbook_add_chart(file_, LXW_CHART_COLUMN);
  if (made == nullptr) {
    throw RunTimeError(ErrorNumber::kWorkbookRefused, "a chart");
  }
  const auto& [first, last] = chart.categories;
  for (const auto& [name, values] : chart.series) {
    lxw_chart_series* series = chart_add_series(made, nullptr, nullptr);
    chart_series_set_categories(series, name_.c_str(), Row(first.row), Column(first.column),
                                Row(last.row), Column(last.column));
    chart_series_set_values(series, name_.c_str(), Row(values.first.row),
                            Column(values.first.column), Row(values.last.row),
                            Column(values.last.column));
    chart_series_set_name_range(series, name_.c_str(), Row(name.row), Column(name.column));
  }
  if (chart.title.empty()) {
    chart_title_off(made);
  } else {
    chart_title_set_name(made, FileText(chart.title).c_str());
  }
  constexpr double kWidth = 480;  // pixels of a chart that is not scaled
  constexpr double kHeight = 288;
  const Pixels block = PixelsOf(chart.place);
  lxw_chart_options options{};
  options.x_scale = kMore * block.width / kWidth;
  options.y_scale = kMore * block.height / kHeight;
  MindWriter(worksheet_insert_chart_opt(to_, Row(chart.place.first.row),
                                        Column(chart.place.first.column), made, &options));
}

}  // namespace

void WriteXlsxSheet(lxw_workbook* file, lxw_worksheet* to, const Worksheet& sheet,
                    XlsxFormats& formats) {
  SheetWriter(file, to, sheet, formats).Write();
}

}  // namespace velmar
