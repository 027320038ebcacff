#include <benchmark/benchmark.h>

#include <string_view>

#include "made_store.h"
#include "measuring.h"
#include "model/workspace.h"
#include "platform/disk_file_system.h"
#include "platform/xlsx_app.h"
#include "player/script_ports.h"
#include "publish/area_classifications.h"
#include "publish/contest_totals.h"
#include "publish/excel_export.h"
#include "ui/qt_picture_files.h"

namespace velmar {
namespace {

constexpr std::string_view kMonth = "GENNAIO 2025";
constexpr std::size_t kQsosOfALog = 50;

/// The workbook of a contest with statistics and all call areas, its checkpoints included.
void BM_Export(benchmark::State& state) {
  const bench::TempFolder folder;
  ContestSession session(folder.path());
  session.category_month = kMonth;
  session.excel_major_version = 16;
  DiskFileSystem files;
  const Workspace& paths = session.workspace;
  files.MakeFolder(paths.store());
  files.MakeFolder(paths.category());
  const auto logs = static_cast<std::size_t>(state.range(0));
  const bench::MadeStore made = bench::MakeStore(logs * kQsosOfALog, logs);
  files.WriteAll(paths.store_file(StoreFile::kLibreria), made.library);
  files.WriteAll(paths.store_file(StoreFile::kPartecipanti), made.participants);
  files.WriteAll(paths.classification(kMonth), made.classification);
  files.WriteAll(paths.contest_date(kCategory), "2IT 250119\r\n");
  bench::AbsentManager manager;
  MachineFacts facts;
  ScriptClock clock(facts);
  ScriptMachine machine(facts);
  ScriptWeb web(facts, nullptr);
  ScriptPrinter printer(facts, nullptr);
  QtPictureFiles pictures(files);
  XlsxApp workbooks(files);
  StatisticsTrap trap(manager);
  StatisticsForm statistics;
  AreaCounters on_air;
  ContestTotals(session, files, manager, trap, statistics, on_air).calcola_qso_Click();
  MenuTrap menu_trap(manager);
  AreaClassifications(session, files, manager, menu_trap).cla_x_callarea_Click();
  Screen screen;
  MainForm main;
  ExportForm form;
  ExcelExport exporting(session,
                        {files, manager, clock, machine, web, printer, pictures, workbooks}, screen,
                        main, form);
  exporting.Open();
  form.SI_stat.Click();
  form.SI_callarea.Click();
  for (auto _ : state) {  // NOLINT(clang-analyzer-deadcode.DeadStores)
    form.crea_cla_band_xls_01.Click();
  }
  if (form.crea_cla_band_xls_01.colour != colour::kRed) {
    state.SkipWithError("the workbook was not saved");
  }
}
BENCHMARK(BM_Export)->Arg(30)->Arg(300)->UseRealTime()->Unit(benchmark::kNanosecond);

}  // namespace
}  // namespace velmar
