#include "model/call_area.h"

#include <algorithm>
#include <span>

#include "model/columns.h"

namespace velmar {

namespace {

using Texts = std::span<const std::string_view>;

constexpr Column kDigits{1, 4};
constexpr Column kCall{1, 12};

constexpr std::array<std::string_view, 8> kSardinia = {"IS0",  "IM0",  "IW0U", "IW0V",
                                                       "IW0W", "IW0X", "IW0Y", "IW0Z"};
constexpr std::array<std::string_view, 8> kSardinianClubs = {"IQ0SS", "IQ0AK", "IQ0AH", "IQ0EH",
                                                             "IQ0AG", "IQ0AM", "IQ0AI", "IQ0AL"};

constexpr std::array<std::string_view, 1> kAosta = {"IX1"};
constexpr std::array<std::string_view, 1> kAostaClubs = {"IQ1VD"};

constexpr std::array<std::string_view, 16> kVeneto = {
    "I3",   "IK3",  "IZ3",  "IU3",  "IW3E", "IW3F", "IW3G", "IW3H",
    "IW3I", "IW3J", "IW3K", "IW3L", "IW3M", "IW3N", "IW3O", "IW3P"};
constexpr std::array<std::string_view, 22> kVenetoClubs = {
    "IQ3DD", "IQ3WW", "IQ3IY", "IQ3VI", "IQ3BM", "IQ3CW", "IQ3CO", "IQ3RP",
    "IQ3VO", "IQ3VQ", "IQ3VE", "IQ3MV", "IQ3DQ", "IQ3ME", "IQ3GA", "IQ3SD",
    "IQ3RW", "IQ3TR", "IQ3VV", "IQ3QR", "IQ3CR", "IQ3FL"};

constexpr std::array<std::string_view, 5> kTrentino = {"IN3", "IW3A", "IW3B", "IW3C", "IW3D"};
constexpr std::array<std::string_view, 8> kTrentinoClubs = {"IQ3TN", "IQ3NS", "IQ3MB", "IQ3TF",
                                                            "IQ3CG", "IQ3MP", "IQ3ED", "II3STAY"};

constexpr std::array<std::string_view, 11> kFriuli = {
    "IV3", "IW3Q", "IW3R", "IW3S", "IW3T", "IW3U", "IW3V", "IW3W", "IW3X", "IW3Y", "IW3Z"};
constexpr std::array<std::string_view, 8> kFriuliClubs = {"IQ3UD", "IQ3MO", "IQ3PN", "IQ3FX",
                                                          "IQ3TS", "IQ3GO", "IQ3AZ", "IQ3MF"};

bool BeginsWithAny(std::string_view row, Texts prefixes) {
  return std::ranges::any_of(prefixes,
                             [&](std::string_view prefix) { return row.starts_with(prefix); });
}

bool NamesAny(std::string_view row, Texts clubs) {
  return std::ranges::any_of(clubs,
                             [&](std::string_view club) { return Holds(Cut(row, kCall), club); });
}

bool HoldsDigit(std::string_view row, CallArea area) {
  return Holds(Cut(row, kDigits), NameOf(area).substr(2));
}

}  // namespace

bool BelongsTo(std::string_view row, CallArea area) {
  const bool sardinian = BeginsWithAny(row, kSardinia) ||
                         std::ranges::find(kSardinianClubs, row) != kSardinianClubs.end();
  const bool aostan = BeginsWithAny(row, kAosta) || NamesAny(row, kAostaClubs);
  switch (area) {
    case CallArea::kIS0:
      return sardinian;
    case CallArea::kI0:
      return HoldsDigit(row, area) && !sardinian;
    case CallArea::kIX1:
      return aostan;
    case CallArea::kI1:
      return HoldsDigit(row, area) && !aostan;
    case CallArea::kI3:
      return BeginsWithAny(row, kVeneto) || NamesAny(row, kVenetoClubs);
    case CallArea::kIN3:
      return BeginsWithAny(row, kTrentino) || NamesAny(row, kTrentinoClubs);
    case CallArea::kIV3:
      return BeginsWithAny(row, kFriuli) || NamesAny(row, kFriuliClubs);
    default:
      return HoldsDigit(row, area);
  }
}

}  // namespace velmar
