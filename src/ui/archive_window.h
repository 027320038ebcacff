#pragma once

#include "check/archive_form.h"
#include "ui/form_window.h"

namespace velmar {

/// The browser of the call book: all of its records, and beside them those that were found.
class ArchiveWindow : public FormWindow {
 public:
  ArchiveWindow(ArchiveForm& form, EventRunner& runner);
};

}  // namespace velmar
