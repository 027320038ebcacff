#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "check/library_split.h"
#include "check/not_in_log_search.h"
#include "check/unique_calls.h"
#include "check/unique_evidence.h"
#include "made_logs.h"
#include "made_store.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "model/workspace.h"
#include "plain_not_in_log.h"
#include "plain_unique.h"

namespace velmar {
namespace {

// The argument of each benchmark here is the rows of the library.

/// What both searches read of a made-up store, for a log in its middle.
struct Contest {
  explicit Contest(const benchmark::State& state)
      : logs(static_cast<std::size_t>(state.range(0)) / kQsosOfALog),
        store(bench::MakeStore(static_cast<std::size_t>(state.range(0)), logs)),
        call(bench::MadeCall(logs / 2)),
        participants(SplitLines(store.participants)) {
    // The made-up stations are all heard by many.
    for (const char* alone : {"ZZ1ZZZ", "ZZ2ZZZ", "ZZ3ZZZ"}) {
      AddLine(store.library, LibreriaRow(call, alone, "JN45AA", "100").value());
    }
    qsos = SplitLibrary(store.library, call);
    for (const std::string_view row : SplitLines(store.library)) {
      AddLine(total_text,
              LibreriaTotaleRow(Cut(row, libreria_row::kOwner), Cut(row, libreria_row::kCall),
                                Cut(row, libreria_row::kLocator), kCategory,
                                Cut(row, libreria_row::kPoints))
                  .value());
    }
    total = SplitLines(total_text);
    for (const std::string_view row : participants) {
      if (RTrim(Cut(row, partecipante_row::kCall)) == call) {
        locator = Cut(row, partecipante_row::kLocator);
      }
    }
  }

  /// Neither option is on, so that nothing is left out early.
  UniqueSources Unique() const {
    return {
        .log = qsos.log, .others = qsos.others, .participants = participants, .call_book = book};
  }
  NotInLogSources NotInLog() const {
    return {.log = qsos.log,
            .others = qsos.others,
            .participants = participants,
            .total_library = total,
            .category = kCategory,
            .call = call,
            .locator = locator};
  }

  static constexpr std::size_t kQsosOfALog = 124;
  std::size_t logs;
  bench::MadeStore store;
  std::string call;
  std::string locator;
  LibrarySplit qsos;
  std::vector<std::string_view> participants;
  std::vector<std::string> book;
  std::string total_text;
  std::vector<std::string_view> total;
};

template <typename Search>
void SearchUnique(benchmark::State& state, const Search& search) {
  const Contest contest(state);
  const UniqueSources sources = contest.Unique();
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

template <typename Search>
void SearchNotInLog(benchmark::State& state, const Search& search) {
  const Contest contest(state);
  const NotInLogSources sources = contest.NotInLog();
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(search(sources, false));
  }
  const bench::PlainNotInLog plain = bench::FindNotInLogByLoops(sources, false);
  if (plain.hits.empty() || FindNotInLog(sources, false).size() != plain.hits.size()) {
    state.SkipWithError("the QSOs that are not in a log are wrong");
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
  const Contest contest(state);
  const UniqueItem item{.call = "ZZ0ZZZ", .locator = "AA00AA"};
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(FindSimilarCalls(contest.qsos.others, item));
  }
}
BENCHMARK(BM_FindSimilarCalls)->Arg(10'000)->Arg(50'000)->Arg(248'000);

}  // namespace
}  // namespace velmar
