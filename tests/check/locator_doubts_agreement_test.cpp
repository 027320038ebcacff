// The search for locators in doubt, against the plain loops that it stands for, on contests that
// are drawn by chance.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "check/library_split.h"
#include "check/locator_doubts.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "model/workspace.h"
#include "plain_doubts.h"

namespace velmar::test {
namespace {

constexpr std::string_view kExamined = "IK2QAA";
constexpr std::string_view kOtherCategory = "6IT";

// Few of each, so that they meet often; one locator is too short and draws the points into it.
constexpr std::array kCalls = {"IZ9QBC", "I1QXX", "IV3QYY", "IV3QYY/P", "DL1QAA", "IK2QAA"};
constexpr std::array kLocators = {"JN45AA", "JN44BC", "JN44BB", "JN45"};

/// A small contest, always the same for a seed.
struct Contest {
  explicit Contest(unsigned seed) : chance(seed) {
    // Standard distributions differ between libraries; the remainder is the same everywhere.
    AddLog(kExamined, 1 + chance() % 10, kCalls.size());
    const std::size_t heard = 1 + chance() % kCalls.size();
    const std::size_t others = 1 + chance() % 12;
    for (std::size_t log = 0; log < others; ++log) {
      AddLog(Join("IN3QZ", log), chance() % 6, heard);
    }
    const std::size_t declaring = chance() % 5;
    for (std::size_t log = 0; log < declaring; ++log) {
      AddLine(participants, PartecipanteRow(Any(kCalls), Any(kLocators),
                                            chance() % 4 == 0 ? kOtherCategory : kCategory));
    }
  }

  template <typename Texts>
  std::string_view Any(const Texts& texts) {
    return texts[chance() % texts.size()];
  }

  /// A log that meets only the first so many of the calls.
  void AddLog(std::string_view owner, std::size_t qsos, std::size_t calls) {
    for (std::size_t qso = 0; qso < qsos; ++qso) {
      const std::string_view call = kCalls[chance() % calls];
      AddLine(library, LibreriaRow(owner, call, Any(kLocators), "100").value());
    }
  }

  std::mt19937 chance;
  std::string library;
  std::string participants;
};

TEST(LocatorDoubtsAgreement, TheSearchFindsWhatPlainLoopsFind) {
  constexpr unsigned kContests = 500;
  bench::PlainDoubts met;
  for (unsigned seed = 0; seed < kContests; ++seed) {
    const Contest contest(seed);
    const LibrarySplit qsos = SplitLibrary(contest.library, kExamined);
    const std::vector<std::string_view> participants = SplitLines(contest.participants);
    const LocatorWitnesses witnesses{qsos.log, qsos.others, participants, kCategory};
    const bench::PlainDoubts plain = bench::FindDoubtsByLoops(witnesses);
    ASSERT_EQ(FindLocatorDoubts(witnesses), plain.places)
        << "seed " << seed << "\n"
        << contest.library << contest.participants;
    met.places.insert(met.places.end(), plain.places.begin(), plain.places.end());
    met.declared += plain.declared;
    met.unheard += plain.unheard;
    for (const auto& [count, times] : plain.counts) {
      met.counts[count] += times;
    }
  }
  // The contests have come to each end of the loops many times, and to both sides of the limit.
  constexpr std::size_t kOften = 20;
  EXPECT_GE(met.places.size(), kOften);
  EXPECT_GE(met.declared, kOften);
  EXPECT_GE(met.unheard, kOften);
  for (const int count : {0, 1, 2, 3, 4, 5, 8}) {
    EXPECT_GE(met.counts[count], kOften) << "agreeing QSOs: " << count;
  }
}

}  // namespace
}  // namespace velmar::test
