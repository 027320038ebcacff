#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "sample/planted_fault.h"

namespace velmar {

struct SampleOptions {
  std::uint64_t seed;
  int stations;                 ///< that send a log: 2 to 2000; as many more send none as make 15 %
  int qsos;                     ///< in a log on average: 1 to 800, below `stations`
  std::string date = "250119";  ///< YYMMDD
};

/// A log as it came in.
struct ReceivedLog {
  std::string file_name;  ///< as its sender chose it, unlike all others in any case of letters
  std::string content;    ///< the bytes
};

struct SampleContest {
  std::vector<ReceivedLog> logs;
  std::vector<PlantedFault> faults;  ///< by log, the header's first, then in the order of the rows
};

/// Makes the logs of a contest whose stations work each other, with faults that are all listed. The
/// same options give the same bytes on every machine. Each log passes the recalculation, the
/// renaming and the insertion, but for those with a fault of kRefusals, which the recalculation
/// refuses. From 20 logs on there is every kind of fault, and `qsos` is 5 at least. Throws
/// std::invalid_argument for options out of these limits.
SampleContest MakeSampleContest(const SampleOptions& options);

}  // namespace velmar
