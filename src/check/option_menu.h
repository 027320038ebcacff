#pragma once

#include "check/check_form.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// The options of the desk: their ticks, and the settings that eight of them are.
class OptionMenu {
 public:
  OptionMenu(ContestSession& session, Manager& manager, CheckForm& form);

  /// The ticks as the settings have them. Opz5 is off; Opz15 stays as it was in this run.
  void Show();

 private:
  void Toggle(Setting setting);
  void ToggleExclusive(Setting setting, Setting other);
  void Set(Setting setting, bool on);
  void NOT_ERROR_Click();

  ContestSession& session_;
  Manager& manager_;
  CheckForm& form_;
};

}  // namespace velmar
