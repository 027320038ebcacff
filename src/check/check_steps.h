#pragma once

#include "check/check_form.h"
#include "check/check_state.h"

namespace velmar {

/// The checks of one call, in their order.
enum class CheckStep { kNone, kLocators, kTimes, kReports, kUnique, kNotInLog, kUpdate, kDone };

/// Which check of the call is open now: the buttons that lead to the next one, and the strip that
/// shows the order.
class CheckSteps {
 public:
  explicit CheckSteps(CheckForm& form) : form_(form) {}

  /// No check runs: nothing is within reach.
  void Reset();

  /// Goes to the first check that has open items; with none, the unique calls can be looked for.
  void Advance();

  /// Leaves out the unique calls and what is not in a log: the result can be written.
  void SkipToUpdate();

 private:
  void Show(CheckStep open);

  CheckForm& form_;
};

}  // namespace velmar
