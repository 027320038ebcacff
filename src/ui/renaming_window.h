#pragma once

#include "intake/renaming_form.h"
#include "ui/folders_window.h"

namespace velmar {

/// The screen of the second step: the two folders, what was done and what was set aside below, and
/// the counters of the run.
class RenamingWindow : public FoldersWindow {
 public:
  RenamingWindow(RenamingForm& form, EventRunner& runner);

 private:
  QWidget* MakeOutcome(RenamingForm& form);
  QGroupBox* MakeList(List& list);
  QGroupBox* MakeSetAside(RenamingForm& form);
  QHBoxLayout* MakeCounters(RenamingForm& form);
};

}  // namespace velmar
