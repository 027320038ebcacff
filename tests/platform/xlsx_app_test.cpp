#include "platform/xlsx_app.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/ansi.h"
#include "platform/error.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"
#include "support/xlsx_file.h"

namespace velmar {
namespace {

/// A picture of one dot.
constexpr std::string_view kDot(
    "\x89PNG\r\n\x1A\n\0\0\0\rIHDR\0\0\0\x01\0\0\0\x01\x08\0\0\0\0:~\x9BU\0\0\0\nIDATx\x9C"
    "c`\0\0\0\x02\0\x01H\xAF\xA4q\0\0\0\0IEND\xAE"
    "B`\x82",
    67);

class XlsxAppTest : public testing::Test {
 protected:
  test::XlsxFile Saved() {
    app.SaveAs(book, path);
    return test::XlsxFile(path);
  }

  int NumberOfSaving() {
    try {
      app.SaveAs(book, path);
      return 0;
    } catch (const RunTimeError& error) {
      return static_cast<int>(error.number());
    }
  }

  test::TempWorkspace workspace;
  test::FailingFileSystem files{workspace.files()};
  XlsxApp app{files};
  const std::string path = workspace.paths().base() + "/la classifica.xlsx";
  Workbook book{1};
  Worksheet& sheet = book.Sheet(1);
};

TEST_F(XlsxAppTest, CellsComeBackAsTheyWere) {
  sheet.Range("A1").Value("00123");
  sheet.Range("B1").Value(-12.5).NumberFormat("#,##0");
  sheet.Range("A2").Value("=1+1 <&> perch\xE9 \x80");
  sheet.Range("A3").Value(" two\nlines ").WrapText(true).VerticalAlignment(xl::kCenter);
  sheet.Range("C1:C3").Interior(0x010203).HorizontalAlignment(xl::kRight);
  sheet.Range("C4").Interior(0).NumberFormat("0.0%").HorizontalAlignment(xl::kLeft);
  sheet.Range("B2:D5").Borders(xl::kEdgeLeft, xl::kMedium).Borders(xl::kInsideVertical, 1);
  sheet.Range("B2:D5").Borders(xl::kEdgeBottom, xl::kThin).Borders(xl::kEdgeTop, xl::kThin);
  sheet.Range("B5").Value("x").Font().Name("Segoe Print").Size(10.5).Color(0xFF8000);
  sheet.Range("D5").Value("y").Font().Bold(true).Underline(true);
  sheet.Range("E5").Value("z").Font().Name("Calibri").Size(11);
  sheet.Range("A9").Value("Velmar  Contest");
  sheet.Range("A9").Characters(8, 2, {.name = "Symbol", .size = 28, .bold = true, .colour = 255});
  sheet.Range("A9").Characters(12, 4, {.italic = true});

  const test::XlsxFile file = Saved();
  EXPECT_EQ(file.SheetNames(), std::vector<std::string>{"Foglio1"});
  EXPECT_EQ(file.sheets()[0].cells, sheet.cells());
  EXPECT_EQ(file.sheets()[0].ignored, "A1:E9");
  EXPECT_EQ(file.sheets()[0].Text("B1"), "-12.5");
}

TEST_F(XlsxAppTest, ATextOfOnePieceHasItsLetters) {
  const CellFont large{.size = 20};
  sheet.Range("A1").Value("whole").Characters(1, 5, large);
  EXPECT_EQ(Saved().sheets()[0].At("A1").format.font, large);
}

TEST_F(XlsxAppTest, ControlCharactersBecomeBlanks) {
  sheet.Range("A1").Value(std::string_view("a\0b\x1A", 4));
  sheet.page_setup.emplace().left_footer = "a\x1A";
  const test::XlsxSheet saved = Saved().sheets()[0];
  EXPECT_EQ(saved.Text("A1"), "a b ");
  EXPECT_EQ(saved.footer, "&La ");
}

TEST_F(XlsxAppTest, ColumnsRowsAndMergedCellsComeBack) {
  sheet.Range("A:C").ColumnWidth(6).HorizontalAlignment(xl::kCenter);
  sheet.Range("B:B").ColumnWidth(0);
  sheet.Range("5:6").RowHeight(11.25);
  sheet.Range("A1:C2").Merge().Value("over").Borders(xl::kEdgeRight, xl::kThin);
  sheet.AddPageBreak(67);
  sheet.AddPageBreak(133);
  const test::XlsxSheet saved = Saved().sheets()[0];
  EXPECT_EQ(saved.column_widths, (std::map<int, double>{{1, 6}, {2, 0}, {3, 6}}));
  EXPECT_EQ(saved.column_formats, sheet.column_formats());
  EXPECT_EQ(saved.row_heights, sheet.row_heights());
  EXPECT_EQ(saved.merged, std::vector<std::string>{"A1:C2"});
  EXPECT_EQ(saved.cells, sheet.cells());
  EXPECT_EQ(saved.page_breaks, (std::vector<int>{67, 133}));
}

TEST_F(XlsxAppTest, PagesAreSetUpAsTold) {
  PageSetup setup;
  setup.left_footer = "Velmar";
  setup.center_footer = " Data perch\xE9";
  setup.right_footer = "pag. &P di &N";
  setup.left_margin = 0;
  setup.right_margin = 0.25;
  setup.top_margin = 1;
  setup.bottom_margin = 0.5;
  setup.header_margin = 0.375;
  setup.footer_margin = 0.125;
  setup.center_horizontally = true;
  setup.orientation = 2;
  sheet.page_setup = setup;
  sheet.gridlines = false;
  sheet.selected = {3, 2};
  book.Select(book.Add());
  const test::XlsxFile file = Saved();
  const test::XlsxSheet& first = file.sheets()[0];
  EXPECT_EQ(first.footer, "&LVelmar&C Data perch\xE9&Rpag. &P di &N");
  EXPECT_EQ(first.margins, (std::map<std::string, double>{{"left", 0},
                                                          {"right", 0.25},
                                                          {"top", 1},
                                                          {"bottom", 0.5},
                                                          {"header", 0.375},
                                                          {"footer", 0.125}}));
  EXPECT_TRUE(first.landscape);
  EXPECT_NE(file.Part("xl/worksheets/sheet1.xml").find("<printOptions horizontalCentered=\"1\"/>"),
            std::string::npos);
  EXPECT_FALSE(first.gridlines || first.active);
  EXPECT_EQ(first.selected, "B3");
  EXPECT_TRUE(file.sheets()[1].gridlines && file.sheets()[1].active);
}

TEST_F(XlsxAppTest, PicturesAndChartsCoverTheirBlocks) {
  sheet.Range("B:C").ColumnWidth(13);
  sheet.Range("D:D").ColumnWidth(0);
  sheet.Range("18:37").RowHeight(17);
  sheet.Range("A5").Value("x");
  book.Rename(sheet, "2IT l'\xE0");
  sheet.pictures = {{{{18, 1}, {37, 7}}, std::string(kDot)}, {{{3, 2}, {3, 2}}, std::string(kDot)}};
  sheet.charts = {
      {{{39, 2}, {41, 5}}, {{5, 2}, {5, 9}}, {{{6, 1}, {{6, 2}, {6, 9}}}}, "Call \xE0"}};
  const test::XlsxFile file = Saved();
  EXPECT_EQ(file.sheets()[0].drawings,
            (std::vector<CellBlock>{sheet.pictures[0].place, sheet.pictures[1].place,
                                    sheet.charts[0].place}));
  EXPECT_EQ(file.Part("xl/media/image1.png"), kDot);
  for (const char* told : {"<c:barDir val=\"col\"/>", "'2IT l''à'!$B$5:$I$5",
                           "'2IT l''à'!$B$6:$I$6", "'2IT l''à'!$A$6", "Call à"}) {
    EXPECT_NE(file.Part("xl/charts/chart1.xml").find(told), std::string::npos) << told;
  }
}

TEST_F(XlsxAppTest, TheSameWorkbookGivesTheSameBytes) {
  sheet.Range("A1").Value("x");
  Saved();
  const std::string first = files.ReadAll(path);
  Saved();
  EXPECT_EQ(files.ReadAll(path), first);
}

TEST_F(XlsxAppTest, AFileThatCannotBeWrittenStaysAsItWas) {
  workspace.With("la classifica.xlsx", "old");
  const std::pair<ErrorNumber, int> cases[] = {{ErrorNumber::kPermissionDenied, 70},
                                               {ErrorNumber::kPathFileAccess, 70},
                                               {ErrorNumber::kDiskFull, 1004},
                                               {ErrorNumber::kPathNotFound, 1004}};
  for (const auto& [number, expected] : cases) {
    files.number = number;
    files.break_at_change = files.changes + 1;
    EXPECT_EQ(NumberOfSaving(), expected);
  }
  sheet.Range("A1").Value(std::string(40'000, 'x'));
  EXPECT_EQ(NumberOfSaving(), 1004);
  sheet.Range("A1").Value("");
  sheet.pictures = {{{{1, 1}, {2, 2}}, "no picture"}};
  EXPECT_EQ(NumberOfSaving(), 1004);
  EXPECT_EQ(workspace.Read("la classifica.xlsx"), "old");
}

}  // namespace
}  // namespace velmar
