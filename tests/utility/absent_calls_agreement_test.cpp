// The rules of the absent stations, against the plain loops that they stand for, on libraries that
// are drawn by chance.

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "model/lines.h"
#include "plain_absent.h"
#include "utility/absent_calls.h"

namespace velmar::test {
namespace {

// Few, so that they meet often; some differ in case alone, some are foreign, one fills its columns.
constexpr std::array kCalls = {"IK2QAA", "Ik2qaa",       "IK2QAa", "IK2QAA/P", "I1QXX",
                               "i1qxx",  "IZ9ABCDEFGHI", "DL1QA",  "OE5QZZ",   "I1QX"};

TEST(AbsentCallsAgreement, TheRulesFindWhatPlainLoopsFind) {
  constexpr unsigned kLibraries = 500;
  bench::PlainAbsent met;
  for (unsigned seed = 0; seed < kLibraries; ++seed) {
    std::mt19937 chance(seed);
    const auto any = [&chance] { return kCalls[chance() % kCalls.size()]; };
    std::string library;
    for (std::size_t rows = chance() % 60; rows > 0; --rows) {
      AddLine(library, Join("IN3QZZ      ", any(), chance() % 2 == 0 ? "" : "      JN45AA 1"));
    }
    std::string participants;
    for (std::size_t rows = chance() % 8; rows > 0; --rows) {
      AddLine(participants, Join(Pad(any(), kCallWidth), "JN45AA"));
    }
    const std::string search = chance() % 2 == 0 ? "" : any();

    const auto rows = SplitLines(library);
    const auto plain = bench::FindAbsentByLoops(rows, SplitLines(participants), search);
    std::vector<WorkedCall> worked(rows.size());
    std::ranges::transform(rows, worked.begin(), WorkedCallOf);
    const ParticipantCalls kept = ReadParticipantCalls(participants, search);
    const std::vector<std::string> counted = CountCalls(worked);
    ASSERT_EQ(counted, plain.counted) << "seed " << seed << "\n" << library;
    ASSERT_EQ(AbsentEntries(counted, kept, search), plain.absent) << "seed " << seed;
    ASSERT_EQ(DistinctCalls(kept), plain.distinct) << "seed " << seed;
    ASSERT_EQ(rows.size() - static_cast<std::size_t>(std::ranges::count_if(worked, Italian)),
              plain.foreign);
    met.foreign += plain.foreign;
    met.split += plain.split;
    met.present += plain.present;
    met.distinct += kept.size() - plain.distinct;
  }
  // The libraries have come to the rarer cases many times.
  constexpr std::size_t kOften = 100;
  EXPECT_GE(met.foreign, kOften);
  EXPECT_GE(met.split, kOften);
  EXPECT_GE(met.present, kOften);
  EXPECT_GE(met.distinct, kOften) << "calls that sent two logs";
}

}  // namespace
}  // namespace velmar::test
