#pragma once

#include "publish/export_form.h"
#include "ui/form_window.h"

class QBoxLayout;
class QHBoxLayout;

namespace velmar {

/// The month's workbook. From top to bottom: what it is made of, the choices, and the run with its
/// progress.
class ExportWindow : public FormWindow {
 public:
  ExportWindow(ExportForm& form, EventRunner& runner);

 private:
  QHBoxLayout* MakeHead();
  QHBoxLayout* MakeChoices();
  QWidget* MakeStatistics();
  QWidget* MakeCallAreas();
  QWidget* MakePage();
  QBoxLayout* MakeRun();

  ExportForm& form_;
};

}  // namespace velmar
