// The search for unique calls, against the plain loops that it stands for, on contests that are
// drawn by chance.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "check/library_split.h"
#include "check/unique_calls.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "plain_unique.h"

namespace velmar::test {
namespace {

constexpr std::string_view kExamined = "IK2QAA";

// Few of each, so that they meet often; some hold others, and one locator is too short.
constexpr std::array kCalls = {"IW9QQQ",   "IW9QQQ/P",     "9A/IW9QQQ", "IW9QQQA",      "W9QQQ",
                               "I1A",      "I1A/P",        "IV3QYY",    "IV3QYYABCDEF", "DL1QAA",
                               "9A/I1A/P", "IK2ABCDEFGHJ", "OE5QZZ"};
constexpr std::array kLocators = {"JN45AA", "JN44BC", "JN45"};

/// A small contest, always the same for a seed.
struct Contest {
  explicit Contest(unsigned seed) : chance(seed) {
    // Standard distributions differ between libraries; the remainder is the same everywhere.
    AddLog(kExamined, chance() % 8);
    const std::size_t others = chance() % 5;
    for (std::size_t log = 0; log < others; ++log) {
      AddLog(Join("IN3QZ", log), chance() % 6);
    }
    for (std::size_t left = chance() % 4; left > 0; --left) {
      AddLine(participants, PartecipanteRow(Any(kCalls), Any(kLocators), "2IT"));
    }
    for (std::size_t left = chance() % 4; left > 0; --left) {
      book.push_back(Pad(Join(Call12(Any(kCalls)), Any(kLocators)), 34));
    }
    hide_in_book = chance() % 2 == 0;
    hide_with_log = chance() % 2 == 0;
    hide_over_two = chance() % 2 == 0;
  }

  template <typename Texts>
  std::string_view Any(const Texts& texts) {
    return texts[chance() % texts.size()];
  }

  void AddLog(std::string_view owner, std::size_t qsos) {
    for (std::size_t qso = 0; qso < qsos; ++qso) {
      AddLine(library, LibreriaRow(owner, Any(kCalls), Any(kLocators), "100").value());
    }
  }

  std::mt19937 chance;
  std::string library;
  std::string participants;
  std::vector<std::string> book;
  bool hide_in_book = false;
  bool hide_with_log = false;
  bool hide_over_two = false;
};

TEST(UniqueCallsAgreement, TheSearchFindsWhatPlainLoopsFind) {
  constexpr unsigned kContests = 800;
  bench::PlainUnique met;
  for (unsigned seed = 0; seed < kContests; ++seed) {
    const Contest contest(seed);
    const LibrarySplit qsos = SplitLibrary(contest.library, kExamined);
    const std::vector<std::string_view> participants = SplitLines(contest.participants);
    const UniqueSources sources{.log = qsos.log,
                                .others = qsos.others,
                                .participants = participants,
                                .call_book = contest.book,
                                .hide_in_book = contest.hide_in_book,
                                .hide_with_log = contest.hide_with_log,
                                .hide_over_two = contest.hide_over_two};
    const bench::PlainUnique plain = bench::FindUniqueByLoops(sources);
    ASSERT_EQ(FindUniqueCalls(sources), plain.rows) << "seed " << seed << "\n"
                                                    << contest.library << contest.participants;
    met.equal += plain.equal;
    met.portable += plain.portable;
    met.alone += plain.alone;
    met.with_log += plain.with_log;
    met.in_book += plain.in_book;
    met.other_place += plain.other_place;
    met.enough += plain.enough;
    met.rare += plain.rare;
    met.listed_twice += plain.listed_twice;
  }
  // The contests have come to each end of the loops many times.
  constexpr std::size_t kOften = 10;
  EXPECT_GE(met.equal, kOften);
  EXPECT_GE(met.portable, kOften);
  EXPECT_GE(met.alone, kOften);
  EXPECT_GE(met.with_log, kOften);
  EXPECT_GE(met.in_book, kOften);
  EXPECT_GE(met.other_place, kOften);
  EXPECT_GE(met.enough, kOften);
  EXPECT_GE(met.rare, kOften);
  EXPECT_GE(met.listed_twice, kOften);
}

}  // namespace
}  // namespace velmar::test
