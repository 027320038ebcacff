#pragma once

#include "platform/ansi.h"
#include "platform/form.h"

namespace velmar {

/// The window about the program: its name and version, the notice of a new one, and what whoever
/// uses it is to know.
struct InfoForm : Form {
  InfoForm() : Form("VLM2M_17_info", "") { Text4.value = kDisclaimer; }

  Label& picIcon = AddLabel("picIcon");
  Label& lblTitle = AddLabel("lblTitle");
  Label& Label_info = AddLabel("Label_info");  ///< name, date and version
  Label& lblVersion = AddLabel("lblVersion");  ///< the version in use and the new one
  Label& Label2 = AddLabel("Label2");          ///< that there is a new one
  Label& lblDescription = AddLabel("lblDescription", kDescription);
  TextField& Text4 = AddText("Text4");  ///< the disclaimer
  Button& cmdOK = AddButton("cmdOK", "OK");

 private:
  static constexpr AnsiView kDescription =
      "Ricalcolo, inserimento e controllo dei log del contest VHF 144 MHz"_a;
  static constexpr AnsiView kDisclaimer =
      "Questo programma è gratuito, per il solo uso radioamatoriale. Viene fornito così com'è, senza alcuna garanzia: chi lo usa ne controlla i risultati. Chi non è d'accordo è pregato di non usarlo."_a;
};

}  // namespace velmar
