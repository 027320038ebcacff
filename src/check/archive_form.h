#pragma once

#include "platform/form.h"

namespace velmar {

/// The browser of the call book.
struct ArchiveForm : Form {
  ArchiveForm() : Form("VLM2M_19_Archivio", "Archivio dei call") {}

  Label& tot_in_archivio = AddLabel("tot_in_archivio");
  Button& cerca = AddButton("cerca", "cerca");
  Button& chiudi_archivio = AddButton("chiudi_archivio", "Chiudi Archivio");
  List& lista_archivio =
      AddList("lista_archivio", "Call                         Locator    Last Date   Log     Band");
  List& Lista_trovati = AddList("Lista_trovati", "Trovati");
  ProgressBar& Bar1 = AddProgress("Bar1");
};

}  // namespace velmar
