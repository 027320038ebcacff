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

  /// The logs in the intake folder, as it was read last, less those that were moved since.
  const std::vector<std::string>& waiting() const { return waiting_; }

  /// Removes the scratch copies of the rows of any log.
  void RemoveRowCopies();

  // What becomes of a log that is not filed. The copy is whole before the source goes, and never
  // takes the place of another log.
  void Refuse(const IntakeState& log, Refusal refusal);
  void SetAsRepeated(const IntakeState& log);

  /// Removes the source of a log that is whole elsewhere.
  void RemoveSource(const IntakeState& log);

  // The log on screen.
  void Reset();  ///< for a new read: colours, marks
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
  void Close();

 private:
  void ListChosenFolder();
  void Move(const IntakeState& log, const std::string& target);
  void UnlockMenus();
  std::array<Menu*, 5> LockedMenus();

  ContestSession& session_;
  FileSystem& files_;
  MainForm& form_;
  std::vector<std::string> waiting_;
  std::optional<std::array<bool, 5>> before_lock_;  ///< whether the locked menus were enabled
};

}  // namespace velmar
