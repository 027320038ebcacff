#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The columns of rows whose cells are parted by tabs, for a font of one width. A column is as wide
/// as its widest cell, within reason: a very long cell moves the rest of its own row only. The last
/// cell of a row needs no room behind it.
class TabStops {
 public:
  /// Makes room for the cells of a row.
  void Widen(std::string_view row);

  /// The row with blanks up to each next column instead of its tabs, and how long it is.
  std::string Spread(std::string_view row) const;
  std::size_t WidthOf(std::string_view row) const;

 private:
  /// What a cell takes up together with the gap behind it.
  std::size_t ColumnFor(std::size_t column, std::string_view cell) const;

  std::vector<std::size_t> widths_;
};

}  // namespace velmar
