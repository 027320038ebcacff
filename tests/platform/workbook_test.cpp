#include "platform/workbook.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "platform/error.h"

namespace velmar {
namespace {

int NumberOf(const std::function<void()>& step) {
  try {
    step();
    return 0;
  } catch (const RunTimeError& error) {
    return static_cast<int>(error.number());
  }
}

class WorksheetTest : public testing::Test {
 protected:
  std::string TextAt(int row, int column) const {
    const auto cell = sheet.cells().find({row, column});
    const auto* text =
        cell == sheet.cells().end() ? nullptr : std::get_if<std::string>(&cell->second.value);
    return text == nullptr ? "" : *text;
  }

  CellBorders BordersAt(int row, int column) const { return sheet.FormatAt({row, column}).borders; }

  Worksheet sheet{"one"};
};

TEST_F(WorksheetTest, AddressesNameCellsColumnsAndRows) {
  const std::pair<const char*, CellBlock> good[] = {
      {"A1", {{1, 1}, {1, 1}}},
      {"b2:AZ30", {{2, 2}, {30, 52}}},
      {"M4:A1", {{1, 1}, {4, 13}}},
      {"A:Z", {{1, 1}, {xl::kRows, 26}}},
      {"5:750", {{5, 1}, {750, xl::kColumns}}},
      {"XFD1048576", {{xl::kRows, xl::kColumns}, {xl::kRows, xl::kColumns}}}};
  for (const auto& [address, block] : good) {
    EXPECT_EQ(sheet.Range(address).block(), block) << address;
  }
  for (const char* address : {"", ":", "A", "5", "A:5", "A1:B", "A1:5", "A0", "1A", "A1:", "A-1",
                              "XFE1", "A1048577", "A99999999999", "AAAAAAAAAA1", "A1:B2:C3"}) {
    EXPECT_EQ(NumberOf([&] { sheet.Range(address); }), 1004) << address;
  }
  EXPECT_EQ(NumberOf([&] { sheet.Cells(0, 1); }), 1004);
  EXPECT_EQ(NumberOf([&] { sheet.Cells(1, xl::kColumns + 1); }), 1004);
}

TEST_F(WorksheetTest, FormatsOfColumnsAndRowsHoldForCellsMadeLaterAndJoinWhereTheyCross) {
  sheet.Cells(3, 1).Value("old");
  sheet.Range("A:B").HorizontalAlignment(xl::kCenter).Borders(xl::kInsideHorizontal, xl::kThin);
  sheet.Range("2:3").Interior(7);
  sheet.Range("B:C").Font().Bold(true);
  sheet.Cells(9, 2).Value("new");
  EXPECT_LT(sheet.cells().size(), 10U);
  const auto look = [&](int row, int column) {
    const CellFormat& format = sheet.FormatAt({row, column});
    return std::string(format.horizontal == xl::kCenter ? "c" : "") +
           (format.borders.top == xl::kThin ? "t" : "") + (format.interior == 7 ? "i" : "") +
           (format.font.bold ? "b" : "");
  };
  const std::vector<std::vector<std::string>> expected = {
      {"ct", "ctb", "b", ""}, {"cti", "ctib", "ib", "i"}, {"cti", "ctib", "ib", "i"}};
  for (int row = 1; row <= 3; ++row) {
    for (int column = 1; column <= 4; ++column) {
      EXPECT_EQ(look(row, column), expected.at(row - 1).at(column - 1)) << row << " " << column;
    }
  }
  EXPECT_EQ(look(9, 2), "ctb");
}

TEST_F(WorksheetTest, LinesAreDrawnAroundAndInsideAndTakenFromTheNeighboursToo) {
  for (int index = xl::kEdgeLeft; index <= xl::kInsideHorizontal; ++index) {
    sheet.Range("B2:D4").Borders(index, index == xl::kInsideHorizontal ? 1 : 2);
  }
  EXPECT_EQ(BordersAt(2, 2), (CellBorders{2, 2, 2, 1}));
  EXPECT_EQ(BordersAt(3, 3), (CellBorders{2, 1, 2, 1}));
  EXPECT_EQ(BordersAt(4, 4), (CellBorders{2, 1, 2, 2}));
  EXPECT_EQ(sheet.cells().size(), 9U);

  sheet.Range("C3").Borders(xl::kEdgeTop, 0).Borders(xl::kEdgeRight, xl::kMedium);
  EXPECT_EQ(BordersAt(2, 3), (CellBorders{2, 2, 2, 0}));
  EXPECT_EQ(BordersAt(3, 3), (CellBorders{2, 0, xl::kMedium, 1}));
  EXPECT_EQ(BordersAt(3, 4).left, xl::kMedium);
  sheet.Range("A1:A4").Borders(xl::kEdgeRight, 0).Borders(xl::kDiagonalUp, 0);
  EXPECT_EQ(BordersAt(2, 2), (CellBorders{0, 2, 2, 1}));
  EXPECT_EQ(NumberOf([&] { sheet.Range("A1").Borders(13, 0); }), 1004);
}

TEST_F(WorksheetTest, MergedCellsKeepTheFirstValueAndTakeNoOther) {
  sheet.Range("G3").Value("contact");
  sheet.Range("G3").Characters(2, 3, {.bold = true});
  sheet.Range("H3").Value("lost");
  sheet.Range("D3:J3").Merge();
  EXPECT_EQ(TextAt(3, 4), "contact");
  EXPECT_EQ(sheet.cells().at({3, 4}).pieces.size(), 1U);
  EXPECT_EQ(TextAt(3, 7) + TextAt(3, 8), "");
  sheet.Range("C3:F3").Value("new");
  EXPECT_EQ(TextAt(3, 3) + TextAt(3, 4) + TextAt(3, 5), "newnew");
  sheet.Range("A3:D4").Merge();
  sheet.Range("Z9").Merge();
  EXPECT_EQ(sheet.merged(), (std::vector<CellBlock>{{{3, 1}, {4, 4}}}));
}

TEST_F(WorksheetTest, AnInsertMovesAllThatLiesBehindAndStretchesWhatLiesAcross) {
  for (int row = 1; row <= 6; ++row) {
    sheet.Cells(row, 1).Value(std::to_string(row));
    sheet.Cells(row, 2).Value(row).Interior(row);
    sheet.Cells(row, 1).RowHeight(10 * row);
  }
  sheet.Range("D1:E1").Merge();
  sheet.Range("D3:E4").Merge();
  sheet.Range("D5:E5").Merge();
  sheet.AddPageBreak(3);
  sheet.AddPageBreak(4);
  sheet.pictures.push_back({{{4, 1}, {5, 2}}, "png"});
  sheet.charts.push_back({{{1, 1}, {6, 2}}, {{3, 1}, {3, 9}}, {{{4, 1}, {{4, 2}, {4, 9}}}}, ""});
  sheet.Range("4:5").Insert();

  EXPECT_EQ(TextAt(3, 1) + TextAt(4, 1) + TextAt(5, 1) + TextAt(6, 1) + TextAt(8, 1), "346");
  EXPECT_EQ(sheet.FormatAt({5, 2}).interior, 3);
  EXPECT_EQ(sheet.FormatAt({6, 2}).interior, 4);
  EXPECT_EQ(sheet.row_heights(),
            (std::map<int, double>{
                {1, 10}, {2, 20}, {3, 30}, {4, 30}, {5, 30}, {6, 40}, {7, 50}, {8, 60}}));
  EXPECT_EQ(sheet.merged(),
            (std::vector<CellBlock>{{{1, 4}, {1, 5}}, {{3, 4}, {6, 5}}, {{7, 4}, {7, 5}}}));
  EXPECT_EQ(sheet.page_breaks(), (std::set<int>{3, 6}));
  EXPECT_EQ(sheet.pictures[0].place, (CellBlock{{6, 1}, {7, 2}}));
  const SheetChart& chart = sheet.charts[0];
  EXPECT_EQ(chart.place, (CellBlock{{1, 1}, {8, 2}}));
  EXPECT_EQ(chart.categories.first.row, 3);
  EXPECT_EQ(chart.series[0], (std::pair(CellPlace{6, 1}, CellBlock{{6, 2}, {6, 9}})));
  sheet.Cells(xl::kRows, 1).Value(1);
  EXPECT_EQ(NumberOf([&] { sheet.Range("2:2").Insert(); }), 1004);
}

TEST_F(WorksheetTest, RowsAreCopiedAlsoOverThemselvesAndUnderOtherColumns) {
  sheet.Range("C:C").NumberFormat("0.0");
  sheet.Range("2:2").Interior(9);
  for (int row = 1; row <= 3; ++row) {
    sheet.Cells(row, 1).Value(std::to_string(row)).RowHeight(row);
  }
  sheet.Range("A1").Characters(1, 1, {.italic = true});
  sheet.Range("A1:B1").Merge();
  sheet.Range("A4:A6").Merge();
  sheet.Cells(4, 5).Value("goes");
  sheet.AddPageBreak(2);
  Worksheet other("other");
  other.Range("C:D").WrapText(true);
  sheet.Range("1:3").Copy(other.Range("B11"));
  sheet.Range("1:3").Copy(sheet.Range("2:2"));

  EXPECT_EQ(TextAt(1, 1) + TextAt(2, 1) + TextAt(3, 1) + TextAt(4, 1) + TextAt(4, 5), "1123");
  EXPECT_EQ(sheet.cells().at({2, 1}), sheet.cells().at({1, 1}));
  EXPECT_EQ(sheet.FormatAt({2, 9}), CellFormat());
  EXPECT_EQ(sheet.FormatAt({3, 9}).interior, 9);
  EXPECT_EQ(sheet.merged(), (std::vector<CellBlock>{{{1, 1}, {1, 2}}, {{2, 1}, {2, 2}}}));
  EXPECT_EQ(sheet.row_heights(), (std::map<int, double>{{1, 1}, {2, 1}, {3, 2}, {4, 3}}));
  EXPECT_EQ(sheet.page_breaks(), std::set<int>{2});

  EXPECT_EQ(other.cells().at({11, 1}), sheet.cells().at({1, 1}));
  EXPECT_EQ(other.merged(), (std::vector<CellBlock>{{{11, 1}, {11, 2}}}));
  for (int row = 11; row <= 13; ++row) {
    EXPECT_EQ(other.FormatAt({row, 3}).number_format, "0.0") << row;
    EXPECT_FALSE(other.FormatAt({row, 3}).wrap || other.FormatAt({row, 4}).wrap) << row;
    EXPECT_EQ(other.FormatAt({row, 4}).interior, other.FormatAt({row, 9}).interior) << row;
  }
  EXPECT_EQ(other.FormatAt({12, 9}).interior, 9);
  EXPECT_TRUE(other.FormatAt({14, 4}).wrap);
  EXPECT_EQ(NumberOf([&] { sheet.Range("1:3").Copy(sheet.Cells(xl::kRows - 1, 1)); }), 1004);
}

TEST_F(WorksheetTest, TheLastRowIsThatOfAValueInTheColumn) {
  EXPECT_EQ(sheet.LastRow(1), 1);
  sheet.Range("A3:A5").Value("x");
  sheet.Range("B3:B9").Value(0.0).Interior(1);
  sheet.Range("A5:A7").Value("").Interior(1);
  EXPECT_EQ(sheet.LastRow(1), 4);
  EXPECT_EQ(sheet.LastRow(2), 9);
  EXPECT_EQ(sheet.LastRow(3), 1);
  EXPECT_EQ(NumberOf([&] { sheet.Range("A:A").Value("x"); }), 1004);
}

TEST_F(WorksheetTest, LaterPiecesCutTheEarlierOnesAndEndWithTheText) {
  const CellFont bold{.bold = true};
  const CellFont red{.colour = 255};
  sheet.Range("A1").Value("0123456789");
  sheet.Range("A1").Characters(2, 6, bold);
  sheet.Range("A1").Characters(4, 2, red);
  sheet.Range("A1").Characters(7, 99, red);
  sheet.Range("A1").Characters(11, 1, bold);
  EXPECT_EQ(sheet.cells().at({1, 1}).pieces,
            (std::vector<CellPiece>{{2, 2, bold}, {4, 2, red}, {6, 1, bold}, {7, 4, red}}));
  sheet.Range("A1").Value("0123456789");
  EXPECT_TRUE(sheet.cells().at({1, 1}).pieces.empty());
}

TEST(WorkbookTest, SheetsAreFoundNamedAndTakenOutByTheirRules) {
  Workbook book;
  Worksheet& second = book.Sheet("FOGLIO2");
  book.Rename(second, "Perch\xC9");
  EXPECT_EQ(&book.Sheet("perch\xE9"), &second);
  book.Rename(second, "PERCH\xC9");
  book.Rename(book.Sheet(3), "Foglio4");
  EXPECT_EQ(book.Add().name(), "Foglio5");
  for (const std::string& name : {std::string(), std::string(32, 'x'), std::string("a/b"),
                                  std::string("a:b"), std::string("'a"), std::string("foglio1")}) {
    EXPECT_EQ(NumberOf([&] { book.Rename(second, name); }), 1004) << name;
  }
  book.Select(book.Sheet(4));
  book.Delete("perch\xE9");
  EXPECT_EQ(book.selected(), 3U);
  book.Delete("Foglio5");
  EXPECT_EQ(book.selected(), 2U);
  EXPECT_EQ(NumberOf([&] { book.Delete("Foglio5"); }), 9);
  EXPECT_EQ(NumberOf([&] { book.Sheet(3); }), 9);
  EXPECT_EQ(NumberOf([&] { book.Sheet("Foglio2"); }), 9);
  EXPECT_EQ(NumberOf([&] { book.Select(Worksheet("Foglio1")); }), 9);
  book.Delete("Foglio4");
  EXPECT_EQ(NumberOf([&] { book.Delete("Foglio1"); }), 1004);
}

}  // namespace
}  // namespace velmar
