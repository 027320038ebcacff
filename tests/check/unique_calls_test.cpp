// Which calls of a log are unique among the others.

#include "check/unique_calls.h"

#include <gtest/gtest.h>

#include "check/library_split.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "support/boxes.h"

namespace velmar::test {
namespace {

const std::string kPortable = "  / forse portatile ? ";
const std::string kRare = "  < 3 questo call ha meno di 3 presenze";

struct Station {
  std::string call;
  std::string locator = "JN44BC";
};

/// A log of IK2QAA with these calls, and those that other logs have.
struct Contest {
  std::vector<Station> log;
  std::vector<Station> others;
  std::vector<Station> participants{};
  std::vector<Station> book{};
  bool hide_in_book = true;
  bool hide_with_log = true;
  bool hide_over_two = false;

  Names Rows() const {
    std::string library;
    for (const Station& station : log) {
      AddLine(library, LibreriaRow("IK2QAA", station.call, station.locator, "107").value());
    }
    for (const Station& station : others) {
      AddLine(library, LibreriaRow("IZ9QBC", station.call, station.locator, "832").value());
    }
    std::string declared;
    for (const Station& station : participants) {
      AddLine(declared, PartecipanteRow(station.call, station.locator, "3IT"));
    }
    Names records;
    for (const Station& station : book) {
      records.push_back(Pad(Join(Call12(station.call), station.locator), 34));
    }
    const LibrarySplit split = SplitLibrary(library, "IK2QAA");
    const auto lines = SplitLines(declared);
    return FindUniqueCalls({.log = split.log,
                            .others = split.others,
                            .participants = {lines},
                            .call_book = records,
                            .hide_in_book = hide_in_book,
                            .hide_with_log = hide_with_log,
                            .hide_over_two = hide_over_two});
  }

  /// Calls with what stands behind the points.
  Names Unique() const {
    Names unique;
    for (const std::string& row : Rows()) {
      unique.push_back(Join(RTrim(Mid(row, 13, 12)), Mid(row, 36)));
    }
    return unique;
  }
};

TEST(UniqueCalls, AreThoseThatNoOtherLogHas) {
  const Contest contest{.log = {{"I1QXX"}, {"IZ9QBC"}, {"DL1QAA", "JO30AA"}, {"I1QXX"}},
                        .others = {{"IZ9QBC", "JM67AA"}, {"I1QX"}, {"DL1QAAB"}}};
  EXPECT_EQ(contest.Rows(),
            (Names{"IK2QAA      I1QXX       JN44BC 107  1", "IK2QAA      DL1QAA      JO30AA 107  3",
                   "IK2QAA      I1QXX       JN44BC 107  4"}));
  EXPECT_EQ((Contest{.log = {}, .others = {{"I1QXX"}}}).Rows(), Names{});
  EXPECT_EQ((Contest{.log = {{"I1QXX"}}, .others = {}}).Unique(), Names{"I1QXX 1"});
}

// What stands first in the other logs decides.
TEST(UniqueCalls, APortableFormElsewhereIsOnlyRemarkedOn) {
  const struct {
    std::vector<Station> others;
    Names unique;
  } cases[] = {{{{"IW9QQQ/P"}}, {"IW9QQQ 1" + kPortable}},
               {{{"9A/IW9QQQ"}}, {"IW9QQQ 1" + kPortable}},
               {{{"9A/IW9QQQ/P"}}, {"IW9QQQ 1" + kPortable}},
               {{{"IW9QQQA"}}, {"IW9QQQ 1"}},
               {{{"IW9QQ/P"}}, {"IW9QQQ 1"}},
               {{{"IW9QQQ/P"}, {"IW9QQQ", "JN45AA"}}, {"IW9QQQ 1" + kPortable}},
               {{{"IW9QQQ", "JN45AA"}, {"IW9QQQ/P"}}, {}},
               {{{"I1QXX"}, {"IW9QQQ/P"}, {"IW9QQQ/P"}, {"IW9QQQ", "JN45AA"}, {"IW9QQQ/M"}},
                {"IW9QQQ 1" + kPortable}}};
  for (const auto& [others, unique] : cases) {
    EXPECT_EQ((Contest{.log = {{"IW9QQQ"}}, .others = others}).Unique(), unique);
  }
  EXPECT_EQ((Contest{.log = {{"IW9QQQ/P"}}, .others = {{"IW9QQQ"}}}).Unique(), Names{"IW9QQQ/P 1"});
  EXPECT_EQ((Contest{.log = {{"IW9QQQ/P"}}, .others = {{"IW9QQQ/P", "JN45AA"}}}).Unique(), Names{});
}

// The row of a call in that locator that other logs have so many times, by the option.
TEST(UniqueCalls, ARareCallIsListedByItsPresences) {
  for (const bool over_two : {true, false}) {
    for (const int presences : {1, 2, 3}) {
      Contest contest{
          .log = {{"I1QXX"}}, .others = {{"I1QXX", "JN44BB"}}, .hide_over_two = over_two};
      contest.others.insert(contest.others.end(), presences, {"I1QXX"});
      EXPECT_EQ(contest.Unique(), !over_two && presences == 1 ? Names{"I1QXX 1" + kRare} : Names{})
          << over_two << presences;
    }
  }
  const Contest elsewhere{.log = {{"I1QXX"}}, .others = {{"I1QXX", "JN44BB"}}};
  EXPECT_EQ(elsewhere.Unique(), Names{});
}

TEST(UniqueCalls, TheSecondPassComesBehindTheFirst) {
  const Contest contest{.log = {{"I1QXX"}, {"DL1QAA"}, {"IW9QQQ"}},
                        .others = {{"IW9QQQ/P"}, {"I1QXX"}, {"IW9QQQ"}}};
  EXPECT_EQ(contest.Unique(),
            (Names{"DL1QAA 2", "IW9QQQ 3" + kPortable, "I1QXX 1" + kRare, "IW9QQQ 3" + kRare}));
}

TEST(UniqueCalls, WhoSentALogIsLeftOutWhateverItsLocator) {
  Contest contest{.log = {{"I1QXX"}, {"DL1QAA"}, {"IV3QYY"}},
                  .others = {{"DL1QAA"}},
                  .participants = {{"I1QXX", "JN45AA"}, {"DL1QAA"}, {"IV3QYY/P"}}};
  EXPECT_EQ(contest.Unique(), Names{"IV3QYY 3"});
  contest.hide_with_log = false;
  EXPECT_EQ(contest.Unique(), (Names{"I1QXX 1", "IV3QYY 3", "DL1QAA 2" + kRare}));
}

TEST(UniqueCalls, WhatTheBookHasInThatLocatorIsLeftOut) {
  Contest contest{.log = {{"I1QXX"}, {"DL1QAA"}, {"IV3QYY"}},
                  .others = {{"DL1QAA"}},
                  .book = {{"I1QXX"}, {"DL1QAA"}, {"IV3QYY", "JN44BB"}, {"IV3QYY/P"}}};
  EXPECT_EQ(contest.Unique(), Names{"IV3QYY 3"});
  contest.hide_in_book = false;
  EXPECT_EQ(contest.Unique(), (Names{"I1QXX 1", "IV3QYY 3", "DL1QAA 2" + kRare}));
}

TEST(UniqueCalls, TheForcedCallIsTheFirstQsoOfThatName) {
  std::string library;
  for (const char* call : {"IZ9QBC", "I1QXX", "I1QXX", "I1QXX/P"}) {
    AddLine(library, LibreriaRow("IK2QAA", call, "JN44BC", "107").value());
  }
  const auto log = SplitLibrary(library, "IK2QAA").log;
  EXPECT_EQ(ForcedRow(log, "I1QXX"), "IK2QAA      I1QXX       JN44BC 107  2");
  EXPECT_EQ(ForcedRow(log, "I1QX"), "");
  EXPECT_EQ(ForcedRow({}, "I1QXX"), "");
}

// A row without a locator has its points in the locator's columns.
TEST(UniqueCalls, AShiftedRowIsComparedAsItStands) {
  const Contest contest{.log = {{"I1QXX", "JN44"}, {"DL1QAA", "JN44"}},
                        .others = {{"I1QXX", "JN44BC"}, {"DL1QAA", "JN44"}}};
  EXPECT_EQ(contest.Rows(), Names{});  // the points differ, so that the locators do
}

}  // namespace
}  // namespace velmar::test
