#include "check/log_views.h"

#include <algorithm>

#include "check/call_comparison.h"
#include "check/check_steps.h"
#include "check/qso_line.h"
#include "check/time_differences.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr std::size_t kButtonText = 18;  ///< of "cerca  sul log di "
constexpr std::size_t kShortCut = 18;    ///< behind the part of a row that is compared
constexpr std::size_t kShortWidth = 40;
constexpr std::size_t kMostShown = 2'000;

std::string OwnRow(const SommaQso& qso) {
  return Join(qso.owner, "   ", qso.Start(somma_qso_row::kBehindQso));
}

std::string OtherRow(const SommaQso& qso) {
  return Join(qso.owner, " ", qso.Start(somma_qso_row::kBehindQso));
}

/// A row of the other log with what a test says of it.
std::string GradedRow(const SommaQso& qso, std::string_view text) {
  const std::string_view start = qso.Start(kShortCut);
  return Join(qso.owner, " ", qso.time, ";", Pad(start, std::max(start.size(), kShortWidth)), text);
}

/// The worked call of a row that was listed; empty where the row tells something else.
std::string_view ListedCall(std::string_view row) {
  std::string_view rest = row;
  for (int field = 0; field < 2; ++field) {
    const std::size_t end = rest.find(';');
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  return Trim(rest.substr(0, rest.find(';')));
}

}  // namespace

const std::vector<SommaQso>& LogViews::ReadStore() {
  rows_.clear();
  text_ = files_.ReadAll(session_.workspace.store_file(StoreFile::kSommaQso, state_.categoria));
  rows_ = CutSommaRows(text_);
  return rows_;
}

void LogViews::Open() {
  row_missing_ = false;
  form_.Frame_log.visible = true;
  form_.List_log_call_esame.Fill({});
  form_.List_log_corrispondente.Fill({});
  form_.Label_simile.caption.clear();
  form_.Label_info_errati.visible = false;
  form_.Label16.caption = Join(" Log del call in esame : ", state_.call_in_esame);
  form_.Label17.caption.clear();
  form_.cerca_qso2.caption = "Clicca per vedere eventuale errore nel call";
}

void LogViews::chiudi_Click() {
  form_.Frame_log.visible = false;
}

/// Lists the QSOs of the log under examination whose row holds a text.
void LogViews::ListOwnLog(std::string_view holding) {
  for (const SommaQso& qso : rows_) {
    if (qso.owner == state_.call_in_esame && Holds(qso.row, holding)) {
      form_.List_log_call_esame.items.Add(OwnRow(qso));
    }
  }
}

void LogViews::ShowBoth(std::string_view other) {
  const std::string& call = state_.call_in_esame;
  ReadStore();
  Open();
  ListOwnLog(other);
  if (other == call) {
    return;
  }
  bool seen = false;
  bool found = false;
  for (const SommaQso& qso : rows_) {
    if (qso.owner == other) {
      seen = true;
      if (Holds(qso.Start(somma_qso_row::kBehindQso), call)) {
        found = true;
        form_.List_log_corrispondente.items.Add(OtherRow(qso));
      }
    }
  }
  if (found) {
    form_.List_log_corrispondente.items.Add(
        Join(" nel log di", other, " c'è il qso dichiarato da "_a, call));
    form_.List_log_call_esame.items.Add(
        Join(" il call dichiarato da ", call, " si trova nel log di ", other));
    form_.List_log_call_esame.items.Add(Join(" eventuale errore è da attribuire a : "_a, call));
    return;
  }
  std::vector<std::string> rows = {
      " -------------------------------------------------------------------------"};
  if (seen) {
    rows.push_back(Join(" il log di", other, " è pervenuto, "_a));
    rows.push_back(Join(" ma non contiene il qso dichiarato da ", call));
  } else {
    rows.push_back(Join(" il log di", other, " NON è pervenuto"_a));
  }
  form_.List_log_corrispondente.Fill(std::move(rows));
}

void LogViews::ShowLogOf(std::string_view other, std::string_view heading) {
  std::vector<std::string> rows;
  for (const SommaQso& qso : rows_) {
    if (qso.owner == other) {
      rows.push_back(OtherRow(qso));
    }
  }
  if (rows.empty()) {
    rows = {"  LOG non VISUALIZZABILE in questa finestra",
            Join(" il log di ", other, "  partecipa in altra categoria"),
            "                 (oppure non è pervenuto)"_a};
  } else if (!heading.empty()) {
    rows.emplace(rows.begin(), heading);
  }
  form_.List_log_corrispondente.Fill(std::move(rows));
}

void LogViews::ShowForTimes(std::string_view other) {
  ReadStore();
  Open();
  ListOwnLog("");
  SelectRow(form_.List_log_call_esame, other);
  ShowLogOf(other);
  SelectRow(form_.List_log_corrispondente, state_.call_in_esame);
  form_.Label17.caption = Join(" log del corrispondente :", other);
}

void LogViews::log_callda_cercare_Click() {
  ShowBoth(Trim(Mid(form_.log_callda_cercare.caption, kButtonText + 1)));
}

void LogViews::vis_log_Click() {
  if (state_.call_in_esame.empty()) {
    return;
  }
  ReadStore();
  Open();
  ListOwnLog("");
}

/// The call between the second and the third ";" of the chosen row, or of the first one.
std::string LogViews::WorkedCallOfChosenRow() const {
  const auto& rows = form_.List_log_call_esame.items.rows();
  const auto row = form_.List_log_call_esame.ChosenRow();
  const std::string text = row ? *row : (rows.empty() ? std::string() : rows.front());
  return Replaced(ListedCall(text), '_', '/');
}

void LogViews::List_log_call_esame_Click() {
  const std::string other = WorkedCallOfChosenRow();
  if (other.empty()) {
    return;
  }
  row_missing_ = false;
  ReadStore();
  ShowLogOf(other);
  form_.cerca_qso2.caption =
      Join("Visualizza solo i qso di ", state_.call_in_esame, " nel log di ", other);
}

/// The other call of the item that is selected; empty without one.
std::string LogViews::SelectedOther() const {
  // The list of what is not in a log also shows similar calls, which stand without an explanation.
  const auto items = static_cast<int>(form_.lista_notlog.items.rows().size());
  const auto item = form_.Lista_simili.ChosenRow();
  if (item && form_.Lista_simili.selection < items) {
    return std::string(Trim(Left(*item, kCallWidth)));
  }
  if (const auto row = form_.Call_unici.ChosenRow()) {
    return std::string(Trim(Cut(*row, qso_line::kCall)));
  }
  return {};
}

std::string LogViews::SelectedByTime() const {
  const auto row = form_.Lista_err_orario.ChosenRow();
  if (!row || Holds(*row, kTimeOnAirMark)) {
    return {};
  }
  const std::string& call = state_.call_in_esame;
  return std::string(Trim(state_.report_mode ? ReadReportItem(*row, call.size()).other_call
                                             : ReadTimeItem(*row, call).other_call));
}

/// Chooses the first row with a worked call, a few rows under the top of its list.
void LogViews::SelectRow(List& list, std::string_view call) {
  constexpr int kRowsAbove = 3;
  const auto& rows = list.items.rows();
  const auto found = std::ranges::find_if(
      // The item has no more than twelve characters of the call.
      rows, [call](const std::string& row) { return Left(ListedCall(row), kCallWidth) == call; });
  list.selection = found == rows.end() ? -1 : static_cast<int>(found - rows.begin());
  list.top = std::max(-1, list.selection - kRowsAbove);
}

void LogViews::vedi_log2_Click() {
  const std::string other = SelectedOther();
  if (other.empty()) {
    manager_.Show({.lines = {" Seleziona un qso "}, .title = "Visualizza LOG"});
    return;
  }
  ReadStore();
  Open();
  ListOwnLog("");
  SelectRow(form_.List_log_call_esame, other);
  form_.cerca_qso2.caption = Join("Cerca il qso di ", state_.call_in_esame, " nel log di ", other);
  row_missing_ = form_.List_log_call_esame.selection < 0;
  if (row_missing_) {
    ShowMissingRow();
    return;
  }
  Remark(SearchSimilar(WorkedCallOfChosenRow()), other);
}

void LogViews::ShowMissingRow() {
  form_.List_log_corrispondente.Fill({Join("  Il qso NON esiste sul log di ", state_.call_in_esame),
                                      "", "      questo è un problema del programma."_a, ""});
}

void LogViews::Remark(const Grades& grades, std::string_view other) {
  const std::string no_error = Join("NO ERROR di ", state_.call_in_esame);
  if (grades.one_error) {
    manager_.Show({.lines = {Join("Probabile errore di  ", other, "  premi  NO ERROR DI ",
                                  state_.call_in_esame)}});
    form_.no_errore.caption = no_error;
  }
  if (grades.two_errors) {
    manager_.Show(
        {.lines = {"Attenzione, il call qui elencato questo potrebbe essere un call valido.",
                   Join("Il call ", other, " sopra evidenziato è un probabile NOT IN LOG."_a)}});
  }
  if (grades.anagram) {
    manager_.Show({.lines = {"Attenzione, il call qui elencato potrebbe essere un call valido,",
                             "se non sono state invertire le lettere del call. ",
                             "Verifica con l' orario se potrebbe essere lo stesso qso."}});
    form_.no_errore.caption = no_error;
  }
}

void LogViews::cerca_qso2_Click() {
  const std::string other = WorkedCallOfChosenRow();
  if (row_missing_) {
    ShowMissingRow();
  } else if (!other.empty()) {
    ReadStore();
    SearchSimilar(other);
  }
}

LogViews::Grades LogViews::SearchSimilar(std::string_view other) {
  const std::string& wanted = state_.call_in_esame;
  form_.Label16.caption = Join(" Log del call in esame : ", wanted);
  form_.Label17.caption = Join(" log di:", other, "   non c'è "_a, wanted);
  form_.List_log_corrispondente.Fill({});
  form_.Label_simile.caption.clear();
  Grades grades;
  std::vector<std::string> shown;
  for (const SommaQso& qso : rows_) {
    if (qso.owner != other) {
      continue;
    }
    const CallComparison comparison = CompareCalls(wanted, qso.call);
    if (IdenticalCall(wanted, comparison)) {
      shown.push_back(GradedRow(qso, Join(" (0 err.) ", comparison.in_place_map)));
      form_.Label_simile.caption = "  Errori       Call Corretto 0";
      break;
    }
    for (const GradedCall& hit : GradeCall(wanted, qso.call, comparison)) {
      shown.push_back(GradedRow(qso, hit.text));
      if (!hit.label.empty()) {
        form_.Label_simile.caption = hit.label;
      }
      (hit.grade == CallGrade::kOneError    ? grades.one_error
       : hit.grade == CallGrade::kTwoErrors ? grades.two_errors
                                            : grades.anagram) = true;
    }
  }
  if (shown.empty()) {
    for (const SommaQso& qso : rows_) {
      if (qso.owner == other && FitsWithOneGap(wanted, qso.call, kPatternsOfLogs)) {
        shown.push_back(GradedRow(qso, Join(" (1 err.) ", qso.call)));
        form_.Label_simile.caption = "            Call più simile 6"_a;
        grades.one_error = true;
      }
    }
  }
  form_.Label_info_errati.visible = !shown.empty();
  if (shown.empty()) {
    ShowLogOf(other, Join(" Il qso NON esiste sul log di ", other));
  } else {
    form_.List_log_corrispondente.Fill(std::move(shown));
  }
  return grades;
}

void LogViews::cerca_qso_Click() {
  const std::string other = SelectedOther();
  if (other.empty()) {
    manager_.Show({.lines = {" Seleziona un qso "}, .title = "Visualizza LOG"});
    return;
  }
  vis_log_Click();
  SelectRow(form_.List_log_call_esame, other);
}

void LogViews::cerca_primo_qso_Click() {
  std::string other = SelectedOther();
  if (other.empty()) {
    other = WorkedCallOfChosenRow();
  }
  if (other.empty()) {
    return;
  }
  std::vector<std::string> kept;
  for (const std::string& row : form_.List_log_call_esame.items.rows()) {
    if (Holds(row, other) && kept.size() < kMostShown) {
      kept.push_back(row);
    }
  }
  if (kept.empty()) {
    manager_.Show({.lines = {Join(" NON risultano altri qso in log con ", Upper(other))}});
    return;
  }
  form_.List_log_call_esame.Fill(std::move(kept));
}

void LogViews::cerca_qso_rst_Click() {
  const std::string other = SelectedByTime();
  ReadStore();
  Open();
  for (const SommaQso& qso : rows_) {
    if (qso.owner == state_.call_in_esame) {
      form_.List_log_call_esame.items.Add(Join(qso.owner, " ", qso.Start(kShortCut)));
    }
  }
  const auto& rows = form_.List_log_call_esame.items.rows();
  const auto found =
      std::ranges::find_if(rows, [&](const std::string& row) { return Holds(row, other); });
  if (!other.empty() && found != rows.end()) {
    form_.List_log_call_esame.selection = static_cast<int>(found - rows.begin());
  }
}

}  // namespace velmar
