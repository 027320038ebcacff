#pragma once

#include <cstddef>
#include <string>

#include "check/archive.h"
#include "check/check_form.h"
#include "check/check_state.h"
#include "check/check_steps.h"
#include "check/error_report.h"
#include "check/locator_check.h"
#include "check/queue_panel.h"
#include "check/store_reading.h"
#include "check/time_check.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// The start of the check of one call: puts the desk in order, repairs what a check that broke off
/// has left, parts the store, and lets the checks find what the manager has to decide.
class CheckStart {
 public:
  CheckStart(ContestSession& session, FileSystem& files, Manager& manager, QueuePanel& queue,
             Archive& archive, ErrorReport& report, StoreReading& store, LocatorCheck& locators,
             TimeCheck& times, CheckSteps& steps, CheckForm& form, CheckState& state)
      : session_(session),
        files_(files),
        manager_(manager),
        queue_(queue),
        archive_(archive),
        report_(report),
        store_(store),
        locators_(locators),
        times_(times),
        steps_(steps),
        form_(form),
        state_(state) {}

  /// Starts the check of the chosen row.
  void listacall_banda_DblClick();

  /// Starts the check of the first row that waits for it, without asking.
  void prossimo_Click();

 private:
  bool MustReload();
  bool Agreed();
  void Prepare();
  void TakeRow(std::size_t row);
  bool AskForRecheck();
  void EnableDecisions(bool enabled);
  void ShowProgress(std::size_t done);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  QueuePanel& queue_;
  Archive& archive_;
  ErrorReport& report_;
  StoreReading& store_;
  LocatorCheck& locators_;
  TimeCheck& times_;
  CheckSteps& steps_;
  CheckForm& form_;
  CheckState& state_;
};

}  // namespace velmar
