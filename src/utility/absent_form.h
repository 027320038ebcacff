#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/ansi.h"
#include "platform/form.h"

namespace velmar {

/// The window of the absent stations: the calls that the logs worked, those among them that sent
/// none, and the log of one of these as the others tell it.
class AbsentForm : public Form {
  std::vector<std::pair<Label*, Label*>> figures_;  // ahead of the controls that enter it

 public:
  AbsentForm();

  Menu& con_trolla = AddMenu("con_trolla", "&Controlla");
  Menu& Es_sci = AddMenu("Es_sci", "&Esci");

  Label& Label_domanda = AddLabel("Label_domanda", kQuestion);
  Button& Verifica_assenti = AddButton("Verifica_assenti", "Start controllo");
  ProgressBar& Bar1 = AddProgress("Bar1");  ///< the stages of a run
  ProgressBar& Bar2 = AddProgress("Bar2");  ///< the rows of the library

  // What a run counts.
  Label& Log_inviati = AddLabel("Log_inviati");
  Label& call_effettivi = AddLabel("call_effettivi");
  Label& qsofraita = AddLabel("qsofraita");
  Label& qso_con_esteri = AddLabel("qso_con_esteri");
  Label& call_T = AddLabel("call_T");
  Label& call_log = AddLabel("call_log");
  Label& perc_log_inv = AddLabel("perc_log_inv");
  Label& no_log = AddLabel("no_log");
  Label& perc_assenti = AddLabel("perc_assenti");
  Label& Call_mancanti = AddLabel("Call_mancanti");

  // The lists, from left to right.
  Label& Label_sx = AddLabel("Label_sx", kLeft);
  List& List_libreria = AddList("List_libreria");
  Label& LB_list_libreria = AddLabel("LB_list_libreria");
  Label& Label_centro = AddLabel("Label_centro", kCentre);
  List& Call_assenti = AddList("Call_assenti");
  Label& LB_call_ass = AddLabel("LB_call_ass");
  Label& Label_dx = AddLabel("Label_dx", kRight);
  List& Lista = AddList("Lista");
  Label& LB_lista = AddLabel("LB_lista");
  Button& inverti_ordine_lista = AddButton("inverti_ordine_lista", kMinFirst);
  Button& stampa_assenti = AddButton("stampa_assenti", "Stampa lista");

  // The log of the chosen call.
  Frame& Frame_log = AddLabel("Frame_log", "Ricostruzione LOG tramite i dati dei log pervenuti");
  Label& Label_clicca =
      In(Frame_log, AddLabel("Label_clicca", "Clicca su un call per ricostruire il suo log"));
  Label& Label_call = AddFigure("Label_call", "CALL in esame");
  Label& n_qsoita_144 = AddFigure("n_qsoita_144", "qso italia");
  Label& km_qrbita144 = AddFigure("km_qrbita144", "QRB italia");
  Label& n_qso_est144 = AddFigure("n_qso_est144", "qso su log esteri");
  Label& km_qrbest144 = AddFigure("km_qrbest144", "QRB esteri");
  Label& progr_magg144 = AddFigure("progr_magg144", "Progressivo. magg.");
  Label& tot_qso144 = AddFigure("tot_qso144", "Totale qso");
  Label& tot_qrb144 = AddFigure("tot_qrb144", "Totale QRB");
  Label& media_144 = AddFigure("media_144", "media teorica");
  Label& punt_teorico144 = AddFigure("punt_teorico144", "Punteggio teorico");
  Label& pos_teo144 = AddFigure("pos_teo144", "Posizione Teorica");
  List& Log_assente =
      In(Frame_log,
         AddList("Log_assente",
                 "Prog      banda         call collegato        call missing            locator"
                 "             qrb"));
  Button& stampa_log_assente = In(Frame_log, AddButton("stampa_log_assente", "Stampa Log"));
  Label& tempo = In(Frame_log, AddLabel("tempo"));  ///< of the rebuilding, in seconds
  Label& label_secondi = In(Frame_log, AddLabel("label_secondi", "secondi"));

  Button& usci = AddButton("usci", "&Esci");

  /// What tells of the log of the chosen call, in order: each a title and a value.
  const std::vector<std::pair<Label*, Label*>>& figures() const { return figures_; }

  /// As it was before the first run.
  void Clear();

  /// Without a chosen call.
  void ClearLog();

  // What the next click on the inversion does.
  static constexpr const char* kMinFirst = "Inverti dal Min al Max";
  static constexpr const char* kMaxFirst = "Inverti dal Max al Min";

 private:
  Label& AddFigure(const std::string& name, const std::string& title);

  static constexpr const char* kQuestion =
      "IL CONTEST DI CHI NON C'ERA.   Qui possiamo vedere chi sono i call che hanno fatto qso con "
      "gli OM in contest ma non hanno inviato il log.";
  static constexpr AnsiView kLeft =
      "Nella finestra a sx sono elencati tutti i call trovati nei log arrivati e, in quanti log "
      "il call è presente."_a;
  static constexpr AnsiView kCentre =
      "In centro c'è l'elenco dei call che non hanno inviato il log e il numero di qso trovati "
      "negli altri log"_a;
  static constexpr AnsiView kRight =
      "Nella finestra a dx lo stesso elenco in ordine di qso del quale è possibile ricostruire "
      "il log teorico."_a;
};

}  // namespace velmar
