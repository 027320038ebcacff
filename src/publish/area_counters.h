#pragma once

#include <array>
#include <cstddef>
#include <numeric>
#include <optional>
#include <string_view>
#include <vector>

#include "model/call_area.h"

namespace velmar {

/// The areas in the order of the statistics, which is not that of the classifications.
inline constexpr std::array<CallArea, kCallAreaNames.size()> kPrintedAreas = {
    CallArea::kI0,  CallArea::kIX1, CallArea::kI1, CallArea::kI2, CallArea::kI3,
    CallArea::kIN3, CallArea::kIV3, CallArea::kI4, CallArea::kI5, CallArea::kI6,
    CallArea::kI7,  CallArea::kI8,  CallArea::kI9, CallArea::kIS0};

/// The name of an area where calls on the air are told: the ninth goes by its prefix there.
constexpr std::string_view OnAirName(CallArea area) {
  return area == CallArea::kI9 ? "IT9" : NameOf(area);
}

/// A count for each call area.
class AreaCounters {
 public:
  int& operator[](CallArea area) { return counts_.at(static_cast<std::size_t>(area)); }
  int operator[](CallArea area) const { return counts_.at(static_cast<std::size_t>(area)); }
  int total() const { return std::accumulate(counts_.begin(), counts_.end(), 0); }

 private:
  std::array<int, kCallAreaNames.size()> counts_{};
};

/// The area of a digit, "1" to "9" or "0".
CallArea AreaOfDigit(char digit);

/// The area that a participant is counted in, by a row that begins with its call (12 columns). It
/// is not asked whether the call is Italian: a foreign one falls on the first of the digits 1 to 9
/// and 0 that it holds behind its first character, and that is meant so. Nothing for a call without
/// any.
std::optional<CallArea> ActiveArea(std::string_view row);

/// The area of an Italian call on the air (12 columns); nothing where no rule takes it.
std::optional<CallArea> OnAirArea(std::string_view call);

/// The areas in which the QSOs of a logging station are counted, by a row that begins with its call
/// (12 columns). A station whose first three characters hold two digits is counted in both, and
/// that is meant so. A foreign one is in none.
std::vector<CallArea> LoggingAreas(std::string_view row);

}  // namespace velmar
