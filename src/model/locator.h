#pragma once

#include <string_view>

namespace velmar {

/// Constants of the distance formula. Pi is this decimal and not the full value, and the radius
/// comes from a circumference of 40009 km: every program that scores this contest has them so.
inline constexpr double kPi = 3.14159265358979;
inline constexpr double kDegree = kPi / 180;
inline constexpr double kEarthRadius = 40009 / (2 * kPi);  ///< km

/// Whether a text in capitals is a locator: two letters A to R, two digits, two letters A to X, and
/// nothing more.
bool LocatorValid(std::string_view text);

/// A place on the earth, in radians; east and north are positive.
struct Position {
  double longitude = 0;
  double latitude = 0;
  double sin_latitude = 0;  ///< taken once, since a log has one own place for all its QSOs
  double cos_latitude = 1;
};

/// The centre of the subsquare that a valid locator names.
Position LocatorPosition(std::string_view locator);

/// Kilometres between two places by the spherical law of cosines, a distance of n.4 and more going
/// up to n + 1. Raises error 11 for two places opposite each other on the earth, and error 5 where
/// rounding takes the cosine out of its range.
int Distance(const Position& own, const Position& dx, double earth_radius = kEarthRadius);

/// The points of a QSO between two stations, by their locators in capitals: 1 when both are equal
/// as text, 0 when the other one is no locator, else the distance. `own_locator` is valid.
int QsoPoints(std::string_view own_locator, std::string_view dx_locator);

/// The same, of a station whose position is known already: a log has one own position for all its
/// QSOs.
int QsoPoints(std::string_view own_locator, const Position& own, std::string_view dx_locator);

}  // namespace velmar
