// Measures a whole run of the absent stations on a made-up store, against the plainest means to
// count the calls of the same library: cut, sort and uniq.

#include <unistd.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "made_store.h"
#include "measuring.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/disk_file_system.h"
#include "platform/xlsx_app.h"
#include "player/script_ports.h"
#include "session/contest_session.h"
#include "session/main_form.h"
#include "ui/qt_picture_files.h"
#include "utility/absent_stations.h"

namespace velmar::bench {
namespace {

constexpr double kRatioLimit = 2;

void WriteStore(const Workspace& paths, const Sizes& sizes) {
  std::filesystem::create_directories(paths.category());
  const MadeStore made = MakeStore(sizes.logs * sizes.qsos, sizes.logs);
  DiskFileSystem files;
  files.WriteAll(paths.store_file(StoreFile::kLibreria), made.library);
  files.WriteAll(paths.store_file(StoreFile::kPartecipanti), made.participants);
}

std::string FindAbsent(const std::string& base) {
  ContestSession session(base);
  DiskFileSystem files;
  AbsentManager manager;
  MachineFacts facts;
  ScriptClock clock(facts);
  ScriptMachine machine(facts);
  ScriptWeb web(facts, nullptr);
  ScriptPrinter printer(facts, nullptr);
  QtPictureFiles pictures(files);
  XlsxApp workbooks(files);
  Screen screen;
  MainForm main;
  AbsentStations absent(session,
                        {files, manager, clock, machine, web, printer, pictures, workbooks}, screen,
                        main, nullptr);
  absent.Verifica_assenti_Click();
  if (manager.boxes != 0 || absent.form().Lista.items.rows().empty()) {
    throw std::runtime_error("the absent stations were not found");
  }
  return Join(absent.form().List_libreria.items.rows().size(), " calls, ",
              absent.form().Lista.items.rows().size(), " of them absent");
}

/// Turns the process into the pipe, in the locale of the caller, or in the one that is told.
[[noreturn]] void BecomePipe(const std::string& library, std::string_view locale) {
  const std::string set = locale.empty() ? "" : Join("export LC_ALL=", locale, "; ");
  const std::string pipe =
      Join(set, "cut -c13-24 '", library, "' | sort | uniq -c >'", library, ".counted'");
  execl("/bin/sh", "sh", "-c", pipe.c_str(), nullptr);
  throw std::runtime_error("the pipe could not be started");
}

void Measure(const Sizes& sizes) {
  const TempFolder folder;
  const Workspace paths(folder.path());
  // In a process of its own, so that those that are measured begin small.
  RunChild([&]() -> std::string {
    WriteStore(paths, sizes);
    return "";
  });
  const std::string library = paths.store_file(StoreFile::kLibreria);
  std::vector<double> finding;
  std::vector<double> piping;
  std::vector<double> piping_plainly;
  std::string told;
  // In turns, so that whatever else the machine does meets all three.
  for (std::size_t run = 0; run < sizes.runs; ++run) {
    const ChildRun whole = RunRested([&] { return FindAbsent(folder.path()); });
    finding.push_back(whole.seconds);
    told = whole.told;
    piping.push_back(RunRested([&]() -> std::string { BecomePipe(library, ""); }).seconds);
    piping_plainly.push_back(RunRested([&]() -> std::string { BecomePipe(library, "C"); }).seconds);
  }
  std::printf("%zu rows, median of %zu: absent stations %.3f s, pipe %.3f s, in locale C %.3f s\n",
              sizes.logs * sizes.qsos, sizes.runs, Median(finding), Median(piping),
              Median(piping_plainly));
  std::printf("%s\n", told.c_str());
  std::printf("ratio absent stations/pipe %.2f (limit %g)\n", Median(finding) / Median(piping),
              kRatioLimit);
  std::printf("ratio absent stations/plain pipe %.2f (limit %g)\n",
              Median(finding) / Median(piping_plainly), kRatioLimit);
}

}  // namespace
}  // namespace velmar::bench

int main(int argc, char** argv) {
  return velmar::bench::RunBenchmark("velmar-bench-absent", {argv + 1, argv + argc},
                                     velmar::bench::Measure);
}
