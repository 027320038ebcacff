#include "model/locator.h"

#include <cmath>

#include "platform/error.h"

namespace velmar {

namespace {

constexpr bool Between(char c, char low, char high) {
  return c >= low && c <= high;
}

}  // namespace

bool LocatorValid(std::string_view text) {
  return text.size() == 6 && Between(text[0], 'A', 'R') && Between(text[1], 'A', 'R') &&
         Between(text[2], '0', '9') && Between(text[3], '0', '9') && Between(text[4], 'A', 'X') &&
         Between(text[5], 'A', 'X');
}

Position LocatorPosition(std::string_view locator) {
  const auto letter = [&](std::size_t at) { return static_cast<double>(locator[at] - 'A'); };
  const auto digit = [&](std::size_t at) { return static_cast<double>(locator[at] - '0'); };
  const double longitude = letter(0) * 20 - 180 + 2 * digit(2) + letter(4) / 12 + 1.0 / 24;
  const double latitude = letter(1) * 10 - 90 + digit(3) + letter(5) / 24 + 1.0 / 48;
  Position position{longitude * kDegree, latitude * kDegree};
  position.sin_latitude = std::sin(position.latitude);
  position.cos_latitude = std::cos(position.latitude);
  return position;
}

int Distance(const Position& own, const Position& dx, double earth_radius) {
  const double dlon = dx.longitude - own.longitude;
  const double c =
      dx.sin_latitude * own.sin_latitude + own.cos_latitude * dx.cos_latitude * std::cos(dlon);
  if (1 - c * c < 0) {
    throw RunTimeError(ErrorNumber::kInvalidCall, "the root of a negative number");
  }
  const double s = std::sqrt(1 - c * c);
  if (s == 0) {
    throw RunTimeError(ErrorNumber::kDivisionByZero, "two places opposite each other");
  }
  // The arc cosine written with the arc tangent: it fixes the last digits.
  const double angle = kPi / 2 - std::atan(c / s);
  return static_cast<int>(std::floor(earth_radius * angle + 0.6));
}

int QsoPoints(std::string_view own_locator, std::string_view dx_locator) {
  return QsoPoints(own_locator, LocatorPosition(own_locator), dx_locator);
}

int QsoPoints(std::string_view own_locator, const Position& own, std::string_view dx_locator) {
  if (dx_locator == own_locator) {
    return 1;
  }
  return LocatorValid(dx_locator) ? Distance(own, LocatorPosition(dx_locator)) : 0;
}

}  // namespace velmar
