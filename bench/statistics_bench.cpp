#include <benchmark/benchmark.h>

#include <string_view>

#include "made_store.h"
#include "measuring.h"
#include "model/workspace.h"
#include "platform/disk_file_system.h"
#include "publish/contest_totals.h"
#include "publish/map_background.h"

namespace velmar {
namespace {

constexpr std::string_view kMonth = "GENNAIO 2025";
constexpr std::size_t kLogs = 200;

/// The whole run over a contest, with all that it reads and writes.
void BM_Totals(benchmark::State& state) {
  const bench::TempFolder folder;
  ContestSession session(folder.path());
  session.category_month = kMonth;
  DiskFileSystem files;
  const Workspace& paths = session.workspace;
  files.MakeFolder(paths.store());
  files.MakeFolder(paths.category());
  const bench::MadeStore made = bench::MakeStore(static_cast<std::size_t>(state.range(0)), kLogs);
  files.WriteAll(paths.store_file(StoreFile::kLibreria), made.library);
  files.WriteAll(paths.store_file(StoreFile::kPartecipanti), made.participants);
  files.WriteAll(paths.classification(kMonth), made.classification);
  bench::AbsentManager manager;
  StatisticsTrap trap(manager);
  StatisticsForm form;
  AreaCounters on_air;
  ContestTotals totals(session, files, manager, trap, form, on_air);
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    totals.calcola_qso_Click();
  }
  if (manager.boxes > 0 || form.piu1200.caption.empty()) {
    state.SkipWithError("the run did not come to its end");
  }
}
BENCHMARK(BM_Totals)->Arg(1600)->Arg(16'000)->UseRealTime();

/// The background of a map, which is made anew whenever something is drawn on it.
void BM_MapBackground(benchmark::State& state) {
  const MapView& view = MapViews().at(static_cast<std::size_t>(state.range(0)));
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(MapBackground(view));
  }
}
BENCHMARK(BM_MapBackground)->Arg(0)->Arg(6);

}  // namespace
}  // namespace velmar
