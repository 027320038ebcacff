#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "check/unique_calls.h"

namespace velmar::bench {

/// What the loops found, and how often they came to each of their ends.
struct PlainUnique {
  std::vector<std::string> rows;
  std::size_t equal = 0;         ///< first pass: another log has the call
  std::size_t portable = 0;      ///< first pass: another log has it with a "/"
  std::size_t alone = 0;         ///< first pass: no other log has it
  std::size_t with_log = 0;      ///< left out, in either pass
  std::size_t in_book = 0;       ///< left out, in either pass
  std::size_t other_place = 0;   ///< second pass: nobody has it in that locator
  std::size_t enough = 0;        ///< second pass: the limit is reached
  std::size_t rare = 0;          ///< second pass: listed
  std::size_t listed_twice = 0;  ///< by both passes
};

/// The loops that FindUniqueCalls stands for: for each QSO of the log all other QSOs are gone
/// through, once in the first pass and twice in the second. The yardstick of its results.
PlainUnique FindUniqueByLoops(const UniqueSources& sources);

}  // namespace velmar::bench
