#include "intake/qso_pass.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>

#include "model/text.h"
#include "platform/error.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

using Rows = std::vector<std::string>;

/// A pass over the rows of IK2QAA in JN45AA, and what it told.
struct PassRun {
  explicit PassRun(const Rows& rows, bool test_run = false, std::optional<int> declared = {}) {
    state.own_call = "IK2QAA/P    ";
    state.own_locator = "JN45AA";
    state.declared_rows = declared.value_or(static_cast<int>(rows.size()));
    QsoPass pass(
        state, test_run, [this](const QsoProblem& problem) { problems.push_back(problem); },
        [this](const ValidatedQso&, char mode) { modes += mode; });
    for (const std::string& row : rows) {
      if (!pass.Take(row)) {
        ended = true;
        break;
      }
    }
  }

  QsoFault Fault() const { return problems.empty() ? QsoFault::kNone : problems[0].fault; }

  IntakeState state;
  std::vector<QsoProblem> problems;
  std::string modes;
  bool ended = false;
};

TEST(QsoPassTest, TimesAreComparedAsText) {
  using enum QsoFault;
  for (const auto& [time, fault] :
       std::initializer_list<std::pair<const char*, QsoFault>>{{"1000", kNone},
                                                               {"0959", kEarly},
                                                               {"1101", kNone},
                                                               {"1102", kLate},
                                                               {"1100", kNone},
                                                               {"930", kLate},
                                                               {"100", kEarly},
                                                               {"", kEarly},
                                                               {" 1005", kEarly},
                                                               {"10:05", kTimeFormat},
                                                               {"1005 ", kTimeFormat},
                                                               {"11010", kLate},
                                                               {"2400", kLate},
                                                               {"OOOO", kLate}}) {
    const Rows rows = {ContestQso("IZ9QBC", "JM67AA", time), ContestQso("DL1AA", "JO30AA")};
    const PassRun run(rows);
    EXPECT_EQ(run.Fault(), fault) << time;
    EXPECT_EQ(run.ended, fault != kNone) << time;
    EXPECT_FALSE(run.state.invalid) << time;
    if (fault != kNone) {
      EXPECT_EQ(run.problems[0].time, time);
      EXPECT_EQ(run.problems[0].row, rows[0]);
      EXPECT_EQ(run.problems[0].number, 1);
    }
    EXPECT_FALSE(PassRun(rows, true).ended) << "in a test run: " << time;
  }
}

TEST(QsoPassTest, AQsoWithOneselfEndsThePass) {
  for (const auto& [call, self] : std::initializer_list<std::pair<const char*, bool>>{
           {"IK2QAA/P", true}, {" IK2QAA/P  ", true}, {"IK2QAA", false}, {"IK2QAA-P", false}}) {
    const PassRun run(
        {ContestQso("DL1AA", "JO30AA"), ContestQso(call, "JN45AA"), ContestQso("DL2AA", "XX")});
    EXPECT_EQ(run.Fault(), self ? QsoFault::kSelf : QsoFault::kLocator) << call;
    EXPECT_EQ(run.ended, self);
    EXPECT_TRUE(run.state.invalid);
    EXPECT_EQ(run.problems.size(), 1U);
  }
}

TEST(QsoPassTest, ModesAreCountedAsTheyStand) {
  const PassRun run(
      {"250119;1005;A1A;1;599;1;59;1;;JN45AB;1;;;;", "250119;1005;A1B;2;59;1;59;1;;JN45AB;1;;;;",
       "250119;1005;A1C;4;59;1;59;1;;JN45AB;1;;;;", "250119;1005;A1D;3;59;1;59;1;;JN45AB;1;;;;",
       "250119;1005;A1E;10;59;1;59;1;;JN45AB;1;;;;", "250119;1005;ERROR;;59;1;59;1;;;;;;;",
       "250119;1005;;;59;1;59;1;;JN45AB;;;;;"});
  EXPECT_TRUE(run.problems.empty());
  EXPECT_EQ(run.state.totals.ssb_qsos, 2);
  EXPECT_EQ(run.state.totals.cw_qsos, 2);
  EXPECT_EQ(run.state.totals.no_mode_qsos, 2);
  EXPECT_EQ(run.modes, "22431 ") << "a third character of the sent report makes it CW";

  for (const char* mode : {"", " 1"}) {
    const PassRun missing({ContestQso("DL1AA", "JO30AA", "1005", mode), ContestQso("A1B", "XX")});
    EXPECT_EQ(missing.Fault(), QsoFault::kNoMode);
    EXPECT_TRUE(missing.ended);
    EXPECT_TRUE(missing.state.invalid);
    EXPECT_EQ(missing.state.totals.no_mode_qsos, 1);
  }
}

TEST(QsoPassTest, DistancesAndBadLocators) {
  constexpr int kBad = -1;
  for (const auto& [locator, km] :
       std::initializer_list<std::pair<const char*, int>>{{"JM67AA", 950},
                                                          {"JO30AA", 576},
                                                          {"JN45AA", 1},
                                                          {"JN45", 96},
                                                          {"JN45MM", 96},
                                                          {"JN45AB", 5},
                                                          {"JM67AA ", 950},
                                                          {"JN45A", kBad},
                                                          {"JN45AY", kBad},
                                                          {"JN4", kBad},
                                                          {"", kBad},
                                                          {"JS45AA", kBad},
                                                          {"JS45", kBad},
                                                          {"JN45AA12", kBad},
                                                          {"JM67AA 1", kBad},
                                                          {" JM67AA", kBad}}) {
    const PassRun run({ContestQso("DL1AA", locator)});
    EXPECT_EQ(run.state.qsos.at(0).distance, km == kBad ? 0 : km) << locator;
    EXPECT_EQ(run.state.totals.distance, km == kBad ? 0 : km) << locator;
    EXPECT_EQ(run.Fault(), km == kBad ? QsoFault::kLocator : QsoFault::kNone) << locator;
    EXPECT_EQ(run.state.invalid, km == kBad) << locator;
    EXPECT_FALSE(run.ended) << "a bad locator does not end the pass";
    const PassRun deleted({ContestQso("DL1AA", locator) + ";D"});
    EXPECT_TRUE(deleted.problems.empty() && !deleted.state.invalid) << locator;
    EXPECT_EQ(deleted.state.totals.distance, 0) << locator;
  }
}

TEST(QsoPassTest, TheFarthestQsoMayBeADeletedOne) {
  const PassRun run({ContestQso("DL1AA", "JO30AA"), ContestQso("IZ9QBC", "JM67AA") + ";D",
                     ContestQso("IZ9QBD", "JM67AA")});
  EXPECT_EQ(run.state.totals.best_distance, 950);
  EXPECT_EQ(run.state.totals.best_call, "IZ9QBC");
  EXPECT_EQ(run.state.totals.best_locator, "JM67AA");
  EXPECT_EQ(run.state.totals.distance, 576 + 950);
  EXPECT_EQ(run.state.totals.deleted_rows, 1);
}

TEST(QsoPassTest, RowsTakenBackOrPassedOver) {
  const PassRun run({ContestQso("ERROR", "JO30AA"), ContestQso("DL1AA", "JO30AA") + "ERROR",
                     ContestQso("A1A", "JN45AA"), "25011", "ERROR", "nonsense ERROR;D"},
                    false, 5);
  EXPECT_TRUE(run.problems.empty());
  EXPECT_EQ(run.state.totals.error_rows, 4);
  EXPECT_EQ(run.state.totals.deleted_rows, 1);
  EXPECT_EQ(run.state.totals.distance, 576 + 1) << "the word elsewhere in a row takes nothing";
  EXPECT_EQ(run.state.qsos.at(0).call, "ERROR");
  EXPECT_EQ(run.state.qsos.at(0).locator, "JO30AA");
  for (const std::size_t passed_over : {3, 4, 5}) {
    EXPECT_EQ(run.state.qsos.at(passed_over).row, "");
    EXPECT_EQ(run.state.qsos.at(passed_over).call, "");
  }
}

TEST(QsoPassTest, FieldsAreCutToTheirWidths) {
  const PassRun run({"250119;1005;VERYLONGCALL99;1;59;1;59;1;;JN45     ;12345 ;;;;"});
  EXPECT_EQ(run.state.qsos.at(0).call, "VERYLONGCALL");
  EXPECT_EQ(run.state.qsos.at(0).locator, "JN45");
  EXPECT_EQ(run.state.qsos.at(0).points, "12345");
}

TEST(QsoPassTest, ARowShortOfSemicolonsIsAnErrorAndOneTooLongIsNot) {
  const std::string row = "250119;1005;DL1AA;1;59;1;59;1;;JO30AA;576";
  EXPECT_THROW(PassRun({row}), RunTimeError);
  EXPECT_THROW(PassRun({"250119"}), RunTimeError);
  for (const char* tail : {";", ";;", ";;;", ";;;;;;;"}) {
    EXPECT_EQ(PassRun({row + tail}).state.totals.distance, 576) << tail;
  }
}

TEST(QsoPassTest, TheFifteenHundredthRowIsAnError) {
  Rows rows(1499, ContestQso("DL1AA", "JN45AA"));
  EXPECT_EQ(PassRun(rows).state.totals.distance, 1499);
  rows.emplace_back("x");
  EXPECT_THROW(PassRun(rows, false, 1), RunTimeError) << "counted or not";
}

TEST(QsoPassTest, RowsBehindTheSectionAreCollectedInCapitals) {
  const QsoRows found = CollectQsoRows(
      "[REG1TEST;1]\r\nTName=x\r\n[QSORecords;2]\r\na;é\r\n\r\nb\tc\r\n \r\n[END;x]\r\nd\r\n");
  EXPECT_EQ(found.rows, (Rows{Upper("a;é"), "B\tC", " "}));
  EXPECT_EQ(found.lines, 8U);
  EXPECT_TRUE(CollectQsoRows("a\r\nb\r\n[END;x]").rows.empty());
  EXPECT_TRUE(CollectQsoRows("").rows.empty());
}

// The rule as it is told: a look through all later rows for each row.
int PlainMarkDoubles(std::vector<ValidatedQso>& qsos) {
  const auto deleted = [](const ValidatedQso& qso) { return qso.row.ends_with(";D"); };
  int doubles = 0;
  for (std::size_t i = 0; i < qsos.size(); ++i) {
    bool marked = qsos[i].call.empty() || deleted(qsos[i]);
    for (std::size_t j = i + 1; j < qsos.size() && !marked; ++j) {
      marked = qsos[j].call == qsos[i].call && !deleted(qsos[j]) && !Holds(qsos[j].call, "ERROR");
    }
    qsos[i].doubled = marked;
    doubles += marked ? 1 : 0;
  }
  return doubles;
}

TEST(MarkDoublesTest, AgreesWithALookThroughAllLaterRows) {
  std::mt19937 random(20250119);
  const auto below = [&random](int most) { return static_cast<int>(random() % most); };
  const Rows calls = {"", "ERROR", "XERROR", "IK2QAA", "IK2QAB", "IK2QAC", "DL1AA/P"};
  for (int round = 0; round < 2000; ++round) {
    std::vector<ValidatedQso> qsos(static_cast<std::size_t>(below(12)));
    for (ValidatedQso& qso : qsos) {
      qso.call = calls.at(static_cast<std::size_t>(below(7)));
      qso.row = below(4) == 0 ? "x;D" : "x;";
    }
    auto plain = qsos;
    ASSERT_EQ(MarkDoubles(qsos), PlainMarkDoubles(plain));
    for (std::size_t i = 0; i < qsos.size(); ++i) {
      ASSERT_EQ(qsos[i].doubled, plain[i].doubled) << "round " << round << ", row " << i + 1;
    }
  }
}

}  // namespace
}  // namespace velmar::test
