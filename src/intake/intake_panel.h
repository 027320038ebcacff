#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "intake/intake_state.h"
#include "intake/refusal.h"
#include "platform/file_system.h"
#include "platform/form.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// The third step on the main screen: which logs wait, the log in hand, and which commands are
/// within reach. It also moves a log out of the intake folder, since the lists follow.
class IntakePanel {
 public:
  IntakePanel(ContestSession& session, FileSystem& files, MainForm& form)
      : session_(session), files_(files), form_(form) {}

  /// Reads the intake folder, removes scratch copies that an earlier read left there, and lists the
  /// folder that is chosen.
  void Refresh();

  /// The same, but only when many logs were moved since, or none is left, or changes are expected:
  /// in a run over many logs the folder would be read as often as it has logs.
  void RefreshNowAndThen();

  /// Others may have changed the folder: it is to be read before the next log is taken.
  void ExpectChanges() { changes_expected_ = true; }

  /// The logs in the intake folder, as it was read last, less those that were moved since.
  const std::vector<std::string>& waiting() const { return waiting_; }

  /// The scratch copies of a log, of all its lines and of its QSO rows, wherever it lies itself.
  std::string LineCopyPath(const IntakeState& log) const;
  std::string RowCopyPath(const IntakeState& log) const;

  /// Removes the scratch copies of one log, where it has any; the copies of the rows of any log.
  void RemoveCopies(const IntakeState& log);
  void RemoveRowCopies();

  // What becomes of a log that is not filed. The copy is whole before the source goes, and never
  // takes the place of another log.
  void Refuse(const IntakeState& log, Refusal refusal);
  void SetAsRepeated(const IntakeState& log);

  /// Removes the source of a log that is whole elsewhere.
  void RemoveSource(const IntakeState& log);

  // The log on screen.
  void Reset();  ///< for a new read: no log is loaded, no colours, no mark
  void Clear();
  void ShowFile(const IntakeState& log);
  void ShowOwner(const IntakeState& log);
  void ShowStation(const IntakeState& log);
  void ShowDeclared(const IntakeState& log);
  void ShowScore(double declared, double total);
  void ShowCounts(const IntakeState& log);

  // The states.
  void BecomeIdle();
  void BecomeLoaded();
  void LockMenus();
  void OpenMenus();  ///< after a filing: there is a classification now
  void AwaitCategory();
  void TakeNewCategory();  ///< the log has it, and is to be read again
  void Close();

 private:
  void ListChosenFolder();
  std::string CopyPath(const IntakeState& log, std::string_view extension) const;
  void Move(const IntakeState& log, const std::string& target);
  void UnlockMenus();
  void ColourCategory(int colour);
  std::array<Menu*, 5> LockedMenus();

  ContestSession& session_;
  FileSystem& files_;
  MainForm& form_;
  std::vector<std::string> waiting_;
  std::size_t moved_since_look_ = 0;
  bool changes_expected_ = true;
  std::optional<std::array<bool, 5>> before_lock_;  ///< whether the locked menus were enabled
};

}  // namespace velmar
