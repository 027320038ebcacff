#pragma once

#include "platform/form.h"
#include "session/info_form.h"

namespace velmar {

/// The window about the program. Start-up has written the notice of a new version into its form.
class InfoWindow {
 public:
  InfoWindow(Screen& screen, InfoForm& form);

  void Open();
  void cmdOK_Click();

 private:
  Screen& screen_;
  InfoForm& form_;
};

}  // namespace velmar
