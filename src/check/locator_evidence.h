#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// What the other logs tell of a QSO in doubt.
struct LocatorEvidence {
  std::vector<std::string> rows;  ///< their QSOs with the call, each with a mark for its locator
  int same = 0;                   ///< of them with the locator in doubt
  int other = 0;
};

/// The evidence for a call of 12 characters and a locator, out of library rows.
LocatorEvidence GatherEvidence(const std::vector<std::string_view>& others, std::string_view call,
                               std::string_view locator);

/// What the evidence speaks for.
struct LocatorVerdict {
  std::string_view text;  ///< shown to the manager
  bool good = false;      ///< it speaks for the locator
  bool believed_wrong = false;
  bool doubt = false;
};

/// Judges the counts. `same` includes the log under examination.
LocatorVerdict JudgeLocator(int same, int other);

/// The first locator that at least two rows of the evidence have; empty without one.
std::string RepeatedLocator(const std::vector<std::string>& rows);

}  // namespace velmar
