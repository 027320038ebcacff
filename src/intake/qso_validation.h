#pragma once

#include "intake/intake_folder.h"
#include "intake/intake_panel.h"
#include "intake/intake_state.h"
#include "intake/qso_pass.h"
#include "model/contest_store.h"
#include "platform/manager.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// The pass over the QSO rows of the log that is being read: tests them by themselves, works out
/// the score, and starts the error list.
class QsoValidation {
 public:
  QsoValidation(ContestSession& session, FileSystem& files, Manager& manager, ContestStore& store,
                IntakeFolder& folder, IntakePanel& panel, MainForm& form)
      : session_(session),
        files_(files),
        manager_(manager),
        store_(store),
        folder_(folder),
        panel_(panel),
        form_(form) {}

  /// Runs the pass. Afterwards `invalid` and `pass_failed` of the log tell what to do: a pass that
  /// failed has told the manager, and the log lies where it lay or was refused; a log that is only
  /// invalid is still to be refused.
  void ValidateQsos(IntakeState& log);

 private:
  void Run(IntakeState& log);
  QsoFault TestRows(IntakeState& log, const std::vector<std::string>& rows);
  void TakeProblem(IntakeState& log, const QsoProblem& problem);
  void AddCwQso(IntakeState& log, const ValidatedQso& qso, char mode);
  void Close(IntakeState& log);
  void StartErrorList(const IntakeState& log, double declared);
  void Refuse(IntakeState& log, Refusal refusal);
  void Fail(IntakeState& log);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  ContestStore& store_;
  IntakeFolder& folder_;
  IntakePanel& panel_;
  MainForm& form_;
};

}  // namespace velmar
