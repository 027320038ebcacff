#include "intake/log_filing.h"

#include "intake/insertion_messages.h"
#include "intake/pass_messages.h"
#include "model/classification_row.h"
#include "model/edi_log.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/error.h"
#include "session/failure.h"

namespace velmar {

namespace {

/// Words in a QSO row that keep it out of the sum of valid QSOs. They mind the case, and the last
/// is spelt so on purpose.
bool IsTakenBack(std::string_view row) {
  return Holds(row, "ERROR") || Holds(row, "error") || Holds(row, "DELETET");
}

}  // namespace

void LogFiling::Marcafile_Click() {
  if (!log_.accepted && !log_.needs_category) {
    return;  // a hot key while there is nothing to file
  }
  Trap([&] { folder_.Refresh(); });
  File();
}

void LogFiling::Trap(const std::function<void()>& procedure) {
  try {
    procedure();
  } catch (const RunTimeError& error) {
    manager_.Show(FailureBox(error, step_, " Marca file  03 Contatta l' autore del software_"));
  }
}

bool LogFiling::File() {
  gone_ = false;
  if (form_.Label_sezione.visible) {
    manager_.Show(NoSectionBox());
    return false;
  }
  form_.Aggiorna.visible = true;
  MakeTimesFile();
  Trap([&] {
    step_ = 1;
    if (log_.needs_category) {
      // The log is moved and counts as a participant although no QSO of it is stored.
      manager_.Show(NeedsCategoryBox());
    } else if (TurnAwayRepeated()) {
      gone_ = true;
      return;
    } else {
      WriteStore();
    }
    MoveLog();
    Finish();
  });
  log_.accepted = log_.accepted && !gone_;
  log_.needs_category = log_.needs_category && !gone_;
  return gone_;
}

void LogFiling::MakeTimesFile() {
  try {
    store_.Append(StoreFile::kTempi, log_.code, "");
  } catch (const RunTimeError&) {
    manager_.Show(TimesFileBox());
  }
}

bool LogFiling::TurnAwayRepeated() {
  if (!store_.ContainsOwner(log_.own_call, log_.code)) {
    return false;
  }
  manager_.Show(AlreadyInsertedBox());
  panel_.BecomeIdle();
  form_.Aggiorna.enabled = false;
  folder_.RemoveRowCopies();
  folder_.MoveToRepeated(log_);
  return true;
}

void LogFiling::WriteStore() {
  step_ = 2;
  const std::string owner = Join(Call12(log_.own_call), ";");
  std::string copy;
  for (std::size_t line = 1; line <= log_.totals.lines; ++line) {
    copy += owner;
    AddLine(copy, log_.Row(line));
  }
  files_.WriteAll(folder_.LineCopyPath(log_), copy);
  step_ = 3;
  AppendSums();
  form_.perc_mem.caption = std::to_string(store_.LibraryLines(log_.code));
  step_ = 4;
  AppendLibraries();
  step_ = 5;
  AppendClassification();
  step_ = 6;
  RemoveScratch();
  AppendLine(StoreFile::kModi,
             ModoRow(log_.own_call, log_.own_locator, log_.totals.ssb_qsos, log_.totals.cw_qsos));
}

std::vector<std::string_view> LogFiling::RowsOfLastDate() const {
  std::vector<std::string_view> rows;
  for (std::size_t row = log_.first_qso_row; row <= log_.last_qso_row; ++row) {
    if (Left(log_.Row(row), edi::kDateWidth) == log_.last_row_date) {
      rows.push_back(log_.Row(row));
    }
  }
  return rows;
}

void LogFiling::AppendSums() {
  std::string all;
  std::string valid;
  for (const std::string_view row : RowsOfLastDate()) {
    AddLine(all, SommaSlxRow(log_.own_call, row));
    if (!IsTakenBack(row)) {
      AddLine(valid, SommaQsoRow(row, log_.code, log_.own_locator, log_.own_call));
    }
  }
  store_.Append(StoreFile::kSommaSlx, log_.code, all);
  store_.Append(StoreFile::kSommaQso, log_.code, valid);
}

void LogFiling::AppendLibraries() {
  std::vector<std::string> library;
  std::vector<std::string> total;
  for (const ValidatedQso& qso : log_.qsos) {
    if (auto row = LibreriaRow(log_.own_call, qso.call, qso.locator, qso.points)) {
      library.push_back(std::move(*row));
    }
    if (auto row = LibreriaTotaleRow(log_.own_call, qso.call, qso.locator, log_.code, qso.points)) {
      total.push_back(std::move(*row));
    }
  }
  AppendRows(StoreFile::kLibreria, library,
             [](const std::string& row) { return LibraryRowBox(row); });
  AppendRows(StoreFile::kLibreriaTotale, total,
             [this](const std::string& row) { return TotalLibraryRowBox(row, log_.own_call); });
}

void LogFiling::AppendRows(StoreFile file, const std::vector<std::string>& rows,
                           const std::function<Box(const std::string& row)>& complaint) {
  std::string text;
  for (const std::string& row : rows) {
    AddLine(text, row);
  }
  try {
    store_.Append(file, log_.code, text);
  } catch (const RunTimeError&) {
    // One by one, so that the manager learns which row it is.
    for (const std::string& row : rows) {
      try {
        store_.Append(file, log_.code, Join(row, kLineEnd));
      } catch (const RunTimeError&) {
        manager_.Show(complaint(row));
      }
    }
  }
}

void LogFiling::AppendClassification() {
  store_.AppendToClassification(
      ClassificationRow({.call = log_.own_call,
                         .locator = log_.own_locator,
                         .height = log_.height,
                         .antenna = log_.antenna,
                         .power = log_.power,
                         .qsos = log_.declared_qsos,
                         .declared = log_.declared_points,
                         .dx_call = log_.dx_call,
                         .dx_distance = log_.dx_distance,
                         .points = log_.totals.distance,
                         .operator_mark = static_cast<char>(session_.operator_mark)}),
      log_.code, session_.category_month);
}

void LogFiling::RemoveScratch() {
  panel_.BecomeIdle();
  folder_.RemoveCopies(log_);
  form_.Aggiorna.enabled = false;
  form_.aggiorna_categoria.enabled = false;
}

void LogFiling::MoveLog() {
  step_ = 7;
  const std::string target = session_.workspace.category(log_.code) + "/" + log_.log_name;
  if (SameFile(files_, target, log_.log_path)) {
    manager_.Show(SamePlaceBox());
    return;
  }
  SpareOtherLog(target);
  files_.Copy(log_.log_path, target);
  folder_.RemoveSource(log_);
  gone_ = true;
}

void LogFiling::SpareOtherLog(const std::string& target) {
  const auto there = ReadIfThere(files_, target);
  if (!there) {
    return;
  }
  // The log takes the place of an older one of its call. Two calls may come to one name, though,
  // and the log of another one is kept.
  const std::string_view other = FindOwnCall(SplitLines(*there));
  const std::string owner = Replaced(Replaced(Call12(other), '-', '/'), '_', '/');
  if (!Trim(other).empty() && owner != log_.own_call) {
    const std::string folder = session_.workspace.repeated_logs();
    files_.Copy(target, folder + "/" + FreeName(files_, target, folder, log_.log_name));
  }
}

void LogFiling::Finish() {
  step_ = 8;
  panel_.OpenMenus();
  if (!form_.Ins_auto.checked) {
    panel_.Clear();
  }
  if (form_.Check_AUT_entry.checked && form_.File1.items.rows().empty()) {
    form_.File1.visible = false;
  }
  form_.Inserimento_OK.visible = true;
  form_.focus = &form_.caricaedi;
  session_.log_inserted_since_load = true;
  folder_.RefreshNowAndThen();
  if (folder_.waiting().empty()) {
    panel_.Close();
  }
  AppendLine(StoreFile::kStatisticaDx, StatisticaDxRow(log_.code, log_.own_call, log_.own_locator,
                                                       {.locator = log_.totals.best_locator,
                                                        .call = log_.dx_call,
                                                        .distance = log_.dx_distance}));
  // Last, so that a crash ahead of it leaves a log that the next read finds inserted already.
  AppendLine(StoreFile::kPartecipanti, PartecipanteRow(log_.own_call, log_.own_locator, log_.code));
}

void LogFiling::AppendLine(StoreFile file, const std::string& row) {
  store_.Append(file, log_.code, Join(row, kLineEnd));
}

}  // namespace velmar
