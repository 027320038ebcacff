#pragma once

#include "check/notices_form.h"
#include "ui/form_window.h"

namespace velmar {

/// The list that the look-ups of the desk fill, and what the marks in its rows mean.
class NoticesWindow : public FormWindow {
 public:
  NoticesWindow(NoticesForm& form, EventRunner& runner);
};

}  // namespace velmar
