#pragma once

#include <cstddef>
#include <vector>

#include "check/not_in_log_search.h"

namespace velmar::bench {

/// What the loops found, and how often they came to each of their ends.
struct PlainNotInLog {
  std::vector<NotInLogHit> hits;
  std::size_t no_log = 0;       ///< the other station sent none
  std::size_t confirmed = 0;    ///< its log has the call
  std::size_t unexplained = 0;  ///< nothing in its log is like the call
  std::size_t one_gap = 0;      ///< it has a call that differs in one place or so
  std::size_t swapped = 0;      ///< it has a call with the same letters
  std::size_t hidden = 0;       ///< its own error, left out
};

/// The loops that FindNotInLog stands for: for each QSO of the log all participants are gone
/// through, then both libraries. The yardstick of its results.
PlainNotInLog FindNotInLogByLoops(const NotInLogSources& sources, bool hide_others_errors);

}  // namespace velmar::bench
