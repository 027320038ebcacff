#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "intake/intake_state.h"
#include "intake/refusal.h"
#include "platform/file_system.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// The folder of the logs that wait to be inserted. Whatever moves a log out of it goes through
/// here, so that the list on the screen follows.
class IntakeFolder {
 public:
  IntakeFolder(ContestSession& session, FileSystem& files, MainForm& form)
      : session_(session), files_(files), form_(form) {}

  /// Reads the folder, removes scratch copies that an earlier read left there, and lists the folder
  /// that is chosen.
  void Refresh();

  /// The same, but only when many logs were moved since, or none is left, or changes are expected:
  /// in a run over many logs the folder would be read as often as it has logs.
  void RefreshNowAndThen();

  /// Others may have changed the folder: it is to be read before the next log is taken.
  void ExpectChanges() { changes_expected_ = true; }

  /// The logs that wait, as the folder was read last, less those that were moved since.
  const std::vector<std::string>& waiting() const { return waiting_; }

  /// The scratch copies of a log, of all its lines and of its QSO rows, wherever it lies itself.
  std::string LineCopyPath(const IntakeState& log) const;
  std::string RowCopyPath(const IntakeState& log) const;

  /// Removes the scratch copies of one log, where it has any; the copies of the rows of any log.
  void RemoveCopies(const IntakeState& log);
  void RemoveRowCopies();

  // Where a log goes that is not filed. The copy is whole before the source goes, and never takes
  // the place of another log.
  void MoveToRefused(const IntakeState& log, Refusal refusal);
  void MoveToRepeated(const IntakeState& log);

  /// Removes the source of a log that is whole elsewhere.
  void RemoveSource(const IntakeState& log);

 private:
  std::string PathOf(const std::string& name) const;
  std::string CopyPath(const IntakeState& log, std::string_view extension) const;
  bool ListsItself() const;
  void Move(const IntakeState& log, const std::string& target);

  ContestSession& session_;
  FileSystem& files_;
  MainForm& form_;
  std::vector<std::string> waiting_;
  std::size_t moved_since_look_ = 0;
  bool changes_expected_ = true;
};

}  // namespace velmar
