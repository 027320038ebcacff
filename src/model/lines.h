#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

inline constexpr std::string_view kLineEnd = "\r\n";

/// Walks through the lines of a text. CR LF, LF and CR alone each end a line; a text that ends in a
/// line end has no further line behind it. The lines are views into the text.
class LineReader {
 public:
  explicit LineReader(std::string_view text)
      : text_(text), next_lf_(std::min(text.find('\n'), text.size())) {}

  /// Puts the next line into `line`; false when there is none.
  bool Next(std::string_view& line);

 private:
  std::string_view text_;
  std::size_t at_ = 0;
  std::size_t next_lf_;  ///< the next LF from `at_` on; a file with CR alone is searched once
};

/// Writes a line with its line end behind `text`.
inline void AddLine(std::string& text, std::string_view line) {
  text += line;
  text += kLineEnd;
}

/// All lines of a text, as LineReader gives them.
std::vector<std::string_view> SplitLines(std::string_view text);

/// The same as texts of their own, which outlive `text`.
std::vector<std::string> CopyLines(std::string_view text);

/// Puts the lines of a text into a table of them, in place of what it held. The table tells where
/// there are too many.
template <typename Table>
void FillWithLines(Table& table, std::string_view text) {
  table.Clear();
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    table.Add(std::string(line));
  }
}

/// A text of lines, each with its line end.
template <typename Lines>
std::string TextOfLines(const Lines& lines) {
  std::size_t size = 0;
  for (const std::string_view line : lines) {
    size += line.size() + kLineEnd.size();
  }
  std::string text;
  text.reserve(size);
  for (const std::string_view line : lines) {
    AddLine(text, line);
  }
  return text;
}

/// The last line of a text; empty when it has none.
std::string_view LastLine(std::string_view text);

}  // namespace velmar
