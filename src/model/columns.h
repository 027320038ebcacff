#pragma once

#include <cstddef>
#include <initializer_list>
#include <string_view>

#include "model/text.h"

namespace velmar {

/// A field of a row with fixed columns: where it begins, counted from 1, and its width.
struct Column {
  std::size_t start;
  std::size_t width;

  constexpr std::size_t end() const { return start + width; }  ///< the column behind it
};

/// The width of a field that goes on to the end of its row.
inline constexpr std::size_t kToTheEnd = std::string_view::npos;

/// The text of a field; short or empty where the row is short.
constexpr std::string_view Cut(std::string_view row, Column column) {
  return Mid(row, column.start, column.width);
}

/// Whether each column begins where the one before it ends.
constexpr bool FollowOneAnother(std::initializer_list<Column> columns) {
  std::size_t next = 1;
  for (const Column& column : columns) {
    if (column.start != next) {
      return false;
    }
    next = column.end();
  }
  return true;
}

}  // namespace velmar
