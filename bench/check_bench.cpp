#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "check/check_desk.h"
#include "check/library_split.h"
#include "check/locator_doubts.h"
#include "made_logs.h"
#include "made_store.h"
#include "measuring.h"
#include "model/contest_store.h"
#include "model/error_list.h"
#include "model/lines.h"
#include "model/text.h"
#include "model/workspace.h"
#include "plain_doubts.h"
#include "platform/disk_file_system.h"
#include "player/script_ports.h"

namespace velmar {
namespace {

constexpr std::string_view kMonth = "GENNAIO 2025";

// The argument of each benchmark here is the rows of the library.

std::size_t Logs(const benchmark::State& state) {
  constexpr std::size_t kQsosOfALog = 124;
  return static_cast<std::size_t>(state.range(0)) / kQsosOfALog;
}

bench::MadeStore StoreOf(const benchmark::State& state) {
  return bench::MakeStore(static_cast<std::size_t>(state.range(0)), Logs(state));
}

/// The log under examination, by its number from 0: one in the middle of the library.
std::size_t Examined(const benchmark::State& state) {
  return Logs(state) / 2;
}

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

/// Puts what the check of a log reads into a new workspace.
void WriteStore(const bench::MadeStore& made, const Workspace& paths, const std::string& examined) {
  DiskFileSystem files;
  files.MakeFolder(paths.store());
  files.MakeFolder(paths.category());
  files.WriteAll(paths.store_file(StoreFile::kLibreria), made.library);
  files.WriteAll(paths.store_file(StoreFile::kPartecipanti), made.participants);
  files.WriteAll(paths.classification(kMonth), made.classification);
  files.WriteAll(paths.error_list(kCategory, examined, kMonth),
                 ErrorListHeadText({.title = "",
                                    .month = std::string(kMonth),
                                    .call = examined,
                                    .locator = "",
                                    .declared = "",
                                    .band = "",
                                    .category = std::string(kCategory)}));
}

/// A manager who wants every check to be started.
class WillingManager : public bench::AbsentManager {
 public:
  Reply Show(const Box& box) override {
    AbsentManager::Show(box);
    return Reply::kYes;
  }
};

/// The check desk with the classification of a workspace.
class Desk {
 public:
  explicit Desk(const std::string& base) : session_(base) {
    session_.category_month = kMonth;
    session_.settings = Settings::New();
    session_.archive_missing = true;
    desk_.Open();
    form.Option3.Click();
  }

  CheckForm form;
  WillingManager manager;

 private:
  ContestSession session_;
  DiskFileSystem files_;
  MachineFacts facts_;
  ScriptClock clock_{facts_};
  ScriptMachine machine_{facts_};
  ScriptWeb web_{facts_, nullptr};
  ScriptPrinter printer_{facts_, nullptr};
  ContestStore store_{files_, session_.workspace};
  Screen screen_;
  MainForm main_;
  CheckDesk desk_{
      session_, {files_, manager, clock_, machine_, web_, printer_}, store_, screen_, main_, form};
};

/// All that happens from the double click on a log until its doubts are shown.
void BM_CheckStart(benchmark::State& state) {
  const bench::TempFolder folder;
  WriteStore(StoreOf(state), Workspace(folder.path()), bench::MadeCall(Examined(state)));
  Desk desk(folder.path());
  const int boxes = desk.manager.boxes;
  // The header stands ahead of the logs.
  desk.form.listacall_banda.selection = static_cast<int>(Examined(state)) + 1;
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    desk.form.listacall_banda.DoubleClick();
  }
  // A start asks one question, and tells of each failure in a box more.
  if (desk.form.Lista_dubbi.items.rows().empty() ||
      desk.manager.boxes - boxes != static_cast<int>(state.iterations())) {
    state.SkipWithError("a check did not start");
  }
}
BENCHMARK(BM_CheckStart)->Arg(10'000)->Arg(50'000)->Arg(248'000)->UseRealTime();

/// What a start writes, by the plainest means: `cp` of the library, twice, over older copies.
void BM_CopyTwice(benchmark::State& state) {
  const bench::TempFolder folder;
  const std::string library = folder.path() + "/library";
  DiskFileSystem().WriteAll(library, StoreOf(state).library);
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    for (const char* copy : {"/first", "/second"}) {
      bench::RunChild([&]() -> std::string { bench::BecomeCopy(library, folder.path() + copy); });
    }
  }
}
BENCHMARK(BM_CopyTwice)->Arg(10'000)->Arg(50'000)->Arg(248'000)->UseRealTime();

}  // namespace
}  // namespace velmar
