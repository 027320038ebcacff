#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/manager.h"

namespace velmar::bench {

/// What the programs share that measure a whole run: a manager, a folder, processes, and arguments.

/// A manager who is not at the machine. Every box counts, as the made-up logs give cause for few.
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

/// A temporary folder that is gone with the object. Nothing in it is removed before the end of all
/// measurements, save what a program removes itself: a disk may take several times as long to make
/// files after many were removed.
class TempFolder {
 public:
  TempFolder();
  ~TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  const std::string& path() const { return path_; }

 private:
  std::string path_;
};

struct ChildRun {
  double seconds;    ///< from the start of the process to its end
  long peak_memory;  ///< MB, resident
  std::string told;  ///< what the work returned
};

using Work = std::function<std::string()>;

/// Does `work` in a process of its own. Raises std::runtime_error when the work raised something,
/// which is told on standard error.
ChildRun RunChild(const Work& work);

/// The same when nothing that earlier work left to be written slows it down.
ChildRun RunRested(const Work& work);

/// Turns the process into `cp -r`. Raises std::runtime_error when there is no cp.
[[noreturn]] void BecomeCopy(const std::string& from, const std::string& to);

double Median(std::vector<double> values);

struct Sizes {
  std::size_t logs;
  std::size_t qsos;  ///< of each log
  std::size_t runs;  ///< how often each is measured
};

/// The main function of a program that is started with its sizes: measures, or tells what is wrong.
int RunBenchmark(const char* name, const std::vector<std::string_view>& arguments,
                 void (*measure)(const Sizes& sizes));

}  // namespace velmar::bench
