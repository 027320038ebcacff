#include <benchmark/benchmark.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "check/check_desk.h"
#include "examined_store.h"
#include "made_logs.h"
#include "made_store.h"
#include "measuring.h"
#include "model/contest_store.h"
#include "model/error_list.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/disk_file_system.h"
#include "platform/xlsx_app.h"
#include "player/script_ports.h"
#include "ui/qt_picture_files.h"

namespace velmar {
namespace {

using bench::Examined;
using bench::StoreOf;

constexpr std::string_view kMonth = "GENNAIO 2025";

/// Puts what the checks read into a new workspace: the store, and an error list for each of the
/// calls that are to be examined.
void WriteStore(const bench::MadeStore& made, const Workspace& paths,
                const std::vector<std::string>& calls) {
  DiskFileSystem files;
  files.MakeFolder(paths.store());
  files.MakeFolder(paths.category());
  files.WriteAll(paths.store_file(StoreFile::kLibreria), made.library);
  files.WriteAll(paths.store_file(StoreFile::kLibreriaTotale), made.total_library);
  files.WriteAll(paths.store_file(StoreFile::kSommaQso), made.somma_qso);
  files.WriteAll(paths.store_file(StoreFile::kPartecipanti), made.participants);
  files.WriteAll(paths.classification(kMonth), made.classification);
  for (const std::string& examined : calls) {
    files.WriteAll(paths.error_list(kCategory, examined, kMonth),
                   ErrorListHeadText({.title = "",
                                      .month = std::string(kMonth),
                                      .call = examined,
                                      .locator = "",
                                      .declared = "",
                                      .band = "",
                                      .category = std::string(kCategory)}));
  }
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
  QtPictureFiles pictures_{files_};
  XlsxApp workbooks_{files_};
  ContestStore store_{files_, session_.workspace};
  Screen screen_;
  MainForm main_;
  CheckDesk desk_{
      session_, {files_, manager, clock_, machine_, web_, printer_, pictures_, workbooks_},
      store_,   screen_,
      main_,    form};
};

/// All that happens from the double click on a log until its doubts are shown.
void BM_CheckStart(benchmark::State& state) {
  const bench::TempFolder folder;
  WriteStore(StoreOf(state), Workspace(folder.path()), {bench::MadeCall(Examined(state))});
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

/// How many proposals the desk made.
struct Proposals {
  std::size_t doubts = 0;
  std::size_t times = 0;
  std::size_t unique = 0;
  std::size_t not_in_log = 0;
};

/// Has the desk look for all that it can propose for the log in a row of the queue.
void Examine(CheckForm& form, std::size_t row, Proposals& proposals) {
  form.listacall_banda.selection = static_cast<int>(row);
  form.listacall_banda.DoubleClick();
  proposals.doubts += form.Lista_dubbi.items.rows().size();
  proposals.times += form.Lista_err_orario.items.rows().size();
  form.unici.Click();
  proposals.unique += form.Call_unici.items.rows().size();
  form.not_button.Click();
  proposals.not_in_log += form.lista_notlog.items.rows().size();
}

/// Every log of a contest on the desk one after the other, all four searches for each, with all
/// that the desk reads, writes and shows for them. The argument is the logs.
void BM_WholeDesk(benchmark::State& state) {
  constexpr std::size_t kQsosOfALog = 80;
  const auto logs = static_cast<std::size_t>(state.range(0));
  const bench::TempFolder folder;
  std::vector<std::string> calls(logs);
  for (std::size_t log = 0; log < logs; ++log) {
    calls[log] = bench::MadeCall(log);
  }
  WriteStore(bench::MakeStore(logs * kQsosOfALog, logs), Workspace(folder.path()), calls);
  Desk desk(folder.path());
  desk.form.no_control_time.checked = true;
  const int boxes = desk.manager.boxes;
  Proposals proposals;
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    for (std::size_t row = 1; row <= logs; ++row) {
      Examine(desk.form, row, proposals);
    }
  }
  // Each start asks one question, and each failure is told in a box more. A list of times without
  // any has a row all the same.
  const auto starts = static_cast<std::size_t>(state.iterations()) * logs;
  if (proposals.doubts == 0 || proposals.times <= starts || proposals.unique == 0 ||
      proposals.not_in_log == 0 || static_cast<std::size_t>(desk.manager.boxes - boxes) != starts) {
    state.SkipWithError("not every log was examined");
  }
}
BENCHMARK(BM_WholeDesk)->Arg(25)->Arg(250)->UseRealTime();

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
