#pragma once

#include "platform/ansi.h"
#include "platform/form.h"

namespace velmar {

/// The list that the look-ups of the desk fill.
struct NoticesForm : Form {
  NoticesForm() : Form("Varto_23_avv", "Risultato della ricerca") {}

  List& List_avvisi = AddList("List_avvisi");
  Label& Label1 =
      AddLabel("Label1", "P = significa che il locatore è dichiarato nel log inviato"_a);
  Label& Label2 =
      AddLabel("Label2", "L = significa che il locatore è stato desunto da almeno 10 log"_a);
  Button& cmdOK = AddButton("cmdOK", "Chiudi");
};

}  // namespace velmar
