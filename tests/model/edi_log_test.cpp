#include "model/edi_log.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "model/text.h"
#include "support/temp_workspace.h"

namespace velmar {
namespace {

using Views = std::vector<std::string_view>;

constexpr std::string_view kQso = "250119;0812;IK2QAA/P;1;59;001;59;012;;JN45OL;99;;N;;";

TEST(ParseHeaderRow, CutsTheKeyAndTheValue) {
  const struct {
    const char* row;
    const char* key;
    const char* value;
  } cases[] = {{"pwwlo= JN45OL ", "PWWLO", " JN45OL "}, {"PCall=", "PCALL", ""}, {"PC", "PC", ""}};
  for (const auto& [row, key, value] : cases) {
    EXPECT_EQ(ParseHeaderRow(row).key, key) << row;
    EXPECT_EQ(ParseHeaderRow(row).value, value) << row;
  }
}

TEST(SplitQso, NamesTheFieldsAndLeavesTheTail) {
  QsoRecord qso = SplitQso(kQso);
  EXPECT_EQ(qso.date(), "250119");
  EXPECT_EQ(qso.time(), "0812");
  EXPECT_EQ(qso.call(), "IK2QAA/P");
  EXPECT_EQ(qso.locator(), "JN45OL");
  EXPECT_EQ(qso.points(), "99");
  EXPECT_EQ(qso.tail(), ";;N;;");
  EXPECT_EQ(JoinQso(qso), kQso);
  qso.set_call("ERROR");
  qso.set_points("0");
  EXPECT_EQ(JoinQso(qso), "250119;0812;ERROR;1;59;001;59;012;;JN45OL;0;;N;;");
}

TEST(SplitQso, TrimsTheFieldsAndNotTheTail) {
  const struct {
    const char* row;
    const char* joined;
  } cases[] = {
      {" 250119 ; 0812;IK 2QAA ;1;59;001;59;012; ; JN45OL; 99 ; ; N ; ;D ",
       "250119;0812;IK 2QAA;1;59;001;59;012;;JN45OL;99; ; N ; ;D "},
      {"1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17", "1;2;3;4;5;6;7;8;9;10;11;12;13;14;15;16;17"},
      {"1;2;3;4;5;6;7;8;9;10;11", "1;2;3;4;5;6;7;8;9;10;11"},
      {"1;2;3;4;5;6;7;8;9;10;11;", "1;2;3;4;5;6;7;8;9;10;11;"},
      {"1;2;3", "1;2;3;;;;;;;;"},  // fewer fields: empty ones at the end
      {"", ";;;;;;;;;;"},
  };
  for (const auto& [row, joined] : cases) {
    EXPECT_EQ(JoinQso(SplitQso(row)), joined) << row;
  }
}

TEST(OwnCallBase, TakesThePartThatIsTheCall) {
  const struct {
    const char* call;
    const char* base;
  } cases[] = {{"IK2QAA", "IK2QAA"},    {"IK2QAA/P", "IK2QAA"},
               {"I2XY/P", "I2XY"},      {"I/IK2QAA", "IK2QAA"},
               {"9A/IK2QAA", "IK2QAA"}, {"IV3/AB1CD", "AB1CD"},
               {"IT9X/I2XY", "IT9X"},   {"9A/IK2QAA/P", "IK2QAA/P"},
               {"/IK2QAA", "/IK2QAA"},  {"", ""}};
  for (const auto& [call, base] : cases) {
    EXPECT_EQ(OwnCallBase(call), base) << call;
  }
}

TEST(FindOwnCall, TakesTheFirstCallRowOfTheFirstThousand) {
  EXPECT_EQ(FindOwnCall({}), "");
  EXPECT_EQ(FindOwnCall({"TName=x", " PCall=IK2AAA", "pcall= IK2QAA ", "PCall=IK2BBB"}),
            " IK2QAA ");
  for (const std::size_t ahead : {998U, 999U, 1000U}) {
    Views lines(ahead, "x");
    lines.emplace_back("PCall=IK2QAA");
    EXPECT_EQ(FindOwnCall(lines), ahead < 1000 ? "IK2QAA" : "") << ahead;
  }
}

TEST(MarkedRows, AreKnownByTheirWords) {
  EXPECT_FALSE(MarkedInvalid(kQso));
  EXPECT_TRUE(MarkedInvalid("250119;0812;ERROR;1"));
  EXPECT_TRUE(MarkedInvalid("250119;0812;IK2QAA DELETED;1"));
  EXPECT_FALSE(MarkedInvalid("250119;0812;error;1"));
  EXPECT_TRUE(MarkedDuplicate("250119;0812;IK2QAA;;D"));
  EXPECT_FALSE(MarkedDuplicate("250119;0812;IK2QAA;;D "));
}

std::string GoodLog() {
  return test::LogText("IK2QAA/P", "JN45OL",
                       {test::QsoRow("IV3ABC", "JN66OA"), test::QsoRow("9A1X", "JN75AA", "0"),
                        test::QsoRow("I0XYZ", "JN61FV")});
}

TEST(ParseEdiLog, TellsAGoodLogByItsParts) {
  const std::string text = GoodLog();
  const EdiLog log = ParseEdiLog(text);
  EXPECT_EQ(log.lines.size(), 17U);
  EXPECT_EQ(log.own_call, "IK2QAA/P");
  EXPECT_EQ(log.own_locator, "JN45OL");
  ASSERT_EQ(log.qsos.size(), 3U);
  EXPECT_EQ(SplitQso(log.qsos[1]).call(), "9A1X");
  EXPECT_FALSE(log.recalculated);
}

TEST(ParseEdiLog, PassesOverShortRowsAndSeesTheMarkOfTheRecalculation) {
  const EdiLog log = ParseEdiLog(
      "no qso of a header\n[QSORecords;3]\n123456\n1234567\n\n[END; recalculated for VLM][END;x]\n"
      "no qso behind the end\n");
  EXPECT_EQ(log.qsos, Views{"1234567"});
  EXPECT_TRUE(log.recalculated);
  EXPECT_FALSE(ParseEdiLog("x[END; recalculated for VLM]").recalculated);
}

TEST(ParseEdiLog, TakesTheFirstLocatorRowAlsoWhenItIsEmpty) {
  EXPECT_EQ(ParseEdiLog("PWWLo=\nPWWLo=JN66OA\n").own_locator, "");
}

// Parses a copy that ends where its memory ends, and takes each row apart.
std::size_t QsosOf(std::string_view text) {
  const auto copy = std::make_unique<char[]>(text.size());
  text.copy(copy.get(), text.size());
  const EdiLog log = ParseEdiLog({copy.get(), text.size()});
  for (const std::string_view row : log.qsos) {
    const std::string joined = JoinQso(SplitQso(row));
    EXPECT_EQ(JoinQso(SplitQso(joined)), joined);
  }
  return log.qsos.size();
}

TEST(ParseEdiLog, ReadsEveryTruncationOfALog) {
  const std::string text = GoodLog();
  std::size_t before = 0;
  for (std::size_t size = 0; size <= text.size(); ++size) {
    const std::size_t qsos = QsosOf(std::string_view(text).substr(0, size));
    EXPECT_LE(qsos, 3U) << size;
    EXPECT_GE(qsos, before) << size;
    before = qsos;
  }
  EXPECT_EQ(before, 3U);
}

TEST(ParseEdiLog, ReadsALogWithAnyByteChanged) {
  const std::string text = GoodLog();
  for (std::size_t at = 0; at < text.size(); ++at) {
    for (const char byte : {'\0', '\r', '\n', ';', ' ', '[', '/', 'X', '\xFF'}) {
      std::string changed = text;
      changed[at] = byte;
      // A row cut in two, or an end row that is none any more, is one row more at the most.
      EXPECT_LE(QsosOf(changed), 4U) << at;
    }
  }
}

}  // namespace
}  // namespace velmar
