#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>

#include "intake/log_check.h"
#include "intake/rescoring.h"
#include "made_logs.h"

namespace velmar {
namespace {

/// The log that is measured with. Its QSOs are the argument of the benchmark, and the unit that the
/// cost is to grow in line with.
std::string LogOf(benchmark::State& state) {
  state.SetComplexityN(state.range(0));
  return bench::MadeLog(0, static_cast<std::size_t>(state.range(0)));
}

void CountQsos(benchmark::State& state) {
  state.SetItemsProcessed(state.iterations() * state.range(0));
}

void BM_FindLogFault(benchmark::State& state) {
  const std::string log = LogOf(state);
  if (FindLogFault(log)) {
    state.SkipWithError("the made-up log is refused");
  }
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(FindLogFault(log));
  }
  CountQsos(state);
}
BENCHMARK(BM_FindLogFault)->Arg(100)->Arg(1000)->Complexity(benchmark::oN);

void BM_Rescore(benchmark::State& state) {
  const std::string log = LogOf(state);
  std::size_t repairs = 0;
  const auto count_repairs = [&repairs](const RowRepair&) { ++repairs; };
  const RescoredLog scored = Rescore(log, count_repairs);
  if (!scored.complete || scored.errors + scored.duplicates + repairs != 0) {
    state.SkipWithError("the made-up log has faults");
  }
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(Rescore(log, count_repairs));
  }
  CountQsos(state);
}
BENCHMARK(BM_Rescore)->Arg(100)->Arg(1000)->Complexity(benchmark::oN);

}  // namespace
}  // namespace velmar
