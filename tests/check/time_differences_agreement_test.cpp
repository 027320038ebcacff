// The comparison of times, against the plain loops that it stands for, on contests that are drawn
// by chance.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "check/time_differences.h"
#include "model/lines.h"
#include "model/somma_qso.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "plain_times.h"

namespace velmar::test {
namespace {

constexpr std::array kExamined = {"I1A", "IK2QAA", "9A/IK2QX/P", "IK2ABCDEFGHJ"};
// One holds another. The last one is worked and sends no log.
constexpr std::array kStations = {"IZ9QBC", "IZ9QBC/P", "DL1QAA"};
constexpr std::size_t kStationsWithLog = 2;
// Many pairs are 10 or 11 minutes apart; some lie around midnight, some have no proper minutes.
constexpr std::array kTimes = {"1000", "1005", "1010", "1011", "1016", "0955", "2359",
                               "2355", "0001", "0010", "0000", "10A5", "101"};
constexpr std::array kNumbers = {"", "7", "012", "1234"};
constexpr std::array kPoints = {"7", "107", "1234", ""};

/// A small contest, always the same for a seed.
struct Contest {
  explicit Contest(unsigned seed) : chance(seed) {
    // Standard distributions differ between libraries; the remainder is the same everywhere.
    call = Any(kExamined);
    for (std::size_t left = 1 + chance() % 5; left > 0; --left) {
      // An owner drawn twice lies scattered in the file.
      const std::string_view owner = Owner();
      for (std::size_t qsos = chance() % 6; qsos > 0; --qsos) {
        AddQso(owner);
      }
    }
  }

  template <typename Texts>
  std::string_view Any(const Texts& texts) {
    return texts[chance() % texts.size()];
  }

  std::string_view Owner() {
    return chance() % 2 == 0 ? call : kStations[chance() % kStationsWithLog];
  }

  /// Whom a station worked: mostly the call under examination, which may have worked itself.
  std::string_view Worked(std::string_view owner) {
    const bool draws = owner == call ? chance() % 8 != 0 : chance() % 4 == 0;
    return draws ? Any(kStations) : call;
  }

  void AddQso(std::string_view owner) {
    const std::string_view worked = Worked(owner);
    const std::string_view time = Any(kTimes);
    const std::string_view number = Any(kNumbers);
    AddLine(text, SommaQsoRow(Join("250119;", time, ";", worked, ";1;59;", number,
                                   ";59;012;;JN44BB;", Any(kPoints), ";;N;;"),
                              "2IT", "JN45AA", owner));
  }

  std::mt19937 chance;
  std::string_view call;
  std::string text;
};

TEST(TimeDifferencesAgreement, TheComparisonFindsWhatPlainLoopsFind) {
  constexpr unsigned kContests = 400;
  bench::PlainTimes met;
  for (unsigned seed = 0; seed < kContests; ++seed) {
    const Contest contest(seed);
    const std::vector<SommaQso> rows = CutSommaRows(contest.text);
    const bench::PlainTimes plain = bench::FindTimesByLoops(rows, contest.call);
    const TimeDifferences found = FindTimeDifferences(rows, contest.call);
    ASSERT_EQ(found.items, plain.differences.items) << "seed " << seed << "\n" << contest.text;
    ASSERT_EQ(found.compared, plain.differences.compared) << "seed " << seed << "\n"
                                                          << contest.text;
    met.unanswered += plain.unanswered;
    met.repeated += plain.repeated;
    met.equal += plain.equal;
    met.within += plain.within;
    met.ten += plain.ten;
    met.eleven += plain.eleven;
    met.beyond += plain.beyond;
    met.midnight += plain.midnight;
    met.numbered += plain.numbered;
    met.placed += plain.placed;
    met.left_out += plain.left_out;
  }
  // The contests have come to each end of the loops many times.
  constexpr std::size_t kOften = 20;
  EXPECT_GE(met.unanswered, kOften);
  EXPECT_GE(met.repeated, kOften);
  EXPECT_GE(met.equal, kOften);
  EXPECT_GE(met.within, kOften);
  EXPECT_GE(met.ten, kOften);
  EXPECT_GE(met.eleven, kOften);
  EXPECT_GE(met.beyond, kOften);
  EXPECT_GE(met.midnight, kOften);
  EXPECT_GE(met.numbered, kOften);
  EXPECT_GE(met.placed, kOften);
  EXPECT_GE(met.left_out, kOften);
}

}  // namespace
}  // namespace velmar::test
