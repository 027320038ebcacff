#include "check/check_desk.h"

#include <utility>

#include "check/locator_messages.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "session/config_dialog.h"
#include "session/version.h"

namespace velmar {

CheckDesk::CheckDesk(ContestSession& session, const Ports& ports, ContestStore& store,
                     Screen& screen, MainForm& main, CheckForm& form)
    : session_(session),
      ports_(ports),
      screen_(screen),
      main_(main),
      form_(form),
      trap_(ports.manager),
      steps_(form),
      options_(session, ports.manager, form),
      reading_(session, ports.files, ports.manager, store, state_),
      queue_(session, ports.files, ports.manager, steps_, form, state_),
      archive_(session, ports.files, ports.manager, ports.web, reading_, screen, form, state_),
      report_(session, ports.files, ports.manager, ports.printer, form, state_),
      views_(session, ports.files, ports.manager, form, state_),
      locators_(session, ports.files, ports.manager, report_, steps_, form, state_),
      times_(session, ports.files, ports.manager, store, report_, views_, steps_, form, state_),
      not_in_log_(session, ports.manager, reading_, report_, steps_, form, state_),
      unique_(session, ports.files, ports.manager, reading_, report_, not_in_log_, steps_, form,
              state_),
      start_(session, ports.files, ports.manager, queue_, archive_, report_, reading_, locators_,
             times_, steps_, form, state_),
      score_(session, ports.files, ports.manager, ports.printer, queue_, report_, steps_, form,
             state_),
      removal_(session, ports.manager, store, queue_, form, state_) {
  JoinQueue();
  JoinChecks();
  JoinTimes();
  JoinUnique();
  JoinViews();
  JoinScore();
  JoinArchive();
}

void CheckDesk::On(Control& control, int step, std::function<void()> event) {
  control.on_click = [this, step, event = std::move(event)] { trap_.Procedure(step, event); };
}

/// Runs the start of a check. One that fails leaves nothing to decide on.
void CheckDesk::Start(int step, const std::function<void()>& start) {
  if (!trap_.Procedure(step, start)) {
    form_.Bar1.visible = false;
    form_.ClearLists();
    steps_.Reset();
  }
}

void CheckDesk::JoinQueue() {
  On(form_.Option3, 10, [this] { queue_.LeggiclassificA(); });
  On(form_.primo_carico, 11, [this] { queue_.primo_carico_Click(); });
  On(form_.load_cla_banda, 12, [this] { form_.Frame1.visible = true; });
  On(form_.exit_frame_caricacla, 13, [this] { form_.Frame1.visible = false; });
  On(form_.primo_dacontrollare, 14, [this] { queue_.primo_dacontrollare_Click(); });
  On(form_.vai_a_un_call, 15, [this] { queue_.vai_a_un_call_Click(); });
  form_.sigla_call.on_key = [this](const std::string& key) {
    if (key == "Enter") {
      queue_.vai_a_un_call_Click();
    }
  };
  form_.listacall_banda.on_double_click = [this] {
    Start(20, [this] { start_.listacall_banda_DblClick(); });
  };
  form_.prossimo.on_click = [this] { Start(21, [this] { start_.prossimo_Click(); }); };
  On(form_.Visualizza_solo_classifica, 16, [this] { queue_.Visualizza_solo_classifica_Click(); });
  On(form_.esci_da_cla, 17, [this] { removal_.esci_da_cla_Click(); });
  On(form_.uscita2, 17, [this] { removal_.esci_da_cla_Click(); });
  On(form_.Cancella_log, 19, [this] { removal_.Cancella_log_Click(); });
  On(form_.visualizza_classifica, 22, [this] { removal_.visualizza_classifica_Click(); });
  On(form_.elimina_L, 18, [this] {
    ports_.manager.Show({.lines = {" Clicca sul pulsante in basso a destra 'SOLO CLASSIFICA'"}});
  });
  On(form_.torna_menu, 30, [this] { torna_menu_Click(); });
  On(form_.exit, 31, [this] { exit_Click(); });
}

void CheckDesk::JoinChecks() {
  On(form_.Lista_dubbi, 40, [this] { locators_.Lista_dubbi_Click(); });
  On(form_.Lista_locatori, 41, [this] { locators_.Lista_locatori_Click(); });
  On(form_.conferma_errore, 42, [this] { locators_.conferma_errore_Click(); });
  On(form_.errore_call, 43, [this] { locators_.errore_call_Click(); });
  On(form_.not_inlog, 44, [this] { locators_.not_inlog_Click(); });
  On(form_.QSO_ok, 45, [this] { locators_.QSO_ok_Click(); });
  On(form_.vis_err, 50, [this] { report_.vis_err_Click(); });
  On(form_.vis_err2, 50, [this] { report_.vis_err_Click(); });
  On(form_.List_errori, 51, [this] { report_.List_errori_Click(); });
  On(form_.stampa_errori, 52, [this] { report_.stampa_errori_Click(); });
}

void CheckDesk::JoinTimes() {
  On(form_.control_time, 80, [this] { times_.control_time_Click(); });
  On(form_.Lista_err_orario, 81, [this] { times_.Lista_err_orario_Click(); });
  On(form_.conf_err_time, 82, [this] { times_.conf_err_time_Click(); });
  On(form_.conf_err_RST, 83, [this] { times_.conf_err_RST_Click(); });
  On(form_.convalida_qso_time, 84, [this] { times_.convalida_qso_time_Click(); });
}

void CheckDesk::JoinUnique() {
  On(form_.unici, 90, [this] { unique_.unici_Click(); });
  On(form_.Call_unici, 91, [this] { unique_.Call_unici_Click(); });
  On(form_.error_call_unici, 92, [this] { unique_.error_call_unici_Click(); });
  On(form_.Errore_locatore, 93, [this] { unique_.Errore_locatore_Click(); });
  On(form_.marca_unico, 94, [this] { unique_.marca_unico_Click(); });
  On(form_.ok_call_unici, 95, [this] { unique_.ok_call_unici_Click(); });
  On(form_.nasondi, 46, [this] { unique_.nasondi_Click(); });
  for (List* list : {&form_.lista_call_unici, &form_.List2_unici}) {
    On(*list, 96, [this, list] { unique_.ChooseListed(*list); });
  }
  On(form_.cerca_probabile, 97, [this] { unique_.cerca_probabile_Click(); });
  On(form_.Unici_in_attesa_conf, 98, [this] { unique_.Unici_in_attesa_conf_Click(); });
  On(form_.not_button, 100, [this] { not_in_log_.not_Click(); });
  On(form_.Lista_simili, 101, [this] { not_in_log_.Lista_simili_Click(); });
  On(form_.lista_notlog, 104, [this] { not_in_log_.lista_notlog_Click(); });
  On(form_.NO_in_log, 102, [this] { not_in_log_.NO_in_log_Click(); });
  On(form_.no_errore, 103, [this] { not_in_log_.no_errore_Click(); });
}

void CheckDesk::JoinViews() {
  On(form_.log_callda_cercare, 110, [this] { views_.log_callda_cercare_Click(); });
  On(form_.log_call, 111, [this] { views_.vis_log_Click(); });
  On(form_.vis_log, 111, [this] { views_.vis_log_Click(); });
  On(form_.List_log_call_esame, 112, [this] { views_.List_log_call_esame_Click(); });
  On(form_.vedi_log2, 113, [this] { views_.vedi_log2_Click(); });
  On(form_.cerca_qso, 114, [this] { views_.cerca_qso_Click(); });
  On(form_.cerca_qso2, 115, [this] { views_.cerca_qso2_Click(); });
  On(form_.cerca_primo_qso, 116, [this] { views_.cerca_primo_qso_Click(); });
  On(form_.cerca_qso_rst, 117, [this] { views_.cerca_qso_rst_Click(); });
  On(form_.chiudi, 118, [this] { views_.chiudi_Click(); });
}

void CheckDesk::JoinScore() {
  On(form_.aggiorna_punt_class, 120, [this] { score_.aggiorna_punt_class_Click(); });
  On(form_.ordina, 121, [this] { score_.ordina_Click(); });
  On(form_.riordina, 122, [this] { score_.riordina_Click(); });
  On(form_.Azzera_punteggio, 123, [this] { score_.Azzera_punteggio_Click(); });
  On(form_.Reset_cla_2IT, 124, [this] { score_.Reset_cla_2IT_Click(); });
  On(form_.Svuota, 125, [this] { score_.Svuota_Click(); });
  On(form_.Visualizza_pulsante_aggiorna, 126,
     [this] { score_.Visualizza_pulsante_aggiorna_Click(); });
  On(form_.stampa_classifica_di_banda, 127, [this] { score_.stampa_classifica_di_banda_Click(); });
}

void CheckDesk::JoinArchive() {
  On(form_.database, 60, [this] { archive_.database_Click(); });
  On(form_.CercaDtbIaru, 61, [this] { archive_.CercaDtbIaru_Click(); });
  On(form_.Controlla_estero, 62, [this] { archive_.Controlla_estero_Click(); });
  On(form_.Tutti_call, 63, [this] { archive_.Tutti_call_Click(); });
  On(form_.Tutti_loc, 64, [this] { archive_.Tutti_loc_Click(); });
  On(form_.ric_in_quel_locatore, 65, [this] { archive_.ric_in_quel_locatore_Click(); });
  On(form_.Vis_archivio, 66, [this] { archive_.Vis_archivio_Click(); });
  On(form_.espandi_archivio, 66, [this] { archive_.espandi_archivio_Click(); });
  On(archive_.form().chiudi_archivio, 67, [this] { archive_.chiudi_archivio_Click(); });
  On(archive_.form().cerca, 68, [this] { archive_.cerca_Click(); });
  On(form_.internet, 69, [this] { archive_.internet_Click(); });
  On(form_.internet2, 69, [this] { archive_.internet_Click(); });
  On(form_.SEARC_loc, 70, [this] { archive_.SEARC_loc_Click(); });
  On(form_.vedi_locator, 71, [this] { archive_.vedi_locator_Click(); });
}

void CheckDesk::ReadParticipants() {
  const auto text =
      ReadIfThere(ports_.files, session_.workspace.store_file(StoreFile::kPartecipanti));
  FillWithLines(session_.participants, text ? *text : std::string_view());
  if (!text) {
    ports_.manager.Show(MissingParticipants());
  }
}

void CheckDesk::Open() {
  trap_.Procedure(1, [this] {
    ReadParticipants();
    form_.title = Join("V A R T O  VLM - by Iz9qqq  ", session_.category_month, kVersionLong);
    options_.Show();
    form_.Frame1.visible = true;
    queue_.ScanCategories();
  });
  screen_.Hide(main_);
  screen_.Show(form_);
  if (session_.log_inserted_since_load && session_.classifica_loaded) {
    ports_.manager.Show(
        {.lines = {" è stato inserito un log, è necessario ricaricare la classifica"_a}});
    session_.log_inserted_since_load = false;
    session_.reload_needed = true;
  }
}

void CheckDesk::torna_menu_Click() {
  if (state_.progress.classifica_da_salvare) {
    ports_.manager.Show({.lines = {" DEVI SALVARE E ORDINARE LA CLASSIFICA PRIMA DI USCIRE"}});
    return;
  }
  if (state_.progress.controllo_in_corso) {
    ports_.manager.Show({.lines = {" Devi finire il controllo in atto prima di uscire "}});
    return;
  }
  SaveSettings(session_, ports_.files, form_);
  const bool waiting = HoldsFiles(ports_.files, session_.workspace.to_insert());
  Leave();
  if (waiting) {
    main_.Inserire_log.enabled = true;
    main_.Inserire_log.checked = false;
  }
}

void CheckDesk::exit_Click() {
  Leave();
}

void CheckDesk::Leave() {
  queue_.LeaveWideView();
  queue_.Clear();
  state_.progress = {};
  form_.Option3.checked = false;
  form_.Frame_Classifica_gene_banda.caption = CheckForm::kQueueTitle;
  archive_.HideWindows();
  screen_.Hide(form_);
  screen_.Show(main_);
}

}  // namespace velmar
