#pragma once

#include <cstddef>
#include <map>
#include <vector>

#include "check/locator_doubts.h"

namespace velmar::bench {

/// What the loops found, and what they met on the way.
struct PlainDoubts {
  std::vector<std::size_t> places;    ///< of the doubts in the log, counted from 0
  std::size_t declared = 0;           ///< QSOs that the station's own log agrees with
  std::size_t unheard = 0;            ///< QSOs whose call no other log has
  std::map<int, std::size_t> counts;  ///< how often each count of agreeing QSOs was weighed
};

/// The loops that FindLocatorDoubts stands for: for each QSO of the log all other QSOs are gone
/// through, and for each of these that contradicts it all others again. The yardstick of its speed
/// and results.
PlainDoubts FindDoubtsByLoops(const LocatorWitnesses& witnesses);

}  // namespace velmar::bench
