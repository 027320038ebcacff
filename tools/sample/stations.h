#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "sample/planted_fault.h"
#include "sample/random.h"

namespace velmar::sample {

/// From this number of logs on a contest has faults of every kind.
inline constexpr std::size_t kLogsForEveryFault = 20;

/// The calls in use, without "/P". None of them holds another one, so that a row of a log can hold
/// the log's own call by a planted fault only.
class CallPool {
 public:
  /// Takes a call into use; false when it holds a call in use or stands within one.
  bool Add(const std::string& base);

 private:
  std::vector<std::string> bases_;
};

struct Station {
  std::string call;  ///< with "/P" for a portable one
  std::string locator;
  bool sends_log = true;
  std::optional<FaultKind> refusal = std::nullopt;  ///< why the log is refused
  int clock_error = 0;                              ///< minutes to add to the true time

  bool portable() const { return call.ends_with("/P"); }
  bool italian() const { return call.starts_with('I'); }
  bool accepted() const { return sends_log && !refusal; }
};

/// A call of an Italian station, at its place, that is not in use yet.
Station InventStation(Random& random, CallPool& calls);

/// The stations of a contest: first those that send a log, then those that send none, which are
/// 15 % of them all.
std::vector<Station> MakeStations(Random& random, std::size_t logs, CallPool& calls);

}  // namespace velmar::sample
