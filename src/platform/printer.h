#pragma once

#include <string>
#include <utility>
#include <vector>

#include "platform/picture.h"

namespace velmar {

/// Lines of one page in one size of letters.
struct PrintedBlock {
  std::vector<std::string> lines;
  int points = 10;  ///< size of the letters

  bool operator==(const PrintedBlock&) const = default;
};

/// What is printed in one go, block under block, in a fixed-pitch font on upright pages.
using PrintJob = std::vector<PrintedBlock>;

/// The machine's printer.
class Printer {
 public:
  virtual ~Printer() = default;

  virtual bool Installed() = 0;

  /// Prints text. Raises RunTimeError when no page came out.
  virtual void Print(const PrintJob& job) = 0;

  /// Prints a picture over the width of a page, its title above it. Errors as above.
  virtual void PrintPicture(const std::string& title, const Picture& picture) = 0;
};

}  // namespace velmar
