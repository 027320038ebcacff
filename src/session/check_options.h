#pragma once

#include <array>

#include "platform/ansi.h"
#include "platform/form.h"
#include "session/settings.h"

namespace velmar {

/// The option menus of the check desk. The settings that the configuration dialog shows are ticks
/// of theirs; the desk adds the rest of its screen.
struct CheckOptions : Form {
  CheckOptions() : Form("VLM2M_02_Controlli", "") {}

  Menu& opzioni = AddMenu("opzioni", "option");
  Menu& no_control_time = AddMenu("no_control_time", "attiva controllo orario", &opzioni);
  Menu& NOT_IN_LOG = AddMenu("NOT_IN_LOG", "Attiva NOT in LOG", &opzioni);
  Menu& vis_mess = AddMenu("vis_mess", "Visualizzare messaggi", &opzioni);
  Menu& assegna_errore_qso = AddMenu("assegna_errore_qso", "Assegna errore a qso", &opzioni);
  Menu& NOT_ERROR = AddMenu(
      "NOT_ERROR", "Opz15 - Attivare in automatico 'Non è errore' su check locatori"_a, &opzioni);
  Menu& Pass_next = AddMenu("Pass_next", "Passaggio automatico", &opzioni);

  Menu& Unique = AddMenu("Unique", "UNICI");
  Menu& Check5 = AddMenu("Check5", "Opz1 - NON visualizzare i call sesono nel DataBase.", &Unique);
  Menu& Check6 =
      AddMenu("Check6", "Opz2 - NON visualizzare i call unici se hanno inviato il log.", &Unique);
  Menu& Check7 =
      AddMenu("Check7", "Opz3 - NON Visualizzare i call con più di 2 presenze."_a, &Unique);
  Menu& Check8 =
      AddMenu("Check8", "Opz4 - NON Visualizzare i call con più di 3 presenze."_a, &Unique);
  Menu& Check9 =
      AddMenu("Check9", "Opz5 - NON visualizzare errori altrui in \"not in log\"", &Unique);

  /// The item that bears the tick of a setting.
  Menu& ItemOf(Setting setting) {
    return *std::array{&no_control_time, &NOT_IN_LOG, &vis_mess, &assegna_errore_qso,
                       &Check5,          &Check6,     &Check7,   &Check8}
                .at(static_cast<std::size_t>(setting));
  }
};

}  // namespace velmar
