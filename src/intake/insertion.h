#pragma once

#include "intake/intake_folder.h"
#include "intake/intake_panel.h"
#include "intake/intake_state.h"
#include "intake/log_filing.h"
#include "intake/log_reading.h"

namespace velmar {

/// The third step of the procedure, from a named log to a filed one, on the main screen: joins its
/// commands to reading and filing.
class Insertion {
 public:
  Insertion(ContestSession& session, FileSystem& files, Manager& manager, ContestStore& store,
            MonthAssignment& months, MainForm& form);

  const IntakeState& log() const { return log_; }

 private:
  IntakeState log_;
  IntakeFolder folder_;
  IntakePanel panel_;
  LogFiling filing_;
  LogReading reading_;
};

}  // namespace velmar
