#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace velmar {

/// What was worked, out of a sorted list of locators with its duplicates.
struct WorkedSquares {
  std::vector<std::string> locators;  ///< each once
  std::string lines;                  ///< for the statistics file, squares and fields as they come
  std::string squares;                ///< the text of the list of squares
  std::string fields;                 ///< the text of the list of fields
  std::size_t square_count = 0;
  std::size_t field_count = 0;
};

/// An entry tells its square, or its field, where the next entry has another one; the last entry
/// always does.
WorkedSquares FindWorkedSquares(const std::vector<std::string>& sorted);

}  // namespace velmar
