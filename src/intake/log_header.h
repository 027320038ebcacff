#pragma once

#include <cstddef>
#include <optional>
#include <span>
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

/// The keys of the header that are looked for on insertion, in their order.
std::span<const HeaderKey> HeaderKeys();

/// The keys that are not where they must be, up to the one that ends the checks.
std::vector<const HeaderKey*> MissingKeys(const IntakeState& state);

/// The value of a header row, by its number from 1: the text from column 7 on.
std::string_view HeaderValue(const IntakeState& state, std::size_t row);

/// The rows of the header that are read by their number.
namespace header_row {
inline constexpr std::size_t kContest = 2, kDates = 3, kCall = 4, kLocator = 5, kExchange = 6,
                             kSite = 7, kSection = 9, kBand = 10, kOperator = 12, kResponsible = 13,
                             kAddress = 14, kPostalCode = 16, kPhone = 19, kOperators = 21,
                             kTransmitter = 23, kPower = 24, kReceiver = 25, kAntenna = 26,
                             kHeights = 27, kQsos = 28, kPoints = 29, kSquares = 30,
                             kExchanges = 32, kCountries = 34, kTotal = 36, kDx = 37, kRemarks = 38;
}  // namespace header_row

/// Why the declared values of a log can't be taken.
enum class ValueFault { kCallWithoutDigit, kZeroQsos, kBadPoints, kNoPoints, kNoTotal, kBadDx };

/// Takes call and locator of the owner. "-" and "_" of the call become "/".
std::optional<ValueFault> TakeOwner(IntakeState& state);

/// Takes category and band, power, antenna and height of the station.
void TakeStation(IntakeState& state);

/// Takes what the log declares: QSOs, points, farthest QSO.
std::optional<ValueFault> TakeDeclared(IntakeState& state);

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
