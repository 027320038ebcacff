#pragma once

#include "check/check_form.h"
#include "platform/manager.h"

namespace velmar {

/// Tells the manager to wait, for as long as it lives.
class Waiting {
 public:
  Waiting(Manager& manager, CheckForm& form) : form_(form) {
    form_.Attendi_calcolo.visible = true;
    manager.Progress(0, 1);  // so that the windows show it before the work begins
  }
  ~Waiting() { form_.Attendi_calcolo.visible = false; }
  Waiting(const Waiting&) = delete;
  Waiting& operator=(const Waiting&) = delete;

 private:
  CheckForm& form_;
};

}  // namespace velmar
