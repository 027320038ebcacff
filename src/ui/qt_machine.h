#pragma once

#include <string>

#include "platform/machine.h"
#include "platform/workbook_app.h"

namespace velmar {

/// The machine that the program runs on. There is no workbook application to look after: the
/// program writes workbooks by itself, as the version of the format that it writes.
class QtMachine : public Machine {
 public:
  explicit QtMachine(WorkbookApp& workbooks) : workbooks_(workbooks) {}

  bool Connected() override;
  std::optional<double> Ping() override;
  std::string ProductName() override;
  bool WorkbookRunning() override { return false; }
  void EndWorkbook() override {}
  int WorkbookVersion() override { return workbooks_.Version(); }

 private:
  WorkbookApp& workbooks_;
};

/// The milliseconds in the output of the system's ping, which ends its line with "ms" on some
/// systems and parts number and unit on others. Nothing when no answer came.
std::optional<double> PingTime(std::string output);

}  // namespace velmar
