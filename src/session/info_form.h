#pragma once

#include "platform/form.h"

namespace velmar {

/// The information window, as far as start-up writes the notice of a new version into it.
struct InfoForm : Form {
  InfoForm() : Form("VLM2M_17_info", "") {}

  Label& lblVersion = AddLabel("lblVersion");  ///< the version in use and the new one
  Label& Label2 = AddLabel("Label2");          ///< that there is a new one
};

}  // namespace velmar
