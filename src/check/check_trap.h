#pragma once

#include <functional>

#include "platform/manager.h"

namespace velmar {

/// The error routine of the desk: the one place that its failures end in.
class CheckTrap {
 public:
  explicit CheckTrap(Manager& manager) : manager_(manager) {}

  /// Runs a procedure; an error that leaves it is told and ends it, and the result is false. `step`
  /// is the number that the manager reads.
  bool Procedure(int step, const std::function<void()>& procedure);

 private:
  Manager& manager_;
};

}  // namespace velmar
