#pragma once

#include "platform/form.h"

namespace velmar {

/// The screen of the second step: recalculated logs on one side, renamed ones on the other.
struct RenamingForm : Form {
  RenamingForm();

  FileList& source = AddFileList("File1", "02 Log ricalcolati");
  FileList& destination = AddFileList("File_rinom_ati", "03 Log da inserire");
  List& List1 = AddList("List1", "Esito");              ///< what was done, a row a log
  List& List2 = AddList("List2", "File non inseriti");  ///< the logs that were set aside
  TextField& Text2 = AddText("Text2", "Voce");          ///< the row of List2 that was clicked
  Label& file_letti = AddLabel("file_letti");
  Label& file_doppi = AddLabel("file_doppi");
  Label& call_cambiati = AddLabel("call_cambiati");
  Label& file_nonvalidi = AddLabel("file_nonvalidi");
  Label& file_rinominati = AddLabel("file_rinominati");
  TextField& Text1 = AddText("Text1", "Log pronti da inserire");
  ProgressBar& progress = AddProgress("Bar1");
  Button& rinomina = AddButton("rinomina", "Rinomina i log");
  Button& torna_menu = AddButton("torna_menu", "&Torna al menu");
  Button& esci = AddButton("esci", "&Esci");
};

}  // namespace velmar
