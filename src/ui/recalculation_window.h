#pragma once

#include "intake/recalculation.h"
#include "ui/form_window.h"

class QHBoxLayout;

namespace velmar {

/// The screen of the first step: the two folders side by side, what became of each log below.
class RecalculationWindow : public FormWindow {
 public:
  RecalculationWindow(RecalculationForm& form, EventRunner& runner);

  void Refresh() override;

 private:
  /// A file list with its caption, which tells the number of files too.
  struct Folder {
    const FileList* list;
    QGroupBox* group;
  };

  Folder MakeFolder(FileList& list);
  QGroupBox* MakeOutcome(RecalculationForm& form);
  QHBoxLayout* MakeCommands(RecalculationForm& form);

  std::vector<Folder> folders_;
};

}  // namespace velmar
