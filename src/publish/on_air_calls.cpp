#include "publish/on_air_calls.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <span>

#include "model/print_line.h"
#include "model/text.h"
#include "publish/bands.h"

namespace velmar {

namespace {

/// The country of a call, by the first test that takes it. Italy's own is not among them: its calls
/// are sorted by area.
std::optional<Country> CountryOf(std::string_view call) {
  const auto tests = CountryTests();
  const auto test = std::ranges::find_if(tests, [call](const CountryTest& tested) {
    return tested.country != Country::kItaly && call.starts_with(tested.prefix);
  });
  return test == tests.end() ? std::nullopt : std::optional(test->country);
}

/// A cell of the file of the countries: its label, and what is counted under it.
struct CountryCell {
  std::string_view label;
  std::optional<Country> country;  ///< nothing: never counted
};

using C = Country;
using CountryRow = std::vector<CountryCell>;

/// The file has an order and labels of its own, and leaves "T9" out; nothing is counted under
/// "ct9". Both are meant so.
const std::vector<CountryRow>& CountryRows() {
  static const std::vector<CountryRow> rows = {
      {{"3A  :", C::k3A}, {"5B  :", C::k5B}, {"9A  :", C::k9A}, {"9H  :", C::k9H}},
      {{"CT  :", C::kCT}, {"ct9 :", {}}, {"DL  :", C::kDL}, {"EA  :", C::kEA}, {"EA8  :", C::kEA8}},
      {{"EI  :", C::kEI},
       {"ES  :", C::kES},
       {"ER  :", C::kER},
       {"E7  :", C::kE7},
       {"EU  :", C::kEU}},
      {{"F  :", C::kF}, {"G  :", C::kG}, {"GM  :", C::kGM}, {"GW  :", C::kGW}},
      {{"HB  :", C::kHB},
       {"HB0  :", C::kHB0},
       {"HG  :", C::kHG},
       {"LA  :", C::kLA},
       {"LY  :", C::kLY}},
      {{"LZ  :", C::kLZ},
       {"LX  :", C::kLX},
       {"OE  :", C::kOE},
       {"OK  :", C::kOK},
       {"OM  :", C::kOM}},
      {{"OH  :", C::kOH},
       {"ON  :", C::kON},
       {"OZ  :", C::kOZ},
       {"PA  :", C::kPA},
       {"S5  :", C::kS5}},
      {{"SV  :", C::kSV},
       {"SP  :", C::kSP},
       {"SM  :", C::kSM},
       {"T7  :", C::kT7},
       {"TA  :", C::kTA}},
      {{"UA  :", C::kUA},
       {"UR  :", C::kUT},
       {"YL  :", C::kYL},
       {"YO  :", C::kYO},
       {"YU  :", C::kYU}},
      {{"Z3  :", C::kZ3},
       {"ZA  :", C::kZA},
       {"ZB  :", C::kZB},
       {"GI  :", C::kGI},
       {"EA9  :", C::kEA9}}};
  return rows;
}

/// The line of a row: the cells are parted by commas.
std::string LineOf(const CountryRow& row, const CountryCounters& counts) {
  PrintLine line;
  for (const CountryCell& cell : row) {
    if (&cell != &row.front()) {
      line.Zone();
    }
    line.Text(cell.label).Number(cell.country ? counts[*cell.country] : 0);
  }
  return line.End();
}

std::string CountryLine(std::string_view label) {
  return Join("Country  ", kContestBand.frequency, "   ", label);
}

}  // namespace

int CountryCounters::shown_total() const {
  return std::accumulate(counts_.begin(), counts_.begin() + kShownCountries, 0);
}

std::vector<std::string> CountryCounters::Texts() const {
  std::vector<std::string> texts;
  for (std::size_t i = 0; i < kShownCountries; ++i) {
    texts.push_back(std::to_string(counts_.at(i)));
  }
  return texts;
}

int OnAirCounts::abroad() const {
  return countries.shown_total() + static_cast<int>(unknown.size());
}

OnAirCounts CountOnAir(const std::vector<std::string>& calls) {
  OnAirCounts counts;
  for (const std::string& call : calls) {
    counts.portables += Holds(call, "/") ? 1 : 0;
    if (const auto area = OnAirArea(call)) {
      ++counts.areas[*area];
    } else if (const auto country = CountryOf(call)) {
      ++counts.countries[*country];
    } else {
      counts.unknown.push_back(call);
    }
  }
  return counts;
}

std::vector<std::string> CountryLines(const OnAirCounts& counts) {
  std::vector<std::string> lines;
  for (std::size_t i = 0; i < kShownCountries; ++i) {
    if (counts.countries[static_cast<Country>(i)] > 0) {
      lines.push_back(CountryLine(kCountryLabels[i].in_file));
    }
  }
  if (!counts.unknown.empty()) {
    lines.push_back(CountryLine(kOtherCountries));
  }
  return lines;
}

std::string CountriesText(const OnAirCounts& counts) {
  std::string text;
  for (std::size_t i = 0; i < kCallAreaNames.size(); ++i) {
    const auto area = static_cast<CallArea>(i);
    text += PrintLine().Text(Join(OnAirName(area), "  ")).Number(counts.areas[area]).End();
  }
  // The comma at the end leaves the line open: the first of the blank lines goes on in it.
  text += PrintLine()
              .Text("TOT ITALIA  ")
              .Number(counts.italy())
              .Zone()
              .Text("TOT ESTERO  ")
              .Zone()
              .Number(counts.abroad())
              .Zone()
              .Text("PORTATILI  ")
              .Zone()
              .Number(counts.portables)
              .Zone()
              .Text(" ")
              .End();
  text += PrintLine().Text(" ").End();
  text += PrintLine().Text(" ").End();
  for (const CountryRow& row : CountryRows()) {
    text += LineOf(row, counts.countries);
    text += PrintLine().Text("  ").End();
  }
  text += PrintLine().Text("Altri").Number(static_cast<long long>(counts.unknown.size())).End();
  return text;
}

}  // namespace velmar
