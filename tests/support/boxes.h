#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/manager.h"

namespace velmar::test {

using Names = std::vector<std::string>;

/// The lines of a box, from one text in which "|" stands between them.
inline Names Lines(std::string_view text) {
  Names lines(1);
  for (const char c : text) {
    if (c == '|') {
      lines.emplace_back();
    } else {
      lines.back() += c;
    }
  }
  return lines;
}

/// A box with an OK button and such lines.
inline Box Told(std::string_view text) {
  return {.lines = Lines(text)};
}

}  // namespace velmar::test
