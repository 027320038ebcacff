#include "publish/statistics_sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "model/lines.h"
#include "model/text.h"
#include "publish/italy_outline.h"
#include "publish/map_outlines.h"
#include "publish/square_grid.h"
#include "support/boxes.h"

namespace velmar::test {
namespace {

const Names kStatistics = {"Log totali     55 ",
                           "Qso totali     2283 ",
                           "QSO DX         JM67QH  IW9QWO      IK1QBK/P    JN39CD 1436",
                           "QRB Totale     15975579 ",
                           "Squares        JM67",
                           "Squares        IO74",
                           "Squares        KN26",
                           "Squares        KN36",
                           "Field          JM",
                           "Field          2 ",
                           "call on air I 1 = 5 ",
                           "call on air IX1 = 1 ",
                           "call on air I 9 = 1234 ",
                           "Part.Attivi I 1 = 3 ",
                           "Part.Attivi IX1 = 2 ",
                           "Log da sqr JN35 = 5 ",
                           "Attivi da  JN35 = 1750 ",
                           "Attivi da  JN15 = 9 ",
                           "Attivi da  JM56 = 7 "};

struct MadeSheet {
  explicit MadeSheet(const Names& statistics = kStatistics) {
    SheetTexts texts{
        .month_title = "Gennaio ", .year = "2025", .contest_date = "2025.01.19", .version = "1.0"};
    CreateStatisticsSheet(
        book, [&] { return TextOfLines(statistics); }, texts, "png",
        [this](std::string_view text) { statuses.emplace_back(text); });
  }

  Worksheet& sheet() { return book.Sheet("2IT-STAT"); }
  CellPlace At(std::string_view cell) { return sheet().Range(cell).block().first; }
  /// A text, or a thousand times a number behind "=".
  std::string Shown(std::string_view cell) {
    const CellValue& value = sheet().cells().at(At(cell)).value;
    const auto* const number = std::get_if<double>(&value);
    const auto* const text = std::get_if<std::string>(&value);
    return number != nullptr ? Join("=", std::lround(*number * 1000))
           : text != nullptr ? *text
                             : "";
  }
  std::optional<int> Ground(std::string_view cell) { return sheet().FormatAt(At(cell)).interior; }

  Workbook book;
  Names statuses;
};

TEST(StatisticsSheet, EachValueStandsInItsCellAndDigitsAreNumbers) {
  MadeSheet made;
  const struct {
    const char *cell, *shown;
  } cases[] = {
      {"A1", "Categoria  144  MHz - Gennaio   2025"},
      {"D10", "=55000"},
      {"D11", "=2283000"},
      {"D12", ""},
      {"D13", "JM67QH"},
      {"E13", "IW9QWO"},
      {"F13", "IK1QBK/P"},
      {"G13", "JN39CD"},
      {"K10", "=15975579000"},
      {"O12", "=2000"},
      // The areas: a count of a thousand loses its last digit.
      {"C5", "IX1"},
      {"N5", "IT9"},
      {"C8", "=1000"},
      {"C7", "=2000"},
      {"C6", "=-1000"},
      {"D6", "=2000"},
      {"N8", "=123000"},
      {"N6", "=123000"},
      {"B6", "=0"},
      // The totals and shares of all areas.
      {"E52", "=129000"},
      {"I52", "=5000"},
      {"J52", "=39"},
      {"O52", "=124000"},
      {"P52", "=961"},
      // The activity by square.
      {"B40", "JN35"},
      {"B41", "=5000"},
      {"B42", "=1750000"},
      {"P48", "JM56"},
      {"P49", ""},
      {"P50", "=7000"},
  };
  for (const auto& [cell, shown] : cases) {
    EXPECT_EQ(made.Shown(cell), shown) << cell;
  }
  EXPECT_EQ(made.sheet().FormatAt(made.At("P52")).number_format, "0.0%");
  EXPECT_EQ(made.Shown("A51").substr(0, 6), "LOG da");
  EXPECT_EQ(made.statuses, (Names{" stat 144 in corso", " stat 144 squares in corso",
                                  " stat 144 DX in corso", " stat 144 Mappa italia in corso",
                                  " stat 144 grafico in corso", " stat 144 fatto"}));
}

TEST(StatisticsSheet, WorkedSquaresAreYellowAndTheEndsOfTheDxRed) {
  constexpr int kYellow = 0x00FFFF;
  constexpr int kRed = 0x0000FF;
  MadeSheet made;
  const struct {
    const char *cell, *square;
    std::optional<int> ground;
  } cases[] = {{"A18", "IO74", kYellow}, {"D18", "JO04", {}},   {"P32", "KN20", {}},
               {"P26", "KN26", kYellow}, {"P37", "KM25", {}},   {"A37", "IM75", {}},
               {"J35", "JM67", kRed},    {"G23", "JN39", kRed}, {"M37", "JM95", {}}};
  for (const auto& [cell, square, ground] : cases) {
    EXPECT_EQ(made.Shown(cell), square);
    EXPECT_EQ(made.Ground(cell), ground) << cell;
  }
  MadeSheet without({"Squares        JM67", "Squares        J"});
  EXPECT_EQ(without.Ground("J35"), kYellow);
  EXPECT_EQ(without.Ground("G23"), std::nullopt);
  EXPECT_EQ(without.Shown("P52"), "=0") << "no calls, no share";
}

TEST(StatisticsSheet, TheBlocksShareNoCellAndTheChartHasItsRows) {
  MadeSheet made;
  const auto& merged = made.sheet().merged();
  const auto apart = [](const CellBlock& one, const CellBlock& other) {
    return one.last.row < other.first.row || other.last.row < one.first.row ||
           one.last.column < other.first.column || other.last.column < one.first.column;
  };
  for (auto one = merged.begin(); one != merged.end(); ++one) {
    EXPECT_TRUE(std::all_of(std::next(one), merged.end(), [&](const CellBlock& other) {
      return apart(*one, other);
    })) << one->first.row;
  }
  for (const char* cells : {"B10:C10", "I13:J13", "M12:N12", "A17:P17", "A39:P39", "A51:P51"}) {
    EXPECT_EQ(std::ranges::count(merged, made.sheet().Range(cells).block()), 1) << cells;
  }
  const SheetChart& chart = made.sheet().charts.at(0);
  EXPECT_EQ(chart.categories, made.sheet().Range("B5:O5").block());
  ASSERT_EQ(chart.series.size(), 3);
  EXPECT_EQ(chart.series[2], std::pair(made.At("A8"), made.sheet().Range("B8:O8").block()));
}

// What is drawn lies in the same squares as the land that it comes from.
TEST(StatisticsSheet, TheOutlineOfItalyLiesOnItsSquares) {
  const Picture picture = ItalyOutline();
  const auto [first, last] = square_grid::kItaly;
  const double width = picture.width() / (last.column - first.column + 1);
  const double height = picture.height() / (last.row - first.row + 1);
  double east = 0;
  double south = 0;
  for (const Shape& shape : picture.shapes()) {
    for (const Point& point : std::get<Stroke>(shape).points) {
      ASSERT_TRUE(point.x >= 0 && point.x <= picture.width());
      ASSERT_TRUE(point.y >= 0 && point.y <= picture.height());
      east = std::max(east, point.x);
      south = std::max(south, point.y);
    }
  }
  const auto otranto = CellOfSquare("JN90");
  EXPECT_EQ(first.column + static_cast<int>(east / width), otranto->column);
  const auto lampedusa = CellOfSquare("JM65");
  EXPECT_EQ(first.row + static_cast<int>(south / height), lampedusa->row);
}

}  // namespace
}  // namespace velmar::test
