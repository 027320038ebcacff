#pragma once

#include "intake/intake_panel.h"
#include "intake/intake_state.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/main_form.h"

namespace velmar {

/// The category and the band that a log declares: tests them, and lets the manager put others into
/// the log.
class CategoryChoice {
 public:
  enum class Verdict {
    kFits,
    kStays,   ///< the read ends; the manager may choose a category for the log
    kRefused  ///< the manager wants the log out of the way
  };

  CategoryChoice(FileSystem& files, Manager& manager, IntakePanel& panel, MainForm& form)
      : files_(files), manager_(manager), panel_(panel), form_(form) {}

  /// Tests the category and the band of a log. Of those that are admitted, one still has to be
  /// chosen anew, and is meant so.
  Verdict Test(IntakeState& log);

  /// Writes the chosen category and its band into the log, which then has to be read again. Of a
  /// category whose band is not known the log keeps its own.
  void Update(IntakeState& log);

 private:
  Verdict Ask(IntakeState& log, bool admitted);

  FileSystem& files_;
  Manager& manager_;
  IntakePanel& panel_;
  MainForm& form_;
};

}  // namespace velmar
