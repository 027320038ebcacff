#pragma once

#include <cstddef>
#include <string_view>

#include "platform/manager.h"

namespace velmar {

/// A locator that breaks the form of one, seen while the QSOs of a log are read. `qso` counts from
/// 1 in its log.
Box BrokenLocatorOnReading(std::string_view locator, std::size_t qso, std::string_view call);

/// The same of the doubt that is selected.
Box BrokenLocatorOfDoubt(std::string_view locator);

/// The same of the unique call that is selected.
Box BrokenLocatorOfUnique(std::string_view locator);

/// That the file of the participants is not there.
Box MissingParticipants();

}  // namespace velmar
