#pragma once

#include "session/main_form.h"
#include "ui/form_window.h"

class QGridLayout;
class QHBoxLayout;
class QVBoxLayout;

namespace velmar {

/// The main screen: the menu, the intake of logs on the left, the header of the log on the right.
/// While neither is to be seen, the numbered steps of the menu stand in their place.
class MainWindow : public FormWindow {
 public:
  MainWindow(MainForm& form, EventRunner& runner);

  void Refresh() override;

 private:
  QWidget* MakeIntake();
  QVBoxLayout* MakeCommands();
  QVBoxLayout* MakeModes();
  QVBoxLayout* MakeFiles();
  QWidget* MakeSteps();
  void MakeStatus();

  // The header of the log: a row of cells after another, each with its caption above it.
  struct Cell {
    QLabel* caption;
    QWidget* widget;
    int span;  ///< of the twelve columns of a row
  };
  QWidget* MakeHeader();
  QHBoxLayout* MakeHeadline();
  QWidget* MakeOwner();
  QWidget* MakeStation();
  QWidget* MakeClaims();
  QWidget* MakeResults();
  QVBoxLayout* MakeRemarks();

  /// What the remarks decide, with their caption: the operator mark, and the section.
  QHBoxLayout* MakeMarks(QLabel* caption);

  Cell FieldCell(TextField& field, int span);
  Cell NewCategoryCell(int span);
  Cell ResultCell(TextField& field, int span);
  static void AddRow(QGridLayout& grid, const std::vector<Cell>& cells);

  MainForm& form_;
  QWidget* intake_ = nullptr;
  QWidget* header_ = nullptr;
  QWidget* steps_ = nullptr;
};

}  // namespace velmar
