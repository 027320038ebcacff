#pragma once

#include <string>

namespace velmar {

/// The machine's date and time.
class Clock {
 public:
  virtual ~Clock() = default;

  /// Today, as the machine's settings show a short date: in Italy "21/01/2025".
  virtual std::string ShortDate() = 0;

  /// Seconds since midnight.
  virtual double Timer() = 0;
};

}  // namespace velmar
