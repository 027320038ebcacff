#include "intake/recalculation.h"

#include <algorithm>

#include "intake/recalculation_messages.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "session/version.h"

namespace velmar {

namespace {

constexpr std::size_t kNameWidth = 32;

/// Texts that are kept from the first pass to the second, so that most logs are read once.
constexpr std::size_t kMostKeptBytes = 96'000'000;

/// What the manager reads of a log that was recalculated.
std::string OutcomeRow(const std::string& name, const RescoredLog& log) {
  return Join(Pad(name, std::max(kNameWidth, name.size())), "  qso ", log.qsos, "  error ",
              log.errors, "  doppi ", log.duplicates, "  punti ", log.points);
}

}  // namespace

RecalculationForm::RecalculationForm()
    : Form("VLM2M_14_restore_1km",
           Join("V A R T O  VLM  by iz9qqq   ", kVersionLong, "   Ripristina 1 punto a KM   ")) {}

Recalculation::Recalculation(ContestSession& session, FileSystem& files, Manager& manager,
                             Screen& screen, MainForm& main)
    : session_(session), files_(files), manager_(manager), screen_(screen), main_(main) {
  form_.rinomina.on_click = [this] { rinomina_Click(); };
  form_.torna_menu.on_click = [this] { torna_menu_Click(); };
}

void Recalculation::Trap(const std::function<void()>& procedure) {
  try {
    procedure();
  } catch (const RunTimeError& error) {
    if (!rescoring_.empty()) {
      ReportLogFault();
      return;
    }
    Show({.lines = {Join(" Errore imprevisto numero: ", static_cast<int>(error.number()),
                         " nella linea : ", step_,
                         " Modulo ricalcolo log   Contatta l' autore del software_",
                         VersionDotted())}});
  }
}

void Recalculation::ReportLogFault() {
  const std::string name = std::exchange(rescoring_, "");
  Show({.lines = {Join(" Attenzione il log di ", name, " ha un problema "),
                  " non è possibile elaborarlo. controlla che sia un file edi non manipolato"_a,
                  " ", " esci controlla e riprova"}});
  Show({.lines = {Join(" Procedura interrotta, esci e correggi/elimina il log di    ", name)}});
  step_ = 5;
  Trap([&] {
    RemoveMatching(files_, session_.workspace.recalculated(), "*.*");
    RefreshLists();
  });
}

void Recalculation::RefreshLists() {
  form_.source.items.Assign(files_.List(session_.workspace.to_recalculate(), "*.*"));
  form_.destination.items.Assign(files_.List(session_.workspace.recalculated(), "*.*"));
}

void Recalculation::Open() {
  run_made_ = false;
  form_.outcome.items.Assign({});
  form_.num_file.caption.clear();
  form_.Text1.value.clear();
  step_ = 1;
  Trap([&] { RefreshLists(); });
  const bool ready = !session_.recalc_dest_not_empty && !form_.source.items.rows().empty() &&
                     form_.destination.items.rows().empty();
  form_.rinomina.enabled = ready;
  form_.rinomina.colour = ready ? std::nullopt : std::optional(colour::kWhite);
  screen_.Show(form_);
}

void Recalculation::rinomina_Click() {
  Trap([&] {
    step_ = 2;
    RemoveIfThere(files_, session_.workspace.refused_names());
    form_.outcome.items.Assign({});
    CheckLogs();
    step_ = 3;
    RescoreLogs();
    step_ = 4;
    Finish();
  });
}

void Recalculation::CheckLogs() {
  const auto arrived = files_.List(session_.workspace.to_recalculate(), "*.*");
  form_.progress.maximum = 2 * arrived.size();
  passed_.clear();
  kept_bytes_ = 0;
  for (std::size_t i = 0; i < arrived.size(); ++i) {
    std::string text = files_.ReadAll(session_.workspace.to_recalculate() + "/" + arrived[i]);
    if (const auto fault = FindLogFault(text)) {
      Refuse(arrived[i], *fault);
    } else {
      Keep(arrived[i], std::move(text));
    }
    Advance(i + 1);
  }
}

void Recalculation::Keep(const std::string& name, std::string text) {
  const bool fits = kept_bytes_ + text.size() <= kMostKeptBytes;
  kept_bytes_ += fits ? text.size() : 0;
  passed_.push_back({name, fits ? std::optional(std::move(text)) : std::nullopt});
}

void Recalculation::Refuse(const std::string& name, const LogFault& fault) {
  if (fault.kind == LogFaultKind::kForeignLocator) {
    SetAside(name, ConfirmLocator(fault));
    return;
  }
  Show(RefusalBox(name, fault));
  if (fault.kind == LogFaultKind::kMissingKey) {
    throw ProgramEnd();
  }
  SetAside(name, RefusalSuffix(fault));
}

std::string Recalculation::ConfirmLocator(const LogFault& fault) {
  // Whatever the answer, the log leaves the run, although the question promises otherwise.
  if (Show(ForeignLocatorBox(fault)) == Reply::kYes) {
    Show({.lines = {" Se confermi il locatore questo log NON può"_a,
                    " partecipare alla classifica italiana"}});
    return " locatore no italia- contoll log.edi";
  }
  Show({.lines = {" File spostato "}});
  return " - locatore fuori italia.edi";
}

void Recalculation::SetAside(const std::string& name, const std::string& suffix) {
  const std::string source = session_.workspace.to_recalculate() + "/" + name;
  files_.Append(session_.workspace.refused_names(), Join(name, kLineEnd));
  const std::string folder = session_.workspace.to_check_again();
  const std::string target = FreeName(files_, source, folder, name, suffix);
  files_.Copy(source, folder + "/" + target);
  files_.Remove(source);
  RefreshLists();
  form_.outcome.items.Add(Join(name, "  spostato in 'Log da ricontrollare': ", target));
}

void Recalculation::RescoreLogs() {
  written_.clear();
  RescoringAhead ahead(passed_);
  for (std::size_t i = 0; i < passed_.size(); ++i) {
    rescoring_ = passed_[i].name;
    auto rescoring = ahead.Next();
    if (!rescoring) {
      rescoring =
          RescoreWhole(files_.ReadAll(session_.workspace.to_recalculate() + "/" + rescoring_));
    }
    WriteLog(rescoring_, *rescoring);
    rescoring_.clear();
    Advance(form_.progress.maximum / 2 + i + 1);
  }
}

void Recalculation::WriteLog(const std::string& name, const Rescoring& rescoring) {
  for (const RowRepair& repair : rescoring.repairs) {
    Show(RepairBox(name, repair));
  }
  if (rescoring.error) {
    std::rethrow_exception(rescoring.error);
  }
  const RescoredLog& log = rescoring.log;
  if (!log.complete) {
    EndOnOwnLocator(log.owner);
  }
  files_.Append(session_.workspace.recalculated() + "/" + name, log.text);
  written_.insert(name);
  form_.outcome.items.Add(OutcomeRow(name, log));
}

void Recalculation::EndOnOwnLocator(const LogOwner& owner) {
  rescoring_.clear();
  Trap([&] { RemoveMatching(files_, session_.workspace.recalculated(), "*.edi"); });
  Show(OwnLocatorBox(owner.declared_call(), owner.locator()));
  throw ProgramEnd();
}

void Recalculation::Finish() {
  RefreshLists();
  const std::string count = std::to_string(form_.destination.items.rows().size());
  form_.num_file.caption = count;
  form_.Text1.value = count;
  form_.rinomina.enabled = false;
  run_made_ = true;
  Advance(form_.progress.maximum);
  Show({.lines = {" finito"}});
  const std::string refused = ReadIfThere(files_, session_.workspace.refused_names()).value_or("");
  LineReader reader(refused);
  for (std::string_view name; reader.Next(name);) {
    RemoveIfThere(files_, Join(session_.workspace.recalculated(), "/", name));
  }
  if (!refused.empty()) {
    Show({.lines = {" Attenzione , sono stati spostati alcuni file perche non corretti",
                    " Controlla nella directory  'Log da ricontrollare' i file da correggere"}});
  }
}

void Recalculation::torna_menu_Click() {
  step_ = 6;
  if (run_made_) {
    Trap([&] { RemoveRecalculated(); });
  }
  screen_.Hide(form_);
  Trap([&] { UpdateMenu(); });
  screen_.Show(main_);
}

void Recalculation::RemoveRecalculated() {
  // Only what this run wrote again: a log that came in behind its back is not lost.
  for (const std::string& name : files_.List(session_.workspace.recalculated(), "*.edi")) {
    if (written_.contains(name)) {
      RemoveIfThere(files_, session_.workspace.to_recalculate() + "/" + name);
    }
  }
}

void Recalculation::UpdateMenu() {
  const bool logs_left = HoldsFiles(files_, session_.workspace.to_recalculate());
  main_.restore_1KM.checked = !logs_left;
  main_.restore_1KM.enabled = logs_left;
  if (HoldsFiles(files_, session_.workspace.recalculated())) {
    main_.Rinomina_ita.enabled = true;
  }
}

void Recalculation::Advance(std::size_t done) {
  form_.progress.value = std::to_string(done);
  manager_.Progress(done, form_.progress.maximum);
}

}  // namespace velmar
