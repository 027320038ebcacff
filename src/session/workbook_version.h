#pragma once

#include "platform/machine.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// Asks for the version of the workbook application, keeps it in the session and shows it on the
/// main screen. Raises RunTimeError when there is none; the session then has version 0.
void ReadWorkbookVersion(ContestSession& session, Machine& machine, MainForm& main);

/// The lowest version of the workbook application that the export can work with.
inline constexpr int kLowestWorkbookVersion = 14;

}  // namespace velmar
