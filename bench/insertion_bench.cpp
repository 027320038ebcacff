#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>

#include "intake/intake_state.h"
#include "intake/qso_pass.h"
#include "made_logs.h"
#include "measuring.h"
#include "model/contest_store.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/disk_file_system.h"

namespace velmar {
namespace {

/// The pass over the rows of one log, with the search for its doubles. The argument is the number
/// of its QSOs.
void BM_QsoPass(benchmark::State& state) {
  const auto qsos = static_cast<std::size_t>(state.range(0));
  const std::string log = bench::MadeLog(0, qsos);
  IntakeState intake;
  intake.own_call = Call12(bench::MadeCall(0));
  intake.own_locator = bench::MadeLocator(0);
  intake.declared_rows = static_cast<int>(qsos);
  bool faultless = true;
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    intake.qsos.clear();
    intake.totals = {};
    QsoPass pass(
        intake, false, [&](const QsoProblem&) { faultless = false; },
        [](const ValidatedQso&, char) {});
    for (const std::string& row : CollectQsoRows(log).rows) {
      faultless = pass.Take(row) && faultless;
    }
    faultless = MarkDoubles(intake.qsos) == 0 && faultless;
  }
  if (!faultless || intake.qsos.size() != qsos) {
    state.SkipWithError("the made-up log has faults");
  }
}
BENCHMARK(BM_QsoPass)->Arg(100)->Arg(1000);

/// Whether a log is in the store already, asked for every log twice. The argument is the number of
/// lines of the library.
void BM_ContainsOwner(benchmark::State& state) {
  const bench::TempFolder folder;
  const Workspace paths(folder.path());
  DiskFileSystem files;
  files.MakeFolder(paths.store());
  files.MakeFolder(paths.category());
  constexpr std::size_t kQsos = 100;
  std::string library;
  for (std::size_t line = 0; line < static_cast<std::size_t>(state.range(0)); ++line) {
    library += Join(LibreriaRow(bench::MadeCall(line / kQsos), bench::MadeCall(line % kQsos),
                                bench::MadeLocator(line % kQsos), "99")
                        .value(),
                    kLineEnd);
  }
  ContestStore store(files, paths);
  store.Append(StoreFile::kLibreria, kCategory, library);
  const std::string absent = bench::MadeCall(bench::kMadeStations - 1);
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    benchmark::DoNotOptimize(store.ContainsOwner(absent));
  }
  if (store.ContainsOwner(absent) || !store.ContainsOwner(bench::MadeCall(0))) {
    state.SkipWithError("the library holds other owners");
  }
}
BENCHMARK(BM_ContainsOwner)->Arg(1'000)->Arg(200'000);

}  // namespace
}  // namespace velmar
