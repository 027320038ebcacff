#pragma once

#include <functional>

#include "platform/error.h"
#include "platform/manager.h"

namespace velmar {

/// The error trap of start-up, the main menu and their dialogs: the one place that sorts their
/// failures. They share one, so that a message names the step that really failed.
class MenuTrap {
 public:
  explicit MenuTrap(Manager& manager) : manager_(manager) {}

  /// Runs one statement of a procedure. A refused path (75) and a missing folder (76) are passed
  /// over; a locked file (70) is told and passed over. Any other error leaves the procedure.
  /// `step` is the number that the manager reads.
  void Statement(int step, const std::function<void()>& statement);

  /// Runs a statement whose every failure is passed over; false when it failed.
  bool Tolerate(const std::function<void()>& statement);

  /// Runs a procedure; an error that left it is told and ends it.
  void Procedure(const std::function<void()>& procedure);

 private:
  Manager& manager_;
  int step_ = 0;
};

}  // namespace velmar
