#pragma once

#include "session/config_dialog.h"
#include "ui/form_window.h"

class QGridLayout;

namespace velmar {

/// The dialog that shows the settings. It must be confirmed.
class ConfigWindow : public FormWindow {
 public:
  ConfigWindow(ConfigForm& form, EventRunner& runner);

 private:
  QGroupBox* MakeSettings(ConfigForm& form);
  void AddLine(QGridLayout& grid, const ConfigForm::Line& line, int row);
};

}  // namespace velmar
