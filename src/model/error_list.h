#pragma once

#include <string>

namespace velmar {

/// The error list of a log (.err), which is the report to its participant: a head, then a line for
/// each decision.

/// What the head of an error list tells.
struct ErrorListHead {
  std::string title;  ///< of the contest
  std::string month;  ///< in capitals
  std::string call;   ///< 12 characters
  std::string locator;
  std::string declared;  ///< points
  std::string band;
  std::string category;
};

/// The six lines of the head, with their line ends.
std::string ErrorListHeadText(const ErrorListHead& head);

}  // namespace velmar
