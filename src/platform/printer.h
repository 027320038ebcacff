#pragma once

#include <string>
#include <vector>

namespace velmar {

/// The machine's printer.
class Printer {
 public:
  virtual ~Printer() = default;

  virtual bool Installed() = 0;

  /// Prints lines of text in a fixed-pitch font. Raises RunTimeError when no page came out.
  virtual void Print(const std::vector<std::string>& lines) = 0;
};

}  // namespace velmar
