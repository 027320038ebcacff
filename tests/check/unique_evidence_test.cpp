// What speaks for and against a unique call.

#include "check/unique_evidence.h"

#include <gtest/gtest.h>

#include "check/qso_line.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "support/boxes.h"

namespace velmar::test {
namespace {

const std::string kRule = "------------------------------------------>";

struct Heard {
  const char* call;
  const char* locator = "JN44BC";
};

Names Library(const std::vector<Heard>& heard) {
  Names rows;
  for (const auto& [call, locator] : heard) {
    rows.push_back(LibreriaRow("IZ9QBC", call, locator, "1234").value());
  }
  return rows;
}

std::vector<std::string_view> Views(const Names& rows) {
  return {rows.begin(), rows.end()};
}

/// The calls that are like `call` in JN44BC, and a rule where one stands.
Names Similar(const std::string& call, const std::vector<Heard>& heard) {
  const Names library = Library(heard);
  Names calls;
  for (const std::string& row :
       FindSimilarCalls(Views(library), {.call = call, .locator = "JN44BC"})) {
    calls.emplace_back(row == kRule ? "rule" : RTrim(Mid(row, 13, 12)));
  }
  return calls;
}

TEST(UniqueEvidence, ASimilarCallIsTheFirstTestThatFindsAny) {
  const struct {
    std::vector<Heard> heard;
    Names similar;
  } cases[] = {{{{"XIK2ABC", "JO30AA"}, {"IK2ABC/P"}, {"IKXXBC"}}, {"XIK2ABC", "IK2ABC/P", "rule"}},
               {{{"IKXXBC"}, {"IKYBC", "JO30AA"}, {"DL1ABC"}}, {"IKXXBC"}},
               {{{"DL1ABC"}, {"DL1ABCD"}, {"DL2ABC", "JO30AA"}}, {"DL1ABC", "DL1ABCD"}},
               {{{"DL2ABC", "JO30AA"}, {"XK2AZ"}}, {"DL2ABC"}},
               {{{"XK2AZ"}, {"XK2AY", "JO30AA"}, {"IK2XX"}}, {"XK2AZ"}},
               {{{"XK2AZ", "JO30AA"}, {"IK2XX"}}, {}},
               {{}, {}}};
  for (const auto& [heard, similar] : cases) {
    EXPECT_EQ(Similar("IK2ABC", heard), similar);
  }
}

TEST(UniqueEvidence, AHitShowsTheStartOfItsRow) {
  const Names library = Library({{"I1QXX/P"}});
  EXPECT_EQ(FindSimilarCalls(Views(library), {.call = "I1QXX", .locator = "JN44BC"}),
            (Names{"IZ9QBC      I1QXX/P     JN44BC 1234", kRule}));
}

TEST(UniqueEvidence, ShortAndLongCallsAreLookedForToo) {
  EXPECT_EQ(Similar("I1A", {{"DL1AB"}}), Names{"DL1AB"});
  EXPECT_EQ(Similar("I1A", {{"XI1AX", "JO30AA"}}), (Names{"XI1AX", "rule"}));
  EXPECT_EQ(Similar("IK2ABCDEFGHJ", {{"IK2ABCDEFGHJ"}}), (Names{"IK2ABCDEFGHJ", "rule"}));
  EXPECT_EQ(Similar("9A/IK2ABC/P", {{"IK2ABC"}}), Names{});
  EXPECT_EQ(Similar("9A/IK2ABC/P", {{"9A/DL1C/P"}}), Names{"9A/DL1C/P"});
}

TEST(UniqueEvidence, TheBookIsAskedWhereAnythingIsSimilar) {
  const Names library = Library({{"DL1ABC", "JO30AA"}});
  const Names book = {Pad("IZ7ABC      JN80AA", 34), Pad("IZ7ABC/P    JN80AA", 34),
                      Pad("IZ7ABX      JN80AA", 34)};
  const auto found = [&](const std::string& call, const Names* records) {
    return FindSimilarCalls(Views(library), records, {.call = call, .locator = "JN44BC"});
  };
  const std::string similar = "IZ9QBC      DL1ABC      JO30AA 1234";
  EXPECT_EQ(found("IK2ABC", &book), (Names{similar, book[0] + " <-- Book"}));
  EXPECT_EQ(found("IK2ABC", nullptr), Names{similar});
  EXPECT_EQ(found("I1QXX", &book), Names{});
  EXPECT_EQ(FindEndInBook(book, "IK2ABX/P"), Names{});
  EXPECT_EQ(FindEndInBook(book, "IK2BC/P"), Names{book[1] + " <-- Book"});
  EXPECT_EQ(FindEndInBook(book, "9A/IK2ABX"), Names{book[2] + " <-- Book"});
}

TEST(UniqueEvidence, OthersInTheLocatorAreShownAndGrouped) {
  const Names library = Library({{"IV3QYY"}, {"I1QXX"}, {"DL1QAA", "JO30AA"}, {"I1QXX"}});
  const Names rows = FindInLocator(Views(library), "JN44BC");
  EXPECT_EQ(rows, (Names{"JN44BC    IV3QYY      IZ9QBC     *", "JN44BC    I1QXX       IZ9QBC     *",
                         "JN44BC    I1QXX       IZ9QBC     *"}));
  EXPECT_EQ(EachCallOnce(rows), (Names{rows[1], rows[0]}));
  EXPECT_EQ(
      EachCallOnce({"JN44BC    I1QXX       IZ9QBC     *", "JN44BC    I1QXX       IV3QYY     *"}),
      Names{"JN44BC    I1QXX       IZ9QBC     *"});
  EXPECT_EQ(FindInLocator(Views(library), "JN44BB"), Names{});
}

TEST(UniqueEvidence, TheBaseCallIsTheLongerSideOfASlash) {
  const struct {
    const char *call, *base;
  } cases[] = {{"IW9QQQ", ""},         {"IW9QQQ/P", "IW9QQQ"}, {"9A/IW9QQQ", "IW9QQQ"},
               {"IT9/DL1QA", "DL1QA"}, {"I1QX/P", "I1QX"},     {"9A/IW9QQQ/P", "IW9QQQ"},
               {"/IW9QQQ", "IW9QQQ"},  {"IW9QQQ/", "IW9QQQ"},  {"IW9QQQ//", ""}};
  for (const auto& [call, base] : cases) {
    EXPECT_EQ(BaseCall(call), base) << call;
  }
}

TEST(UniqueEvidence, TheDigitsOfAnItalianCallAreCounted) {
  const std::string many = " Troppi numeri controlla lo ZERO (0) con lettera O";
  const std::string many_told = " Troppi numeri, controlla lo ZERO(0) con lettera 'O'";
  const std::string odd = " ! ATTENZIONE !  troppi numeri ";
  const struct {
    std::string call, banner, message;
  } cases[] = {{"I1QXX", "", ""},
               {"IK20QX", many, many_told},
               {"I123X", many, many_told},
               {"IKQXX", "! ATTENZIONE ! MANCA IL NUMERO NEL CALL",
                "  controlla lo ZERO(0) con lettera 'O'"},
               {"IK2QXX/P", " ! ATTENZIONE !  CALL senza numero", ""},
               {"IKQXX/P", "", ""},
               {"IK2QXX/5", "", ""},
               {"IK20QX/5", odd + "2 0 5 ", ""},
               {"9A9ZZZ", "", ""},
               {"DL12QA", "", ""}};
  for (const auto& [call, banner, message] : cases) {
    const DigitWarning warning = CheckDigits(call);
    EXPECT_EQ(warning.banner, banner) << call;
    EXPECT_EQ(warning.message, message) << call;
  }
}

}  // namespace
}  // namespace velmar::test
