#include "publish/classification_sheet.h"

#include <algorithm>
#include <array>
#include <vector>

#include "model/columns.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "platform/form.h"

namespace velmar {

namespace {

using colour::Rgb;

/// A column of the sheet: what of a row of the classification stands in it, as it stands there. The
/// fields begin a column later or end earlier than those of the row here and there, and that is
/// meant so: the sheet shows the mark of a wrong DX ahead of its call, and no more digits than
/// there are.
struct SheetColumn {
  std::string_view header;
  Column field;
  double width;  ///< characters; 0 for a hidden column
};

constexpr std::size_t kColumns = 13;
constexpr Column kNoField{1, 0};
constexpr AnsiView kPlaceHeader = "n°"_a;
constexpr std::array<SheetColumn, kColumns> kSheetColumns = {{{"", kNoField, 5},
                                                              {"Call", {1, 12}, 14},
                                                              {"LOC", {14, 6}, 10},
                                                              {"QSO", {53, 4}, 7},
                                                              {"Scores", {58, 7}, 10},
                                                              {"Pwr", {48, 4}, 8},
                                                              {"DX", {65, 12}, 13},
                                                              {"Qrb DX", {77, 5}, 8},
                                                              {"", {121, 4}, 0},
                                                              {"Ricalcolato", {83, 9}, 12},
                                                              {"error", {93, 4}, 5},
                                                              {"QRB err", {98, 7}, 8},
                                                              {"Punti QRB", {106, 9}, 12}}};

constexpr int kHeaderRow = 4;
constexpr int kMostLogs = 5'000;
constexpr int kLegendColumn = 7;
constexpr std::string_view kLegend = " ( * = QSO Error )";
constexpr std::string_view kContact =
    "Per informazioni: il manager del contest, velmar144@example.org";

/// A block of logs fills a page: behind it rows are put in, and the head of the sheet once more.
struct PageBlock {
  int above_row;   ///< the last row used must lie behind this one
  int above_logs;  ///< and there must be more logs
  int insert;      ///< the first of the rows that are put in
};

constexpr int kInserted = 6;
constexpr int kHeadRows = 4;
constexpr std::array<PageBlock, 4> kPageBlocks = {
    {{64, 0, 65}, {130, 120, 131}, {196, 180, 197}, {262, 240, 263}}};

std::string Rows(int first, int last) {
  return Join(first, ":", last);
}

std::string Across(int first_row, int last_row, std::string_view from = "A") {
  return Join(from, first_row, ":M", last_row);
}

void SetLines(SheetRange range, int first_index, int last_index, int weight) {
  for (int index = first_index; index <= last_index; ++index) {
    range.Borders(index, weight);
  }
}

void Centre(SheetRange range) {
  range.HorizontalAlignment(xl::kCenter).VerticalAlignment(xl::kCenter);
}

void WriteTitles(Worksheet& sheet, const std::string& title) {
  sheet.Range("A2").Value(title);
  sheet.Range("A2:M2").Merge().Font().Size(14).Bold(false).Color(Rgb(0, 0, 0));
  Centre(sheet.Range("A2:M2"));
  sheet.Range("A3:C3").Interior(Rgb(213, 255, 232)).Merge();
  Centre(sheet.Range("D3:J3").WrapText(false).Merge());
  sheet.Range("K3:M3").Interior(Rgb(255, 167, 167)).Merge();
  sheet.Range("3:3").RowHeight(11);
  sheet.Range("D3:J3").Font().Size(8);
  sheet.Range("A4:M4").HorizontalAlignment(xl::kCenter).Interior(Rgb(242, 242, 242));
  sheet.Cells(kHeaderRow, 1).Value(kPlaceHeader);
  for (std::size_t i = 1; i < kColumns; ++i) {
    sheet.Cells(kHeaderRow, static_cast<int>(i) + 1).Value(kSheetColumns.at(i).header);
  }
}

/// The name of the contest over the sheet, in four sizes of letters.
void WriteBanner(Worksheet& sheet) {
  constexpr std::string_view kText = "Velmar       Contest";
  struct Piece {
    std::size_t start, length;
    double size;
    int colour;
  };
  constexpr std::array<Piece, 4> kPieces = {
      {{1, 6, 20, 0}, {7, 7, 28, Rgb(0, 255, 0)}, {14, 1, 14, 0}, {15, 6, 10, 0}}};
  SheetRange banner = sheet.Range("A1:M1");
  banner.Merge().Interior(Rgb(184, 175, 130)).HorizontalAlignment(xl::kCenter);
  banner.VerticalAlignment(xl::kCenter);
  banner.Font().Name("Segoe Print").Size(20).Bold(true).Color(Rgb(0, 0, 0));
  sheet.Range("A1").Value(kText);
  for (const Piece& piece : kPieces) {
    banner.Characters(
        piece.start, piece.length,
        {.name = "segoe Print", .size = piece.size, .bold = true, .colour = piece.colour});
  }
  SetLines(sheet.Range("A1:M4"), xl::kEdgeLeft, xl::kInsideHorizontal, xl::kThin);
  sheet.Range("4:4").RowHeight(21);
  Centre(sheet.Range("A4:M4").WrapText(true));
}

/// Writes the logs as the texts that they are, the first place as a number. Gives their count.
int WriteLogs(Worksheet& sheet, std::string_view classification) {
  int row = kHeaderRow;
  LineReader reader(classification);
  std::string_view line;
  reader.Next(line);  // its own header, which the sheet's takes the place of
  while (reader.Next(line)) {
    if (++row > kHeaderRow + kMostLogs) {
      throw RunTimeError(ErrorNumber::kSubscript, "the table of the sheet");
    }
    sheet.Cells(row, 1).Value(std::to_string(row - kHeaderRow));
    for (std::size_t i = 1; i < kColumns; ++i) {
      sheet.Cells(row, static_cast<int>(i) + 1).Value(Cut(line, kSheetColumns.at(i).field));
    }
  }
  if (row > kHeaderRow) {
    sheet.Range("A5").Value(1.0);
  }
  return row - kHeaderRow;
}

void FormatBody(Worksheet& sheet, int last) {
  for (const std::string_view from : {"A", "H"}) {
    SheetRange body = sheet.Range(Across(kHeaderRow + 1, last, from));
    SetLines(body, xl::kEdgeLeft, xl::kInsideVertical, xl::kThin);
    body.Borders(xl::kInsideHorizontal, xl::kHairline);
  }
  sheet.Range(Across(kHeaderRow + 1, last, "H")).NumberFormat("#,##0");
}

void InsertHead(Worksheet& sheet, int first) {
  const int target = first + kInserted - kHeadRows;
  sheet.Range(Rows(first, first + kInserted - 1)).Insert();
  sheet.Range(Rows(1, kHeadRows)).Copy(sheet.Range(Rows(target, target)));
  sheet.AddPageBreak(target);
  SheetRange cleared = sheet.Range(Across(first, target - 1));
  for (const int index : {xl::kDiagonalDown, xl::kDiagonalUp, xl::kEdgeLeft, xl::kEdgeRight,
                          xl::kInsideVertical, xl::kInsideHorizontal}) {
    cleared.Borders(index, 0);
  }
  cleared.Borders(xl::kEdgeTop, xl::kThin).Borders(xl::kEdgeBottom, xl::kThin).Interior({});
  sheet.Range(Across(first - 1, first - 1)).Borders(xl::kEdgeBottom, xl::kThin);
  sheet.Range(Across(target, target)).Borders(xl::kEdgeTop, xl::kThin);
  const int end = target + kHeadRows - 1;
  sheet.Range(Across(end, end)).Borders(xl::kEdgeBottom, xl::kThin);
  sheet.Cells(first, kLegendColumn).Value(kLegend);
  // With the usual height the row behind the legend would be a page of its own.
  sheet.Range(Rows(first + 1, target - 1)).RowHeight(5);
}

/// Breaks the ranking into pages of 60 logs. Behind the fourth block it goes on without breaks, and
/// that is meant so. Gives the last row used.
int BreakPages(Worksheet& sheet, int logs) {
  int last = kHeaderRow + logs;
  for (const PageBlock& block : kPageBlocks) {
    if (last > block.above_row && logs > block.above_logs) {
      InsertHead(sheet, block.insert);
      last += kInserted;
    }
  }
  return last;
}

}  // namespace

void SetUpClassificationSheet(Worksheet& sheet) {
  sheet.Range("A:Z").ColumnWidth(6);
  sheet.Range("A1:P200").Font().Size(8).Name("Arial");
  for (std::size_t i = 0; i < kColumns; ++i) {
    sheet.Cells(1, static_cast<int>(i) + 1).ColumnWidth(kSheetColumns.at(i).width);
  }
  for (const std::string_view column : {"A:A", "D:D", "I:I", "N:N"}) {
    sheet.Range(column).HorizontalAlignment(xl::kCenter);
  }
  sheet.Range("1:1").RowHeight(50);
  sheet.Range("2:2").RowHeight(25);
  sheet.Range("3:3").RowHeight(18);
  sheet.Range("5:750").RowHeight(11.25);
  sheet.Range("G3").Value(kContact);
}

int FillClassificationSheet(Worksheet& sheet, std::string_view classification,
                            const std::string& title, const SheetTexts& texts) {
  WriteTitles(sheet, title);
  WriteBanner(sheet);
  const int logs = WriteLogs(sheet, classification);
  if (logs > 0) {
    FormatBody(sheet, kHeaderRow + logs);
  }
  const int last = BreakPages(sheet, logs);
  sheet.Cells(last + 1, kLegendColumn).Value(kLegend);
  if (!texts.no_printer) {
    sheet.page_setup = ClassificationPage(texts);
  }
  return logs;
}

PageSetup ClassificationPage(const SheetTexts& texts, double top) {
  PageSetup page;
  page.left_footer = Join("Velmar ", texts.year, " - ", texts.version);
  page.center_footer = Join(" Data contest = ", texts.contest_date);
  page.right_footer = "pag. &P di &N";
  page.left_margin = page.right_margin = 0;
  page.top_margin = top;
  page.bottom_margin = 0.590551181102362;
  page.header_margin = 0.393700787401575;
  page.footer_margin = 0.31496062992126;
  page.center_horizontally = true;
  return page;
}

}  // namespace velmar
