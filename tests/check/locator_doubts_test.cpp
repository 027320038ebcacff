#include "check/locator_doubts.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/store_rows.h"
#include "model/text.h"

namespace velmar {
namespace {

using Places = std::vector<std::size_t>;
using Strings = std::vector<std::string>;

std::vector<std::string_view> Views(const Strings& rows) {
  return {rows.begin(), rows.end()};
}

/// A row of a log, from "CALL LOCATOR".
std::string Row(std::string_view owner, std::string_view qso) {
  const std::size_t blank = qso.find(' ');
  return LibreriaRow(owner, qso.substr(0, blank), qso.substr(blank + 1), "100").value();
}

Strings Rows(const Strings& qsos) {
  Strings rows;
  for (const std::string& qso : qsos) {
    rows.push_back(Row("IK2QAA", qso));
  }
  return rows;
}

/// As many rows of the other logs.
Strings Times(int count, std::string_view qso) {
  Strings rows;
  for (int i = 0; i < count; ++i) {
    rows.push_back(Row(Join("IV3QA", i), qso));
  }
  return rows;
}

Strings operator+(Strings left, const Strings& right) {
  left.insert(left.end(), right.begin(), right.end());
  return left;
}

Places DoubtsOf(const Strings& log, const Strings& others, const Strings& participants = {}) {
  return FindLocatorDoubts({Views(log), Views(others), Views(participants), "2IT"});
}

TEST(LocatorBroken, TestsTheFormOfSixCharactersAlone) {
  for (const char* good : {"JN45AA", "AA00AA", "RR99XX", "JN45A", "JN45", "", "JN45AYX"}) {
    EXPECT_FALSE(LocatorBroken(good)) << good;
  }
  for (const char* bad : {"JN45AY", "JN45YA", "JS45AA", "SN45AA", "JN4OAA", "JNO5AA", "J945AA",
                          "JN45A1", "JN45 1", "jn45aa"}) {
    EXPECT_TRUE(LocatorBroken(bad)) << bad;
  }
}

TEST(ItalianPortable, BeginsWithIAndHoldsTheSuffix) {
  for (const char* call : {"IK2QAA/P", "I1QXX/P", "IV3/DL1QAA/P", "IK2QAA/PM"}) {
    EXPECT_TRUE(ItalianPortable(call)) << call;
  }
  for (const char* call : {"IK2QAA", "IK2QAA/M", "DL1QAA/P", "9A/IK2QAA/P", "IK2QAP", ""}) {
    EXPECT_FALSE(ItalianPortable(call)) << call;
  }
}

TEST(FindLocatorDoubts, UpToThreeAgreeingWitnessesDoNotSettleIt) {
  const Strings log = Rows({"I1QXX JN44BC"});
  const Strings against = Times(1, "I1QXX JN44BB");
  for (int agreeing = 0; agreeing <= 3; ++agreeing) {
    const Strings with = Times(agreeing, "I1QXX JN44BC");
    EXPECT_EQ(DoubtsOf(log, with + against), Places{0}) << agreeing;
    EXPECT_EQ(DoubtsOf(log, against + with), Places{0}) << agreeing;
    EXPECT_EQ(DoubtsOf(log, with), Places{}) << agreeing << " and none against";
  }
  const Strings four = Times(4, "I1QXX JN44BC");
  EXPECT_EQ(DoubtsOf(log, four + against), Places{});
  EXPECT_EQ(DoubtsOf(log, against + four), Places{});
  EXPECT_EQ(DoubtsOf(log, Times(9, "I1QXX JN44BB") + four), Places{});
}

TEST(FindLocatorDoubts, AWitnessIsAQsoWithThatVeryCall) {
  const Strings log = Rows({"I1QXX JN44BC"});
  EXPECT_EQ(DoubtsOf(log, {}), Places{});
  EXPECT_EQ(DoubtsOf(log, Rows({"I1QXXA JN44BB", "I1QX JN44BB", "I1QXX/P JN44BB"})), Places{});
  EXPECT_EQ(DoubtsOf(log, {Row("I1QXX", "IK2QAA JN45AA")}), Places{}) << "its own log is none";
  // Four who heard another station in that locator say nothing of this one.
  EXPECT_EQ(DoubtsOf(log, Times(4, "I1QXXA JN44BC") + Rows({"I1QXX JN44BB"})), Places{0});
}

TEST(FindLocatorDoubts, WhatTheStationItselfDeclaresIsNoDoubt) {
  const Strings log = Rows({"I1QXX JN44BC"});
  const Strings against = Times(5, "I1QXX JN44BB");
  const struct {
    const char *call, *locator, *category;
    Places doubts;
  } cases[] = {{"I1QXX", "JN44BC", "2IT", {}},
               {"I1QXX", "JN44BC", "3IT", {0}},
               {"I1QXX", "JN44BB", "2IT", {0}},
               {"I1QXXA", "JN44BC", "2IT", {0}}};
  for (const auto& [call, locator, category, doubts] : cases) {
    EXPECT_EQ(DoubtsOf(log, against, {PartecipanteRow(call, locator, category)}), doubts)
        << call << " " << locator << " " << category;
  }
}

TEST(FindOwnQsos, ComparesTheWholeCall) {
  EXPECT_EQ(
      FindOwnQsos(Views(Rows({"IK2QAA JN45AA", "IK2QAAA JN45AA", "IK2QA JN45AA", "IK2QAA JN45AB"})),
                  "IK2QAA"),
      (Places{0, 3}));
}

TEST(FindDeclaredOtherwise, TakesAnyCategoryAndTellsAQsoOnce) {
  const Strings log = Rows({"I1QXX JN44BC", "IZ9QBC JM67AA", "DL1QAA JO30AA"});
  const Strings participants = {
      PartecipanteRow("I1QXX", "JN44BB", "3IT"), PartecipanteRow("I1QXX", "JN44BA", "2IT"),
      PartecipanteRow("IZ9QBC", "JM67AA", "2IT"), PartecipanteRow("DL1QAAA", "JO30AB", "2IT")};
  EXPECT_EQ(FindDeclaredOtherwise(Views(log), Views(participants)), Places{0});
  EXPECT_EQ(FindDeclaredOtherwise(Views(log), {}), Places{});
}

}  // namespace
}  // namespace velmar
