#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace velmar {

/// What the program asks of the machine that it runs on.
class Machine {
 public:
  virtual ~Machine() = default;

  /// Whether the machine reports an Internet connection.
  virtual bool Connected() = 0;

  /// Milliseconds that one test ping took, or nothing when no answer came.
  virtual std::optional<double> Ping() = 0;

  /// The product name of the operating system.
  virtual std::string ProductName() = 0;

  /// Whether a process of the workbook application exists.
  virtual bool WorkbookRunning() = 0;

  /// Ends a running workbook application. Raises RunTimeError when it refuses.
  virtual void EndWorkbook() = 0;

  /// The major version of the workbook application. Raises RunTimeError when there is none.
  virtual int WorkbookVersion() = 0;
};

/// The milliseconds that the output of a ping tells: the number behind the last blank, "<" or "="
/// that stands ahead of "ms " in the first line that holds "ms ". Nothing when no line does.
std::optional<double> PingMilliseconds(std::string_view output);

}  // namespace velmar
