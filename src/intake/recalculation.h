#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

#include "intake/log_check.h"
#include "intake/rescoring_ahead.h"
#include "platform/file_system.h"
#include "platform/form.h"
#include "platform/manager.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// The screen of the first step: received logs on one side, recalculated ones on the other.
struct RecalculationForm : Form {
  RecalculationForm();

  FileList& source = AddFileList("File1", "01 Log da RICALCOLARE");
  FileList& destination = AddFileList("File2", "02 Log ricalcolati");
  Label& num_file = AddLabel("num_file");
  TextField& Text1 = AddText("Text1", "File ricalcolati");
  List& outcome = AddList("List1", "Esito");  ///< what became of each log of the run
  ProgressBar& progress = AddProgress("Bar1");
  Button& rinomina = AddButton("rinomina", "Ricalcola i log");
  Button& torna_menu = AddButton("torna_menu", "&Esci");
};

/// The first step of the procedure: all received logs are checked, those that cannot be computed
/// are set aside, and the others are written again with one point per kilometre.
class Recalculation {
 public:
  Recalculation(ContestSession& session, FileSystem& files, Manager& manager, Screen& screen,
                MainForm& main);

  RecalculationForm& form() { return form_; }

  /// Shows the screen. The button is out of reach when there is nothing to do or something in the
  /// way.
  void Open();

  /// Runs both passes.
  void rinomina_Click();

  /// Leaves the step. After a run the received logs that were recalculated are removed.
  void torna_menu_Click();

 private:
  void Trap(const std::function<void()>& procedure);
  void ReportLogFault();
  void RefreshLists();

  // The first pass.
  void CheckLogs();
  void Keep(const std::string& name, std::string text);
  void Refuse(const std::string& name, const LogFault& fault);
  std::string ConfirmLocator(const LogFault& fault);
  void SetAside(const std::string& name, const std::string& suffix);

  // The second pass.
  void RescoreLogs();
  void WriteLog(const std::string& name, const Rescoring& rescoring);
  [[noreturn]] void EndOnOwnLocator(const LogOwner& owner);
  void Finish();

  void RemoveRecalculated();
  void UpdateMenu();
  void Advance(std::size_t done);
  Reply Show(const Box& box) { return manager_.Show(box); }

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Screen& screen_;
  MainForm& main_;
  RecalculationForm form_;
  int step_ = 0;                             ///< what the run is at, for the message of a failure
  std::vector<WaitingLog> passed_;           ///< the logs that passed the first pass
  std::size_t kept_bytes_ = 0;               ///< of their texts
  std::string rescoring_;                    ///< the log that the second pass is at; empty for none
  std::unordered_set<std::string> written_;  ///< the logs that the run wrote
  bool run_made_ = false;
};

}  // namespace velmar
