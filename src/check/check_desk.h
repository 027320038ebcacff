#pragma once

#include <functional>

#include "check/archive.h"
#include "check/check_form.h"
#include "check/check_start.h"
#include "check/check_state.h"
#include "check/check_steps.h"
#include "check/check_trap.h"
#include "check/error_report.h"
#include "check/locator_check.h"
#include "check/log_removal.h"
#include "check/log_views.h"
#include "check/not_in_log_check.h"
#include "check/option_menu.h"
#include "check/queue_panel.h"
#include "check/score_update.h"
#include "check/store_reading.h"
#include "check/time_check.h"
#include "check/unique_check.h"
#include "model/contest_store.h"
#include "platform/ports.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// The fourth step of the procedure, the check desk: joins its controls to what they do, opens it
/// and leaves it. Each decision on a QSO is one action of the manager.
class CheckDesk {
 public:
  CheckDesk(ContestSession& session, const Ports& ports, ContestStore& store, Screen& screen,
            MainForm& main, CheckForm& form);

  CheckForm& form() { return form_; }
  ArchiveForm& archive_form() { return archive_.form(); }
  NoticesForm& notices_form() { return archive_.notices(); }

  /// Shows the desk in place of the main screen, ready to load a classification, with what the
  /// settings say.
  void Open();

  /// Leaves the desk, where nothing waits to be finished or saved, and keeps the options.
  void torna_menu_Click();

  /// Leaves the desk at once; a check that runs is broken off.
  void exit_Click();

 private:
  void On(Control& control, int step, std::function<void()> event);
  void ReadParticipants();
  void Start(int step, const std::function<void()>& start);
  void JoinQueue();
  void JoinChecks();
  void JoinTimes();
  void JoinUnique();
  void JoinViews();
  void JoinScore();
  void JoinArchive();
  void Leave();

  ContestSession& session_;
  Ports ports_;
  Screen& screen_;
  MainForm& main_;
  CheckForm& form_;
  CheckTrap trap_;
  CheckState state_;
  CheckSteps steps_;
  OptionMenu options_;
  StoreReading reading_;
  QueuePanel queue_;
  Archive archive_;
  ErrorReport report_;
  LogViews views_;
  LocatorCheck locators_;
  TimeCheck times_;
  NotInLogCheck not_in_log_;
  UniqueCheck unique_;
  CheckStart start_;
  ScoreUpdate score_;
  LogRemoval removal_;
};

}  // namespace velmar
