#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <unordered_set>
#include <vector>

#include "intake/log_identity.h"
#include "intake/renaming_form.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// The second step of the procedure: recalculated logs get the names under which they can be
/// inserted; what is no log, and what came twice, is set aside.
class Renaming {
 public:
  Renaming(ContestSession& session, FileSystem& files, Manager& manager, Screen& screen,
           MainForm& main);

  RenamingForm& form() { return form_; }

  /// Shows the screen. The button is out of reach when there is nothing to rename.
  void Open();

  void rinomina_Click();

  /// Leaves the step. After a run the recalculated logs that it copied are removed.
  void torna_menu_Click();

  /// Shows the row of the list of logs set aside that was clicked.
  void List2_Click();

 private:
  /// A log of the source, by its file name, and what its header says.
  struct Entry {
    std::string name;
    LogIdentity log;
  };

  struct Counters {
    std::size_t read = 0;
    std::size_t repeated = 0;
    std::size_t changed_calls = 0;
    std::size_t not_valid = 0;
    std::size_t renamed = 0;
  };

  void Trap(const std::function<void()>& procedure);
  void RefreshLists();
  void ShowCounters();
  std::vector<Entry> TidyLogs();
  std::string Tidy(const std::string& name);
  void MarkAsNoLog(const std::string& name);
  void RenameLogs(const std::vector<Entry>& logs);
  bool TakeName(const Entry& entry);
  void TellMissingRows(const std::string& name, const LogIdentity& log);
  void SetAside(const std::string& name, const std::string& new_name);
  void Insert(const Entry& entry);
  std::string Source(const std::string& name) const;
  void Tell(const std::string& row);
  void RemoveRenamed();
  void UpdateMenu();
  void Advance(std::size_t done);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Screen& screen_;
  MainForm& main_;
  RenamingForm form_;
  int step_ = 0;  ///< what the run is at, for the message of a failure
  Counters counters_;
  std::unordered_set<std::string> names_;  ///< given in this run
  std::vector<std::string> copied_;        ///< the logs of the source that lie elsewhere now
  bool run_made_ = false;
};

}  // namespace velmar
