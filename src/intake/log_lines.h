#pragma once

#include <string>
#include <string_view>

#include "intake/intake_state.h"

namespace velmar {

/// Why the lines of a log can't be taken in.
enum class LineFault {
  kNone,
  kDate,      ///< a QSO is not of the day of the contest
  kFirstRow,  ///< the first row is not the one of the format
  kNoQsos     ///< the log declares no QSOs
};

struct LineCheck {
  LineFault fault = LineFault::kNone;
  std::string row;  ///< at fault
};

/// Takes the lines of a log into `state`, with the bounds of its QSO section, up to the first
/// fault. `contest_date` is YYMMDD; in a test run the dates are not compared. A log of more than
/// 370,000 lines raises error 9.
LineCheck TakeLines(std::string_view text, std::string_view contest_date, bool test_run,
                    IntakeState& state);

/// Whether a digit stands in `text` ahead of the first of the characters `ends`.
bool HasDigitAhead(std::string_view text, std::string_view ends);

}  // namespace velmar
