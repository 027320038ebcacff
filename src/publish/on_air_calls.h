#pragma once

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "publish/area_counters.h"
#include "publish/countries.h"

namespace velmar {

/// A count for each country.
class CountryCounters {
 public:
  int& operator[](Country country) { return counts_.at(static_cast<std::size_t>(country)); }
  int operator[](Country country) const { return counts_.at(static_cast<std::size_t>(country)); }

  /// The sum of the countries that the grid shows: HV, 1A and Italy are in no total.
  int shown_total() const;

  /// The counts of those countries, in their order.
  std::vector<std::string> Texts() const;

 private:
  std::array<int, kCountries> counts_{};
};

/// The calls on the air, by area and country.
struct OnAirCounts {
  AreaCounters areas;
  CountryCounters countries;
  std::vector<std::string> unknown;  ///< calls that no test takes
  int portables = 0;

  int italy() const { return areas.total(); }
  int abroad() const;
};

/// Sorts calls of 12 columns, each once. Of an Italian call that no area takes, the countries are
/// tried.
OnAirCounts CountOnAir(const std::vector<std::string>& calls);

/// The countries that are counted, each by its line for the statistics file. The unknown calls are
/// one country more.
std::vector<std::string> CountryLines(const OnAirCounts& counts);

/// The text of the file of all areas and countries.
std::string CountriesText(const OnAirCounts& counts);

}  // namespace velmar
