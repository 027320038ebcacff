#include "check/queue_panel.h"

#include <algorithm>

#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr std::size_t kRowsAboveChosen = 3;

std::string_view NameOf(std::string_view path) {
  const std::size_t slash = path.find_last_of("\\/");
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

}  // namespace

Box LoadClassificationFirst() {
  return {.lines = {" è necessario caricare una classifica"_a}};
}

Box BrokenClassification() {
  return {.lines = {" file clssifica corrotto o non valido "}};
}

void QueuePanel::ScanCategories() {
  const auto text = ReadIfThere(files_, session_.workspace.classification(session_.category_month));
  const auto rows = SplitLines(text ? *text : std::string_view());
  const bool open = rows.size() > 1 && std::any_of(rows.begin() + 1, rows.end(), ToBeChecked);
  form_.La_info.caption =
      open ? "In rosso sono le categorie in cui non sono terminati i controlli." : "";
  form_.La_info.visible = open;
  form_.Option3.colour = open ? std::optional(colour::kRed) : std::nullopt;
}

void QueuePanel::Clear() {
  const CheckProgress progress = state_.progress;
  state_ = {};
  state_.progress = progress;
  form_.listacall_banda.Fill({});
  form_.ClearLists();
  form_.ClearTimes();
  form_.ClearEvidence();
  form_.ClearUniqueHints();
  form_.Frame_log.visible = false;
  form_.ClearScore();
  form_.bandaesame.caption.clear();
  form_.n_cla.caption.clear();
  form_.Frame_unici.visible = false;
  form_.Frame_Controllo_locatori.visible = false;
  form_.prossimo.visible = false;
  form_.conf_err_time.caption = "conf. errore Time a :";
  form_.conf_err_RST.caption = CheckForm::kReportError;
  steps_.Reset();
}

bool QueuePanel::Load(const std::string& path, const std::string& name) {
  state_.categoria = CategoryCode(name);
  state_.classification_path = path;
  if (!state_.queue.Read(files_.ReadAll(path))) {
    manager_.Show(BrokenClassification());
    return false;
  }
  form_.listacall_banda.Fill(state_.queue.Shown());
  form_.bandaesame.caption = name;
  form_.n_cla.caption = std::to_string(state_.queue.size() - 1);
  form_.prossimo.visible = true;
  session_.classifica_loaded = true;
  session_.log_inserted_since_load = false;
  session_.reload_needed = false;
  return true;
}

void QueuePanel::LeggiclassificA() {
  Clear();
  const std::string path = session_.workspace.classification(session_.category_month);
  if (Load(path, std::string(NameOf(path)))) {
    ChooseToGoOn();
  }
}

void QueuePanel::primo_carico_Click() {
  const auto path = manager_.PickFile(
      {.title = "", .filter = "file_cla (*.cla)|*.cla", .folder = session_.workspace.category()});
  if (!path) {
    return;
  }
  Clear();
  const std::string name(NameOf(*path));
  const std::string expected(NameOf(session_.workspace.classification(session_.category_month)));
  if (name != expected) {
    manager_.Show({.lines = {"Classifica corrotta o non valida, controlla"}, .title = expected});
    return;
  }
  if (Load(*path, name) && form_.no_control_time.checked && form_.vis_mess.checked) {
    manager_.Show({.lines = {" IL CONTROLLO ORARIO E LA VISUALIZZAZIONE DEI MESSAGGI SONO ATTIVI",
                             "       (per disattivarli : menu --> option --> togli il check)"}});
  }
}

void QueuePanel::Reload(std::string separator) {
  if (!state_.queue.Read(files_.ReadAll(state_.classification_path))) {
    manager_.Show(BrokenClassification());
  }
  state_.queue.SeparatePositions(std::move(separator));
  form_.listacall_banda.Fill(state_.queue.Shown());
}

void QueuePanel::SetRow(std::size_t row, const std::string& text) {
  state_.queue.SetRow(row, text);
  ShowRows();
}

void QueuePanel::ShowRows() {
  const int chosen = form_.listacall_banda.selection;
  form_.listacall_banda.Fill(state_.queue.Shown());
  form_.listacall_banda.selection = chosen;
}

void QueuePanel::ChooseToGoOn() {
  Choose(state_.queue.FirstUnchecked().value_or(0));
}

void QueuePanel::Choose(std::size_t row) {
  form_.listacall_banda.selection = static_cast<int>(row);
  form_.listacall_banda.top = static_cast<int>(row > kRowsAboveChosen ? row - kRowsAboveChosen : 0);
}

bool QueuePanel::ChooseFirstUnchecked() {
  if (state_.queue.empty()) {
    manager_.Show(LoadClassificationFirst());
    return false;
  }
  const auto row = state_.queue.FirstUnchecked();
  if (!row) {
    manager_.Show({.lines = {" Il controllo di questa categoria è completato. "_a, " ",
                             Join(" Se vuoi comunque effettuare il controllo di un call,",
                                  " fai doppio click sul call desiderato")}});
    return false;
  }
  Choose(*row);
  return true;
}

void QueuePanel::primo_dacontrollare_Click() {
  if (ChooseFirstUnchecked()) {
    state_.progress.primo_vuoto_scelto = true;
  }
}

void QueuePanel::vai_a_un_call_Click() {
  const std::string wanted = Upper(form_.sigla_call.value);
  session_.last_call_search = wanted;
  if (const auto row = state_.queue.FindCall(wanted)) {
    Choose(*row);
    form_.LBL_doppioclick.caption = " DOPPIO CLICK PER INIZIARE IL CONTROLLO";
    form_.LBL_doppioclick.colour = colour::kYellow;
    form_.LBL_doppioclick.visible = true;
  } else {
    manager_.Show({.lines = {Join(" il call  <", wanted, "> non è in classifica "_a)}});
  }
  state_.progress.primo_vuoto_scelto = false;
}

void QueuePanel::Visualizza_solo_classifica_Click() {
  if (state_.queue.empty()) {
    manager_.Show(LoadClassificationFirst());
    return;
  }
  if (!ShowWideRows()) {
    return;
  }
  const std::string_view name = form_.bandaesame.caption;
  form_.Text1.value = name.substr(0, name.rfind('.'));
  LeaveWideView();
  for (const auto& control : form_.controls()) {
    if (control->container == nullptr && control->visible) {
      control->visible = false;
      hidden_.push_back(control.get());
    }
  }
  form_.Frame_solo_classifica.visible = true;
  form_.uscita2.visible = true;
  form_.Cancella_log.visible = true;
}

bool QueuePanel::ShowWideRows() {
  ClassificationQueue rows;
  if (!rows.Read(files_.ReadAll(state_.classification_path))) {
    manager_.Show(BrokenClassification());
    return false;
  }
  rows.SeparatePositions(" (");
  form_.visualizza_classifica.Fill(rows.Shown());
  return true;
}

void QueuePanel::LeaveWideView() {
  form_.Frame_solo_classifica.visible = false;
  form_.uscita2.visible = false;
  form_.Cancella_log.visible = false;
  for (Control* control : hidden_) {
    control->visible = true;
  }
  hidden_.clear();
}

}  // namespace velmar
