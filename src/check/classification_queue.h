#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/bounded_table.h"

namespace velmar {

/// The rows of a classification in the order of its file, its header first. Rows are counted from
/// 0, the header's number, so that a row's number is its position.
class ClassificationQueue {
 public:
  /// Takes the rows of a file in place of the older ones. False where the first one is no header:
  /// then there are none. Empty lines are passed over; too many rows raise error 9 and leave none.
  bool Read(std::string_view text);

  void Clear() { rows_.Clear(); }
  bool empty() const { return rows_.empty(); }
  std::size_t size() const { return rows_.size(); }

  /// A row as the file has it.
  const std::string& Row(std::size_t row) const { return rows_[row + 1]; }

  /// Another text of a row, as the checks have made it.
  void SetRow(std::size_t row, std::string text) { rows_.Replace(row + 1, std::move(text)); }

  /// The file: all rows, each cut to `width` characters.
  std::string FileText(std::size_t width) const;

  /// A row with its position behind it. What lacks to its columns is blank.
  std::string RowWithPosition(std::size_t row) const;

  /// All rows as the list of the queue shows them: each, its header apart, with its position.
  std::vector<std::string> Shown() const;

  /// What stands between a row and its position; " " at first.
  void SeparatePositions(std::string separator) { separator_ = std::move(separator); }

  /// Whether a row is a header, wherever it stands.
  bool LooksLikeHeader(std::size_t row) const;

  /// Whether a row is so short that it lacks what the check starts from.
  bool TooShort(std::size_t row) const;

  /// The first row, behind the header, that has not been checked.
  std::optional<std::size_t> FirstUnchecked() const;

  /// The first row, behind the header, whose call holds a text.
  std::optional<std::size_t> FindCall(std::string_view part) const;

 private:
  using Rows = BoundedTable<std::string, 370'000>;
  Rows rows_;
  std::string separator_ = " ";
};

/// Whether a row of the classification waits for its check. A row that is too short to tell does
/// not.
bool ToBeChecked(std::string_view row);

}  // namespace velmar
