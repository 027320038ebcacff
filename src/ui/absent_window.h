#pragma once

#include "ui/form_window.h"
#include "utility/absent_form.h"

class QBoxLayout;
class QGridLayout;
class QHBoxLayout;

namespace velmar {

/// The absent stations. From top to bottom: the start with its progress, what was counted, the
/// three lists, and the rebuilt log with what it comes to beside it.
class AbsentWindow : public FormWindow {
 public:
  AbsentWindow(AbsentForm& form, EventRunner& runner);

  void Refresh() override;

 private:
  QHBoxLayout* MakeHead();
  QGridLayout* MakeCounters();
  QWidget* MakeLists();
  QWidget* MakeLog();
  QBoxLayout* MakeLogRows();
  QGridLayout* MakeFigures();

  AbsentForm& form_;
  QWidget* empty_ = nullptr;  ///< tells how to begin, where the lists are to be
};

}  // namespace velmar
