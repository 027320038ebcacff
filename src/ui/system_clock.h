#pragma once

#include "platform/clock.h"

namespace velmar {

/// The clock of the machine. Dates have the Italian form whatever the machine is set to.
class SystemClock : public Clock {
 public:
  std::string ShortDate() override;
  double Timer() override;
};

}  // namespace velmar
