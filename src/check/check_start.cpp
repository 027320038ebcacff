#include "check/check_start.h"

#include <utility>

#include "model/classification_row.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr std::size_t kHeaderRow = 0;
constexpr std::size_t kStoreSteps = 4;  ///< read, part, write, compare

}  // namespace

void CheckStart::prossimo_Click() {
  if (queue_.ChooseFirstUnchecked()) {
    state_.progress.salta_conferma = true;
    listacall_banda_DblClick();
    state_.progress.salta_conferma = false;  // of a start that was refused as well
  }
}

void CheckStart::listacall_banda_DblClick() {
  const int chosen = form_.listacall_banda.selection;
  const auto row = static_cast<std::size_t>(chosen);
  if (MustReload() || chosen < 0 || row >= state_.queue.size() || !Agreed()) {
    return;
  }
  if (row == kHeaderRow || state_.queue.LooksLikeHeader(row)) {
    form_.ClearEvidence();
    return;
  }
  if (state_.queue.TooShort(row)) {
    manager_.Show(BrokenClassification());
    return;
  }
  Prepare();
  TakeRow(row);
  const std::string text = state_.queue.RowWithPosition(row);
  const bool checked = ClassificaRow(text).Checked();
  if (checked) {
    report_.Require();
  } else {
    report_.CutToHead();
  }
  if (checked && !AskForRecheck()) {
    EnableDecisions(false);
    return;
  }
  EnableDecisions(true);
  report_.BeginScore(text);
  form_.conf_err_time.caption = Join(CheckForm::kTimeError, state_.call_in_esame);
  form_.conf_err_RST.caption = Join(CheckForm::kReportError, state_.call_in_esame);
  if (!store_.Split(StoreReading::kForLocators, [this](std::size_t done) { ShowProgress(done); })) {
    return;
  }
  locators_.Build();
  if (form_.no_control_time.checked) {
    times_.Build();
  }
  ShowProgress(kStoreSteps);
  state_.progress.controllo_in_corso = true;
  form_.prossimo.visible = false;  // it would drop this check
  steps_.Advance();
}

bool CheckStart::MustReload() {
  if (session_.reload_needed) {
    manager_.Show({.lines = {" E' obbligatorio ricaricare la classifica "}});
  }
  return session_.reload_needed;
}

bool CheckStart::Agreed() {
  if (std::exchange(state_.progress.salta_conferma, false) || state_.progress.primo_vuoto_scelto) {
    return true;
  }
  return manager_.Show({.lines = {" Inizio il controllo ?"},
                        .icon = Icon::kQuestion,
                        .title = " Controllo call",
                        .buttons = Buttons::kYesNoCancel}) == Reply::kYes;
}

void CheckStart::Prepare() {
  form_.ClearLists();
  form_.ClearTimes();
  form_.ClearEvidence();
  form_.ClearUniqueHints();
  form_.ClearScore();
  steps_.Reset();
  state_.unici_saltati = false;
  state_.errore_in_arrivo = false;
  state_.errore_forzato = false;
  state_.unique_checked = false;
  state_.report_mode = false;
  state_.time_errors = 0;
  form_.sigla_call.value.clear();
  form_.conf_err_time.caption = CheckForm::kTimeError;
  form_.conf_err_RST.caption = CheckForm::kReportError;
  form_.Frame_unici.visible = false;
  form_.Frame_log.visible = false;
  form_.Frame_Controllo_locatori.visible = true;
  archive_.LoadBook();
}

void CheckStart::TakeRow(std::size_t row) {
  const ClassificaRow columns(state_.queue.Row(row));
  state_.indice_riga = row;
  state_.call_in_esame = columns.Call();
  form_.call_in_esame.caption = state_.call_in_esame;
  state_.locatore_in_esame = RTrim(columns.Locator());
  state_.dx_call = columns.Odx();
}

bool CheckStart::AskForRecheck() {
  if (manager_.Show(
          {.lines = {"Questo call è gia stato verificato, vuoi azzerare e ricalcolare ? "_a,
                     " ( se vuoi vuoi ri-verificare il log,  premi SI)           "},
           .icon = Icon::kQuestion,
           .title = "Verifica errori",
           .buttons = Buttons::kYesNo}) != Reply::kYes) {
    return false;
  }
  report_.CutToHead();
  manager_.Show({.lines = {" A T T E N Z I O N E  il report degli errori è stato cancellato e "_a,
                           " non verrà registrato se non si porta a termine il controllo."_a,
                           "I dati in classifica saranno sovrascritti al termine del controllo"}});
  return true;
}

void CheckStart::EnableDecisions(bool enabled) {
  for (Button* button :
       {&form_.QSO_ok, &form_.Tutti_call, &form_.Tutti_loc, &form_.conferma_errore,
        &form_.errore_call, &form_.convalida_qso_time, &form_.vis_err, &form_.not_inlog}) {
    button->enabled = enabled;
  }
}

void CheckStart::ShowProgress(std::size_t done) {
  form_.Bar1.maximum = kStoreSteps;
  form_.Bar1.value = std::to_string(done);
  form_.Bar1.visible = done < kStoreSteps;
  manager_.Progress(done, kStoreSteps);
}

}  // namespace velmar
