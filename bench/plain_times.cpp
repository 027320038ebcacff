#include "plain_times.h"

#include <cstdlib>
#include <string>

#include "model/text.h"

namespace velmar::bench {

namespace {

// The tolerance and the places in a time are written out here, so that a wrong one is a
// disagreement.
constexpr int kMostMinutes = 10;
constexpr int kDay = 1440;  ///< minutes

int Minutes(std::string_view time) {
  const double minutes = 60 * Val(Mid(time, 1, 2)) + Val(Mid(time, 3, 2));
  return static_cast<int>(minutes);
}

void Tally(int minutes, PlainTimes& met) {
  if (minutes == 0) {
    ++met.equal;
  } else if (minutes < kMostMinutes) {
    ++met.within;
  } else if (minutes == kMostMinutes) {
    ++met.ten;
  } else if (minutes == kMostMinutes + 1) {
    ++met.eleven;
  } else {
    ++met.beyond;
    met.midnight += kDay - minutes <= kMostMinutes ? 1 : 0;
  }
}

std::string Ordinal(const SommaQso& own, std::size_t place, PlainTimes& met) {
  if (own.number.empty()) {
    ++met.placed;
    return Join(place);
  }
  ++met.numbered;
  return std::string(own.number);
}

/// Compares a QSO, the one at `place` (counted from 1) of its log, with all rows.
void CompareWithAll(const SommaQso& own, std::size_t place, const std::vector<SommaQso>& rows,
                    std::string_view call, PlainTimes& met) {
  std::size_t answers = 0;
  for (const SommaQso& other : rows) {
    if (other.owner != own.call || other.call != call) {
      continue;
    }
    ++answers;
    const int minutes = std::abs(Minutes(own.time) - Minutes(other.time));
    Tally(minutes, met);
    if (minutes > kMostMinutes) {
      met.differences.items.push_back(TimeItemRow({.ordinal = Ordinal(own, place, met),
                                                   .own_time = std::string(own.time),
                                                   .other_time = std::string(other.time),
                                                   .other_call = std::string(own.call),
                                                   .difference = Join(minutes),
                                                   .points = std::string(own.points)},
                                                  call));
    }
  }
  met.differences.compared += answers;
  met.unanswered += answers == 0 ? 1 : 0;
  met.repeated += answers > 1 ? 1 : 0;
}

}  // namespace

PlainTimes FindTimesByLoops(const std::vector<SommaQso>& rows, std::string_view call) {
  PlainTimes found;
  std::size_t place = 0;
  bool past = false;
  for (const SommaQso& own : rows) {
    if (own.owner != call) {
      past = place > 0;
    } else if (past) {
      ++found.left_out;
    } else {
      ++place;
      CompareWithAll(own, place, rows, call, found);
    }
  }
  return found;
}

}  // namespace velmar::bench
