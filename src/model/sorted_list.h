#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace velmar {

/// A list of texts kept ascending without regard to case. Duplicates are kept; texts that differ in
/// case alone stay in the order in which they came.
class SortedList {
 public:
  void Add(std::string text);

  /// The texts in order.
  const std::vector<std::string>& rows() const;

 private:
  // Sorted when somebody looks, so that filling a list costs in line with its rows.
  mutable std::vector<std::string> rows_;
  mutable std::size_t sorted_ = 0;
};

/// The rows of a sorted list without each that is equal to the one before it in its first
/// `compared` characters.
std::vector<std::string> Distinct(const std::vector<std::string>& sorted, std::size_t compared);

}  // namespace velmar
