#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace velmar {

/// The Italian call areas of the classifications, in their order.
enum class CallArea { kI0, kI1, kIX1, kI2, kI3, kIN3, kIV3, kI4, kI5, kI6, kI7, kI8, kI9, kIS0 };

inline constexpr std::array<std::string_view, 14> kCallAreaNames = {
    "I 0", "I 1", "IX1", "I 2", "I 3", "IN3", "IV3",
    "I 4", "I 5", "I 6", "I 7", "I 8", "I 9", "IS0"};

constexpr std::string_view NameOf(CallArea area) {
  return kCallAreaNames.at(static_cast<std::size_t>(area));
}

/// Whether a row of the classification, which begins with its call, belongs to an area. Each area
/// decides for itself: a digit is looked for in the first four characters, so that a row may belong
/// to two areas or to none, and a foreign call to one. Club calls are looked for in the first
/// twelve characters, save those of "IS0", which are compared with the whole row: a row that has
/// more than its call is never one of those, and that is meant so.
bool BelongsTo(std::string_view row, CallArea area);

}  // namespace velmar
