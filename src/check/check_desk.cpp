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
      queue_(session, ports.files, ports.manager, steps_, form, state_),
      archive_(session, ports.files, ports.manager, ports.web, store, screen, form, state_),
      report_(session, ports.files, ports.manager, ports.printer, form, state_),
      locators_(session, ports.files, ports.manager, report_, steps_, form, state_),
      start_(session, ports.files, ports.manager, queue_, archive_, report_, locators_, steps_,
             form, state_) {
  JoinQueue();
  JoinChecks();
  JoinArchive();
}

void CheckDesk::On(Control& control, int step, std::function<void()> event) {
  control.on_click = [this, step, event = std::move(event)] { trap_.Procedure(step, event); };
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
    trap_.Procedure(20, [this] { start_.listacall_banda_DblClick(); });
    form_.Bar1.visible = false;  // a start that failed leaves it
  };
  form_.prossimo.on_click = [this] {
    trap_.Procedure(21, [this] { start_.prossimo_Click(); });
    form_.Bar1.visible = false;
  };
  On(form_.Visualizza_solo_classifica, 16, [this] { queue_.Visualizza_solo_classifica_Click(); });
  On(form_.esci_da_cla, 17, [this] { queue_.LeaveWideView(); });
  On(form_.uscita2, 17, [this] { queue_.LeaveWideView(); });
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
  On(form_.nasondi, 46, [this] { nasondi_Click(); });
  On(form_.vis_err, 50, [this] { report_.vis_err_Click(); });
  On(form_.vis_err2, 50, [this] { report_.vis_err_Click(); });
  On(form_.List_errori, 51, [this] { report_.List_errori_Click(); });
  On(form_.stampa_errori, 52, [this] { report_.stampa_errori_Click(); });
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

void CheckDesk::nasondi_Click() {
  form_.ClearLists();
  form_.ClearEvidence();
  state_.unici_saltati = true;
  steps_.SkipToUpdate();
  ports_.manager.Show({.lines = {" Hai saltato il controllo dei call unici/errati",
                                 " per proseguire clicca sul pulsante VERDE"}});
}

}  // namespace velmar
