#pragma once

#include <string_view>

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

  /// The unique calls are looked at.
  void OpenUnique();

  /// What is not in a log is looked at.
  void OpenNotInLog();

  /// The result can be written.
  void OpenUpdate();

  /// The same without the unique calls and what is not in a log.
  void SkipToUpdate();

  /// The result stands and is to be saved.
  void OpenSave();

  /// The check of the call is over.
  void Finish();

  /// Whether differing times wait for a decision.
  bool TimesOpen() const;

 private:
  void CloseButtons();
  static void Offer(Button& button);
  bool LeftOut(CheckStep step) const;
  void Show(CheckStep open);

  CheckForm& form_;
  bool unique_done_ = false;  ///< and what is not in a log
  bool times_left_out_ = false;
  bool unique_left_out_ = false;
};

/// What marks the row that tells the time on the air, behind the last QSO of the list of times.
inline constexpr std::string_view kTimeOnAirMark = "intercorso";

}  // namespace velmar
