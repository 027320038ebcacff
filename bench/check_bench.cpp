#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "check/library_split.h"
#include "check/locator_doubts.h"
#include "check/not_in_log_search.h"
#include "check/time_differences.h"
#include "check/unique_calls.h"
#include "check/unique_evidence.h"
#include "examined_store.h"
#include "made_logs.h"
#include "made_store.h"
#include "model/lines.h"
#include "model/somma_qso.h"
#include "model/text.h"
#include "model/workspace.h"
#include "plain_doubts.h"
#include "plain_not_in_log.h"
#include "plain_times.h"
#include "plain_unique.h"

namespace velmar {
namespace {

using bench::Examined;
using bench::StoreOf;

void BM_SplitLibrary(benchmark::State& state) {
  const bench::MadeStore store = StoreOf(state);
  const std::string call = bench::MadeCall(Examined(state));
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(SplitLibrary(store.library, call));
  }
  if (SplitLibrary(store.library, call).log.empty()) {
    state.SkipWithError("the log is not in the library");
  }
}
BENCHMARK(BM_SplitLibrary)->Arg(10'000)->Arg(50'000)->Arg(248'000);

/// A search for the doubts, as a benchmark.
template <typename Search>
void SearchDoubts(benchmark::State& state, const Search& search) {
  const bench::MadeStore store = StoreOf(state);
  const LibrarySplit qsos = SplitLibrary(store.library, bench::MadeCall(Examined(state)));
  const std::vector<std::string_view> participants = SplitLines(store.participants);
  const LocatorWitnesses witnesses{qsos.log, qsos.others, participants, kCategory};
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(search(witnesses));
  }
  const std::vector<std::size_t> doubts = FindLocatorDoubts(witnesses);
  if (doubts.empty() || bench::FindDoubtsByLoops(witnesses).places != doubts) {
    state.SkipWithError("the doubts are wrong");
  }
}

void BM_FindLocatorDoubts(benchmark::State& state) {
  SearchDoubts(state, FindLocatorDoubts);
}
BENCHMARK(BM_FindLocatorDoubts)->Arg(10'000)->Arg(50'000)->Arg(248'000);

void BM_FindDoubtsByLoops(benchmark::State& state) {
  SearchDoubts(state, bench::FindDoubtsByLoops);
}
BENCHMARK(BM_FindDoubtsByLoops)->Arg(10'000)->Arg(50'000)->Arg(248'000);

/// A comparison of the times, as a benchmark.
template <typename Comparison>
void CompareTimes(benchmark::State& state, const Comparison& compare) {
  const bench::MadeStore store = StoreOf(state);
  const std::vector<SommaQso> rows = CutSommaRows(store.somma_qso);
  const std::string call = bench::MadeCall(Examined(state));
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(compare(rows, call));
  }
  const TimeDifferences found = FindTimeDifferences(rows, call);
  const TimeDifferences plain = bench::FindTimesByLoops(rows, call).differences;
  if (found.items.empty() || found.items.size() == found.compared || found.items != plain.items ||
      found.compared != plain.compared) {
    state.SkipWithError("the times are wrong");
  }
}

void BM_FindTimeDifferences(benchmark::State& state) {
  CompareTimes(state, FindTimeDifferences);
}
BENCHMARK(BM_FindTimeDifferences)->Arg(10'000)->Arg(50'000)->Arg(248'000);

void BM_FindTimesByLoops(benchmark::State& state) {
  CompareTimes(state, bench::FindTimesByLoops);
}
BENCHMARK(BM_FindTimesByLoops)->Arg(10'000)->Arg(50'000)->Arg(248'000);

/// An archive as large as the calls of many years.
std::vector<std::string> MakeBook() {
  constexpr std::size_t kEvery = 3;
  std::vector<std::string> book;
  for (std::size_t station = 0; station < bench::kMadeStations; station += kEvery) {
    book.push_back(Join(Pad(bench::MadeCall(station), kCallWidth), bench::MadeLocator(station)));
  }
  return book;
}

/// A search for the unique calls, as a benchmark.
template <typename Search>
void SearchUnique(benchmark::State& state, const Search& search) {
  const bench::MadeStore store = StoreOf(state);
  const LibrarySplit qsos = SplitLibrary(store.library, bench::MadeCall(Examined(state)));
  const std::vector<std::string_view> participants = SplitLines(store.participants);
  const std::vector<std::string> book = MakeBook();
  const UniqueSources sources{.log = qsos.log,
                              .others = qsos.others,
                              .participants = participants,
                              .call_book = book,
                              .hide_in_book = true,
                              .hide_with_log = true,
                              .hide_over_two = false};
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(search(sources));
  }
  const std::vector<std::string> unique = FindUniqueCalls(sources);
  if (unique.empty() || bench::FindUniqueByLoops(sources).rows != unique) {
    state.SkipWithError("the unique calls are wrong");
  }
}

void BM_FindUniqueCalls(benchmark::State& state) {
  SearchUnique(state, FindUniqueCalls);
}
BENCHMARK(BM_FindUniqueCalls)->Arg(10'000)->Arg(50'000)->Arg(248'000);

void BM_FindUniqueByLoops(benchmark::State& state) {
  SearchUnique(state, bench::FindUniqueByLoops);
}
BENCHMARK(BM_FindUniqueByLoops)->Arg(10'000)->Arg(50'000)->Arg(248'000);

/// A search for what is not in a log, as a benchmark.
template <typename Search>
void SearchNotInLog(benchmark::State& state, const Search& search) {
  const bench::MadeStore store = StoreOf(state);
  const std::string call = bench::MadeCall(Examined(state));
  const std::string locator = bench::MadeLocator(Examined(state));
  const LibrarySplit qsos = SplitLibrary(store.library, call);
  const std::vector<std::string_view> participants = SplitLines(store.participants);
  const std::vector<std::string_view> total = SplitLines(store.total_library);
  const NotInLogSources sources{.log = qsos.log,
                                .others = qsos.others,
                                .participants = participants,
                                .total_library = total,
                                .category = kCategory,
                                .call = call,
                                .locator = locator};
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(search(sources, false));
  }
  const bench::PlainNotInLog plain = bench::FindNotInLogByLoops(sources, false);
  if (plain.hits.empty() || FindNotInLog(sources, false).size() != plain.hits.size()) {
    state.SkipWithError("what is not in a log is wrong");
  }
}

void BM_FindNotInLog(benchmark::State& state) {
  SearchNotInLog(state, FindNotInLog);
}
BENCHMARK(BM_FindNotInLog)->Arg(10'000)->Arg(50'000)->Arg(248'000);

void BM_FindNotInLogByLoops(benchmark::State& state) {
  SearchNotInLog(state, bench::FindNotInLogByLoops);
}
BENCHMARK(BM_FindNotInLogByLoops)->Arg(10'000)->Arg(50'000)->Arg(248'000);

/// A call like no other, for which all six tests are made.
void BM_FindSimilarCalls(benchmark::State& state) {
  const bench::MadeStore store = StoreOf(state);
  const LibrarySplit qsos = SplitLibrary(store.library, bench::MadeCall(Examined(state)));
  UniqueItem item;
  item.call = "ZZ0ZZZ";
  item.locator = "AA00AA";
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(FindSimilarCalls(qsos.others, item));
  }
}
BENCHMARK(BM_FindSimilarCalls)->Arg(10'000)->Arg(50'000)->Arg(248'000);

}  // namespace
}  // namespace velmar
