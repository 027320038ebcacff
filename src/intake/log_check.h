#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// Why a received log cannot be recalculated.
enum class LogFaultKind {
  kSemicolons,      ///< a QSO row has fewer than 14 semicolons
  kOwnLocator,      ///< the own locator is missing or none
  kForeignLocator,  ///< an Italian call with a locator outside Italy
  kQsoLocator,      ///< a QSO has a locator of six characters that is none
  kObsoleteWriter,  ///< the log of a writer that puts a row of its own into the header
  kMissingKey       ///< a header row that must be there is missing
};

struct LogFault {
  LogFaultKind kind;
  std::string own_call;  ///< as the log declares it
  std::string own_locator;
  std::size_t number = 0;      ///< of the QSO among the QSO rows, or of the header row; from 1
  std::size_t semicolons = 0;  ///< of the row at fault
  std::string text;            ///< the row, the locator or the key at fault
  std::vector<std::string> heading;  ///< the first five rows of the log
};

/// Looks through a received log, without changing it, for the first reason to refuse it.
std::optional<LogFault> FindLogFault(std::string_view text);

/// A QSO row in which a ":" or "." that stands for a ";" has been turned into one.
std::string RepairedRow(std::string_view row);

}  // namespace velmar
