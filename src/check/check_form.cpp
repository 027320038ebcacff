#include "check/check_form.h"

#include "model/columns.h"

namespace velmar {

namespace {

/// The titles over the columns of the queue that they belong to.
std::string QueueTitles() {
  struct Title {
    std::size_t column;
    std::string_view text;
  };
  constexpr Title kTitles[] = {
      {1, "Call"},  {14, "Locatore"}, {23, "Aslm"},     {28, "Antenna"}, {47, "Power"},
      {53, "Qso"},  {57, "Declared"}, {66, "odx"},      {77, "DX"},      {82, " Qrb"},
      {92, " err"}, {97, " errQRB"},  {105, " Finale"}, {117, "%"},      {124, "pos ."}};
  std::string titles;
  for (const Title& title : kTitles) {
    titles = Pad(titles, title.column - 1);
    titles += title.text;
  }
  return titles;
}

}  // namespace

CheckForm::CheckForm() {
  Frame_Classifica_gene_banda.caption = kQueueTitle;
  titoli.caption = QueueTitles();
  conf_err_time.caption = kTimeError;
  conf_err_RST.caption = kReportError;
  vis_err.tip = "Visualizza lista errori già in report"_a;
  NameLookUps("", "");
  ClearTimes();
  marca_unico.tip = "Il punteggio non verrà decurtato dal totale."_a;
  uscita2.visible = false;
  Cancella_log.visible = false;
  Frame_unici.caption = kUniqueTitle;
  Frame_log.visible = false;
  Label_info_errati.visible = false;
  Unici_in_attesa_conf.visible = false;
  Avviso.visible = false;
  Attendi_calcolo.visible = false;
  log_callda_cercare.enabled = false;
  Frame_unici.visible = false;
  Frame_Controllo_locatori.visible = false;
  Frame_solo_classifica.visible = false;
  La_info.visible = false;
  err_loc_log.visible = false;
  LBL_doppioclick.visible = false;
  List_errori.visible = false;
  prossimo.visible = false;
  Bar1.visible = false;
  for (Button* button : {&unici, &aggiorna_punt_class, &ordina}) {
    button->enabled = false;
  }
}

std::array<Label*, 6> CheckForm::AddSteps() {
  constexpr std::array kNames = {"1 Locatori", "2 Orari",      "3 Rapporti",
                                 "4 Unici",    "5 Not in log", "6 Classifica"};
  std::array<Label*, 6> steps{};
  for (std::size_t i = 0; i < steps.size(); ++i) {
    steps[i] = &In(Frame_esame, AddLabel(Join("passo_", i + 1), kNames[i]));
  }
  return steps;
}

void CheckForm::NameLookUps(std::string_view call, std::string_view locator) {
  constexpr std::size_t kSquare = 4;
  internet.caption = Join("cerca ", call, call.empty() ? "su QRZ" : " su QRZ");
  SEARC_loc.caption = Join("Mappa ", locator);
  ric_in_quel_locatore.caption = Join("cerca in ", Left(locator, kSquare));
}

void CheckForm::ClearEvidence() {
  for (Label* label : {&infoloc, &log_uguali, &log_diverso, &Locatore_in_log_arrivato}) {
    label->caption.clear();
  }
  err_loc_log.visible = false;
  LBL_doppioclick.visible = false;
  vedi_locator.caption = kMapOf;
  NameLookUps("", "");
  conferma_errore.colour.reset();
  QSO_ok.colour.reset();
}

void CheckForm::ClearUniqueHints() {
  for (Label* label : {&messaggio_unici, &messaggio_locatore, &Label12, &troppi_numeri, &pre_senze,
                       &nome_call, &Prob_call_corretto, &call_scorretto}) {
    label->caption.clear();
  }
  messaggio_unici.colour.reset();
  log_callda_cercare.caption = "cerca  sul log di ";
  Lista_simili.caption = kSimilarTitles;
  NameLookUps("", "");
  Avviso.visible = false;
  for (Button* button : {&ok_call_unici, &marca_unico, &CercaDtbIaru, &NO_in_log, &no_errore}) {
    button->colour.reset();
  }
  Frame_unici.caption = kUniqueTitle;
}

void CheckForm::ClearScore() {
  for (Label* label :
       {&evidenzia, &call_in_esame, &qrb_ufficiale, &err_count, &err_qrb, &qrb_finale}) {
    label->caption.clear();
  }
}

void CheckForm::ClearTimes() {
  Lista_err_orario.Fill({});
  for (Label* label : {&messaggio, &Label11, &kmerr}) {
    label->caption.clear();
  }
  Text3.value.clear();
  Frame_Log_errori_tempo.caption = "    Controllo orari    ";
  Label25.caption = " Errori di orario";
}

void CheckForm::HideErrors() {
  if (!List_errori.visible) {
    return;
  }
  List_errori.visible = false;
  vis_err.caption = vis_err2.caption = "Visualizza errori";
}

void CheckForm::ClearLists() {
  for (List* list : {&Lista_dubbi, &Lista_locatori, &Lista_err_orario, &Call_unici, &Lista_simili,
                     &lista_notlog, &List2_unici, &lista_call_unici, &List_errori}) {
    list->Fill({});
  }
  N_dubbi.caption.clear();
  num_unici.caption.clear();
  Unici_in_attesa_conf.visible = false;
  HideErrors();
}

}  // namespace velmar
