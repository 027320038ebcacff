// Measures the first step on a whole folder of made-up logs: against a plain copy of the same
// files, and against itself on a tenth of them.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "intake/recalculation.h"
#include "made_logs.h"
#include "measuring.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/disk_file_system.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar::bench {
namespace {

namespace fs = std::filesystem;

constexpr double kRatioLimit = 3;
constexpr long kMemoryLimit = 200;  // MB

/// A workspace whose received logs are all made up.
class MadeWorkspace {
 public:
  MadeWorkspace(const std::string& base, std::size_t logs, std::size_t qsos)
      : paths_(base), logs_(logs) {
    fs::create_directories(paths_.store());
    fs::create_directories(paths_.to_check_again());
    WriteMadeLogs(paths_.to_recalculate(), logs, qsos);
  }

  /// `cp -r` of the received logs into a folder that is new each time.
  ChildRun Copy() {
    const std::string target = NewFolder("copy");
    return RunRested([&]() -> std::string { BecomeCopy(paths_.to_recalculate(), target); });
  }

  /// Both passes of the recalculation into a folder that is new each time, as that of the copy is.
  ChildRun Recalculate() {
    fs::create_directory(paths_.recalculated());
    ChildRun run = RunRested([this] { return RecalculateHere(); });
    fs::rename(paths_.recalculated(), NewFolder("recalculated"));
    return run;
  }

 private:
  std::string NewFolder(std::string_view name) {
    return Join(paths_.base(), "/", name, " ", ++folders_);
  }

  std::string RecalculateHere() const {
    ContestSession session(paths_.base());
    DiskFileSystem files;
    AbsentManager manager;
    Screen screen;
    MainForm main;
    Recalculation recalculation(session, files, manager, screen, main);
    recalculation.rinomina_Click();
    if (manager.boxes != 1 || recalculation.form().destination.items.rows().size() != logs_) {
      throw std::runtime_error("not all logs were recalculated");
    }
    return "";
  }

  Workspace paths_;
  std::size_t logs_;
  std::size_t folders_ = 0;  ///< made so far
};

void Measure(const Sizes& sizes) {
  const TempFolder folder;
  const std::size_t tenth = std::max<std::size_t>(sizes.logs / 10, 1);
  MadeWorkspace all(folder.path() + "/all", sizes.logs, sizes.qsos);
  MadeWorkspace few(folder.path() + "/few", tenth, sizes.qsos);
  all.Copy();
  std::vector<double> copying;
  std::vector<double> recalculating;
  std::vector<double> recalculating_few;
  std::vector<double> ratios;
  long peak_memory = 0;
  // In turns, so that whatever else the machine does meets all three.
  for (std::size_t run = 0; run < sizes.runs; ++run) {
    copying.push_back(all.Copy().seconds);
    const ChildRun whole = all.Recalculate();
    recalculating.push_back(whole.seconds);
    peak_memory = std::max(peak_memory, whole.peak_memory);
    recalculating_few.push_back(few.Recalculate().seconds);
    ratios.push_back(recalculating.back() / copying.back());
  }
  const double seconds = Median(recalculating);
  const double per_log = seconds / static_cast<double>(sizes.logs);
  const double per_log_of_few = Median(recalculating_few) / static_cast<double>(tenth);
  std::printf("%zu logs of %zu QSOs, median of %zu: cp %.3f s, recalculation %.3f s\n", sizes.logs,
              sizes.qsos, sizes.runs, Median(copying), seconds);
  std::printf("ratio recalculation/cp %.2f (limit %g)\n", seconds / Median(copying), kRatioLimit);
  const auto [least, most] = std::ranges::minmax(ratios);
  std::printf("ratios of the single runs %.2f to %.2f\n", least, most);
  std::printf("peak memory %ld MB (limit %ld)\n", peak_memory, kMemoryLimit);
  std::printf("ratio time per QSO, %zu logs/%zu logs %.2f\n", sizes.logs, tenth,
              per_log / per_log_of_few);
}

}  // namespace
}  // namespace velmar::bench

int main(int argc, char** argv) {
  return velmar::bench::RunBenchmark("velmar-bench-recalculate", {argv + 1, argv + argc},
                                     velmar::bench::Measure);
}
