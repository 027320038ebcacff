#pragma once

#include "session/info_form.h"
#include "ui/form_window.h"

namespace velmar {

/// The window about the program.
class InfoPage : public FormWindow {
 public:
  InfoPage(InfoForm& form, EventRunner& runner);
};

}  // namespace velmar
