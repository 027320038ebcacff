#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "check/time_differences.h"
#include "model/somma_qso.h"

namespace velmar::bench {

/// What the loops found, and how often they came to each of their ends.
struct PlainTimes {
  TimeDifferences differences;
  std::size_t unanswered = 0;  ///< QSOs that the other log does not have, or there is none
  std::size_t repeated = 0;    ///< QSOs that the other log has more than once
  std::size_t equal = 0;       ///< pairs with the same time
  std::size_t within = 0;      ///< pairs up to nine minutes apart
  std::size_t ten = 0;         ///< pairs at the tolerance
  std::size_t eleven = 0;      ///< pairs just past it
  std::size_t beyond = 0;      ///< pairs further apart
  std::size_t midnight = 0;    ///< of those, pairs that are near each other on the clock's face
  std::size_t numbered = 0;    ///< items with the number that was sent
  std::size_t placed = 0;      ///< items with the row's place in the log
  std::size_t left_out = 0;    ///< rows of the log behind a row of another owner
};

/// The loops that FindTimeDifferences stands for: for each QSO of the log of `call` all rows are
/// gone through. The yardstick of its results.
PlainTimes FindTimesByLoops(const std::vector<SommaQso>& rows, std::string_view call);

}  // namespace velmar::bench
