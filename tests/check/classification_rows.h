#pragma once

#include <string>
#include <string_view>

#include "model/classification_row.h"

namespace velmar::test {

/// The row of a log of two QSOs that waits for its check, and the one that a check of it leaves.
inline std::string WaitingRow(std::string_view call) {
  ClassificationEntry entry;
  entry.call = call;
  entry.locator = "JN45AA";
  entry.qsos = "2";
  entry.points = 300;
  return ClassificationRow(entry);
}

inline std::string DoneRow(std::string_view call) {
  return CheckedRow(WaitingRow(call), {.errors = 0, .lost = 0, .final = 300});
}

}  // namespace velmar::test
