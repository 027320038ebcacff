#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/printer.h"

namespace velmar {

/// The print-out of the list of absent calls, in two columns: its second half stands beside the
/// first.
PrintJob AbsentListPages(const std::vector<std::string>& list, std::string_view month);

/// What is printed of a rebuilt log.
struct PrintedLog {
  std::string call;
  std::string contest;
  std::string month;
  const std::vector<std::string>& lines;
  std::string score;  ///< empty for none
  std::string place;
};

PrintJob AbsentLogPages(const PrintedLog& log);

}  // namespace velmar
