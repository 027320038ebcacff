#include "model/print_line.h"

#include <gtest/gtest.h>

#include <string>

namespace velmar {
namespace {

TEST(PrintLine, ATextStandsAsItIsAndANumberHasItsBlanks) {
  EXPECT_EQ(PrintLine().Text("n =").Number(12).Text("km").End(), "n = 12 km\r\n");
  EXPECT_EQ(PrintLine().Number(0).Number(-5).Number(7).End(), " 0 -5  7 \r\n");
}

TEST(PrintLine, ATabPadsUpToItsColumn) {
  EXPECT_EQ(PrintLine().Text("abc").Tab(6).Text("x").End(), "abc  x\r\n");
  EXPECT_EQ(PrintLine().Text("abc").Tab(4).Text("x").End(), "abcx\r\n");
  EXPECT_EQ(PrintLine().Tab(1).Text("abc").Tab(2).Text("x").End(), "abcx\r\n");
  EXPECT_EQ(PrintLine().Text("Qso ITA =").Number(12).Tab(20).Text("Qso EST =").Number(3).End(),
            "Qso ITA = 12       Qso EST = 3 \r\n");
}

TEST(PrintLine, AZoneBeginsFourteenColumnsBehindTheLast) {
  const struct {
    std::string item;
    std::size_t column;  // where the next one stands, counted from 1
  } cases[] = {{"", 15}, {"thirteen char", 15}, {"fourteen chars", 29}, {"fifteen charact", 29}};
  for (const auto& [item, column] : cases) {
    const std::string line = PrintLine().Text(item).Zone().Text("|").End();
    EXPECT_EQ(line, item + std::string(column - 1 - item.size(), ' ') + "|\r\n");
  }
  EXPECT_EQ(PrintLine().Text("a").Zone().Number(1).Zone().Zone().Text("b").Open(),
            "a              1                          b");
}

}  // namespace
}  // namespace velmar
