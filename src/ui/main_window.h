#pragma once

#include "session/main_form.h"
#include "ui/form_window.h"

class QVBoxLayout;
class QGridLayout;

namespace velmar {

/// The main screen: the menu, the intake of logs on the left, the header of the log on the right.
/// While neither is to be seen, the numbered steps of the menu stand in their place.
class MainWindow : public FormWindow {
 public:
  MainWindow(MainForm& form, EventRunner& runner);

  void Refresh() override;

 private:
  QWidget* MakeIntake();
  QVBoxLayout* MakeFiles();
  QWidget* MakeHeader();
  void AddHeaderField(QGridLayout& grid, TextField& field, int row, int column);
  QWidget* MakeSteps();
  void MakeStatus();

  MainForm& form_;
  QWidget* intake_ = nullptr;
  QWidget* header_ = nullptr;
  QWidget* steps_ = nullptr;
};

}  // namespace velmar
