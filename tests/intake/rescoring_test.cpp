#include "intake/rescoring.h"

#include <gtest/gtest.h>

#include "model/edi_log.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/error.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

const auto kNoRepair = [](const RowRepair& repair) {
  ADD_FAILURE() << "repaired: " << repair.before;
};

/// The QSO rows of a rescored log.
std::vector<std::string> RescoredRows(std::string_view call, const std::vector<std::string>& rows) {
  const RescoredLog log = Rescore(LogText(call, "JN45AA", rows), kNoRepair);
  std::vector<std::string> rescored;
  for (const std::string_view qso : ParseEdiLog(log.text).qsos) {
    rescored.emplace_back(qso);
  }
  return rescored;
}

TEST(Rescore, PointsOfEachKindOfRow) {
  struct Case {
    const char* about;
    std::string row;
    std::string expected;
  };
  const std::string km = std::to_string(QsoPoints("JN45AA", "JM67AA"));
  const std::vector<Case> cases = {
      {"distance", QsoRow("IZ9QBC", "JM67AA"), QsoRow("IZ9QBC", "JM67AA", km)},
      {"small letters are scored and kept", QsoRow("iz9qbc", "jm67aa"),
       QsoRow("iz9qbc", "jm67aa", km)},
      {"same locator", QsoRow("IZ9QBC", "jn45aa"), QsoRow("IZ9QBC", "jn45aa", "1")},
      {"square alone", QsoRow("IZ9QBC", "JM67"), QsoRow("IZ9QBC", "JM67", "0")},
      {"seven characters", QsoRow("IZ9QBC", "JM67AAA"), QsoRow("IZ9QBC", "JM67AAA", "0")},
      {"no points claimed", QsoRow("IZ9QBC", "JM67AA", ""), QsoRow("IZ9QBC", "JM67AA", km)},
      {"ERROR anywhere", QsoRow("ERROR", "JM67AA"), QsoRow("ERROR", "JM67AA", "0")},
      {"DELETED anywhere", "250119;0812;IZ9QBC;1;59;001;59;012;DELETED;JM67AA;7;;N;;",
       "250119;0812;IZ9QBC;1;59;001;59;012;DELETED;JM67AA;0;;N;;"},
      {"the writer's duplicate", QsoRow("IZ9QBC", "JM67AA") + "D",
       QsoRow("IZ9QBC", "JM67AA", "0") + "D"},
      {"oneself", QsoRow("IK2QAA/P", "JM67AA"), QsoRow("ERROR", "JM67AA", "0")},
      {"oneself by the base", QsoRow("IK2QAA", "JM67AA"), QsoRow("ERROR", "JM67AA", "0")},
      {"oneself inside a longer call", QsoRow("XIK2QAAX", "JM67AA"),
       QsoRow("ERROR", "JM67AA", "0")},
      {"fields are trimmed, the tail is not",
       " 250119 ; 0812; IZ9QBC ;1;59;001;59;012;; JM67AA ;  9 ; x ;N; ; ;extra",
       Join("250119;0812;IZ9QBC;1;59;001;59;012;;JM67AA;", km, "; x ;N; ; ;extra")},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(RescoredRows("IK2QAA/P", {c.row}), std::vector{c.expected}) << c.about;
  }
}

TEST(Rescore, ACallCountsOnceInItsLogOnWhateverRowItCameFirst) {
  const std::vector<std::string> rows = {
      QsoRow("IZ9QBC", "JM67AA"), QsoRow("IZ9QBC", "JM67AA"),      QsoRow("IZ9QBC/P", "JM67AA"),
      QsoRow("ERROR", "JM67AA"),  QsoRow("I4QBC", "JM67AA") + "D", QsoRow("I4QBC", "JM67AA")};
  std::vector<bool> scores;
  for (const std::string& row : RescoredRows("IK2QAA", rows)) {
    scores.push_back(SplitQso(row).points() != "0");
  }
  EXPECT_EQ(scores, (std::vector{true, false, true, false, false, false}));
}

TEST(Rescore, CountsWhatItFound) {
  const RescoredLog log =
      Rescore(LogText("IK2QAA", "JN45AA",
                      {QsoRow("IZ9QBC", "JN45AA"), QsoRow("I4QBC", "JN45AA"), "tiny",
                       QsoRow("ERROR", "JM67AA"), QsoRow("I5QBC", "JM67AA") + "D",
                       QsoRow("IK2QAA", "JM67AA")}),
              kNoRepair);
  EXPECT_EQ(log.qsos, 5U);
  EXPECT_EQ(log.points, 2);
  EXPECT_EQ(log.errors, 2U);
  EXPECT_EQ(log.duplicates, 2U);
}

TEST(Rescore, WritesTheWholeLogAgain) {
  const std::string km = std::to_string(QsoPoints("JN45AA", "JM67AA"));
  const std::string log =
      "[REG1TEST;1]\n\nTName=  x \nPCall= ik2 qaa\nPWWLo=JN45AA\nPAdr1=Cant\xF9\n"
      "[QSORecords;9]\n" +
      QsoRow("IK2QAA", "JM67AA") + "\n" + QsoRow("I4QBC", "JM67AA") +
      "\n\n[END;a writer]\nbehind the end\n";
  // The call row is put in order, and with it the call that a QSO with oneself is known by.
  const std::string expected =
      "[REG1TEST;1]\r\n\r\nTName=  x \r\nPCALL=IK2QAA\r\nPWWLo=JN45AA\r\nPAdr1=Cant\xF9\r\n"
      "[QSORecords;9]\r\n" +
      QsoRow("ERROR", "JM67AA", "0") + "\r\n" + QsoRow("I4QBC", "JM67AA", km) +
      "\r\n[END; recalculated for VLM][END;a writer]\r\n";
  EXPECT_EQ(Rescore(log, kNoRepair).text, expected);
}

TEST(Rescore, EndsEveryLogWithItsMark) {
  const std::string rows = "PCall=IK2QAA\r\nPWWLo=JN45AA\r\n[QSORecords;0]\r\n";
  EXPECT_EQ(Rescore(rows, kNoRepair).text, rows + "[END; recalculated for VLM]\r\n");
  EXPECT_EQ(Rescore(rows + "[END]\r\nmore", kNoRepair).text,
            rows + "[END]\r\nmore\r\n[END; recalculated for VLM]\r\n");
  EXPECT_EQ(Rescore("", kNoRepair).text, "[END; recalculated for VLM]\r\n");
}

TEST(Rescore, RepairsPunctuationAndTellsEach) {
  std::vector<std::string> told;
  const RescoredLog log = Rescore(
      LogText("IK2QAA", "JN45AA", {"250119;0812;IZ9QBC;1;59;001;59;012;;JM67AA;9;a:b:;.N;"}),
      [&](const RowRepair& repair) {
        told.push_back(Join(repair.line, " ", std::string(1, repair.found), " ", repair.position,
                            " ", repair.before, " -> ", repair.after));
      });
  const std::string km = std::to_string(QsoPoints("JN45AA", "JM67AA"));
  const std::string head = "250119;0812;IZ9QBC;1;59;001;59;012;;JM67AA;";
  EXPECT_EQ(told, (std::vector<std::string>{
                      Join("14 : 47 ", head, "9;a:b:;.N; -> ", head, "9;a;b;;.N;"),
                      Join("14 . 51 ", head, "9;a;b;;.N; -> ", head, "9;a;b;;;N;")}));
  EXPECT_EQ(ParseEdiLog(log.text).qsos.at(0), head + km + ";a;b;;;N;");
}

TEST(Rescore, StopsAtAnOwnLocatorThatIsNone) {
  EXPECT_FALSE(
      Rescore(LogText("IK2QAA", "JN45AY", {QsoRow("I4QBC", "JM67AA")}), kNoRepair).complete);
  EXPECT_TRUE(Rescore(LogText("IK2QAA", "JN45AY", {}), kNoRepair).complete);
}

TEST(Rescore, AnEmptyCallIsInNoRow) {
  EXPECT_EQ(RescoredRows("", {QsoRow("IZ9QBC", "JN45AA")}),
            std::vector{QsoRow("IZ9QBC", "JN45AA", "1")});
}

TEST(Rescore, ItsTablesAreBounded) {
  const auto error_of = [](const std::string& log) {
    try {
      Rescore(log, kNoRepair);
      return 0;
    } catch (const RunTimeError& error) {
      return static_cast<int>(error.number());
    }
  };
  std::vector<std::string> rows;
  for (int i = 0; i < 1000; ++i) {
    rows.push_back(QsoRow("I4Q" + std::to_string(i), "JM67AA"));
  }
  EXPECT_EQ(error_of(LogText("IK2QAA", "JN45AA", rows)), 0);
  rows.push_back(QsoRow("I5QBC", "JM67AA"));
  EXPECT_EQ(error_of(LogText("IK2QAA", "JN45AA", rows)), 9);

  std::string lines;
  for (int i = 0; i < 50'000; ++i) {
    lines += "x\n";
  }
  EXPECT_EQ(error_of(lines), 0);
  EXPECT_EQ(error_of(lines + "x"), 9);
  // Two stations opposite each other have no distance by this formula.
  EXPECT_NE(error_of(LogText("IK2QAA", "AA00AA", {QsoRow("I5QBC", "JR99XX")})), 9);
}

}  // namespace
}  // namespace velmar::test
