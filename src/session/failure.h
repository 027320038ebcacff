#pragma once

#include <string_view>

#include "platform/error.h"
#include "platform/manager.h"

namespace velmar {

/// That a step failed unexpectedly. `step` is for the author's eyes; `tag` is what the message says
/// behind it, the module first.
Box FailureBox(const RunTimeError& error, int step, std::string_view tag);

/// That there is nothing to print on.
Box NoPrinterBox();

}  // namespace velmar
