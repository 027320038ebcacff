#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/error.h"
#include "platform/manager.h"

namespace velmar {

/// What is told of a failed export. `step` is the number that the manager reads.

/// Of an error that ends the program; nothing for one that does not. `file` is the name of the
/// workbook; `creating` tells that the application was just being started.
std::optional<Box> FatalExportBox(const RunTimeError& error, int step, std::string_view file,
                                  bool creating);

/// That the workbook could not be saved under its name.
Box UnsavedBox(const RunTimeError& error, int step);

/// Of an error that nobody expected, ahead of the attempt to keep what there is, and behind it.
Box UnexpectedExportBox(const RunTimeError& error, int step, std::string_view version);
Box UnfinishedBox(const RunTimeError& error, int step);

}  // namespace velmar
