#pragma once

#include <optional>
#include <string>

#include "check/check_form.h"
#include "check/check_state.h"
#include "check/check_steps.h"
#include "check/error_report.h"
#include "check/store_reading.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// The search for QSOs with a participant whose own log lacks them, and behind it the step of the
/// reports, which this contest leaves out.
class NotInLogCheck {
 public:
  NotInLogCheck(ContestSession& session, Manager& manager, StoreReading& store, ErrorReport& report,
                CheckSteps& steps, CheckForm& form, CheckState& state)
      : session_(session),
        manager_(manager),
        store_(store),
        report_(report),
        steps_(steps),
        form_(form),
        state_(state) {}

  /// Lists what is not in a log; with nothing open the result can be written.
  void not_Click();

  void Lista_simili_Click();
  void lista_notlog_Click();

  // The decisions. Without a selected QSO they beep, or do nothing.
  void NO_in_log_Click();
  void no_errore_Click();

 private:
  void Search();
  void GoOn();
  void ShowOpenItems();
  std::optional<std::string> Selected() const;
  void EnableByItem();
  void RemoveSelected();
  void PassReports();

  ContestSession& session_;
  Manager& manager_;
  StoreReading& store_;
  ErrorReport& report_;
  CheckSteps& steps_;
  CheckForm& form_;
  CheckState& state_;
};

}  // namespace velmar
