#pragma once

#include "session/month_dialog.h"
#include "ui/form_window.h"

namespace velmar {

/// The dialog that asks for the month and year of the contest. It must be confirmed.
class MonthWindow : public FormWindow {
 public:
  MonthWindow(MonthForm& form, EventRunner& runner);
};

}  // namespace velmar
