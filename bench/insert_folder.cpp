// Measures the way of made-up logs from received to filed: against plain copies and appends of the
// same files and bytes, and against itself with fewer logs in the store.

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "app/program.h"
#include "intake/recalculation.h"
#include "intake/renaming.h"
#include "made_logs.h"
#include "measuring.h"
#include "model/lines.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/disk_file_system.h"
#include "platform/file_system.h"
#include "platform/xlsx_app.h"
#include "player/script_ports.h"
#include "session/main_form.h"
#include "ui/qt_picture_files.h"
#include "written_files.h"

namespace velmar::bench {
namespace {

namespace fs = std::filesystem;

constexpr double kRatioLimit = 4;
constexpr double kGrowthLimit = 1.3;
constexpr std::string_view kMonth = "GENNAIO 2025";
constexpr std::string_view kContestDate = "2IT 250119";

std::size_t Tenth(std::size_t logs) {
  return std::max<std::size_t>(logs / 10, 1);
}

/// Logs of the turbo run, counted from 0, whose time is taken together.
struct Window {
  std::size_t first;
  std::size_t end;  ///< the one behind the last
};

std::size_t WindowWidth(std::size_t logs) {
  return std::max<std::size_t>(logs / 20, 1);
}

/// Around the log at a tenth of the run.
Window EarlyWindow(std::size_t logs) {
  const std::size_t first = logs / 10 - std::min(logs / 10, WindowWidth(logs) / 2);
  return {first, first + WindowWidth(logs)};
}

/// The last ones of the run.
Window LateWindow(std::size_t logs) {
  return {logs - WindowWidth(logs), logs};
}

/// Remembers when the work told how far it was.
class WatchingManager : public AbsentManager {
 public:
  void Progress(std::size_t done, std::size_t total) override {
    times_.resize(total + 1);
    times_.at(done) = Clock::now();
  }

  /// Between two marks of the work that was watched last.
  double Seconds(std::size_t from, std::size_t to) const {
    return std::chrono::duration<double>(times_.at(to) - times_.at(from)).count();
  }
  double Seconds(const Window& window) const { return Seconds(window.first, window.end); }

 private:
  using Clock = std::chrono::steady_clock;
  std::vector<Clock::time_point> times_;
};

/// The program without a front end on one workspace, as a manager would go through its steps.
class Way {
 public:
  Way(const Workspace& paths, FileSystem& files)
      : paths_(paths),
        files_(files),
        program_(paths.base(),
                 Ports{files, manager, clock_, machine_, web_, printer_, pictures_, workbooks_}) {}

  /// From the start of the program to the named logs.
  void Name() {
    program_.Start();
    program_.main_form().restore_1KM.Click();
    program_.recalculation().form().rinomina.Click();
    program_.recalculation().form().torna_menu.Click();
    program_.main_form().Rinomina_ita.Click();
    program_.renaming().form().rinomina.Click();
    program_.renaming().form().torna_menu.Click();
  }

  /// The turbo run; raises std::runtime_error when a log was left out.
  void File(std::size_t logs) {
    MainForm& form = program_.main_form();
    form.Check_AUT_entry.Click();
    form.turbo.Click();
    form.caricaedi.Click();
    // The run itself tells each log before it is read, and none behind the last.
    manager.Progress(logs, logs);
    const auto filed = ReadIfThere(files_, paths_.store_file(StoreFile::kPartecipanti));
    const std::size_t count = SplitLines(filed.value_or("")).size();
    if (count != logs) {
      throw std::runtime_error(Join(count, " of ", logs, " logs were filed"));
    }
  }

  WatchingManager manager;

 private:
  const Workspace& paths_;
  FileSystem& files_;
  MachineFacts facts_;
  ScriptClock clock_{facts_};
  ScriptMachine machine_{facts_};
  ScriptWeb web_{facts_, nullptr};
  ScriptPrinter printer_{facts_, nullptr};
  QtPictureFiles pictures_{files_};
  XlsxApp workbooks_{files_};
  Program program_;
};

/// A new workspace whose received logs are all made up.
Workspace MakeWorkspace(const std::string& base, std::size_t logs, std::size_t qsos) {
  Workspace paths(base);
  fs::create_directories(paths.category());
  WriteMadeLogs(paths.to_recalculate(), logs, qsos);
  DiskFileSystem files;
  files.WriteAll(paths.month_to_check(), Join(kMonth, kLineEnd));
  files.WriteAll(paths.category_month(), Join(kMonth, kLineEnd));
  files.WriteAll(paths.contest_date(kCategory), Join(kContestDate, kLineEnd));
  return paths;
}

/// The yardsticks of the two parts of the way, by what the program writes on a workspace.
std::vector<Yardstick> MakeYardsticks(const std::string& folder, const Workspace& paths,
                                      std::size_t logs) {
  const ChildRun run = RunRested([&] {
    CountingFiles files;
    Way way(paths, files);
    way.Name();
    const std::string naming = TextOf(files.Take());
    way.File(logs);
    return naming + TextOf(files.Take());
  });
  std::istringstream told(run.told);
  std::vector<Yardstick> yardsticks;
  yardsticks.emplace_back(folder + "/naming", ReadWrites(told));
  yardsticks.emplace_back(folder + "/filing", ReadWrites(told));
  return yardsticks;
}

/// A measured way.
struct Trip {
  double whole = 0;      ///< s
  double turbo = 0;      ///< s
  double growth = 0;     ///< of the time per log, from the early window to the late one
  long peak_memory = 0;  ///< MB
};

Trip GoWay(const Workspace& paths, std::size_t logs) {
  const ChildRun run = RunRested([&] {
    DiskFileSystem files;
    Way way(paths, files);
    way.Name();
    way.File(logs);
    const WatchingManager& manager = way.manager;
    const double growth = manager.Seconds(LateWindow(logs)) / manager.Seconds(EarlyWindow(logs));
    return Join(manager.Seconds(0, logs), " ", growth);
  });
  Trip trip{.whole = run.seconds, .peak_memory = run.peak_memory};
  std::istringstream(run.told) >> trip.turbo >> trip.growth;
  return trip;
}

/// What is measured, one value for each run.
struct Measured {
  std::vector<double> whole;        ///< s
  std::vector<double> turbo;        ///< s
  std::vector<double> plain;        ///< s, the yardsticks of the whole way
  std::vector<double> plain_turbo;  ///< s
  std::vector<double> growth;
  std::vector<double> turbo_few;  ///< s, with a tenth of the logs
  long peak_memory = 0;           ///< MB

  void Add(const Trip& trip) {
    whole.push_back(trip.whole);
    turbo.push_back(trip.turbo);
    growth.push_back(trip.growth);
    peak_memory = std::max(peak_memory, trip.peak_memory);
  }
};

void PrintRatio(const char* what, const std::vector<double>& program,
                const std::vector<double>& plain) {
  std::printf("ratio %s %.2f (limit %g), single runs", what, Median(program) / Median(plain),
              kRatioLimit);
  for (std::size_t run = 0; run < program.size(); ++run) {
    std::printf(" %.2f", program[run] / plain[run]);
  }
  std::printf("\n");
}

void PrintGrowth(const Sizes& sizes, const Measured& measured) {
  const Window early = EarlyWindow(sizes.logs);
  const Window late = LateWindow(sizes.logs);
  std::printf("ratio time per log, log %zu to %zu/log %zu to %zu %.2f (limit %g)\n", late.first + 1,
              late.end, early.first + 1, early.end, Median(measured.growth), kGrowthLimit);
  const std::size_t few = Tenth(sizes.logs);
  const double per_log = Median(measured.turbo) / static_cast<double>(sizes.logs);
  const double per_log_of_few = Median(measured.turbo_few) / static_cast<double>(few);
  std::printf("ratio time per log, %zu logs/%zu logs %.2f\n", sizes.logs, few,
              per_log / per_log_of_few);
}

void Print(const Sizes& sizes, const Measured& measured) {
  std::printf("medians of %zu: whole way %.3f s, plain %.3f s; turbo run %.3f s, plain %.3f s\n",
              sizes.runs, Median(measured.whole), Median(measured.plain), Median(measured.turbo),
              Median(measured.plain_turbo));
  PrintRatio("whole way/plain", measured.whole, measured.plain);
  PrintRatio("turbo run/plain", measured.turbo, measured.plain_turbo);
  PrintGrowth(sizes, measured);
  std::printf("peak memory %ld MB\n", measured.peak_memory);
}

void Measure(const Sizes& sizes) {
  const TempFolder folder;
  const auto workspace = [&](const char* name, std::size_t run, std::size_t logs) {
    return MakeWorkspace(Join(folder.path(), "/", name, " ", run), logs, sizes.qsos);
  };
  std::vector<Yardstick> yardsticks =
      MakeYardsticks(folder.path(), workspace("all", 0, sizes.logs), sizes.logs);
  Yardstick& naming = yardsticks.front();
  Yardstick& filing = yardsticks.back();
  std::printf(
      "%zu logs of %zu QSOs: %zu files, %zu appends; the turbo run %zu files, %zu appends\n",
      sizes.logs, sizes.qsos, naming.files() + filing.files(), naming.appends() + filing.appends(),
      filing.files(), filing.appends());
  const std::size_t few = Tenth(sizes.logs);
  Measured measured;
  // In turns, so that whatever else the machine does meets all of them.
  for (std::size_t run = 1; run <= sizes.runs; ++run) {
    measured.plain_turbo.push_back(filing.Seconds());
    measured.plain.push_back(naming.Seconds() + measured.plain_turbo.back());
    measured.Add(GoWay(workspace("all", run, sizes.logs), sizes.logs));
    measured.turbo_few.push_back(GoWay(workspace("few", run, few), few).turbo);
  }
  Print(sizes, measured);
}

}  // namespace
}  // namespace velmar::bench

int main(int argc, char** argv) {
  return velmar::bench::RunBenchmark("velmar-bench-insert", {argv + 1, argv + argc},
                                     velmar::bench::Measure);
}
