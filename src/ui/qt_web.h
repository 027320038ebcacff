#pragma once

#include "platform/web.h"

namespace velmar {

/// The network through the toolkit. A text that does not come within 5 s cannot be had.
class QtWeb : public Web {
 public:
  std::string Fetch(const std::string& url) override;
  void Open(const std::string& url) override;
};

}  // namespace velmar
