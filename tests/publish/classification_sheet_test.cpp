#include "publish/classification_sheet.h"

#include <gtest/gtest.h>

#include "platform/error.h"
#include "platform/xlsx_app.h"
#include "publish/statistics_desk.h"
#include "support/xlsx_file.h"

namespace velmar::test {
namespace {

const SheetTexts kTexts{
    .month_title = "Gennaio ", .year = "2025", .contest_date = "2025.01.19", .version = "0.0.8"};

/// A classification of as many logs as told; the first has been checked.
std::string Classification(int logs) {
  Names rows = {std::string(classification_row::kHeader)};
  for (int i = 0; i < logs; ++i) {
    rows.push_back(ClassificationRow({.call = Join("IK2Q", 100 + i),
                                      .locator = "JN45AA",
                                      .height = "200",
                                      .antenna = "9 el",
                                      .power = 100,
                                      .qsos = "312",
                                      .declared = "123456",
                                      .dx_call = "EA8QA",
                                      .dx_distance = "2987",
                                      .points = 120000}));
  }
  if (logs > 0) {
    rows[1] = WithDxMark(CheckedRow(rows[1], {.errors = 3, .lost = 1200, .final = 118800}), '*');
  }
  return TextOfLines(rows);
}

struct FilledSheet {
  explicit FilledSheet(int logs, const SheetTexts& texts = kTexts) {
    SetUpClassificationSheet(sheet);
    count = FillClassificationSheet(sheet, Classification(logs), "Titolo", texts);
  }

  std::string Text(int row, int column) const {
    const auto cell = sheet.cells().find({row, column});
    const auto* text =
        cell == sheet.cells().end() ? nullptr : std::get_if<std::string>(&cell->second.value);
    return text == nullptr ? "" : *text;
  }

  const CellFormat& Format(int row, int column) const {
    return sheet.cells().at({row, column}).format;
  }

  Worksheet sheet{"2IT-144"};
  int count = 0;
};

TEST(ClassificationSheet, ARowIsCutAsItStands) {
  const FilledSheet filled(2);
  EXPECT_EQ(filled.count, 2);
  Names cells;
  for (int column = 2; column <= 13; ++column) {
    cells.push_back(filled.Text(5, column));
  }
  EXPECT_EQ(cells, (Names{"IK2Q100     ", "JN45AA", "312 ", "123456 ", "100 ", "*EA8QA      ",
                          "2987 ", cells[7], "120000   ", cells[9], cells[10], cells[11]}));
  EXPECT_EQ(Trim(cells[9]), "3");
  EXPECT_EQ(Trim(cells[10]), "1200");
  EXPECT_EQ(Trim(cells[11]), "118800");
  EXPECT_EQ(std::get<double>(filled.sheet.cells().at({5, 1}).value), 1);
  EXPECT_EQ(filled.Text(6, 1), "2") << "only the first place is a number";
  EXPECT_EQ(filled.Text(4, 1), "n\xB0");
  EXPECT_EQ(filled.Text(4, 13), "Punti QRB");
  EXPECT_EQ(filled.Text(2, 1), "Titolo");
  EXPECT_TRUE(filled.Text(3, 4).starts_with("Per informazioni: "))
      << "the contact line moves to the front of its block";
  EXPECT_EQ(filled.Text(7, 7), " ( * = QSO Error )");
  EXPECT_EQ(filled.sheet.column_widths().at(9), 0);
  EXPECT_EQ(filled.Format(5, 1).borders,
            (CellBorders{xl::kThin, xl::kThin, xl::kThin, xl::kHairline}));
  EXPECT_EQ(filled.Format(6, 13).number_format, "#,##0");
  EXPECT_EQ(filled.sheet.cells().at({1, 1}).pieces.size(), 4U);
  ASSERT_TRUE(filled.sheet.page_setup);
  EXPECT_EQ(filled.sheet.page_setup->left_footer, "Velmar 2025 - 0.0.8");
  EXPECT_EQ(filled.sheet.page_setup->center_footer, " Data contest = 2025.01.19");
  SheetTexts without_printer = kTexts;
  without_printer.no_printer = true;
  EXPECT_FALSE(FilledSheet(2, without_printer).sheet.page_setup);
}

TEST(ClassificationSheet, SixtyLogsFillAPage) {
  const std::string legend = " ( * = QSO Error )";
  const FilledSheet one(60);
  EXPECT_TRUE(one.sheet.page_breaks().empty());
  EXPECT_EQ(one.Text(65, 7), legend);
  const FilledSheet two(61);
  EXPECT_EQ(two.sheet.page_breaks(), (std::set<int>{67}));
  EXPECT_EQ(two.Text(65, 7), legend);
  EXPECT_EQ(two.Text(68, 1), "Titolo");
  EXPECT_EQ(two.Text(70, 2), "Call");
  EXPECT_EQ(two.Text(71, 2), "IK2Q160     ") << "the log behind the head";
  EXPECT_EQ(two.Text(72, 7), legend);
  EXPECT_EQ(two.sheet.row_heights().at(67), 50);
  EXPECT_EQ(two.Format(65, 3).borders.left, 0);
  EXPECT_EQ(two.Format(65, 3).interior, std::nullopt);
  EXPECT_EQ(two.Format(64, 3).borders.bottom, xl::kThin);
  EXPECT_EQ(FilledSheet(121).sheet.page_breaks(), (std::set<int>{67, 133}));
  const FilledSheet many(400);
  EXPECT_EQ(many.sheet.page_breaks(), (std::set<int>{67, 133, 199, 265}));
  EXPECT_EQ(many.Text(4 + 400 + 4 * 6, 1), "400");
}

TEST(ClassificationSheet, TheFileHoldsWhatTheSheetHolds) {
  TempWorkspace workspace;
  Workbook book(1);
  SetUpClassificationSheet(book.Sheet(1));
  FillClassificationSheet(book.Sheet(1), Classification(61), "Titolo", kTexts);
  const std::string path = workspace.paths().base() + "/classifica.xlsx";
  XlsxApp(workspace.files()).SaveAs(book, path);
  const XlsxSheet sheet = XlsxFile(path).sheets().at(0);
  const Worksheet& made = book.Sheet(1);
  for (const auto& [place, cell] : made.cells()) {
    if (!std::holds_alternative<std::monostate>(cell.value) && cell.pieces.empty()) {
      ASSERT_TRUE(sheet.cells.contains(place)) << place.row << "," << place.column;
      EXPECT_EQ(sheet.cells.at(place).value, cell.value) << place.row << "," << place.column;
      EXPECT_EQ(sheet.cells.at(place).format, cell.format) << place.row << "," << place.column;
    }
  }
  EXPECT_EQ(sheet.page_breaks, (std::vector<int>{67}));
  EXPECT_EQ(sheet.row_heights, made.row_heights());
  EXPECT_EQ(sheet.merged.size(), 2 * 5U) << "five blocks of the head, twice";
  EXPECT_EQ(sheet.column_widths.at(9), 0);
  EXPECT_NEAR(sheet.column_widths.at(2), 14, 0.5);
  EXPECT_EQ(sheet.footer, "&LVelmar 2025 - 0.0.8&C Data contest = 2025.01.19&Rpag. &P di &N");
  EXPECT_FALSE(sheet.ignored.empty()) << "texts may look like numbers";
}

TEST(ClassificationSheet, WithoutALogThereAreHeadersOnly) {
  const FilledSheet filled(0);
  EXPECT_EQ(filled.sheet.LastRow(1), 4);
  EXPECT_EQ(filled.Text(5, 7), " ( * = QSO Error )");
  EXPECT_EQ(FilledSheet(5000).count, 5000);
  EXPECT_THROW(FilledSheet(5001), RunTimeError);
}

}  // namespace
}  // namespace velmar::test
