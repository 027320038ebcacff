#include "check/time_check.h"

#include "check/qso_line.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::size_t kReportNumber = 3;  ///< characters of a number that are told

}  // namespace

void TimeCheck::control_time_Click() {
  if (CheckRuns()) {
    Build();
    steps_.Advance();
  }
}

/// Whether there is a score that a decision could lower. A log that is only looked at has none, nor
/// has one whose result is saved.
bool TimeCheck::CheckRuns() const {
  return !form_.evidenzia.caption.empty();
}

void TimeCheck::Build() {
  form_.ClearTimes();
  state_.report_mode = false;
  state_.time_errors = 0;
  const auto& rows = views_.ReadStore();
  files_.Copy(session_.workspace.store_file(StoreFile::kSommaQso, state_.categoria),
              session_.workspace.scratch("somma_qso.tmp"));
  if (const auto broken = FindBrokenTime(rows)) {
    EndOnBrokenTime(rows[broken->row], broken->character);
  }
  const TimeDifferences differences = FindTimeDifferences(rows, state_.call_in_esame);
  state_.time_errors = differences.items.size();
  form_.Label11.caption = TimeListTitles(state_.call_in_esame.size());
  form_.Lista_err_orario.Fill(differences.items);
  ShowOutcome(differences);
  if (differences.items.empty()) {
    RecordTimeOnAir(
        rows,
        "  controlla nel file somma_qso.qso o se il nome del file è: categoria-call.EDI e nulla altro"_a);
  }
}

void TimeCheck::EndOnBrokenTime(const SommaQso& row, std::size_t character) {
  manager_.Show(
      {.lines = {Join(" il qso :  ", row.row,
                      " contiene un carattere che NON è un numero nel campo dell' ora  "_a, "'",
                      row.time, "'")}});
  manager_.Show(
      {.lines = {character == 1
                     ? " Soluzione : cancella il log, correggilo, rileggi il log e prosegui con i "
                       "controlli"
                     : " Soluzione : cancella il log, correggi il log , rileggi il log e prosegui "
                       "con i controlli"}});
  manager_.Show({.lines = {Join(" spiacente ma il programma NON può proseguire, il log da "_a,
                                "correggere è di "_a, row.owner)}});
  throw ProgramEnd();
}

/// Tells how many QSOs wait for a decision.
void TimeCheck::ShowOpen(std::size_t open) {
  form_.Frame_Log_errori_tempo.caption = Join("    Controllo orari : ", open, "    ");
}

void TimeCheck::ShowOutcome(const TimeDifferences& differences) {
  ShowOpen(differences.items.size());
  if (!differences.items.empty()) {
    return;
  }
  form_.messaggio.caption = differences.compared == 0 ? "nessun qso trovato in altri log"
                                                      : " gli orari rientrano nella regola 10 m.";
}

void TimeCheck::RecordTimeOnAir(const std::vector<SommaQso>& rows, std::string_view hint) {
  const TimeOnAir time = FindTimeOnAir(rows, state_.call_in_esame);
  if (form_.vis_mess.checked) {
    manager_.Show({.lines = {" il tempo intercorso fra il primo qso e",
                             " l'ultimo qso del contest è stato di: "_a, " ",
                             Join("     ", time.hours, " ore  e  ", time.minutes, "  minuti"), " ",
                             Join("      call = ", state_.call_in_esame),
                             Join("      primo  qso ore :", time.first),
                             Join("      ultimo qso ore :", time.last)}});
  }
  store_.Append(StoreFile::kTempi, state_.categoria,
                Join(TempiRow(state_.categoria, state_.call_in_esame, static_cast<int>(time.qsos),
                              time.hours, time.minutes),
                     kLineEnd));
  if (time.qsos == 0) {
    manager_.Show(
        {.lines = {"                    OPSSSS   c'è un problema . "_a,
                   "         NON sono stati trovati i qso del call in esame.", std::string(hint)}});
  }
  form_.Lista_err_orario.items.Add(
      Join(" tempo ", kTimeOnAirMark, ": ", time.hours, " ore  e  ", time.minutes, "  minuti"));
}

std::optional<std::string> TimeCheck::SelectedRow() const {
  const auto row = form_.Lista_err_orario.ChosenRow();
  return row && !Holds(*row, kTimeOnAirMark) ? row : std::nullopt;
}

void TimeCheck::Lista_err_orario_Click() {
  const auto row = SelectedRow();
  if (!row) {
    manager_.Show(
        {.lines = {"Devi selezionare il qso da visualizzare"}, .title = "Visualizza LOG"});
    return;
  }
  const std::string_view item = state_.report_mode ? RTrim(*row) : *row;
  form_.kmerr.caption = item.substr(item.rfind(' ') + 1);
  views_.ShowForTimes(views_.SelectedByTime());
}

void TimeCheck::conf_err_time_Click() {
  const auto row = SelectedRow();
  if (!row || state_.report_mode) {
    return;  // an item of reports has other columns
  }
  const TimeItem item = ReadTimeItem(*row, state_.call_in_esame);
  if (report_.AlreadyListed(std::string(RTrim(item.other_call)))) {
    return;
  }
  report_.Penalise({.call = item.other_call,
                    .ordinal = item.ordinal,
                    .tag = error_tag::kTime,
                    .wrong = item.own_time,
                    .right = Join(item.other_time, "  ", item.difference),
                    .points = item.points});
  RemoveSelected();
}

void TimeCheck::conf_err_RST_Click() {
  const auto row = SelectedRow();
  if (!row || !state_.report_mode) {
    return;  // an item of times has other columns
  }
  const ReportItem item = ReadReportItem(*row, state_.call_in_esame.size());
  const std::string call(RTrim(item.other_call));
  if (report_.AlreadyListed(call)) {
    return;
  }
  report_.Penalise({.call = call,
                    .ordinal = item.ordinal,
                    .tag = error_tag::kReport,
                    .wrong = std::string(Right(RTrim(item.sent), kReportNumber)),
                    .right = std::string(Right(RTrim(item.received), kReportNumber)),
                    .points = item.points});
  RemoveSelected();
}

void TimeCheck::convalida_qso_time_Click() {
  if (SelectedRow()) {
    RemoveSelected();
  }
}

/// Takes the selected QSO off the list and selects the one behind it, or the first. Behind the last
/// one the time on the air is recorded.
void TimeCheck::RemoveSelected() {
  const std::size_t left = form_.Lista_err_orario.RemoveChosen();
  if (!state_.report_mode) {
    ShowOpen(left);
  }
  if (left == 0) {
    form_.kmerr.caption.clear();
    form_.Frame_log.visible = false;
    GoOn();
  } else if (SelectedRow()) {
    Lista_err_orario_Click();
  }
}

/// Nothing is open in the list any more.
void TimeCheck::GoOn() {
  if (!state_.report_mode) {
    form_.messaggio.caption = " tutti gli orari risultano corretti";
    RecordTimeOnAir(
        views_.ReadStore(),
        "  controlla se il nome del call da cancellare e barrato mentre il nome del file no.");
  }
  if (state_.report_mode && state_.unique_checked) {
    steps_.OpenUpdate();
  } else {
    steps_.Advance();
  }
}

}  // namespace velmar
