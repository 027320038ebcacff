#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/ansi.h"
#include "session/check_options.h"

namespace velmar {

/// The screen of the check desk: the queue, the call under examination, and a frame for each check.
struct CheckForm : CheckOptions {
  CheckForm();

  // The menus behind the options.
  Menu& load_cla_banda = AddMenu("load_cla_banda", "Carica classifica di banda");
  Menu& Vis_archivio = AddMenu("Vis_archivio", "Archivio");
  Menu& elimina_L = AddMenu("elimina_L", "&Elimina un log");
  Menu& torna_menu = AddMenu("torna_menu", "Exit - torna menu ");
  Menu& exit = AddMenu("exit", "uscita ( senza salvare dati)");
  Menu& uscita2 = AddMenu("uscita2", "&Esci");  ///< of the wide view

  // What to load.
  Frame& Frame1 = AddLabel("Frame1", "Carica una classifica");
  Option& Option3 = In(Frame1, AddOption("Option3", "2 IT  144 MHz"));
  Button& primo_carico = In(Frame1, AddButton("primo_carico", "Classifica da controllare"));
  Label& La_info = In(Frame1, AddLabel("La_info"));
  Button& exit_frame_caricacla = In(Frame1, AddButton("exit_frame_caricacla", "Nascondi"));

  // The queue.
  Frame& Frame_Classifica_gene_banda = AddLabel("Frame_Classifica_gene_banda");
  Label& bandaesame = In(Frame_Classifica_gene_banda, AddLabel("bandaesame"));  ///< file name
  Label& n_cla = In(Frame_Classifica_gene_banda, AddLabel("n_cla"));            ///< logs in it
  TextField& sigla_call = In(Frame_Classifica_gene_banda, AddText("sigla_call", "Call"));
  Button& vai_a_un_call =
      In(Frame_Classifica_gene_banda, AddButton("vai_a_un_call", "Vai a un call"));
  Button& primo_dacontrollare =
      In(Frame_Classifica_gene_banda, AddButton("primo_dacontrollare", "1°Vuoto"_a));
  Button& prossimo = In(Frame_Classifica_gene_banda, AddButton("prossimo", "prossimo"));
  Button& Visualizza_solo_classifica =
      In(Frame_Classifica_gene_banda, AddButton("Visualizza_solo_classifica", "Solo Classifica"));
  Label& LBL_doppioclick = In(Frame_Classifica_gene_banda, AddLabel("LBL_doppioclick"));
  Label& titoli = In(Frame_Classifica_gene_banda, AddLabel("titoli"));  ///< of the queue's columns
  List& listacall_banda = In(Frame_Classifica_gene_banda, AddList("listacall_banda"));

  // The call under examination: its row, its running score, the order of its checks.
  Frame& Frame_esame = AddLabel("Frame_esame", "Call in esame");
  Label& call_in_esame = In(Frame_esame, AddLabel("call_in_esame"));
  Label& qrb_ufficiale = In(Frame_esame, AddLabel("qrb_ufficiale"));  ///< points before the check
  Label& err_count = In(Frame_esame, AddLabel("err_count"));
  Label& err_qrb = In(Frame_esame, AddLabel("err_qrb"));        ///< points taken away
  Label& qrb_finale = In(Frame_esame, AddLabel("qrb_finale"));  ///< points that are left
  Label& evidenzia = In(Frame_esame, AddLabel("evidenzia"));
  std::array<Label*, 6> passi = AddSteps();
  Button& unici = In(Frame_esame, AddButton("unici", "verifica UNICI"));
  Button& aggiorna_punt_class =
      In(Frame_esame, AddButton("aggiorna_punt_class", "Aggiorna classifica"));
  Button& ordina = In(Frame_esame, AddButton("ordina", "ordina/save"));
  Button& vis_err = In(Frame_esame, AddButton("vis_err", "Vis. err"));
  Button& vis_err2 = In(Frame_esame, AddButton("vis_err2", "Vis.Errori"));
  Button& stampa_errori = In(Frame_esame, AddButton("stampa_errori", "Stampa errori"));
  List& List_errori = In(Frame_esame, AddList("List_errori"));
  ProgressBar& Bar1 = AddProgress("Bar1");

  // Doubtful locators.
  Frame& Frame_Controllo_locatori =
      AddLabel("Frame_Controllo_locatori", "    Controllo Locatori    ");
  Label& N_dubbi = In(Frame_Controllo_locatori, AddLabel("N_dubbi"));
  List& Lista_dubbi = In(Frame_Controllo_locatori,
                         AddList("Lista_dubbi", "Log         Call        Loc.   QRB  n.qso"));
  Button& conferma_errore =
      In(Frame_Controllo_locatori, AddButton("conferma_errore", "Error Locator"));
  Button& errore_call = In(Frame_Controllo_locatori, AddButton("errore_call", "Errore Call"));
  Button& not_inlog = In(Frame_Controllo_locatori, AddButton("not_inlog", "not in Log"));
  Button& QSO_ok = In(Frame_Controllo_locatori, AddButton("QSO_ok", "NON è un errore"_a));
  Label& infoloc = In(Frame_Controllo_locatori, AddLabel("infoloc"));          ///< verdict
  Label& log_uguali = In(Frame_Controllo_locatori, AddLabel("log_uguali"));    ///< same locator
  Label& log_diverso = In(Frame_Controllo_locatori, AddLabel("log_diverso"));  ///< another one
  Label& Locatore_in_log_arrivato =
      In(Frame_Controllo_locatori, AddLabel("Locatore_in_log_arrivato"));
  Label& err_loc_log =
      In(Frame_Controllo_locatori,
         AddLabel("err_loc_log", "Il locatore è diverso da quello del log arrivato"_a));
  List& Lista_locatori =
      In(Frame_Controllo_locatori, AddList("Lista_locatori", "Log         Call        Loc."));
  Button& vedi_locator =
      In(Frame_Controllo_locatori, AddButton("vedi_locator", "Visualizza in mappa il locatore : "));
  Button& internet2 = In(Frame_Controllo_locatori, AddButton("internet2", "Call in internet"));
  Button& Tutti_loc = In(Frame_Controllo_locatori, AddButton("Tutti_loc", "ric Loc"));
  Button& Tutti_call = In(Frame_Controllo_locatori, AddButton("Tutti_call", "ric Call"));

  // Differing times.
  Frame& Frame_Log_errori_tempo = AddLabel("Frame_Log_errori_tempo", "    Controllo orari    ");
  List& Lista_err_orario = In(Frame_Log_errori_tempo, AddList("Lista_err_orario"));
  Button& conf_err_time = In(Frame_Log_errori_tempo, AddButton("conf_err_time", ""));
  Button& conf_err_RST = In(Frame_Log_errori_tempo, AddButton("conf_err_RST", ""));
  Button& convalida_qso_time =
      In(Frame_Log_errori_tempo, AddButton("convalida_qso_time", "convalida il qso"));

  // Unique calls.
  Frame& Frame_unici = AddLabel("Frame_unici", "    Call unici    ");
  List& Call_unici =
      In(Frame_unici, AddList("Call_unici", "Log         Call        Loc.   QRB  n."));
  List& Lista_simili =
      In(Frame_unici, AddList("Lista_simili", "Log         Call        Loc.   QRB"));
  Button& Controlla_estero = In(Frame_unici, AddButton("Controlla_estero", "Cerca call estero"));
  Button& nasondi = In(Frame_unici, AddButton("nasondi", "SALTA"));

  // Where to look up the call or the locator of the item that is selected.
  Frame& Frame_ricerche = AddLabel("Frame_ricerche", "Ricerche");
  Button& database = In(Frame_ricerche, AddButton("database", "Cerca il call in archivio"));
  Button& CercaDtbIaru =
      In(Frame_ricerche, AddButton("CercaDtbIaru", "Cerca il locatore in archivio"));
  Button& ric_in_quel_locatore = In(Frame_ricerche, AddButton("ric_in_quel_locatore", "cerca in "));
  Button& internet = In(Frame_ricerche, AddButton("internet", "cerca su QRZ"));
  Button& SEARC_loc = In(Frame_ricerche, AddButton("SEARC_loc", "Mappa "));
  Button& espandi_archivio =
      In(Frame_ricerche, AddButton("espandi_archivio", "visualizza Archivio"));

  List& lista_call_unici =
      In(Frame_ricerche, AddList("lista_call_unici", "Loc.      Call        Log"));

  // The wide view, in place of all the rest.
  Frame& Frame_solo_classifica = AddLabel("Frame_solo_classifica", "Solo Classifica");
  TextField& Text1 = In(Frame_solo_classifica, AddText("Text1", "Classifica"));
  List& visualizza_classifica = In(Frame_solo_classifica, AddList("visualizza_classifica"));
  Button& esci_da_cla = In(Frame_solo_classifica, AddButton("esci_da_cla", "exit"));

  /// Empties what tells of the selected item.
  void ClearEvidence();

  /// Empties what tells of the call under examination.
  void ClearScore();

  /// Hides the error list of the call.
  void HideErrors();

  /// Empties the lists of the checks, and hides the error list.
  void ClearLists();

  static constexpr std::string_view kQueueTitle = "Classifica generale di banda";
  static constexpr std::string_view kTimeError = " conf. errore Time a : ";
  static constexpr std::string_view kReportError = " Conf. errore RST a : ";

 private:
  std::array<Label*, 6> AddSteps();
};

}  // namespace velmar
