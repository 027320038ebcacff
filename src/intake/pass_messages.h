#pragma once

#include <string_view>

#include "intake/intake_state.h"
#include "intake/qso_pass.h"
#include "platform/manager.h"

namespace velmar {

/// The boxes of the pass over the rows of a log, and of filing it. A value stands on the line of
/// the text that introduces it.

// The pass over the rows.
Box NoRowsBox();
Box ProblemBox(const IntakeState& log, const QsoProblem& problem);
Box RowCountBox(const IntakeState& log);
Box PassFailedBox();

// Filing.
Box NoSectionBox();
Box TimesFileBox();
Box NeedsCategoryBox();
Box LibraryRowBox(std::string_view row);
Box TotalLibraryRowBox(std::string_view row, std::string_view call);
Box SamePlaceBox();

}  // namespace velmar
