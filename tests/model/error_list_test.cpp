#include "model/error_list.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {
namespace {

struct Log {
  const char *call, *declared, *band;
};

std::string Head(const Log& log) {
  return ErrorListHeadText({.title = "Contest Velmar",
                            .month = "GENNAIO 2025",
                            .call = Call12(log.call),
                            .locator = "JN45NK",
                            .declared = log.declared,
                            .band = log.band,
                            .category = "2IT"});
}

// Each item of the fourth line begins a zone of 14 columns, the next one that is free.
TEST(ErrorList, TheHeadByteForByte) {
  const std::pair<Log, std::string> cases[] = {
      {{"I2ABC", " 345   ", " 144 Mhz"},
       " Call: I2ABC                Loc. JN45NK        Declared: 345            "
       "Banda 144 Mhz               Cat.2IT"},
      {{"IK2QAA", " 21340 ", " 144 Mhz"},
       " Call: IK2QAA               Loc. JN45NK        Declared: 21340          "
       "Banda 144 Mhz               Cat.2IT"},
      {{"IK2QAAA", " 0     ", ""},
       " Call: IK2QAAA              Loc. JN45NK        Declared: 0              "
       "Banda         Cat.2IT"},
      {{"IV3/IK2QAA/P", " 123456", " 144 Mhz"},
       " Call: IV3/IK2QAA/P         Loc. JN45NK        Declared: 123456         "
       "Banda 144 Mhz               Cat.2IT"},
      {{"IK2QAA", " 1234567", " 144 Mhz"},
       " Call: IK2QAA               Loc. JN45NK        Declared: 1234567        "
       "Banda 144 Mhz               Cat.2IT"},
      {{"IK2QAA", " 1234567890123", " 144 Mhz"},
       " Call: IK2QAA               Loc. JN45NK        Declared: 1234567890123  "
       "              Banda 144 Mhz               Cat.2IT"}};
  for (const auto& [log, line] : cases) {
    EXPECT_EQ(
        Head(log),
        Join("=============================================================================\r\n"
             "         Lista errori  Contest Velmar   GENNAIO 2025\r\n\r\n",
             line,
             "\r\n-----------------------------------------------------------------------------\r\n"
             "  n     Call     n° qso   Tipo errore       errore     corretto   err qrb\r\n"_a));
  }
}

// One line for each decision; texts are cut to their columns, and the dash always stands.
TEST(ErrorList, TheLineOfADecision) {
  const ErrorEntry entry = {.index = 1,
                            .call = "I1QXX       ",
                            .ordinal = " 7",
                            .tag = error_tag::kLocator,
                            .wrong = "JN44BC",
                            .right = "JN44BB",
                            .points = "107 "};
  const std::string line = ErrorListLine(entry);
  EXPECT_EQ(line, "  1    I1QXX       007    errore locator    JN44BC      JN44BB     -107 ");
  std::string fields;
  for (const Column& column :
       {error_row::kIndex, error_row::kCall, error_row::kQso, error_row::kTag, error_row::kWrong,
        error_row::kRight, error_row::kDash, error_row::kPoints}) {
    fields += Join(Cut(line, column), "|");
  }
  EXPECT_EQ(fields,
            " 1    |I1QXX       |007    |errore locator    |JN44BC      |JN44BB     |-|107 |");
  EXPECT_EQ(ErrorListLine({.index = 1234,
                           .call = "IV3/IK2QAA/QRP",
                           .ordinal = "12345678",
                           .tag = error_tag::kNotInLog,
                           .wrong = "IV3/IK2QAA/QRP",
                           .right = "IV3/IK2QAB/QRP",
                           .points = "12345"}),
            "  1234 IV3/IK2QAA/Q1234567NOT IN LOG        IV3/IK2QAA/QIV3/IK2QAB/-1234");
}

TEST(ErrorList, AnOrdinalHasThreeDigitsAtLeast) {
  const std::pair<const char*, const char*> cases[] = {
      {" 7", "007    "}, {" 42", "042    "}, {" 123", "123    "}, {" 1499", "1499   "}};
  for (const auto& [ordinal, field] : cases) {
    ErrorEntry entry;
    entry.ordinal = ordinal;
    EXPECT_EQ(Cut(ErrorListLine(entry), error_row::kQso), field);
  }
}

TEST(ErrorList, HoldsACallThatWasPenalised) {
  const std::string own = Call12("IK2QAA");
  std::string list = Head({"IK2QAA", " 345   ", " 144 Mhz"});
  const auto add = [&list](std::string_view call, std::string_view tag) {
    ErrorEntry entry;
    entry.call = call;
    entry.tag = tag;
    list += Join(ErrorListLine(entry), "\r\n");
  };
  EXPECT_FALSE(ErrorListHolds(list, own)) << "the head names the log itself";
  add("I1QXX", error_tag::kNotInLog);
  EXPECT_TRUE(ErrorListHolds(list, Call12("I1QXX")));
  EXPECT_FALSE(ErrorListHolds(list, Call12("I1QXXA")));
  EXPECT_FALSE(ErrorListHolds(list, Call12("I1QX")));
  EXPECT_FALSE(ErrorListHolds(list, own));
  add("DL1QAA", "call   unico      ");
  EXPECT_FALSE(ErrorListHolds(list, Call12("DL1QAA"))) << "noted as unique";
  add("DL1QAA", error_tag::kCall);
  EXPECT_TRUE(ErrorListHolds(list, Call12("DL1QAA")));
  add("IK2QAA", error_tag::kCall);
  EXPECT_TRUE(ErrorListHolds(list, own)) << "a station that worked itself";
}

TEST(ErrorList, TheHeadIsWhatIsLeftOfAListThatWasCut) {
  const std::string head = Head({"IK2QAA", " 345   ", " 144 Mhz"});
  EXPECT_EQ(ErrorListHeadOf(head), head);
  EXPECT_EQ(ErrorListHeadOf(head + "one decision\r\nand the start of an"), head);
  EXPECT_EQ(ErrorListHeadOf(Left(head, head.size() - 2)), head) << "its last line end is given";
  EXPECT_EQ(ErrorListHeadOf(""), "");
}

}  // namespace
}  // namespace velmar
