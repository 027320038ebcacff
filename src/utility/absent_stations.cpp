#include "utility/absent_stations.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "session/failure.h"
#include "session/version.h"
#include "utility/absent_pages.h"

namespace velmar {

namespace {

constexpr std::string_view kCounted = "call_loggato_nodooppi.txt";
constexpr std::string_view kAbsent = "call_assenti.txt";
constexpr std::string_view kMinToMax = "call_mancanti-1-max.txt";
constexpr std::string_view kMaxToMin = "call_mancanti-max-1.txt";
constexpr std::string_view kCopy = "144libreria.tmp";
constexpr std::string_view kPrinted = "call assenti.prn";

/// No log of another country is in the store.
constexpr int kForeignQsos = 0;

constexpr std::size_t kStages = 8;
constexpr std::size_t kRowsOfAStep = 4'096;  // of the progress

/// The time between two readings of a clock that starts anew at midnight, as "0.25".
std::string SecondsBetween(double start, double end) {
  constexpr double kDay = 24.0 * 60 * 60;
  std::array<char, 32> buffer{};
  const auto written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                    end < start ? end + kDay - start : end - start, std::chars_format::fixed, 2);
  return {buffer.data(), written.ptr};
}

}  // namespace

AbsentStations::AbsentStations(ContestSession& session, const Ports& ports, Screen& screen,
                               MainForm& main, std::function<void()> open_statistics)
    : session_(session),
      ports_(ports),
      screen_(screen),
      main_(main),
      open_statistics_(std::move(open_statistics)) {
  form_.Verifica_assenti.on_click =
      form_.con_trolla.on_click = [this] { Verifica_assenti_Click(); };
  form_.Lista.on_click = [this] { Lista_Click(); };
  form_.inverti_ordine_lista.on_click = [this] { inverti_ordine_lista_Click(); };
  form_.stampa_assenti.on_click = [this] { stampa_assenti_Click(); };
  form_.stampa_log_assente.on_click = [this] { stampa_log_assente_Click(); };
  form_.usci.on_click = [this] { usci_Click(); };
  form_.Es_sci.on_click = [this] { Es_sci_Click(); };
}

void AbsentStations::Open() {
  screen_.Show(form_);
}

void AbsentStations::usci_Click() {
  screen_.Hide(form_);
  screen_.Show(main_);
}

void AbsentStations::Es_sci_Click() {
  screen_.Hide(form_);
  open_statistics_();
}

bool AbsentStations::Trap(std::string_view module, const std::function<void()>& procedure) {
  try {
    procedure();
    return true;
  } catch (const RunTimeError& error) {
    ports_.manager.Show(FailureBox(
        error, step_, Join(module, "Contatta l' autore del software_", VersionDotted())));
    return false;
  }
}

void AbsentStations::PrintTrap(const std::function<void()>& procedure) {
  try {
    if (!ports_.printer.Installed()) {
      throw RunTimeError(ErrorNumber::kDeviceError, "no printer");
    }
    procedure();
  } catch (const RunTimeError&) {
    ports_.manager.Show({.lines = {" si è verificato un errorenel modulo stampa, controlla"_a}});
  }
}

void AbsentStations::Verifica_assenti_Click() {
  Trap("  134 modulo assenti.  ", [this] { Verify(); });
  form_.Bar1.visible = form_.Bar2.visible = false;
}

void AbsentStations::Verify() {
  step_ = 1;
  form_.Clear();
  inverse_.clear();
  log_ = {};
  form_.Bar1.maximum = kStages;
  form_.Bar2.value = std::to_string(0);
  form_.Bar1.visible = form_.Bar2.visible = true;
  Stage(1);
  step_ = 2;
  const ParticipantCalls participants = ReadParticipants();
  Stage(2);
  step_ = 4;
  const WorkedCalls worked = ReadLibrary();
  if (worked.size() <= 1) {
    ports_.manager.Show({.lines = {" Non c'è nessuna classifica inserita."_a}});
    return;
  }
  ListCalls(participants, worked);
  form_.stampa_assenti.enabled = form_.stampa_log_assente.enabled = true;
  form_.inverti_ordine_lista.visible = true;
  form_.List_libreria.visible = form_.Call_assenti.visible = form_.Lista.visible = true;
  form_.focus = &form_.Lista;
}

void AbsentStations::Stage(int stage) {
  form_.Bar1.value = std::to_string(stage);
  ports_.manager.Progress(static_cast<std::size_t>(stage), kStages);
}

ParticipantCalls AbsentStations::ReadParticipants() {
  const auto rows =
      ReadIfThere(ports_.files, session_.workspace.store_file(StoreFile::kPartecipanti));
  ParticipantCalls calls = ReadParticipantCalls(rows.value_or(""), session_.last_call_search);
  step_ = 3;
  form_.Log_inviati.caption = std::to_string(calls.size());
  form_.call_effettivi.caption = std::to_string(DistinctCalls(calls));
  return calls;
}

WorkedCalls AbsentStations::ReadLibrary() {
  constexpr std::size_t kUsualRow = 36;  // with its line end
  const std::string text =
      ReadIfThere(ports_.files, session_.workspace.store_file(StoreFile::kLibreria)).value_or("");
  WorkedCalls worked;
  form_.Bar2.maximum = std::max<std::size_t>(text.size() / kUsualRow, 1);
  LineReader reader(text);
  for (std::string_view row; reader.Next(row);) {
    worked.Add(WorkedCallOf(row));
    if (worked.size() % kRowsOfAStep == 0) {
      form_.Bar2.value = std::to_string(std::min(worked.size(), form_.Bar2.maximum));
      Stage(3);
    }
  }
  form_.Bar2.value = std::to_string(form_.Bar2.maximum);
  return worked;
}

void AbsentStations::ListCalls(const ParticipantCalls& participants, const WorkedCalls& worked) {
  Stage(4);
  step_ = 6;
  const auto italian =
      static_cast<std::size_t>(std::count_if(worked.begin(), worked.end(), Italian));
  form_.qso_con_esteri.caption = std::to_string(worked.size() - italian);
  Stage(5);
  step_ = 7;
  std::vector<std::string> counted = CountCalls({worked.begin(), worked.end()});
  WriteScratch(kCounted, counted);
  Stage(6);
  step_ = 8;
  std::vector<std::string> absent = AbsentEntries(counted, participants, session_.last_call_search);
  WriteScratch(kAbsent, absent);
  step_ = 9;
  const std::size_t distinct = DistinctCalls(participants);
  form_.call_log.caption = std::to_string(distinct);
  form_.qsofraita.caption = std::to_string(italian);
  form_.call_T.caption = form_.LB_list_libreria.caption = std::to_string(counted.size());
  form_.no_log.caption = form_.LB_call_ass.caption = std::to_string(absent.size());
  form_.perc_log_inv.caption = PercentageText(distinct, counted.size());
  form_.perc_assenti.caption = PercentageText(absent.size(), counted.size());
  Stage(7);
  ListByCount(absent);
  form_.List_libreria.Fill(std::move(counted));
  form_.Call_assenti.Fill(std::move(absent));
}

void AbsentStations::ListByCount(const std::vector<std::string>& absent) {
  step_ = 10;
  std::vector<std::string> lines = LinesByCount(absent);
  step_ = 11;
  WriteScratch(kMinToMax, lines);
  std::ranges::reverse(lines);
  WriteScratch(kMaxToMin, lines);
  step_ = 12;
  inverse_ = CopyLines(ports_.files.ReadAll(session_.workspace.store_scratch(kMaxToMin)));
  ShowAbsentList(inverse_);
  form_.Call_mancanti.caption = form_.LB_lista.caption;
  step_ = 13;
  for (const std::string_view name : {kMaxToMin, kMinToMax, kAbsent, kCounted}) {
    ports_.files.Remove(session_.workspace.store_scratch(name));
  }
  Stage(kStages);
}

void AbsentStations::ShowAbsentList(std::vector<std::string> rows) {
  form_.LB_lista.caption = std::to_string(rows.size());
  form_.Lista.Fill(std::move(rows));
}

void AbsentStations::WriteScratch(std::string_view name, const std::vector<std::string>& rows) {
  ports_.files.WriteAll(session_.workspace.store_scratch(name), TextOfLines(rows));
}

void AbsentStations::inverti_ordine_lista_Click() {
  if (form_.inverti_ordine_lista.caption == AbsentForm::kMaxFirst) {
    form_.inverti_ordine_lista.colour = colour::kGreen;
    form_.inverti_ordine_lista.caption = AbsentForm::kMinFirst;
    ShowAbsentList(inverse_);
  } else {
    form_.inverti_ordine_lista.colour = colour::kYellow;
    form_.inverti_ordine_lista.caption = AbsentForm::kMaxFirst;
    ShowAbsentList({inverse_.rbegin(), inverse_.rend()});
  }
}

void AbsentStations::Lista_Click() {
  const auto line = form_.Lista.ChosenRow();
  if (!line) {
    return;
  }
  const double start = ports_.clock.Timer();
  form_.ClearLog();
  log_ = {};
  Trap(" modulo statistica assenti.  ", [&] {
    const std::string call(Trim(Cut(*line, absent_line::kClicked)));
    form_.Label_call.caption = call;
    Rebuild(call);
    form_.tempo.caption = SecondsBetween(start, ports_.clock.Timer());
    form_.label_secondi.visible = true;
  });
}

void AbsentStations::Rebuild(const std::string& call) {
  step_ = 2;
  const auto somma = ReadIfThere(ports_.files, session_.workspace.store_file(StoreFile::kSommaQso));
  if (somma) {
    ports_.files.WriteAll(session_.workspace.store_scratch(kCopy), *somma);
    if (!rintraccia_progressivo(call)) {
      return;
    }
  }
  step_ = 5;
  ShowLog();
  step_ = 6;
  ShowPlace();
  form_.stampa_log_assente.enabled = !log_.lines.empty();
}

/// Finds the QSOs of the call in the copy; false where that failed.
bool AbsentStations::rintraccia_progressivo(const std::string& call) {
  step_ = 3;
  return Trap("Modulo rintraccia progressivo.     ", [&] {
    const std::string text = ports_.files.ReadAll(session_.workspace.store_scratch(kCopy));
    log_ = RebuildLog(CutSommaRows(text), call);
  });
}

void AbsentStations::ShowLog() {
  const std::string qsos = std::to_string(log_.lines.size());
  const std::string points = NumberText(log_.points);
  form_.Log_assente.Fill(log_.lines);
  form_.n_qsoita_144.caption = form_.tot_qso144.caption = qsos;
  form_.km_qrbita144.caption = form_.tot_qrb144.caption = form_.punt_teorico144.caption = points;
  form_.n_qso_est144.caption = form_.km_qrbest144.caption = std::to_string(kForeignQsos);
  form_.progr_magg144.caption = std::to_string(log_.lines.empty() ? 0 : 1);
  if (!log_.lines.empty()) {
    form_.media_144.caption =
        NumberText(std::floor(log_.points / static_cast<double>(log_.lines.size())));
  }
}

void AbsentStations::ShowPlace() {
  const auto classification =
      ReadIfThere(ports_.files, session_.workspace.classification(session_.category_month));
  const TheoreticalPlace place = FindPlace(classification.value_or(""), log_.points);
  if (place.unchecked && log_.points != 0) {
    ports_.manager.Show({.lines = {"la classifica dei 144 Mhz non e stata controllata"}});
  }
  form_.pos_teo144.caption = place.Text();
  form_.pos_teo144.colour = place.Colour();
  if (!place.unchecked && log_.points == 0) {
    form_.pos_teo144.caption.clear();
  }
}

void AbsentStations::stampa_assenti_Click() {
  PrintTrap([this] {
    WriteScratch(kPrinted, form_.Lista.items.rows());
    const std::string path = session_.workspace.store_scratch(kPrinted);
    const auto rows = CopyLines(ports_.files.ReadAll(path));
    ports_.printer.Print(AbsentListPages(rows, session_.category_month));
    ports_.files.Remove(path);
  });
}

void AbsentStations::stampa_log_assente_Click() {
  if (log_.lines.empty()) {
    form_.stampa_log_assente.enabled = false;
    return;
  }
  PrintTrap([this] {
    const std::string& call = form_.Label_call.caption;
    ports_.printer.Print(
        AbsentLogPages({.call = call,
                        .contest = session_.contest_label,
                        .month = session_.category_month,
                        .lines = log_.lines,
                        .score = log_.points != 0 ? form_.punt_teorico144.caption : std::string(),
                        .place = form_.pos_teo144.caption}));
    const std::string name =
        Join(NameOfCall(call), "  log assente ", session_.category_month, ".prn");
    WriteScratch(name, log_.lines);
    ports_.files.Remove(session_.workspace.store_scratch(name));
  });
}

}  // namespace velmar
