#pragma once

#include <array>
#include <optional>

#include "intake/intake_state.h"
#include "platform/form.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// The third step on the main screen: the log in hand, and which commands are within reach.
class IntakePanel {
 public:
  IntakePanel(ContestSession& session, MainForm& form) : session_(session), form_(form) {}

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
  void Drop();  ///< the log is refused: nothing of it stays on screen
  void LockMenus();
  void OpenMenus();  ///< after a filing: there is a classification now
  void AwaitCategory();
  void TakeNewCategory();  ///< the log has it, and is to be read again
  void Close();

 private:
  void UnlockMenus();
  void ColourCategory(int colour);
  std::array<Menu*, 5> LockedMenus();

  ContestSession& session_;
  MainForm& form_;
  std::optional<std::array<bool, 5>> before_lock_;  ///< whether the locked menus were enabled
};

}  // namespace velmar
