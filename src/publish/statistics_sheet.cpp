#include "publish/statistics_sheet.h"

#include <utility>
#include <variant>

#include "model/columns.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "publish/area_counters.h"
#include "publish/sheet_style.h"
#include "publish/square_activity.h"
#include "publish/square_grid.h"

namespace velmar {

namespace {

constexpr std::string_view kWholeSheet = "A1:P65";
constexpr std::string_view kBodyFont = "Bookman Old Style";
constexpr double kBodySize = 7.5;

/// Sixteen of them, and the heights below, fill a page of A4.
constexpr double kColumnWidth = 7.14;

struct RowHeights {
  std::string_view rows;
  double height;
};

constexpr RowHeights kRowHeights[] = {{"1:1", 20},   {"2:2", 14},   {"3:3", 4},    {"4:13", 12},
                                      {"9:9", 4},    {"14:16", 3},  {"17:17", 13}, {"38:38", 4},
                                      {"39:39", 12}, {"40:50", 11}, {"43:43", 3},  {"47:47", 3},
                                      {"51:51", 11}, {"52:52", 13}, {"53:53", 12}, {"54:65", 10.5}};

struct FixedText {
  std::string_view cells;  ///< merged where they are more than one
  std::string_view text;
};

constexpr std::string_view kParticipation = "Partecipazione per call area";

constexpr FixedText kHeadings[] = {
    {"A2:P2", "Statistica"},
    {"B4:O4", kParticipation},
    {"A53:P53", kParticipation},  // over the chart
    {"A17:P17",
     "Mappa degli squares collegati, in rosso gli squares del qso DX (se il DX è fuori mappa, non "
     "è visibile)"_a}};

constexpr FixedText kLabels[] = {{"A6", "NO Log"},
                                 {"A7", "LOG"},
                                 {"A8", "Totali"},
                                 {"B10:C10", "Log totali"},
                                 {"B11:C11", "Qso totali"},
                                 {"B12:C12", "Qrb DX"},
                                 {"B13:C13", "Qso DX"},
                                 {"I10:J10", "QRB totale"},
                                 {"I11:J11", "Call on air"},
                                 {"I12:J12", "Call esteri"},
                                 {"I13:J13", "Call italia"},
                                 {"M10:N10", "Locatori"},
                                 {"M11:N11", "Squares Totali"},
                                 {"M12:N12", "Field"},
                                 {"M13:N13", "Country Totali"}};

// The table of the areas.
constexpr int kAreasRow = 5;
constexpr int kAbsentRow = 6;
constexpr int kLogsRow = 7;
constexpr int kOnAirRow = 8;
constexpr int kFirstArea = 2;
constexpr int kLastArea = kFirstArea + static_cast<int>(kPrintedAreas.size()) - 1;

/// A value of the statistics, out of each line that holds `key` anywhere; the last such line
/// counts.
struct KeyedValue {
  std::string_view key;
  CellPlace cell;
  Column columns;
};

constexpr KeyedValue kValues[] = {
    {"Log totali", {10, 4}, {16, 3}},    {"Qso totali", {11, 4}, {16, 4}},
    {"QRB DX", {12, 4}, {16, 8}},        {"QSO DX", {13, 4}, {16, 8}},
    {"QSO DX", {13, 5}, {24, 8}},        {"QSO DX", {13, 6}, {36, 8}},
    {"QSO DX", {13, 7}, {48, 6}},        {"QRB Totale", {10, 11}, {16, 8}},
    {"Call in aria", {11, 11}, {16, 3}}, {"Call esteri", {12, 11}, {16, 3}},
    {"Call ita", {13, 11}, {16, 3}},     {"Locatori", {10, 15}, {16, 3}},
    {"SQR. tot", {11, 15}, {16, 3}},     {"Field", {12, 15}, {16, 3}},
    {"Paesi totali", {13, 15}, {16, 3}}};

constexpr Column kAreaCount{19, 3};  ///< a count of a thousand loses its last digit

/// Tells how to read the activity of the squares.
constexpr std::string_view kNote =
    "LOG da = il numero di log ricevuti da om di quello squares                QSO con = il numero "
    "di tutti i qso effettuati con quello squares";
constexpr int kTotalsRow = 52;  ///< of the Italian calls on the air

std::string_view HeadOf(CallArea area) {
  return area == CallArea::kI9 ? "IT9" : NameOf(area);
}

/// Digits become a number, which a reader can add up.
void Write(SheetRange cell, std::string_view text) {
  text = Trim(text);
  constexpr std::string_view kDigits = "0123456789";
  if (!text.empty() && text.find_first_not_of(kDigits) == std::string_view::npos) {
    cell.Value(Val(text));
  } else {
    cell.Value(text);
  }
}

double NumberIn(const Worksheet& sheet, CellPlace cell) {
  const auto found = sheet.cells().find(cell);
  const double* const number =
      found == sheet.cells().end() ? nullptr : std::get_if<double>(&found->second.value);
  return number == nullptr ? 0 : *number;
}

void SetUpSheet(Worksheet& sheet) {
  sheet.Range("A:P").ColumnWidth(kColumnWidth);
  sheet.Range(kWholeSheet).Font().Name(kBodyFont).Size(kBodySize);
  for (const auto& [rows, height] : kRowHeights) {
    sheet.Range(rows).RowHeight(height);
  }
}

void WriteTitles(Worksheet& sheet, const SheetTexts& texts) {
  constexpr double kTitleSize = 14;
  constexpr double kSubtitleSize = 10;
  sheet_style::WriteHeading(sheet, "A1:P1",
                            Join("Categoria  144  MHz - ", texts.month_title, "  ", texts.year));
  sheet.Range("A1:P1").Font().Size(kTitleSize);
  for (const auto& [cells, text] : kHeadings) {
    sheet_style::WriteHeading(sheet, cells, text);
  }
  sheet.Range("A2:P2").Font().Size(kSubtitleSize);
}

/// Frames of the two tables, with the texts at their edges.
void WriteTables(Worksheet& sheet) {
  constexpr double kCallSize = 6.5;  // eight characters fill a cell
  for (const std::string_view table :
       {"A6:A8", "B5:O8", "B10:D13", "E13:G13", "I10:L13", "M10:O13"}) {
    sheet_style::Frame(sheet.Range(table));
  }
  for (const auto& [cells, text] : kLabels) {
    sheet.Range(cells).Merge().Interior(sheet_style::kHeadGround).Value(text);
  }
  // The total of the kilometres needs the room of two cells.
  for (const std::string_view value : {"K10:L10", "K11:L11", "K12:L12", "K13:L13"}) {
    sheet.Range(value).Merge();
  }
  sheet.Range("K10").NumberFormat("#,##0");
  sheet.Range("D13:G13").Font().Size(kCallSize);
  sheet.Range("B5:O5").Interior(sheet_style::kHeadGround).Font().Bold(true);
  int column = kFirstArea;
  for (const CallArea area : kPrintedAreas) {
    sheet.Cells(kAreasRow, column++).Value(HeadOf(area));
  }
}

void FillTables(Worksheet& sheet, std::string_view statistics) {
  LineReader lines(statistics);
  for (std::string_view line; lines.Next(line);) {
    for (const auto& [key, cell, columns] : kValues) {
      if (Holds(line, key)) {
        Write(sheet.Cells(cell.row, cell.column), Cut(line, columns));
      }
    }
    int column = kFirstArea;
    for (const CallArea area : kPrintedAreas) {
      for (const auto& [key, row] : {std::pair("air ", kOnAirRow), std::pair("ivi ", kLogsRow)}) {
        if (Holds(line, Join(key, NameOf(area)))) {
          Write(sheet.Cells(row, column), Cut(line, kAreaCount));
        }
      }
      ++column;
    }
  }
  // More logs than calls on the air, as by foreign logs that count for an area, give less than 0.
  for (int column = kFirstArea; column <= kLastArea; ++column) {
    sheet.Cells(kAbsentRow, column)
        .Value(NumberIn(sheet, {kOnAirRow, column}) - NumberIn(sheet, {kLogsRow, column}));
  }
}

/// Of all areas together.
double SumOfRow(const Worksheet& sheet, int row) {
  double sum = 0;
  for (int column = kFirstArea; column <= kLastArea; ++column) {
    sum += NumberIn(sheet, {row, column});
  }
  return sum;
}

/// A number of calls, and its share of all of them in the cell behind it.
void WriteShare(Worksheet& sheet, int column, double calls, double all) {
  sheet.Cells(kTotalsRow, column).Value(calls);
  sheet.Cells(kTotalsRow, column + 1).NumberFormat("0.0%").Value(all == 0 ? 0 : calls / all);
}

void WriteTotals(Worksheet& sheet) {
  constexpr int kAllColumn = 5;
  constexpr int kLogsColumn = 9;
  constexpr int kAbsentColumn = 15;
  sheet.Range("A51:P51").Merge().HorizontalAlignment(xl::kCenter).Value(kNote);
  sheet_style::Frame(sheet.Range("A52:P52"));
  for (const auto& [cells, text] :
       {FixedText{"A52:D52", "Totali call Italia in aria"}, FixedText{"F52:H52", "LOG ricevuti"},
        FixedText{"K52:N52", "LOG non ricevuti"}}) {
    sheet.Range(cells).Merge().Interior(sheet_style::kHeadGround).Value(text);
  }
  const double all = SumOfRow(sheet, kOnAirRow);
  sheet.Cells(kTotalsRow, kAllColumn).Value(all);
  WriteShare(sheet, kLogsColumn, SumOfRow(sheet, kLogsRow), all);
  WriteShare(sheet, kAbsentColumn, SumOfRow(sheet, kAbsentRow), all);
}

void AddChart(Worksheet& sheet) {
  SheetChart chart;
  chart.place = {{54, kFirstArea}, {65, kLastArea}};
  chart.categories = {{kAreasRow, kFirstArea}, {kAreasRow, kLastArea}};
  for (const int row : {kAbsentRow, kLogsRow, kOnAirRow}) {
    chart.series.push_back({{row, 1}, {{row, kFirstArea}, {row, kLastArea}}});
  }
  sheet.charts.push_back(std::move(chart));
}

}  // namespace

void CreateStatisticsSheet(Workbook& book, const std::function<std::string()>& read,
                           const SheetTexts& texts, const std::string& italy_png,
                           const std::function<void(std::string_view status)>& status) {
  status(" stat 144 in corso");
  Worksheet& sheet = book.Add();
  book.Rename(sheet, "2IT-STAT");
  book.Select(sheet);
  sheet.gridlines = false;
  SetUpSheet(sheet);
  WriteTitles(sheet, texts);
  WriteTables(sheet);
  const std::string statistics = read();
  FillTables(sheet, statistics);
  status(" stat 144 squares in corso");
  DrawSquareGrid(sheet);
  MarkWorkedSquares(sheet, statistics);
  status(" stat 144 DX in corso");
  MarkDxSquares(sheet, statistics);
  status(" stat 144 Mappa italia in corso");
  sheet.pictures.push_back({square_grid::kItaly, italy_png});
  status(" stat 144 grafico in corso");
  AddChart(sheet);
  WriteSquareActivity(sheet, statistics);
  WriteTotals(sheet);
  status(" stat 144 fatto");
  if (!texts.no_printer) {
    sheet.page_setup = ClassificationPage(texts);
  }
}

}  // namespace velmar
