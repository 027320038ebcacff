#pragma once

#include <cstddef>
#include <string_view>

#include "model/text.h"

namespace velmar {

/// A field of a row with fixed columns: where it begins, counted from 1, and its width.
struct Column {
  std::size_t start;
  std::size_t width;
};

/// The text of a field; short or empty where the row is short.
constexpr std::string_view Cut(std::string_view row, Column column) {
  return Mid(row, column.start, column.width);
}

/// A row of the classification (.cla).
namespace classification_row {

/// Where ten blanks mean that the log of this row has not been checked yet. The test takes the last
/// two columns of the recomputed score in, which are blank in every row.
inline constexpr Column kUnchecked{90, 10};

}  // namespace classification_row

}  // namespace velmar
