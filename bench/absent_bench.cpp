#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "examined_store.h"
#include "made_store.h"
#include "model/lines.h"
#include "plain_absent.h"
#include "utility/absent_calls.h"

namespace velmar {
namespace {

using bench::StoreOf;

std::vector<WorkedCall> CallsOf(const std::vector<std::string_view>& library) {
  std::vector<WorkedCall> calls;
  calls.reserve(library.size());
  for (const std::string_view row : library) {
    calls.push_back(WorkedCallOf(row));
  }
  return calls;
}

void BM_CountCalls(benchmark::State& state) {
  const bench::MadeStore store = StoreOf(state);
  const std::vector<WorkedCall> calls = CallsOf(SplitLines(store.library));
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(CountCalls(calls));
  }
  if (CountCalls(calls).empty()) {
    state.SkipWithError("no call was counted");
  }
}
BENCHMARK(BM_CountCalls)->Arg(10'000)->Arg(50'000)->Arg(370'000);

void BM_CountCallsByLoops(benchmark::State& state) {
  const bench::MadeStore store = StoreOf(state);
  const std::vector<std::string_view> library = SplitLines(store.library);
  const std::vector<std::string_view> participants = SplitLines(store.participants);
  std::vector<std::string> plain;
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    plain = bench::FindAbsentByLoops(library, participants, "").counted;
  }
  if (plain != CountCalls(CallsOf(library))) {
    state.SkipWithError("the counts are wrong");
  }
}
BENCHMARK(BM_CountCallsByLoops)->Arg(10'000);

/// Every row another call: the most entries that a library can give.
void BM_CountDifferentCalls(benchmark::State& state) {
  std::vector<WorkedCall> calls;
  for (long long number = 0; number < state.range(0); ++number) {
    calls.push_back(WorkedCallOf(Join(std::string(kCallWidth, ' '), "I", number)));
  }
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(CountCalls(calls));
  }
}
BENCHMARK(BM_CountDifferentCalls)->Arg(10'000)->Arg(370'000);

}  // namespace
}  // namespace velmar
