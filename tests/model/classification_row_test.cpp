#include "model/classification_row.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/error.h"

namespace velmar {
namespace {

const ClassificationEntry kUsual = {.call = "IK2QAA/P",
                                    .locator = "JN45NK",
                                    .height = "120",
                                    .antenna = "9 el. yagi",
                                    .power = 100,
                                    .qsos = "85",
                                    .declared = "21344",
                                    .dx_call = "9A1CCC",
                                    .dx_distance = "512",
                                    .points = 21340,
                                    .operator_mark = 'Y'};

TEST(ClassificationRow, TheRowOfALogWholeAndCutAgain) {
  const std::string row = ClassificationRow(kUsual);
  EXPECT_EQ(row,
            "IK2QAA/P     JN45NK  120  9 el. yagi           100  85   21344   9A1CCC     512   "
            "21340                  21340     0.0%  Y");
  using namespace classification_row;
  std::string fields;
  for (const Column& column :
       {kCall, kLocator, kHeight, kAntenna, kPower, kQsos, kDeclared, kDxCall, kDxDistance,
        kRecalculated, kErrors, kErrorPoints, kPoints, kPercentage, kOperatorMark, kUnchecked}) {
    fields += Join(Cut(row, column), "|");
  }
  EXPECT_EQ(fields,
            "IK2QAA/P    |JN45NK|120  |9 el. yagi          | 100 |85   |21344   |9A1CCC    |512  |"
            " 21340    |     |        | 21340    | 0.0%  Y|Y|          |");
}

TEST(ClassificationRow, LongValuesAreCutAndMissingOnesAreBlank) {
  EXPECT_EQ(ClassificationRow({.call = "IV3/IK2QAA/QRP",
                               .locator = "JN45NK",
                               .height = "123456",
                               .antenna = "a stack of four long yagis",
                               .power = 499.5,
                               .qsos = "123456",
                               .declared = "1234567890",
                               .dx_call = "IV3/IK2QAA/P",
                               .dx_distance = "123456",
                               .points = 12345678901,
                               .operator_mark = 'R'}),
            "IV3/IK2QAA/Q JN45NK  12345a stack of four long 499. 1234512345678IV3/IK2QAA 12345 "
            "123456789              123456789 0.0%  R");
  ClassificationEntry bare;
  bare.call = "I2A";
  bare.locator = "JN45NK";
  EXPECT_EQ(ClassificationRow(bare),
            "I2A          JN45NK                            0                                  0 "
            "                     0         0.0%   ");
}

// The number is in the middle of its column, in front of it, or behind it, as it is large.
TEST(PercentageBlock, StandsInEightColumnsWithTheMarkAtTheEnd) {
  const struct {
    float percentage;
    const char* block;
  } cases[] = {{0, " 0.0%   "},       {0.01F, " .01%   "},  {0.5F, " .5 %   "},
               {0.0666F, " .06%   "}, {5, " 5.0%   "},      {9.999F, " 9.9%   "},
               {10, "10.0%   "},      {12.34F, "12.3%   "}, {99.99F, "99.9%   "},
               {100, " 100%   "},     {150.5F, " 150%   "}};
  for (const auto& [percentage, block] : cases) {
    EXPECT_EQ(PercentageBlock(percentage, ' '), block) << percentage;
  }
  EXPECT_EQ(PercentageBlock(0, 'Y'), " 0.0%  Y");
  EXPECT_EQ(PercentageBlock(100, 'R'), " 100%  R");
}

TEST(ErrorPercentage, IsTruncatedAndNeverRounded) {
  const struct {
    int errors, qsos;
    const char* block;
  } cases[] = {{0, 85, " 0.0%   "},  {1, 3, "33.3%   "},    {2, 3, "66.6%   "},
               {1, 200, " .5 %   "}, {29, 100, "29.0%   "}, {7, 25, "28.0%   "},
               {3, 31, " 9.6%   "},  {1, 10, "10.0%   "},   {999, 1000, "99.9%   "},
               {85, 85, " 100%   "}, {1, 1499, " .06%   "}, {-1, 4, "25.0%   "}};
  for (const auto& [errors, qsos, block] : cases) {
    EXPECT_EQ(PercentageBlock(ErrorPercentage(errors, qsos), ' '), block) << errors << "/" << qsos;
  }
  EXPECT_THROW(ErrorPercentage(1, 0), RunTimeError);
}

TEST(ClassificationRow, ReadersTakeTheirOwnColumns) {
  const std::string text = ClassificationRow(kUsual);
  const ClassificaRow row(text);
  EXPECT_EQ(row.Call(), "IK2QAA/P");
  EXPECT_EQ(row.Locator(), "JN45NK");
  EXPECT_EQ(row.QsoCount(), 85);
  EXPECT_EQ(row.Ricalc(), 21340);
  EXPECT_EQ(row.Odx(), "9A1CCC");
  EXPECT_EQ(row.Mark(), "Y");
  EXPECT_EQ(row.Position(), "");
  EXPECT_FALSE(row.Checked());
  // Five digits of QSOs are more than the reader takes; a long score loses its end.
  const std::string many = std::string(52, ' ') + "12345";
  EXPECT_EQ(ClassificaRow(many).QsoCount(), 1234);
  const std::string high = std::string(81, ' ') + " 123456789";
  EXPECT_EQ(ClassificaRow(high).Ricalc(), 1234567);
  for (std::size_t at = 0; at < 13; ++at) {
    std::string checked = text;
    checked[91 + at] = '0';
    EXPECT_TRUE(ClassificaRow(checked).Checked()) << at;
  }
  EXPECT_FALSE(ClassificaRow("short").Checked());
}

// A check replaces an older one: what stands ahead of it, the mark and the position stay.
TEST(CheckedRow, HasTheResultInPlaceOfAnOlderOne) {
  const std::string row = ClassificationRow(kUsual);
  const std::string start =
      "IK2QAA/P     JN45NK  120  9 el. yagi           100  85   21344   9A1CCC     512   21340    ";
  ASSERT_EQ(Left(row, 91), start);
  const struct {
    CheckTotals totals;
    const char* result;
  } cases[] = {{{.errors = 0, .lost = 0, .final = 21340}, " 0    0       21340     0.0%  Y"},
               {{.errors = 3, .lost = 1234, .final = 20106}, " 3    1234    20106     3.5%  Y"},
               {{.errors = 85, .lost = 21397, .final = -57}, " 85   21397  -57        100%  Y"},
               {{.errors = 12345, .lost = 12345678, .final = 1234567890},
                " 1234 1234567 123456789 145%  Y"}};
  for (const auto& [totals, result] : cases) {
    const std::string checked = CheckedRow(row, totals);
    EXPECT_EQ(checked, start + result);
    EXPECT_EQ(CheckedRow(checked + "  17", totals), checked + "  17") << "again, in the queue";
  }
  EXPECT_EQ(
      CheckedRow("IK2QAA" + std::string(46, ' ') + "4", {.errors = 1, .lost = 5, .final = -5}),
      "IK2QAA" + std::string(46, ' ') + "4" + std::string(38, ' ') +
          " 1    5      -5        25.0%   ")
      << "a row that ends early";
  EXPECT_THROW(CheckedRow("IK2QAA", {}), RunTimeError);
}

TEST(WithDxMark, SetsOneColumn) {
  const std::string row = ClassificationRow(kUsual);
  const std::string marked = WithDxMark(row, '*');
  EXPECT_EQ(Cut(marked, classification_row::kDxMark), "*");
  EXPECT_EQ(Left(marked, 64), Left(row, 64));
  EXPECT_EQ(Mid(marked, 66), Mid(row, 66));
  EXPECT_EQ(WithDxMark(marked, ' '), row);
}

}  // namespace
}  // namespace velmar
