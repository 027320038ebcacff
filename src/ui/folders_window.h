#pragma once

#include "ui/form_window.h"

class QGroupBox;
class QHBoxLayout;

namespace velmar {

/// The window of a step that takes the logs of one folder to another: the two folders side by side,
/// each with the number of its files, what became of the logs below, the commands at the bottom.
class FoldersWindow : public FormWindow {
 public:
  FoldersWindow(Form& form, EventRunner& runner, FileList& source, FileList& destination);

  void Refresh() override;

 protected:
  /// The bar of a run, with the number of its logs at the end of the row.
  QHBoxLayout* MakeProgress(ProgressBar& progress, TextField& count);

  /// Takes what stands below the folders, makes the buttons, and finishes the layout.
  void Complete(QWidget* outcome, const std::vector<Button*>& buttons);

 private:
  /// A file list with its caption, which tells the number of files too.
  struct Folder {
    const FileList* list;
    QGroupBox* group;
  };

  Folder MakeFolder(FileList& list);
  QHBoxLayout* MakeCommands(const std::vector<Button*>& buttons);

  std::vector<Folder> folders_;
};

}  // namespace velmar
