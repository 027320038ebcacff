#include <benchmark/benchmark.h>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

#include "model/locator.h"

namespace velmar {
namespace {

/// A power of two, large enough that no branch of the functions is learnt by heart.
constexpr std::size_t kTableSize = 4096;

/// Valid locators from all over the earth, the same ones in every run.
std::vector<std::string> MadeLocators() {
  std::mt19937 random(20250119);
  const auto letter = [&](unsigned count) { return static_cast<char>('A' + random() % count); };
  const auto digit = [&] { return static_cast<char>('0' + random() % 10); };
  std::vector<std::string> table(kTableSize);
  for (std::string& locator : table) {
    locator = {letter(18), letter(18), digit(), digit(), letter(24), letter(24)};
  }
  return table;
}

/// The next place in the table, from its end back to its front.
constexpr std::size_t Next(std::size_t at) {
  return (at + 1) % kTableSize;
}

// Each turn is one pair, so that the time shown is the time of a pair.

void BM_QsoPoints(benchmark::State& state) {
  const auto table = MadeLocators();
  std::size_t at = 0;
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    const std::size_t next = Next(at);
    benchmark::DoNotOptimize(QsoPoints(table[at], table[next]));
    at = next;
  }
}
BENCHMARK(BM_QsoPoints);

/// As the logs are scored: the own position is known already.
void BM_QsoPointsFromPosition(benchmark::State& state) {
  const auto table = MadeLocators();
  const std::string own = "JN45OL";
  const Position position = LocatorPosition(own);
  std::size_t at = 0;
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(QsoPoints(own, position, table[at]));
    at = Next(at);
  }
}
BENCHMARK(BM_QsoPointsFromPosition);

void BM_LocatorValid(benchmark::State& state) {
  const auto table = MadeLocators();
  std::size_t at = 0;
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(LocatorValid(table[at]));
    at = Next(at);
  }
}
BENCHMARK(BM_LocatorValid);

}  // namespace
}  // namespace velmar
