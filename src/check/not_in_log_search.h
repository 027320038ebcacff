#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// What the search for QSOs that the other station lacks goes by. All are rows of the store.
struct NotInLogSources {
  const std::vector<std::string_view>& log;     ///< library rows of the log
  const std::vector<std::string_view>& others;  ///< library rows of the other logs
  const std::vector<std::string_view>& participants;
  const std::vector<std::string_view>& total_library;
  std::string_view category;
  std::string_view call;     ///< under examination, without blanks behind it
  std::string_view locator;  ///< of its log
};

/// A QSO that the other station's log lacks.
struct NotInLogHit {
  std::string item;         ///< of the list: call, points, whose error it is
  std::string explanation;  ///< of the list beside it
};

/// The QSOs of the log with a participant whose own log lacks them, in the order of the log. Where
/// that station seems to have miscopied the call the error is its own: such a hit is left out when
/// `hide_others_errors` is set.
std::vector<NotInLogHit> FindNotInLog(const NotInLogSources& sources, bool hide_others_errors);

}  // namespace velmar
