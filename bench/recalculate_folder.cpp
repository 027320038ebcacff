// Measures the first step on a whole folder of made-up logs: against a plain copy of the same
// files, and against itself on a tenth of them.

#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <filesystem>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "intake/recalculation.h"
#include "intake/rescoring.h"
#include "made_logs.h"
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

/// A manager who is not at the machine. Every box counts, as the made-up logs give no cause for any
/// but the one at the end.
class AbsentManager : public Manager {
 public:
  Reply Show(const Box& /*box*/) override {
    ++boxes;
    return Reply::kOk;
  }
  std::optional<std::string> Ask(const InputBox& /*box*/) override { return std::nullopt; }
  std::optional<std::string> PickFile(const FileDialog& /*dialog*/) override {
    return std::nullopt;
  }
  void Beep(int /*times*/) override {}
  bool StopWanted() override { return false; }
  void Progress(std::size_t /*done*/, std::size_t /*total*/) override {}

  int boxes = 0;
};

/// A temporary folder that is gone with the object.
class TempFolder {
 public:
  TempFolder() : path_((fs::temp_directory_path() / "velmar bench XXXXXX").string()) {
    if (mkdtemp(path_.data()) == nullptr) {
      throw std::runtime_error("no temporary folder");
    }
  }
  ~TempFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

struct ChildRun {
  double seconds;    ///< from the start of the process to its end
  long peak_memory;  ///< MB, resident
};

/// Does `work` in a process of its own, which is to return true.
ChildRun RunChild(const std::function<bool()>& work) {
  // What earlier work left to be written would slow down this one.
  sync();
  const auto start = std::chrono::steady_clock::now();
  const pid_t child = fork();
  if (child < 0) {
    throw std::runtime_error("no child process");
  }
  if (child == 0) {
    try {
      _exit(work() ? 0 : 1);
    } catch (...) {
      _exit(1);
    }
  }
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    throw std::runtime_error("what was to be measured failed");
  }
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  return {taken.count(), usage.ru_maxrss / 1024};
}

/// A workspace whose received logs are all made up.
class MadeWorkspace {
 public:
  MadeWorkspace(const std::string& base, std::size_t logs, std::size_t qsos)
      : paths_(base), logs_(logs) {
    fs::create_directories(paths_.store());
    fs::create_directories(paths_.to_check_again());
    fs::create_directories(paths_.to_recalculate());
    DiskFileSystem files;
    for (std::size_t i = 0; i < logs; ++i) {
      files.WriteAll(Join(paths_.to_recalculate(), "/", MadeCall(i), ".edi"), MadeLog(i, qsos));
    }
  }

  // Nothing is removed before the end of all measurements: a disk may take several times as long to
  // make files after many were removed.

  /// `cp -r` of the received logs into a folder that is new each time.
  ChildRun Copy() {
    const std::string target = NewFolder("copy");
    return RunChild([&] {
      execl("/bin/cp", "cp", "-r", paths_.to_recalculate().c_str(), target.c_str(), nullptr);
      return false;
    });
  }

  /// Both passes of the recalculation into a folder that is new each time, as that of the copy is.
  ChildRun Recalculate() {
    fs::create_directory(paths_.recalculated());
    const ChildRun run = RunChild([this] { return RecalculateHere(); });
    fs::rename(paths_.recalculated(), NewFolder("recalculated"));
    return run;
  }

 private:
  std::string NewFolder(std::string_view name) {
    return Join(paths_.base(), "/", name, " ", ++folders_);
  }

  bool RecalculateHere() const {
    ContestSession session(paths_.base());
    DiskFileSystem files;
    AbsentManager manager;
    Screen screen;
    MainForm main;
    Recalculation recalculation(session, files, manager, screen, main);
    recalculation.rinomina_Click();
    return manager.boxes == 1 && recalculation.form().destination.items.rows().size() == logs_;
  }

  Workspace paths_;
  std::size_t logs_;
  std::size_t folders_ = 0;  ///< made so far
};

double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

struct Sizes {
  std::size_t logs;
  std::size_t qsos;
  std::size_t runs;  ///< how often each is measured
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

/// A number of at least 1; nothing for any other text.
std::optional<std::size_t> NumberOf(std::string_view text) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = error == std::errc() && end == text.data() + text.size();
  return whole && number > 0 ? std::optional(number) : std::nullopt;
}

std::optional<Sizes> SizesOf(const std::vector<std::string_view>& arguments) {
  if (arguments.size() != 2 && arguments.size() != 3) {
    return std::nullopt;
  }
  const auto logs = NumberOf(arguments[0]);
  const auto qsos = NumberOf(arguments[1]);
  const auto runs = NumberOf(arguments.size() == 3 ? arguments[2] : "3");
  if (!logs || !qsos || !runs || *logs > kMadeStations || *qsos > kMostLogQsos) {
    return std::nullopt;
  }
  return Sizes{*logs, *qsos, *runs};
}

int Main(const std::vector<std::string_view>& arguments) {
  const auto sizes = SizesOf(arguments);
  if (!sizes) {
    std::fprintf(stderr,
                 "velmar-bench-recalculate LOGS QSOS [RUNS]\n"
                 "at most %zu logs of %zu QSOs; each is measured RUNS times (3)\n",
                 kMadeStations, kMostLogQsos);
    return 1;
  }
  try {
    Measure(*sizes);
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "velmar-bench-recalculate: %s\n", failure.what());
    return 1;
  }
  return 0;
}

}  // namespace
}  // namespace velmar::bench

int main(int argc, char** argv) {
  return velmar::bench::Main({argv + 1, argv + argc});
}
