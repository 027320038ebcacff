#include "intake/renaming.h"

#include <algorithm>
#include <optional>

#include "model/edi_log.h"
#include "model/lines.h"
#include "model/text.h"
#include "model/workspace.h"
#include "platform/error.h"
#include "session/failure.h"
#include "session/version.h"

namespace velmar {

namespace {

constexpr std::string_view kLogs = "*.edi";
constexpr std::size_t kMostLogs = 100'000;
constexpr std::size_t kLongestName = 50;
constexpr std::size_t kLongestStem = 150;  ///< of a name that gets a suffix
constexpr std::string_view kFirstRowStart = edi::kFirstRow.substr(0, 9);

/// The log with CR LF behind each of its lines.
std::string WithUsualLineEnds(std::string_view text) {
  std::string usual;
  usual.reserve(text.size());
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    AddLine(usual, line);
  }
  return usual;
}

/// A name in which what may make trouble in a file name is a blank, cut to what a name may have.
std::string FitName(std::string name) {
  std::ranges::replace_if(
      name, [](char c) { return static_cast<unsigned char>(c) < ','; }, ' ');
  name.resize(std::min(name.size(), kLongestName));
  return name;
}

}  // namespace

RenamingForm::RenamingForm()
    : Form("VLM2M_05_rin_ITA",
           Join("V A R T O  VLM  by iz9qqq   ", kVersionLong, "   Rinomina i log   ")) {}

Renaming::Renaming(ContestSession& session, FileSystem& files, Manager& manager, Screen& screen,
                   MainForm& main)
    : session_(session), files_(files), manager_(manager), screen_(screen), main_(main) {
  form_.rinomina.on_click = [this] { rinomina_Click(); };
  form_.torna_menu.on_click = [this] { torna_menu_Click(); };
  form_.esci.on_click = [this] { torna_menu_Click(); };
  form_.List2.on_click = [this] { List2_Click(); };
}

void Renaming::Trap(const std::function<void()>& procedure) {
  try {
    procedure();
  } catch (const RunTimeError& error) {
    manager_.Show(FailureBox(
        error, step_,
        Join(" Modulo rinomina log   Contatta l' autore del software_", VersionDotted())));
  }
}

std::string Renaming::Source(const std::string& name) const {
  return session_.workspace.recalculated() + "/" + name;
}

void Renaming::Open() {
  run_made_ = false;
  counters_ = {};
  form_.List1.items.Assign({});
  form_.List2.items.Assign({});
  form_.Text1.value.clear();
  form_.Text2.value.clear();
  form_.progress.value = "0";
  ShowCounters();
  step_ = 1;
  Trap([&] { RefreshLists(); });
  form_.rinomina.enabled = !form_.source.items.rows().empty();
  screen_.Show(form_);
}

void Renaming::RefreshLists() {
  form_.source.items.Assign(files_.List(session_.workspace.recalculated(), kLogs));
  form_.destination.items.Assign(files_.List(session_.workspace.to_insert(), "*.*"));
}

void Renaming::ShowCounters() {
  form_.file_letti.caption = std::to_string(counters_.read);
  form_.file_doppi.caption = std::to_string(counters_.repeated);
  form_.call_cambiati.caption = std::to_string(counters_.changed_calls);
  form_.file_nonvalidi.caption = std::to_string(counters_.not_valid);
  form_.file_rinominati.caption = std::to_string(counters_.renamed);
}

void Renaming::rinomina_Click() {
  Trap([&] {
    step_ = 2;
    counters_ = {};
    names_.clear();
    copied_.clear();
    form_.List1.items.Assign({});
    form_.List2.items.Assign({});
    const auto logs = TidyLogs();
    step_ = 3;
    RenameLogs(logs);
    form_.rinomina.enabled = false;
    run_made_ = true;
  });
  ShowCounters();
  form_.Text1.value = form_.file_rinominati.caption;
  step_ = 4;
  Trap([&] { RefreshLists(); });
}

/// Puts the lines of all logs in order, and gives those that begin as a log does.
std::vector<Renaming::Entry> Renaming::TidyLogs() {
  RefreshLists();
  const auto names = form_.source.items.rows();
  if (names.size() > kMostLogs) {
    throw RunTimeError(ErrorNumber::kSubscript, "too many logs");
  }
  form_.progress.maximum = 2 * names.size();
  std::vector<Entry> logs;
  for (std::size_t i = 0; i < names.size(); ++i) {
    const std::string text = Tidy(names[i]);
    if (text.starts_with(kFirstRowStart)) {
      logs.push_back({names[i], IdentifyLog(text, logs.size())});
    } else {
      MarkAsNoLog(names[i]);
    }
    Advance(i + 1);
  }
  return logs;
}

std::string Renaming::Tidy(const std::string& name) {
  const std::string text = files_.ReadAll(Source(name));
  std::string usual = WithUsualLineEnds(text);
  if (usual != text) {
    files_.WriteAll(Source(name), usual);
  }
  return usual;
}

void Renaming::MarkAsNoLog(const std::string& name) {
  const std::string folder = session_.workspace.recalculated();
  const std::string target = FreeName(files_, Source(name), folder, name.substr(0, kLongestStem),
                                      " - prima riga non corretta o riga vuota.txt");
  files_.Move(Source(name), folder + "/" + target);
  ++counters_.not_valid;
  Tell(target);
}

void Renaming::RenameLogs(const std::vector<Entry>& logs) {
  // What is set aside comes first, so that its numbers do not hang on what the folder holds.
  std::vector<const Entry*> valid;
  for (const Entry& entry : logs) {
    if (TakeName(entry)) {
      valid.push_back(&entry);
    }
  }
  const std::size_t done = form_.progress.maximum - valid.size();
  for (std::size_t i = 0; i < valid.size(); ++i) {
    Insert(*valid[i]);
    ShowCounters();
    Advance(done + i + 1);
  }
  Advance(form_.progress.maximum);
}

/// Gives a log its name; one that is not valid or came twice is set aside under it. Whether the log
/// is to be inserted.
bool Renaming::TakeName(const Entry& entry) {
  const auto& [name, log] = entry;
  ++counters_.read;
  counters_.changed_calls += static_cast<std::size_t>(log.call.removals);
  TellMissingRows(name, log);
  form_.List1.items.Add(
      Join(name, "\t", log.call.text, "\t", log.section, "\t", log.band, "\t", log.new_name));
  if (!names_.insert(log.new_name).second) {
    ++counters_.repeated;
    SetAside(name,
             SetAsideName(Join(log.text, " ", Str(static_cast<long long>(counters_.repeated)))));
    return false;
  }
  if (!log.valid) {
    SetAside(name, log.new_name);
  }
  return log.valid;
}

void Renaming::TellMissingRows(const std::string& name, const LogIdentity& log) {
  const auto tell = [&](bool missing, std::string_view message) {
    if (missing) {
      manager_.Show({.lines = {Join(message, name)}});
      form_.List1.items.Add(name);
    }
  };
  tell(log.lacks_section, " Manca 'PSect' - Log errato  ");
  tell(log.lacks_band, " Manca 'PBand' - Log errato  ");
}

void Renaming::SetAside(const std::string& name, const std::string& new_name) {
  const std::string folder = session_.workspace.to_check_again();
  const std::string target = FreeName(files_, Source(name), folder, new_name);
  files_.Copy(Source(name), folder + "/" + target);
  copied_.push_back(name);
  ++counters_.not_valid;
  Tell(Join(name, "\t", target));
}

void Renaming::Insert(const Entry& entry) {
  const auto& [name, log] = entry;
  const std::string prefix = session_.workspace.to_insert() + "/";
  const std::string content = WithSection(files_.ReadAll(Source(name)), log.section);
  std::string new_name = FitName(log.new_name);
  const auto there = ReadIfThere(files_, prefix + new_name);
  if (there && *there != content) {
    ++counters_.repeated;
    new_name = FreeName(files_, Source(name), session_.workspace.to_insert(),
                        Join(kSetAsideMark, name.substr(0, kLongestStem)),
                        Join(" Call doppio", Str(static_cast<long long>(counters_.repeated))));
    Tell(Join(name, "\t", new_name));
  } else {
    ++counters_.renamed;  // also where an earlier run, that broke, had written it already
  }
  files_.WriteAll(prefix + new_name, content);
  copied_.push_back(name);
}

void Renaming::Tell(const std::string& row) {
  form_.List1.items.Add(row);
  form_.List2.items.Add(row);
}

void Renaming::List2_Click() {
  const auto& rows = form_.List2.items.rows();
  const auto row = static_cast<std::size_t>(form_.List2.selection);
  form_.Text2.value = row < rows.size() ? rows[row] : "";
}

void Renaming::torna_menu_Click() {
  step_ = 5;
  if (run_made_) {
    Trap([&] { RemoveRenamed(); });
  }
  screen_.Hide(form_);
  Trap([&] { UpdateMenu(); });
  screen_.Show(main_);
}

void Renaming::RemoveRenamed() {
  // Only what this run copied: a log that came in behind its back is not lost. One that can't be
  // removed does not keep the others.
  std::optional<RunTimeError> failure;
  for (const std::string& name : copied_) {
    try {
      RemoveIfThere(files_, Source(name));
    } catch (const RunTimeError& error) {
      failure = error;
    }
  }
  if (failure) {
    throw RunTimeError(*failure);
  }
}

void Renaming::UpdateMenu() {
  main_.ListFiles(files_, session_.workspace.to_insert());
  if (!run_made_) {
    return;  // the step is still to be done, so that its item stays within reach
  }
  main_.Rinomina_ita.checked = true;
  main_.Rinomina_ita.enabled = false;
  main_.Inserire_log.enabled = true;
  main_.Inserire_log.checked = false;
  main_.ShowInsertStep(true);
  main_.File1.visible = true;
}

void Renaming::Advance(std::size_t done) {
  form_.progress.value = std::to_string(done);
  manager_.Progress(done, form_.progress.maximum);
}

}  // namespace velmar
