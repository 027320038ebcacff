#pragma once

#include "check/check_form.h"
#include "check/check_state.h"
#include "check/queue_panel.h"
#include "model/contest_store.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// Takes a log out of the contest, from the wide view: it goes back among those to be inserted, and
/// its rows go out of every file of the store.
class LogRemoval {
 public:
  LogRemoval(ContestSession& session, Manager& manager, ContestStore& store, QueuePanel& queue,
             CheckForm& form, CheckState& state)
      : session_(session),
        manager_(manager),
        store_(store),
        queue_(queue),
        form_(form),
        state_(state) {}

  /// Arms the removal.
  void Cancella_log_Click();

  /// Removes the log of the row that was clicked, where the removal is armed and the manager says
  /// so three times.
  void visualizza_classifica_Click();

  /// Leaves the wide view; behind a removal the classification has to be read again.
  void esci_da_cla_Click();

 private:
  bool Confirmed();
  void TellMissing(const Removal& removal);

  ContestSession& session_;
  Manager& manager_;
  ContestStore& store_;
  QueuePanel& queue_;
  CheckForm& form_;
  CheckState& state_;
  bool armed_ = false;
  bool removed_ = false;
};

}  // namespace velmar
