#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmar::bench {

/// What the loops found, and how often they came to the rarer cases.
struct PlainAbsent {
  std::size_t distinct = 0;  ///< participants
  std::size_t foreign = 0;   ///< rows
  std::vector<std::string> counted;
  std::vector<std::string> absent;
  std::size_t split = 0;    ///< entries behind the first of one spelling
  std::size_t present = 0;  ///< entries
};

/// The loops that the rules of the absent stations stand for: for each row of the library all rows
/// behind it are gone through, and for each entry all participants. The yardstick of their results.
PlainAbsent FindAbsentByLoops(const std::vector<std::string_view>& library,
                              const std::vector<std::string_view>& participants,
                              std::string_view last_search);

}  // namespace velmar::bench
