#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "intake/intake_state.h"

namespace velmar {

/// A key that must stand in a row of the header.
struct HeaderKey {
  std::size_t row;  ///< counted from 1
  std::string_view key;
  std::string_view message;  ///< what the manager reads ahead of what was found
  bool ends_checks;          ///< the rows behind it are not looked at where it is missing
};

/// The keys that are not where they must be, up to the one that ends the checks.
std::vector<const HeaderKey*> MissingKeys(const IntakeState& state);

/// The value of a header row, by its number from 1: the text from column 7 on.
std::string_view HeaderValue(const IntakeState& state, std::size_t row);

/// Why the declared values of a log can't be taken.
enum class ValueFault { kCallWithoutDigit, kZeroQsos, kBadPoints, kNoPoints, kNoTotal, kBadDx };

/// Takes call and locator of the owner. "-" and "_" of the call become "/".
std::optional<ValueFault> TakeOwner(IntakeState& state);

/// Takes category and band, power, antenna and height of the station.
void TakeStation(IntakeState& state);

/// Takes what the log declares: the number of its valid QSOs and its points; and behind the rows
/// that count for nothing, the farthest QSO.
std::optional<ValueFault> TakeCounts(IntakeState& state);
std::optional<ValueFault> TakeTotals(IntakeState& state);

/// The three parts of a value such as "0;0;1", for display. A value that has fewer is filled up;
/// one with more can't be split, and gives nothing.
std::optional<std::vector<std::string>> ThreeParts(const IntakeState& state, std::size_t row);

/// The remarks, in small letters.
std::string Remarks(const IntakeState& state);

/// Start and end date, as declared.
struct DeclaredDates {
  std::string start;
  std::string end;
};
DeclaredDates DatesOf(const IntakeState& state);

}  // namespace velmar
