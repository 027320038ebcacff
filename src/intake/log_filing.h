#pragma once

#include <functional>
#include <string>
#include <vector>

#include "intake/intake_folder.h"
#include "intake/intake_panel.h"
#include "intake/intake_state.h"
#include "model/contest_store.h"
#include "platform/manager.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// Files the log that was read: the one moment at which it enters the contest. The store files are
/// written in a fixed order, the participants last.
class LogFiling {
 public:
  LogFiling(ContestSession& session, FileSystem& files, Manager& manager, ContestStore& store,
            IntakeFolder& folder, IntakePanel& panel, MainForm& form, IntakeState& log)
      : session_(session),
        files_(files),
        manager_(manager),
        store_(store),
        folder_(folder),
        panel_(panel),
        form_(form),
        log_(log) {}

  void Marcafile_Click();

  /// The same without reading the folder anew; whether the log has left it.
  bool File();

  /// Moves the log to the repeated ones when the contest has one of its call already; whether it
  /// has.
  bool TurnAwayRepeated();

 private:
  void Trap(const std::function<void()>& procedure);
  void MakeTimesFile();
  void WriteStore();
  void AppendSums();
  std::vector<std::string_view> RowsOfLastDate() const;
  void AppendLibraries();
  void AppendRows(StoreFile file, const std::vector<std::string>& rows,
                  const std::function<Box(const std::string& row)>& complaint);
  void AppendClassification();
  void RemoveScratch();
  void MoveLog();
  void SpareOtherLog(const std::string& target);
  void Finish();
  void AppendLine(StoreFile file, const std::string& row);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  ContestStore& store_;
  IntakeFolder& folder_;
  IntakePanel& panel_;
  MainForm& form_;
  IntakeState& log_;
  int step_ = 0;  ///< what the filing is at, for the message of a failure
  bool gone_ = false;
};

}  // namespace velmar
