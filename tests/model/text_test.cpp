#include "model/text.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "model/columns.h"
#include "platform/ansi.h"
#include "platform/file_system.h"

namespace velmar {
namespace {

TEST(Text, CutsCountFromOneAndAreClamped) {
  EXPECT_EQ(Left("abc", 2), "ab");
  EXPECT_EQ(Left("abc", 9), "abc");
  EXPECT_EQ(Mid("abc", 1, 1), "a");
  EXPECT_EQ(Mid("abc", 3, 9), "c");
  EXPECT_EQ(Mid("abc", 4), "");
  EXPECT_EQ(Mid("abc", 5, 1), "");
  EXPECT_EQ(Right("abc", 2), "bc");
  EXPECT_EQ(Right("abc", 9), "abc");
  EXPECT_EQ(Cut("0123456789", {9, 4}), "89");
  EXPECT_EQ(Cut("01234", {9, 4}), "");
}

TEST(Text, TrimsTakeBlanksAlone) {
  EXPECT_EQ(LTrim("  a b "), "a b ");
  EXPECT_EQ(RTrim("  a b "), "  a b");
  EXPECT_EQ(Trim("  a b "), "a b");
  EXPECT_EQ(Trim("\t a \t"), "\t a \t");
  EXPECT_EQ(LTrim("  "), "");
  EXPECT_EQ(RTrim("  "), "");
  EXPECT_EQ(Trim(""), "");
}

TEST(Text, CapitalsAndSmallLettersOfTheCodePage) {
  EXPECT_EQ(Upper("ik2qaa/p àèéìòù ñç þ š œ ž ÿ"_a), "IK2QAA/P ÀÈÉÌÒÙ ÑÇ Þ Š Œ Ž Ÿ"_a);
  EXPECT_EQ(Lower("IK2QAA/P ÀÈÉÌÒÙ ÑÇ Þ Š Œ Ž Ÿ"_a), "ik2qaa/p àèéìòù ñç þ š œ ž ÿ"_a);
  EXPECT_EQ(Upper("÷×ß€ª@[`{"_a), "÷×ß€ª@[`{"_a);
  EXPECT_EQ(Lower("÷×ß€ª@[`{"_a), "÷×ß€ª@[`{"_a);
}

// File names are matched by the same pairs of letters.
TEST(Text, EachLetterHasOneCounterpartAndFileNamesAgree) {
  int pairs = 0;
  for (int byte = 0; byte < 256; ++byte) {
    const std::string letter(1, static_cast<char>(byte));
    const std::string small = Lower(letter);
    if (small != letter) {
      ++pairs;
      EXPECT_EQ(Upper(small), letter) << byte;
    }
    for (int other = 0; other < 256; ++other) {
      const std::string second(1, static_cast<char>(other));
      if (second != "?" && second != "*") {
        EXPECT_EQ(MatchesPattern(letter, second), Lower(second) == small) << byte << " " << other;
      }
    }
  }
  EXPECT_EQ(pairs, 26 + 30 + 4);  // A to Z, the accented ones, and Š Œ Ž Ÿ
}

TEST(Text, ValReadsTheNumberAtTheStart) {
  const struct {
    const char* text;
    double number;
  } cases[] = {{"144", 144},   {"  144 MHz", 144},
               {"144,5", 144}, {"144.5", 144.5},
               {"-3", -3},     {"+3", 3},
               {".5", 0.5},    {"-.5x", -0.5},
               {"5.", 5},      {"1.2.3", 1.2},
               {"007", 7},     {"1e3", 1},
               {"12ab", 12},   {"", 0},
               {"   ", 0},     {"MHz 144", 0},
               {"-", 0},       {"+", 0},
               {".", 0},       {"-.", 0},
               {"--3", 0},     {"inf", 0},
               {"-inf", 0},    {"nan", 0},
               {"0x1F", 0},    {"\t5", 0},
               {",5", 0},      {"1500000000000", 1.5e12}};
  for (const auto& [text, number] : cases) {
    EXPECT_EQ(Val(text), number) << text;
  }
  EXPECT_EQ(Val(std::string_view("1234").substr(0, 2)), 12);
}

TEST(Text, ValTakesOneSign) {
  EXPECT_EQ(Val("+-5"), 0);
}

TEST(Text, FieldsHaveTheirWidth) {
  EXPECT_EQ(Str(0), " 0");
  EXPECT_EQ(Str(-7), "-7");
  EXPECT_EQ(Pad("ab", 4), "ab  ");
  EXPECT_EQ(Pad("abcdef", 4), "abcd");
  EXPECT_EQ(Call12("ik2qaa/p"), "IK2QAA/P    ");
  EXPECT_EQ(Call12("IV3/IK2QAA/QRP"), "IV3/IK2QAA/Q");
  EXPECT_EQ(Loc6("jn45aa99"), "JN45AA");
  EXPECT_EQ(Loc6("jn45"), "JN45");
}

TEST(Text, ANumberWithAFractionHasNoZeroAheadOfItsPoint) {
  const struct {
    double number;
    const char* text;
  } cases[] = {{0, " 0"},
               {-0.0, " 0"},
               {0.5, " .5"},
               {-0.5, "-.5"},
               {1.5, " 1.5"},
               {-12, "-12"},
               {500, " 500"},
               {0.05, " .05"},
               {1.0 / 3, " .333333333333333"},
               {2.0 / 3, " .666666666666667"},
               {21344, " 21344"},
               {123456789012345, " 123456789012345"}};
  for (const auto& [number, text] : cases) {
    EXPECT_EQ(StrReal(number), text);
  }
  EXPECT_EQ(StrReal(99.99F, 7), " 99.99");
  EXPECT_EQ(StrReal(0.1F, 7), " .1");
  EXPECT_EQ(StrReal(9999999, 7), " 9999999");
}

TEST(Text, WithoutBlanksReplacedAndJoined) {
  EXPECT_EQ(WithoutBlanks(" IK 2\tQAA  "), "IK2\tQAA");
  EXPECT_EQ(Replaced("IV3/IK2QAA/P", '/', '_'), "IV3_IK2QAA_P");
  EXPECT_EQ(Join("qso ", 12, " è "_a, std::string("300"), std::string_view("!"), -1, 2LL),
            "qso 12 \xE8 300!-12");
}

}  // namespace
}  // namespace velmar
