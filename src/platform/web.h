#pragma once

#include <string>

namespace velmar {

/// The network, as far as the program uses it.
class Web {
 public:
  virtual ~Web() = default;

  /// The text at `url`. Raises RunTimeError when it cannot be had.
  virtual std::string Fetch(const std::string& url) = 0;

  /// Shows `url` in the default browser.
  virtual void Open(const std::string& url) = 0;
};

}  // namespace velmar
