// The comparison of times: which QSOs differ, how the list has them, how long a log was on the air.

#include "check/time_differences.h"

#include <gtest/gtest.h>

#include <utility>

#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "support/boxes.h"

namespace velmar::test {
namespace {

/// A row of the store: the owner's QSO with a call at a time.
std::string Row(std::string_view owner, std::string_view time, std::string_view call,
                std::string_view points = "100", std::string_view number = "") {
  return Join(SommaQsoRow(Join("250119;", time, ";", call, ";1;59;", number, ";59;012;;JN44BB;",
                               points, ";;N;;"),
                          "2IT", "JN45AA", owner),
              kLineEnd);
}

/// The items of the comparison of IK2QAA's log, and behind them the QSOs that were compared.
Names Differences(const std::string& text, std::string_view call = "IK2QAA") {
  TimeDifferences found = FindTimeDifferences(CutSommaRows(text), call);
  found.items.push_back(std::to_string(found.compared));
  return found.items;
}

Names OfTimes(std::string_view own, std::string_view other) {
  return Differences(Row("IK2QAA", own, "IZ9QBC") + Row("IZ9QBC", other, "IK2QAA"));
}

TEST(TimeDifferences, ElevenMinutesAreAnErrorAndTenAreNone) {
  EXPECT_EQ(OfTimes("1005", "1005"), Names{"1"});
  EXPECT_EQ(OfTimes("1005", "1015"), Names{"1"});
  EXPECT_EQ(OfTimes("1015", "1005"), Names{"1"});
  EXPECT_EQ(OfTimes("1005", "1016"), (Names{"001 IK2QAA 1005 1016 IZ9QBC      *11   100", "1"}));
  EXPECT_EQ(OfTimes("1016", "1005"), (Names{"001 IK2QAA 1016 1005 IZ9QBC      *11   100", "1"}));
  EXPECT_EQ(OfTimes("0955", "1006"), (Names{"001 IK2QAA 0955 1006 IZ9QBC      *11   100", "1"}))
      << "minutes, not the figures";
}

TEST(TimeDifferences, MidnightIsNoNeighbour) {
  EXPECT_EQ(OfTimes("2359", "0001"), (Names{"001 IK2QAA 2359 0001 IZ9QBC      *1438 100", "1"}));
  EXPECT_EQ(OfTimes("2358", "0003"), (Names{"001 IK2QAA 2358 0003 IZ9QBC      *1435 100", "1"}));
}

TEST(TimeDifferences, TheNumberIsTheOneThatWasSent) {
  const std::string other = Row("IZ9QBC", "1100", "IK2QAA");
  EXPECT_EQ(Differences(Row("IK2QAA", "1005", "IZ9QBC", "100", "7") +
                        Row("IK2QAA", "1005", "IZ9QBC", "100", "1234") + other),
            (Names{"007 IK2QAA 1005 1100 IZ9QBC      *55   100",
                   "234 IK2QAA 1005 1100 IZ9QBC      *55   100", "2"}));
}

TEST(TimeDifferences, WithoutANumberItIsTheRowsPlaceInItsLog) {
  std::string text = Row("IZ9QBC", "1100", "IK2QAA");
  for (int i = 1; i <= 1000; ++i) {
    text += Row("IK2QAA", "1005", i == 7 || i == 12 || i == 1000 ? "IZ9QBC" : "I1QXX");
  }
  EXPECT_EQ(Differences(text), (Names{"007 IK2QAA 1005 1100 IZ9QBC      *55   100",
                                      "012 IK2QAA 1005 1100 IZ9QBC      *55   100",
                                      "000 IK2QAA 1005 1100 IZ9QBC      *55   100", "3"}));
}

TEST(TimeDifferences, TheOtherLogAloneSpeaks) {
  EXPECT_EQ(Differences(Row("IK2QAA", "1005", "IZ9QBC")), Names{"0"}) << "no other log";
  EXPECT_EQ(Differences(Row("IK2QAA", "1005", "IZ9QBC") + Row("IZ9QBC", "1100", "IK2QAAA") +
                        Row("IZ9QBC", "1100", "IK2QA") + Row("IZ9QBCA", "1100", "IK2QAA")),
            Names{"0"});
  EXPECT_EQ(Differences(Row("IZ9QBC", "1005", "IK2QAA")), Names{"0"}) << "no log to be checked";
  EXPECT_EQ(Differences(Row("IK2QAA", "1005", "IK2QAA") + Row("IK2QAA", "1105", "IK2QAA")),
            (Names{"001 IK2QAA 1005 1105 IK2QAA      *60   100",
                   "002 IK2QAA 1105 1005 IK2QAA      *60   100", "4"}))
      << "a station that worked itself twice";
}

TEST(TimeDifferences, RowsTooShortForAnOwnerArePassedOver) {
  const std::string text = Row("IK2QAA", "1005", "IZ9QBC") + "12345678901\r\n\r\n" +
                           Row("IK2QAA", "1006", "IZ9QBC") + Row("IZ9QBC", "1100", "IK2QAA");
  EXPECT_EQ(Differences(text), (Names{"001 IK2QAA 1005 1100 IZ9QBC      *55   100",
                                      "002 IK2QAA 1006 1100 IZ9QBC      *54   100", "2"}));
  EXPECT_EQ(FindBrokenTime(CutSommaRows("A2345678901\r\n")), std::nullopt);
  ASSERT_EQ(CutSommaRows("IK2QAA      \r\n").size(), 1U);
  EXPECT_EQ(CutSommaRows("IK2QAA      \r\n")[0].owner, "IK2QAA");
}

// The columns move with the length of the call, up to ten characters, and 44 of them are kept.
TEST(TimeItem, StandsWhereTheLengthOfTheCallPutsIt) {
  const TimeItem item = {.ordinal = "12",
                         .own_time = "1005",
                         .other_time = "1016",
                         .other_call = "IV3/IZ9QBC",
                         .difference = "11",
                         .points = "418"};
  const std::pair<const char*, const char*> cases[] = {
      {"I1QA", "012 I1QA 1005 1016 IV3/IZ9QBC  *11   418"},
      {"I1QAA", "012 I1QAA 1005 1016 IV3/IZ9QBC  *11   418"},
      {"IK2QAA", "012 IK2QAA 1005 1016 IV3/IZ9QBC  *11   418"},
      {"I1QAA/4", "012 I1QAA/4 1005 1016 IV3/IZ9QBC  *11   418"},
      {"IK2QAA/P", "012 IK2QAA/P 1005 1016 IV3/IZ9QBC  *11   418"},
      {"IK2QAAA/P", "012 IK2QAAA/P 1005 1016 IV3/IZ9QBC  *11   41"},
      {"IV3/IK2QAA", "012 IV3/IK2QAA 1005 1016 IV3/IZ9QBC  *11   4"},
      {"IV3/IK2QAA/P", "012 IV3/IK2QAA 1005 1016 IV3/IZ9QBC  *11   4"}};
  for (const auto& [call, row] : cases) {
    EXPECT_EQ(TimeItemRow(item, call), row);
    const TimeItem read = ReadTimeItem(row, call);
    EXPECT_EQ(Join(read.ordinal, "|", read.own_time, "|", read.other_time, "|", read.other_call,
                   "|", read.difference),
              "012|1005|1016|IV3/IZ9QBC  |11")
        << call;
    EXPECT_EQ(Join("*11   ", read.points), Mid(row, std::string_view(row).find('*') + 1)) << call;
  }
}

TEST(ReportItem, StandsWhereTheLengthOfTheCallPutsIt) {
  const auto fields = [](const ReportItem& item) {
    return Join(item.ordinal, "|", item.sent, "|", item.received, "|", item.other_call, "|",
                item.points);
  };
  EXPECT_EQ(fields(ReadReportItem("012abcdef000123ghi000987jIZ9QBC/PQR418 k", 4)),
            "012|000123|000987|IZ9QBC/PQR|418 ")
      << "no column more";
  EXPECT_EQ(fields(ReadReportItem("012 I1QA 000123   000987 IZ9QBC/P  418 ", 4)),
            "012|000123|000987|IZ9QBC/P  |418 ");
  EXPECT_EQ(fields(ReadReportItem("012 IK2QAA 000123   000987 IZ9QBC/P  418 ", 6)),
            "012|000123|000987|IZ9QBC/P  |418 ");
  for (const std::size_t length : {10, 11, 12}) {
    EXPECT_EQ(fields(ReadReportItem("012 IV3/IK2QAA 000123   000987 IZ9QBC/P  418 ", length)),
              "012|000123|000987|IZ9QBC/P  |418 ");
  }
}

TEST(TimeListTitles, AreFiveByTheLengthOfTheCall) {
  const std::pair<std::size_t, std::string_view> cases[] = {
      {4, "QSO      Log di      TIME     orario nel log di:                  Time error     qrb"},
      {5, "QSO      Log di        TIME     orario nel log di:                Time error     qrb"},
      {6, "QSO      Log di           TIME    orario nel log di:                Time error     qrb"},
      {7,
       "QSO      Log di            TIME      orario nel log di:                Time error     qrb"},
      {8,
       "QSO      Log di                TIME     orario nel log di:               Time error     "
       "qrb"},
      {3, ""},
      {9, ""}};
  for (const auto& [length, titles] : cases) {
    EXPECT_EQ(TimeListTitles(length), titles);
  }
}

TEST(FindBrokenTime, TestsTheFirstTwoCharactersAlone) {
  const auto broken = [](std::string_view time) -> std::string {
    const auto found =
        FindBrokenTime(CutSommaRows(Row("I1QXX", "1005", "I1QYY") + Row("I1QXX", time, "I1QYY")));
    return found ? Join(found->row, " ", found->character) : "";
  };
  for (const char* good : {"1005", "12A4", "12 4", "12::", "1200", "99", "0000"}) {
    EXPECT_EQ(broken(good), "") << good;
  }
  for (const char* first : {"A234", "", " 123", ":999", "/000", "-1"}) {
    EXPECT_EQ(broken(first), "1 1") << first;
  }
  for (const char* second : {"1A34", "1", "1 34", "1:00", "9/00"}) {
    EXPECT_EQ(broken(second), "1 2") << second;
  }
}

std::string OnAir(const std::string& text) {
  const TimeOnAir time = FindTimeOnAir(CutSommaRows(text), "IK2QAA");
  return Join(time.qsos, " ", time.hours, "h", time.minutes, " ", time.first, " ", time.last);
}

std::string Times(const Names& times) {
  std::string text = Row("IZ9QBC", "0001", "IK2QAA");
  for (const std::string& time : times) {
    text += Row("IK2QAA", time, "IZ9QBC");
  }
  return text + Row("IZ9QBC", "2359", "IK2QAA");
}

TEST(TimeOnAir, RunsFromTheFirstRowToTheLast) {
  EXPECT_EQ(OnAir(Times({"1005"})), "1 0h0 10:05 10:05");
  EXPECT_EQ(OnAir(Times({"1005", "0900", "1210"})), "3 2h5 10:05 12:10");
  EXPECT_EQ(OnAir(Times({"1400", "1355"})), "2 23h55 14:00 13:55") << "over midnight";
  EXPECT_EQ(OnAir(Times({"2359", "0000"})), "2 0h1 23:59 00:00");
  EXPECT_EQ(OnAir(Times({})), "0 0h0  ");
  EXPECT_EQ(OnAir(Times({"1005"}) + Row("IK2QAA", "1105", "IZ9QBC")), "2 1h0 10:05 11:05")
      << "all rows of the log";
}

TEST(TimeOnAir, ManyQsosBetweenEqualTimesAreAWholeTurn) {
  EXPECT_EQ(OnAir(Times(Names(10, "1005"))), "10 0h0 10:05 10:05");
  EXPECT_EQ(OnAir(Times(Names(11, "1005"))), "11 24h0 10:05 10:05");
  Names times(11, "1005");
  times.back() = "1006";
  EXPECT_EQ(OnAir(Times(times)), "11 0h1 10:05 10:06");
}

}  // namespace
}  // namespace velmar::test
