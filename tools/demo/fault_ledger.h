#pragma once

#include <string>
#include <vector>

#include "sample/planted_fault.h"

namespace velmar {

/// The lists in which the check desk proposes QSOs to its manager.
enum class DeskList { kDoubts, kTimes, kUnique, kNotInLog };

/// A QSO of such a list.
struct Proposal {
  DeskList list;
  std::string log;           ///< the call under examination
  std::string call = {};     ///< worked, without blanks
  std::string locator = {};  ///< empty where the list does not show it
  std::string time = {};     ///< HHMM in the log; empty where the list does not show it
};

/// Which of the planted faults the check desk has found.
class FaultLedger {
 public:
  explicit FaultLedger(const std::vector<PlantedFault>& faults);

  /// The planted fault that a proposal is about, which counts as found from now on. Nothing where
  /// there is no such fault in the log. Good as long as the ledger.
  const PlantedFault* Find(const Proposal& proposal);

  /// What became of the faults, a row for each kind.
  std::vector<std::string> Rows() const;

  /// The faults that some list should have shown and none has.
  std::vector<PlantedFault> Missed() const;

 private:
  struct Entry {
    PlantedFault fault;
    bool proposed = false;
  };

  std::vector<Entry> entries_;
};

}  // namespace velmar
