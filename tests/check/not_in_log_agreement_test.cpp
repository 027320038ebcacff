// The search for what is not in a log, against the plain loops that it stands for, on contests that
// are drawn by chance.

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "check/library_split.h"
#include "check/not_in_log_search.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "model/workspace.h"
#include "plain_not_in_log.h"

namespace velmar::test {
namespace {

constexpr std::array kExamined = {"IK2ABC", "I1A", "9A/IK2QX/P", "IK2ABCDEFGHJ"};
constexpr std::array kStations = {"IZ9QBC", "IZ9QBC/P", "IV3QYYABCDEF", "I1B", "DL1QAA"};
constexpr std::array kLocators = {"JN45AA", "JN44BC"};
constexpr std::array kPoints = {"7", "107", "1234", ""};

/// A small contest, always the same for a seed.
struct Contest {
  explicit Contest(unsigned seed) : chance(seed) {
    // Standard distributions differ between libraries; the remainder is the same everywhere.
    call = Any(kExamined);
    for (std::size_t left = 1 + chance() % 6; left > 0; --left) {
      AddQso(call, Any(kStations), "JN45AA");
    }
    for (std::size_t left = chance() % 12; left > 0; --left) {
      AddQso(Any(kStations), Written(), Any(kLocators));
    }
    for (std::size_t left = chance() % 6; left > 0; --left) {
      AddLine(participants, PartecipanteRow(Any(kStations), Any(kLocators), Category()));
    }
  }

  template <typename Texts>
  std::string_view Any(const Texts& texts) {
    return texts[chance() % texts.size()];
  }

  std::string_view Category() { return chance() % 4 == 0 ? "3IT" : kCategory; }

  /// The call under examination as a station may have heard it.
  std::string Written() {
    std::string text = call;
    const std::size_t place = chance() % text.size();
    switch (chance() % 7) {
      case 0:
        return text;
      case 1:
        text[place] = 'X';
        return text;
      case 2:
        return text.erase(place, 1);
      case 3:
        return Join(text.substr(0, place), "X", text.substr(place));
      case 4:
        std::swap(text[place], text[chance() % text.size()]);
        return text;
      case 5:
        return {text.rbegin(), text.rend()};
      default:
        return "OE5QZZ";
    }
  }

  void AddQso(std::string_view owner, std::string_view worked, std::string_view locator) {
    const std::string_view points = Any(kPoints);
    AddLine(library, LibreriaRow(owner, worked, locator, points).value());
    AddLine(total, LibreriaTotaleRow(owner, worked, locator, Category(), points).value());
  }

  std::mt19937 chance;
  std::string call;
  std::string library;
  std::string total;
  std::string participants;
};

TEST(NotInLogAgreement, TheSearchFindsWhatPlainLoopsFind) {
  constexpr unsigned kContests = 800;
  bench::PlainNotInLog met;
  for (unsigned seed = 0; seed < kContests; ++seed) {
    const Contest contest(seed);
    const LibrarySplit qsos = SplitLibrary(contest.library, contest.call);
    const std::vector<std::string_view> participants = SplitLines(contest.participants);
    const std::vector<std::string_view> total = SplitLines(contest.total);
    const NotInLogSources sources{.log = qsos.log,
                                  .others = qsos.others,
                                  .participants = participants,
                                  .total_library = total,
                                  .category = kCategory,
                                  .call = contest.call,
                                  .locator = "JN45AA"};
    const bool hide = seed % 2 == 0;
    const bench::PlainNotInLog plain = bench::FindNotInLogByLoops(sources, hide);
    const std::vector<NotInLogHit> hits = FindNotInLog(sources, hide);
    ASSERT_EQ(hits.size(), plain.hits.size()) << "seed " << seed << "\n" << contest.total;
    for (std::size_t i = 0; i < hits.size(); ++i) {
      ASSERT_EQ(hits[i].item, plain.hits[i].item) << "seed " << seed;
      ASSERT_EQ(hits[i].explanation, plain.hits[i].explanation) << "seed " << seed;
    }
    met.no_log += plain.no_log;
    met.confirmed += plain.confirmed;
    met.unexplained += plain.unexplained;
    met.one_gap += plain.one_gap;
    met.swapped += plain.swapped;
    met.hidden += plain.hidden;
  }
  // The contests have come to each end of the loops many times.
  constexpr std::size_t kOften = 10;
  EXPECT_GE(met.no_log, kOften);
  EXPECT_GE(met.confirmed, kOften);
  EXPECT_GE(met.unexplained, kOften);
  EXPECT_GE(met.one_gap, kOften);
  EXPECT_GE(met.swapped, kOften);
  EXPECT_GE(met.hidden, kOften);
}

}  // namespace
}  // namespace velmar::test
