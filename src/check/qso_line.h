#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/columns.h"

namespace velmar {

/// A QSO in the lists of the desk: the start of its library row, padded, and its ordinal in the
/// log, with a leading blank.
namespace qso_line {
inline constexpr Column kOwner{1, 12}, kCall{13, 12}, kLocator{25, 6};
inline constexpr Column kPoints{31, 5};  ///< behind a blank, save where a short locator shifts them
inline constexpr Column kOrdinal{36, kToTheEnd};
inline constexpr Column kRow{1, 35};    ///< of the library row
inline constexpr Column kShown{1, 36};  ///< of a library row among the results of a look-up
static_assert(FollowOneAnother({kOwner, kCall, kLocator, kPoints, kOrdinal}));
}  // namespace qso_line

/// The line of a library row. `ordinal` counts from 1.
std::string QsoLine(std::string_view library_row, std::size_t ordinal);

}  // namespace velmar
