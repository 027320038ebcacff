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
  Menu& punteggio = AddMenu("punteggio", "Punteggio");
  Menu& elimina_L = AddMenu("elimina_L", "&Elimina un log");
  Menu& riordina = AddMenu("riordina", "riordina", &punteggio);
  Menu& Azzera_punteggio = AddMenu("Azzera_punteggio", "Reset Punteggio al declared", &punteggio);
  Menu& Visualizza_pulsante_aggiorna = AddMenu(
      "Visualizza_pulsante_aggiorna", "Visualizza pulsante Aggiorna classifica", &punteggio);
  Menu& Reset_cla_2IT = AddMenu("Reset_cla_2IT", "Riempi classifica 2IT", &punteggio);
  Menu& Svuota = AddMenu("Svuota", "Svuota Cla", &punteggio);
  Menu& stampa_classifica_di_banda =
      AddMenu("stampa_classifica_di_banda", "Stampa classifica di banda", &punteggio);
  Menu& torna_menu = AddMenu("torna_menu", "Exit - torna menu ");
  Menu& exit = AddMenu("exit", "uscita ( senza salvare dati)");
  Menu& Cancella_log = AddMenu("Cancella_log", "&Cancella un Log");  ///< of the wide view
  Menu& uscita2 = AddMenu("uscita2", "&Esci");                       ///< of the wide view

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
  Button& control_time = In(Frame_esame, AddButton("control_time", "Cnt time"));
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
      In(Frame_Controllo_locatori, AddButton("vedi_locator", std::string(kMapOf)));
  Button& internet2 = In(Frame_Controllo_locatori, AddButton("internet2", "Call in internet"));
  Button& Tutti_loc = In(Frame_Controllo_locatori, AddButton("Tutti_loc", "ric Loc"));
  Button& Tutti_call = In(Frame_Controllo_locatori, AddButton("Tutti_call", "ric Call"));

  // Differing times.
  Frame& Frame_Log_errori_tempo = AddLabel("Frame_Log_errori_tempo");
  Label& Label25 = In(Frame_Log_errori_tempo, AddLabel("Label25"));      ///< what the list is of
  Label& messaggio = In(Frame_Log_errori_tempo, AddLabel("messaggio"));  ///< outcome
  Label& Label11 = In(Frame_Log_errori_tempo, AddLabel("Label11"));      ///< titles of the list
  List& Lista_err_orario = In(Frame_Log_errori_tempo, AddList("Lista_err_orario"));
  Label& kmerr = In(Frame_Log_errori_tempo, AddLabel("kmerr"));     ///< points of the QSO
  TextField& Text3 = In(Frame_Log_errori_tempo, AddText("Text3"));  ///< QSOs whose reports agree
  Button& conf_err_time = In(Frame_Log_errori_tempo, AddButton("conf_err_time", ""));
  Button& conf_err_RST = In(Frame_Log_errori_tempo, AddButton("conf_err_RST", ""));
  Button& convalida_qso_time =
      In(Frame_Log_errori_tempo, AddButton("convalida_qso_time", "convalida il qso"));
  Button& vis_log = In(Frame_Log_errori_tempo, AddButton("vis_log", "visualizza log"));
  Button& cerca_qso_rst =
      In(Frame_Log_errori_tempo, AddButton("cerca_qso_rst", "cerca qso in rst"));

  // Unique calls, and behind them what is not in a log.
  Frame& Frame_unici = AddLabel("Frame_unici");
  Label& num_unici = In(Frame_unici, AddLabel("num_unici"));  ///< open items
  Label& Unici_in_attesa_conf =
      In(Frame_unici, AddLabel("Unici_in_attesa_conf", "Errori unici in attesa di conferma"));
  Label& ric_notinlog = In(Frame_unici, AddLabel("ric_notinlog"));
  Label& troppi_numeri = In(Frame_unici, AddLabel("troppi_numeri"));
  Label& messaggio_unici = In(Frame_unici, AddLabel("messaggio_unici"));
  Label& messaggio_locatore = In(Frame_unici, AddLabel("messaggio_locatore"));
  Label& Label12 = In(Frame_unici, AddLabel("Label12"));
  Label& nome_call = In(Frame_unici, AddLabel("nome_call"));
  Label& pre_senze = In(Frame_unici, AddLabel("pre_senze"));
  Label& Avviso = In(Frame_unici, AddLabel("Avviso", " Presenze"));
  List& Call_unici =
      In(Frame_unici, AddList("Call_unici", "Log         Call        Loc.   QRB  n."));
  Button& error_call_unici = In(Frame_unici, AddButton("error_call_unici", "Error Call"));
  Button& Errore_locatore = In(Frame_unici, AddButton("Errore_locatore", "Error locator"));
  Button& marca_unico = In(Frame_unici, AddButton("marca_unico", "Call unico"));
  Button& ok_call_unici = In(Frame_unici, AddButton("ok_call_unici", "NON è errore"_a));
  List& Lista_simili = In(Frame_unici, AddList("Lista_simili", std::string(kSimilarTitles)));
  List& lista_notlog = In(Frame_unici, AddList("lista_notlog"));
  Label& regola_notlog =
      In(Frame_unici, AddLabel("regola_notlog",
                               " ATTENZIONE.    Quando il corrispondente sbaglia a scrivere , E' "
                               "SEMPRE  un \"NOT IN LOG\" . "));
  Button& NO_in_log = In(Frame_unici, AddButton("NO_in_log", "NOT in log"));
  Button& no_errore = In(Frame_unici, AddButton("no_errore", "NO error"));
  List& List2_unici = In(Frame_unici, AddList("List2_unici", "Loc.      Call        Log"));
  Label& Prob_call_corretto = In(Frame_unici, AddLabel("Prob_call_corretto"));
  Label& call_scorretto = In(Frame_unici, AddLabel("call_scorretto"));
  Button& cerca_probabile =
      In(Frame_unici, AddButton("cerca_probabile", "Probabile call corretto"));
  Button& not_button = In(Frame_unici, AddButton("not", "not in log"));
  Button& log_callda_cercare =
      In(Frame_unici, AddButton("log_callda_cercare", "cerca  sul log di "));
  Button& log_call = In(Frame_unici, AddButton("log_call", "Vis. Log"));
  Button& vedi_log2 = In(Frame_unici, AddButton("vedi_log2", "visualizza log"));
  Button& cerca_qso = In(Frame_unici, AddButton("cerca_qso", "cerca qso"));
  Button& Controlla_estero = In(Frame_unici, AddButton("Controlla_estero", "Cerca call estero"));
  Button& nasondi = In(Frame_unici, AddButton("nasondi", "SALTA"));
  Frame& Attendi_calcolo = AddLabel("Attendi_calcolo", "ATTENDI....");  ///< seen during long work
  Label& calcolo_in_corso =
      In(Attendi_calcolo, AddLabel("calcolo_in_corso", "Calcolo in corso....."));

  // The log under examination beside another one.
  Frame& Frame_log = AddLabel("Frame_log", "Log");
  Label& Label16 = In(Frame_log, AddLabel("Label16"));
  List& List_log_call_esame = In(Frame_log, AddList("List_log_call_esame"));
  Label& Label17 = In(Frame_log, AddLabel("Label17"));
  List& List_log_corrispondente = In(Frame_log, AddList("List_log_corrispondente"));
  Label& Label_simile = In(Frame_log, AddLabel("Label_simile"));
  Label& Label_info_errati =
      In(Frame_log, AddLabel("Label_info_errati",
                             "(0)= OK o anagramma        (1) UN carattere errato nel call         "
                             "(2) DUE o più caratteri errati nel call"_a));
  Button& cerca_qso2 =
      In(Frame_log, AddButton("cerca_qso2", "Clicca per vedere eventuale errore nel call"));
  Button& cerca_primo_qso =
      In(Frame_log, AddButton("cerca_primo_qso", "cerca solo qso con il corrispondente"));
  Button& chiudi = In(Frame_log, AddButton("chiudi", "chiudi"));

  // Where to look up the call or the locator of the item that is selected.
  Frame& Frame_ricerche = AddLabel("Frame_ricerche", "Ricerche");
  Button& database = In(Frame_ricerche, AddButton("database", "Cerca il call in archivio"));
  Button& CercaDtbIaru =
      In(Frame_ricerche, AddButton("CercaDtbIaru", "Cerca il locatore in archivio"));
  Button& ric_in_quel_locatore = In(Frame_ricerche, AddButton("ric_in_quel_locatore", ""));
  Button& internet = In(Frame_ricerche, AddButton("internet", ""));
  Button& SEARC_loc = In(Frame_ricerche, AddButton("SEARC_loc", ""));
  Button& espandi_archivio =
      In(Frame_ricerche, AddButton("espandi_archivio", "visualizza Archivio"));

  List& lista_call_unici =
      In(Frame_ricerche, AddList("lista_call_unici", "Loc.      Call        Log"));

  // The wide view, in place of all the rest.
  Frame& Frame_solo_classifica = AddLabel("Frame_solo_classifica", "Solo Classifica");
  TextField& Text1 = In(Frame_solo_classifica, AddText("Text1", "Classifica"));
  List& visualizza_classifica = In(Frame_solo_classifica, AddList("visualizza_classifica"));
  Button& esci_da_cla = In(Frame_solo_classifica, AddButton("esci_da_cla", "exit"));

  /// Tells on the look-ups what they would look for; of nothing, where both are empty.
  void NameLookUps(std::string_view call, std::string_view locator);

  /// Empties what tells of the selected item.
  void ClearEvidence();

  /// Empties what tells of the selected unique call, and takes the advice back.
  void ClearUniqueHints();

  /// Empties what tells of the call under examination.
  void ClearScore();

  /// Empties what tells of differing times, and has the list be one of times.
  void ClearTimes();

  /// Hides the error list of the call.
  void HideErrors();

  /// Empties the lists of the checks, and hides the error list.
  void ClearLists();

  static constexpr std::string_view kQueueTitle = "Classifica generale di banda";
  static constexpr std::string_view kSimilarTitles = "Log         Call        Loc.   QRB";
  static constexpr std::string_view kUniqueTitle = "    Call unici    ";
  static constexpr std::string_view kMapOf = "Visualizza in mappa il locatore : ";
  static constexpr std::string_view kTimeError = " conf. errore Time a : ";
  static constexpr std::string_view kReportError = " Conf. errore RST a : ";

 private:
  std::array<Label*, 6> AddSteps();
};

}  // namespace velmar
