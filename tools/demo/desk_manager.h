#pragma once

#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "demo/fault_ledger.h"
#include "demo/played_program.h"

namespace velmar {

/// What the check of a call came to.
struct CheckedCall {
  std::string call;
  std::size_t doubts = 0;  ///< proposals of each list
  std::size_t times = 0;
  std::size_t unique = 0;
  std::size_t not_in_log = 0;
  int errors = 0;                ///< penalised
  std::string points_lost = {};  ///< as the desk shows them
};

/// A manager at the check desk who knows which faults were planted: these are judged as what they
/// are, and everything else is accepted. Each decision goes by what the desk shows at that moment.
class DeskManager {
 public:
  /// The desk is open in the program, and holds a classification.
  DeskManager(PlayedProgram& program, FaultLedger& ledger) : program_(program), ledger_(ledger) {}

  /// Checks the next call of the queue, until its result is saved.
  CheckedCall CheckNext();

 private:
  std::vector<std::string> Rows(DeskList list);
  std::size_t Settle(DeskList list);
  void Decide(DeskList list, const std::string& row);
  Proposal Read(DeskList list, const std::string& row) const;
  std::string Acceptance(DeskList list);

  PlayedProgram& program_;
  FaultLedger& ledger_;
  std::string call_;                 ///< under examination
  std::set<std::string> penalised_;  ///< calls, each of which the desk penalises once
};

}  // namespace velmar
