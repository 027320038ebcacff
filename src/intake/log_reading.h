#pragma once

#include <functional>
#include <optional>
#include <string>

#include "intake/category_choice.h"
#include "intake/intake_folder.h"
#include "intake/intake_panel.h"
#include "intake/intake_state.h"
#include "intake/log_filing.h"
#include "intake/log_header.h"
#include "intake/qso_validation.h"
#include "model/contest_store.h"
#include "platform/manager.h"
#include "session/contest_session.h"
#include "session/main_form.h"
#include "session/month_assignment.h"

namespace velmar {

/// Reads one log out of the intake folder and decides whether it may enter the contest: its name,
/// its dates, its header, its rows, the agreement of its counts. A log that may not is never mended
/// here: it is moved away under a name that says why.
class LogReading {
 public:
  LogReading(ContestSession& session, FileSystem& files, Manager& manager, ContestStore& store,
             MonthAssignment& months, IntakeFolder& folder, IntakePanel& panel, MainForm& form,
             LogFiling& filing, IntakeState& log);

  /// Reads a log; in turbo mode reads and files all of them, up to one that stays.
  void caricaedi_Click();

  /// Writes the chosen category and its band into the log that was read, to be read again.
  void Aggiorna_Click();

  /// Lists the files of another folder.
  void Dir1_Change();

 private:
  bool ReadNext();
  void Trap(const std::function<void()>& procedure);
  void Read();

  // Each is false where the read ends with it.
  bool HasLogs();
  bool ChooseFile();
  bool NameFits();
  bool TakeFile();
  bool HeaderFits();
  bool TakeHeader();
  bool LocatorFits();
  bool CategoryFits();
  bool CountsFit();
  bool RowsFit();
  bool LastChecksPass();
  bool NameFitsCategory();

  bool Takes(std::optional<ValueFault> fault);
  void WarnOfRows();
  void AppendTeam();
  void FileAtOnce();
  void Refuse(Refusal refusal);
  void RefuseAndTell(Refusal refusal, const Box& box);
  void ShowProgress();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  ContestStore& store_;
  MonthAssignment& months_;
  IntakeFolder& folder_;
  IntakePanel& panel_;
  MainForm& form_;
  LogFiling& filing_;
  IntakeState& log_;
  QsoValidation validation_;
  CategoryChoice category_;
  std::string last_folder_;   ///< where the file dialog opens
  std::size_t at_start_ = 0;  ///< logs that waited when the run began
  bool gone_ = false;         ///< the log has left the folder
};

}  // namespace velmar
