#pragma once

#include <functional>
#include <string>

#include "platform/manager.h"

namespace velmar {

/// The error routine of the statistics: the one place that their failures end in.
class StatisticsTrap {
 public:
  explicit StatisticsTrap(Manager& manager) : manager_(manager) {}

  /// Runs a procedure; an error that leaves it is told and ends it. What it wrote stays. An
  /// overflow (error 6) is told as `overflow`, where that is not empty.
  void Procedure(const std::function<void()>& procedure, const std::string& overflow = "");

  /// Tells the number that the manager reads where the next error comes.
  void At(int step) { step_ = step; }

 private:
  Manager& manager_;
  int step_ = 0;
};

}  // namespace velmar
