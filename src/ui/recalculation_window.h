#pragma once

#include "intake/recalculation.h"
#include "ui/folders_window.h"

namespace velmar {

/// The screen of the first step: the two folders, what became of each log below.
class RecalculationWindow : public FoldersWindow {
 public:
  RecalculationWindow(RecalculationForm& form, EventRunner& runner);

 private:
  QGroupBox* MakeOutcome(RecalculationForm& form);
};

}  // namespace velmar
