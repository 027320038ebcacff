#include "publish/area_counters.h"

#include <algorithm>
#include <span>

#include "model/columns.h"
#include "model/text.h"

namespace velmar {

namespace {

using A = CallArea;

constexpr Column kCall{1, 12};
constexpr Column kPrefix{1, 3};
constexpr std::string_view kDigits = "1234567890";
constexpr std::string_view kDigitsBesideVeneto = "124567890";

/// What tells an area by a text at the start or the end of a call.
struct AreaText {
  std::string_view text;
  CallArea area;
};

/// What a portable call may end or begin with, in the order of the tests.
constexpr AreaText kPortable[] = {{"IN3", A::kIN3}, {"IX1", A::kIX1}, {"IS0", A::kIS0},
                                  {"IM0", A::kIS0}, {"IV3", A::kIV3}, {"IT9", A::kI9}};

// clang-format off
constexpr AreaText kPrefixes[] = {
    {"IN3", A::kIN3}, {"IW3A", A::kIN3}, {"IW3B", A::kIN3}, {"IW3C", A::kIN3}, {"IW3D", A::kIN3},
    {"IQ3TN", A::kIN3}, {"IQ3NS", A::kIN3}, {"IQ3MB", A::kIN3}, {"IQ3TF", A::kIN3},
    {"IQ3CG", A::kIN3}, {"IQ3MP", A::kIN3}, {"IQ3ED", A::kIN3},
    {"IX1", A::kIX1},
    {"IS0", A::kIS0}, {"IM0", A::kIS0}, {"IW0U", A::kIS0}, {"IW0V", A::kIS0}, {"IW0W", A::kIS0},
    {"IW0X", A::kIS0}, {"IW0Y", A::kIS0}, {"IW0Z", A::kIS0}, {"IQ0SS", A::kIS0},
    {"IQ0AK", A::kIS0}, {"IQ0AH", A::kIS0}, {"IQ0EH", A::kIS0}, {"IQ0AG", A::kIS0},
    {"IQ0AM", A::kIS0}, {"IQ0AI", A::kIS0}, {"IQ0AL", A::kIS0},
    {"IV3", A::kIV3}, {"IW3Q", A::kIV3}, {"IW3R", A::kIV3}, {"IW3S", A::kIV3}, {"IW3T", A::kIV3},
    {"IW3U", A::kIV3}, {"IW3V", A::kIV3}, {"IW3W", A::kIV3}, {"IW3X", A::kIV3}, {"IW3Y", A::kIV3},
    {"IW3Z", A::kIV3},
    // Clubs of the Veneto are counted with those of Friuli here, and that is meant so.
    {"IQ3UD", A::kIV3}, {"IQ3MO", A::kIV3}, {"IQ3PN", A::kIV3}, {"IQ3FX", A::kIV3},
    {"IQ3TS", A::kIV3}, {"IQ3GO", A::kIV3}, {"IQ3AZ", A::kIV3}, {"IQ3MF", A::kIV3},
    {"IQ3DD", A::kIV3}, {"IQ3WW", A::kIV3}, {"IQ3IY", A::kIV3}, {"IQ3VI", A::kIV3},
    {"IQ3BM", A::kIV3}, {"IQ3CW", A::kIV3}, {"IQ3CO", A::kIV3}, {"IQ3RP", A::kIV3},
    {"IQ3VO", A::kIV3}, {"IQ3VQ", A::kIV3}, {"IQ3VE", A::kIV3}, {"IQ3MV", A::kIV3},
    {"IQ3DQ", A::kIV3}, {"IQ3ME", A::kIV3}, {"IQ3GA", A::kIV3}, {"IQ3SD", A::kIV3},
    {"IQ3RW", A::kIV3}, {"IQ3TR", A::kIV3}, {"IQ3VV", A::kIV3}, {"IQ3QR", A::kIV3},
    {"IQ3CR", A::kIV3}, {"IQ3FL", A::kIV3},
    {"IW3E", A::kI3}, {"IW3F", A::kI3}, {"IW3G", A::kI3}, {"IW3H", A::kI3}, {"IW3I", A::kI3},
    {"IW3J", A::kI3}, {"IW3K", A::kI3}, {"IW3L", A::kI3}, {"IW3M", A::kI3}, {"IW3N", A::kI3},
    {"IW3O", A::kI3}, {"IW3P", A::kI3},
};
// clang-format on

constexpr AreaText kVeneto[] = {{"IK3", A::kI3}, {"IZ3", A::kI3}, {"IU3", A::kI3}, {"I3", A::kI3}};

/// The special areas that the logging stations are told apart by.
constexpr AreaText kSpecial[] = {
    {"IS0", A::kIS0}, {"IX1", A::kIX1}, {"IN3", A::kIN3}, {"IV3", A::kIV3}};

std::optional<CallArea> FirstPrefixOf(std::string_view call, std::span<const AreaText> tests) {
  const auto test = std::ranges::find_if(
      tests, [call](const AreaText& tested) { return call.starts_with(tested.text); });
  return test == tests.end() ? std::nullopt : std::optional(test->area);
}

std::optional<CallArea> AreaOfText(std::string_view text, std::span<const AreaText> tests) {
  const auto test = std::ranges::find(tests, text, &AreaText::text);
  return test == tests.end() ? std::nullopt : std::optional(test->area);
}

/// The first of the digits, in their order, that a text holds; `skipped` characters at its start
/// are too early. A digit that stands there is not looked for behind it.
std::optional<CallArea> AreaOfDigits(std::string_view text, std::string_view digits,
                                     std::size_t skipped) {
  for (const char digit : digits) {
    const std::size_t place = text.find(digit);
    if (place != std::string_view::npos && place >= skipped) {
      return AreaOfDigit(digit);
    }
  }
  return std::nullopt;
}

/// The tests of a call with "/" by what stands behind or ahead of it.
std::optional<CallArea> PortableArea(std::string_view call) {
  if (!Holds(call, "/")) {
    return std::nullopt;
  }
  const std::string_view written = Trim(call);
  if (const auto area = AreaOfText(Right(written, kPrefix.width), kPortable)) {
    return area;
  }
  if (const auto area = FirstPrefixOf(call, kPortable)) {
    return area;
  }
  constexpr std::size_t kEnding = 4;
  return AreaOfDigits(Right(written, kEnding), kDigits, 0);
}

/// The first character of a call tells no district.
constexpr std::size_t kOuter = 1;

bool Decides(std::vector<CallArea>& areas, std::optional<CallArea> area) {
  if (area) {
    areas.push_back(*area);
  }
  return area.has_value();
}

}  // namespace

CallArea AreaOfDigit(char digit) {
  constexpr CallArea kAreas[] = {A::kI0, A::kI1, A::kI2, A::kI3, A::kI4,
                                 A::kI5, A::kI6, A::kI7, A::kI8, A::kI9};
  return kAreas[digit - '0'];
}

std::optional<CallArea> ActiveArea(std::string_view row) {
  const std::string_view call = Cut(row, kCall);
  if (const auto area = PortableArea(call)) {
    return area;
  }
  if (const auto area = FirstPrefixOf(call, kPrefixes)) {
    return area;
  }
  return AreaOfDigits(call, kDigits, kOuter);
}

std::optional<CallArea> OnAirArea(std::string_view call) {
  if (!call.starts_with('I')) {
    return std::nullopt;
  }
  if (const auto area = PortableArea(call)) {
    return area;
  }
  if (const auto area = FirstPrefixOf(call, kPrefixes)) {
    return area;
  }
  if (const auto area = FirstPrefixOf(call, kVeneto)) {
    return area;
  }
  return AreaOfDigits(call, kDigitsBesideVeneto, kOuter);
}

std::vector<CallArea> LoggingAreas(std::string_view row) {
  std::vector<CallArea> areas;
  if (!row.starts_with('I')) {
    return areas;
  }
  const std::string_view call = Trim(Cut(row, kCall));
  const std::string_view prefix = Cut(row, kPrefix);
  if (Holds(call, "/") && (Decides(areas, AreaOfText(Right(call, kPrefix.width), kSpecial)) ||
                           Decides(areas, AreaOfDigits(Right(call, 1), kDigits, 0)))) {
    return areas;
  }
  if (Decides(areas, AreaOfText(prefix, kSpecial))) {
    return areas;
  }
  for (const char digit : kDigits) {
    if (prefix.find(digit) != std::string_view::npos) {
      areas.push_back(AreaOfDigit(digit));
    }
  }
  return areas;
}

}  // namespace velmar
