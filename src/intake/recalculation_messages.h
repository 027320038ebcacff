#pragma once

#include <string>

#include "intake/log_check.h"
#include "intake/rescoring.h"
#include "platform/manager.h"

namespace velmar {

/// The boxes of the recalculation. `name` is the file name of the log in hand.

/// Why a log is refused. Not for a foreign locator, which is asked about.
Box RefusalBox(const std::string& name, const LogFault& fault);

/// The question about an Italian call with a locator outside Italy.
Box ForeignLocatorBox(const LogFault& fault);

/// That the own locator of a log is none.
Box OwnLocatorBox(const std::string& own_call, const std::string& own_locator);

/// That the punctuation of a QSO row was repaired.
Box RepairBox(const std::string& name, const RowRepair& repair);

/// What a refused log's name gets behind it, by the reason. Not for a foreign locator, where it
/// goes by the answer, nor for a missing key, which moves no file.
std::string RefusalSuffix(const LogFault& fault);

}  // namespace velmar
