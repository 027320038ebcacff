#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The library of a category, parted for the check of one log. The rows point into the text that
/// they were read from.
struct LibrarySplit {
  std::vector<std::string_view> log;     ///< QSOs of the log under examination, in its order
  std::vector<std::string_view> others;  ///< of all other logs, in the order of the library
};

/// The most rows that a library may have.
inline constexpr std::size_t kMostLibraryRows = 370'000;

/// Parts a library by the owner of its rows, `call` without blanks behind it. Rows that are short
/// and rows of deleted or wrong QSOs are left out. More rows than a library may have raise error 9.
LibrarySplit SplitLibrary(std::string_view library, std::string_view call);

}  // namespace velmar
