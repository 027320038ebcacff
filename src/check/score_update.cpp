#include "check/score_update.h"

#include <numeric>
#include <utility>

#include "model/classification_row.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::size_t kStoredRow = classification_row::kPercentage.end() - 1;
constexpr std::size_t kMostByScore = 2'000;
constexpr std::size_t kMostByPercentage = 1'000;

// The keys are read where a sign or a leading digit may fall outside, and that is meant so.
constexpr Column kScoreKey{106, 8};
constexpr Column kPercentageKey{116, 8};

constexpr std::string_view kFilled = " 0    0   ";
constexpr std::string_view kEmpty = "          ";

}  // namespace

std::vector<std::size_t> ExchangeOrder(const std::vector<double>& keys) {
  std::vector<std::size_t> order(keys.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  for (std::size_t i = 0; i + 1 < order.size(); ++i) {
    for (std::size_t j = i + 1; j < order.size(); ++j) {
      if (keys[order[i]] < keys[order[j]]) {
        std::swap(order[i], order[j]);
      }
    }
  }
  return order;
}

void ScoreUpdate::aggiorna_punt_class_Click() {
  if (state_.queue.empty()) {
    manager_.Show(LoadClassificationFirst());
    return;
  }
  if (!state_.unique_checked) {
    manager_.Show({.lines = {" devi controllare i qso UNICI prima di aggiornare i dati"}});
    return;
  }
  if (form_.evidenzia.caption.empty()) {
    return;  // no check has made a row
  }
  form_.ClearLists();
  form_.Frame_unici.visible = false;
  form_.Frame_log.visible = false;
  PutRow();
  files_.WriteAll(Join(state_.classification_path, "_scorta"), state_.queue.FileText(kStoredRow));
  report_.AppendTotals();
  state_.progress.classifica_da_salvare = true;
  steps_.OpenSave();
}

void ScoreUpdate::ordina_Click() {
  const bool skipped = state_.unici_saltati;
  if (skipped) {
    queue_.SetRow(state_.indice_riga, WithoutResult(state_.queue.Row(state_.indice_riga)));
  }
  files_.WriteAll(state_.classification_path, state_.queue.FileText(kStoredRow));
  WriteSorted(kMostByScore, [](std::string_view row) { return Val(Cut(row, kScoreKey)); });
  queue_.Reload("          (");
  queue_.ChooseToGoOn();
  state_.progress.classifica_da_salvare = false;
  state_.progress.controllo_in_corso = false;
  state_.unique_checked = false;
  form_.ClearEvidence();
  form_.ClearUniqueHints();
  form_.ClearScore();
  form_.HideErrors();
  steps_.Finish();
  queue_.ScanCategories();
  if (skipped) {
    manager_.Show(
        {.lines = {" IL punteggio è stato azzerato perchè non è stato effettuato "_a,
                   " il controllo dei call unici / errori e il controllo dei not in log",
                   " Prima di eseguire altre attività sarà necessario completare il controllo"_a}});
  }
  form_.prossimo.visible = true;
}

void ScoreUpdate::riordina_Click() {
  if (state_.queue.empty()) {
    manager_.Show(LoadClassificationFirst());
    return;
  }
  WriteSorted(kMostByPercentage,
              [](std::string_view row) { return Val(Cut(row, kPercentageKey)); });
  queue_.Reload("  ");
  FollowRow();
}

/// Finds the call under examination where the rows have changed their places. A result that is not
/// saved goes with it.
void ScoreUpdate::FollowRow() {
  if (form_.evidenzia.caption.empty()) {
    return;
  }
  for (std::size_t row = 1; row < state_.queue.size(); ++row) {
    if (ClassificaRow(state_.queue.Row(row)).Call() == state_.call_in_esame) {
      state_.indice_riga = row;
    }
  }
  if (state_.progress.classifica_da_salvare) {
    PutRow();
  }
}

void ScoreUpdate::PutRow() {
  queue_.SetRow(state_.indice_riga, std::string(Left(form_.evidenzia.caption, kStoredRow)));
}

/// Writes the rows of the file again in the order of their keys, behind the header.
void ScoreUpdate::WriteSorted(std::size_t most,
                              const std::function<double(std::string_view row)>& key) {
  const std::string text = files_.ReadAll(state_.classification_path);
  std::vector<std::string_view> rows;
  std::vector<double> keys;
  LineReader reader(text);
  std::string_view header;
  for (std::string_view row; reader.Next(row);) {
    if (row.empty()) {
      continue;
    }
    if (header.empty()) {
      header = row;
      continue;
    }
    if (rows.size() == most) {
      throw RunTimeError(ErrorNumber::kSubscript, "the rows to be sorted");
    }
    rows.push_back(row);
    keys.push_back(key(row));
  }
  std::string sorted;
  AddLine(sorted, header);
  for (const std::size_t place : ExchangeOrder(keys)) {
    AddLine(sorted, Left(rows[place], kStoredRow));
  }
  const std::string temporary = session_.workspace.scratch(" rileggere2.tmp");
  files_.WriteAll(temporary, sorted);
  files_.Move(temporary, state_.classification_path);
}

void ScoreUpdate::Azzera_punteggio_Click() {
  if (state_.queue.empty()) {
    manager_.Show({.lines = {" bisogna caricare la classifica prima di azzerare un punteggio"}});
    return;
  }
  if (form_.evidenzia.caption.empty()) {
    manager_.Show({.lines = {" Devi selezionare un Call "}, .title = "PUNTEGGIO al declared"});
    return;
  }
  if (manager_.Show({.lines = {" ATTENZIONE il punteggio verra azzerato al declared"},
                     .icon = Icon::kQuestion,
                     .title = "PUNTEGGIO al declared",
                     .buttons = Buttons::kYesNo}) == Reply::kYes) {
    state_.unique_checked = true;
    aggiorna_punt_class_Click();
    state_.unique_checked = false;
  }
}

void ScoreUpdate::Reset_cla_2IT_Click() {
  Swap(kEmpty, kFilled);
}

void ScoreUpdate::Svuota_Click() {
  Swap(kFilled, kEmpty);
}

/// Puts one text in place of another where the result of a check stands.
void ScoreUpdate::Swap(std::string_view from, std::string_view to) {
  constexpr Column kAt = classification_row::kToBeChecked;
  const std::string path = session_.workspace.classification(session_.category_month);
  const std::string text = files_.ReadAll(path);
  std::string swapped;
  bool header = true;
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    std::string row(line);
    if (!std::exchange(header, false) && Cut(row, kAt) == from) {
      row.replace(kAt.start - 1, kAt.width, to);
    }
    AddLine(swapped, row);
  }
  files_.WriteAll(path, swapped);
  for (std::size_t i = 1; i < state_.queue.size(); ++i) {
    std::string row = state_.queue.Row(i);
    if (Cut(row, kAt) == from) {
      state_.queue.SetRow(i, row.replace(kAt.start - 1, kAt.width, to));
    }
  }
  queue_.ShowRows();
  queue_.ScanCategories();
}

void ScoreUpdate::Visualizza_pulsante_aggiorna_Click() {
  state_.unique_checked = true;
  form_.aggiorna_punt_class.visible = true;
  form_.aggiorna_punt_class.enabled = true;
}

void ScoreUpdate::stampa_classifica_di_banda_Click() {
  if (state_.queue.empty()) {
    manager_.Show(LoadClassificationFirst());
    return;
  }
  printer_.Print({{.lines = form_.listacall_banda.items.rows()}});
}

}  // namespace velmar
