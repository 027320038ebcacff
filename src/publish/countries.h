#pragma once

#include <array>
#include <cstddef>
#include <span>
#include <string_view>

namespace velmar {

/// What the statistics count calls of: the countries in the order of their grid, then the two that
/// no grid shows, and Italy.
enum class Country : std::size_t {
  kEA,
  kF,
  kHB,
  kDL,
  kOE,
  kSP,
  kOK,
  kOM,
  kHG,
  kS5,
  k9A,
  kT9,
  kZ3,
  kYU,
  kLX,
  kPA,
  kON,
  kYO,
  kLZ,
  kSV,
  kUT,
  kG,
  kUA,
  kLY,
  kYL,
  kER,
  kSM,
  kEU,
  kOZ,
  kE7,
  kT7,
  kZA,
  k3A,
  kHB0,
  kGM,
  kCT,
  kEI,
  kES,
  kLA,
  kOH,
  kGW,
  kEA8,
  k9H,
  kTA,
  k5B,
  kZB,
  kGI,
  kEA9,
  kHV,
  k1A,
  kItaly
};

inline constexpr std::size_t kCountries = 51;
inline constexpr std::size_t kShownCountries = 48;  ///< those ahead of HV

/// How a country is called where it is shown.
struct CountryLabels {
  std::string_view in_grid;
  std::string_view in_file;  ///< in the lines "Country"
};

inline constexpr std::array<CountryLabels, kShownCountries> kCountryLabels = {{
    {"EA", "EA"},  {"F", "F "},  {"HB9", "HB"}, {"DL", "DL"},   {"OE", "OE"},  {"SP", "SP"},
    {"OK", "OK"},  {"OM", "OM"}, {"HG", "HG"},  {"S 5", "S5"},  {"9 A", "9A"}, {"T 9", "T9"},
    {"Z 3", "Z3"}, {"YU", "YU"}, {"LX", "LX"},  {"PA", "PA"},   {"ON", "ON"},  {"YO", "YO"},
    {"LZ", "LZ"},  {"SV", "SV"}, {"UT", "UR"},  {"G", "G "},    {"UA", "UA"},  {"LY", "LY"},
    {"YL", "YL"},  {"ER", "ER"}, {"SM", "SM"},  {"EU", "EU"},   {"OZ", "OZ"},  {"E7", "E7"},
    {"T7", "T7"},  {"ZA", "ZA"}, {"3A", "3A"},  {"HB0", "HB0"}, {"GM", "GM"},  {"CT", "CT"},
    {"EI", "EI"},  {"ES", "ES"}, {"LA", "LA"},  {"OH", "OH"},   {"GW", "GW"},  {"EA8", "EA8"},
    {"9H", "9H"},  {"TA", "TA"}, {"5B", "5B"},  {"ZB", "ZB"},   {"GI", "GI"},  {"EA9", "EA9"},
}};

/// What the calls that no prefix takes are called.
inline constexpr std::string_view kOtherCountries = "altri";

/// A test of the beginning of a call.
struct CountryTest {
  std::string_view prefix;
  Country country;
};

/// The tests, in the order in which the first that fits decides. "SM", "OF", "OG" and "OI" stand
/// twice in it: who applies all tests counts those calls twice, and that is meant so. The last one
/// is that of Italy.
std::span<const CountryTest> CountryTests();

}  // namespace velmar
