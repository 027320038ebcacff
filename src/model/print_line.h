#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// One print to a text file, by the rules of a line printer: texts as they stand, numbers with
/// their blanks, print zones of 14 columns.
///
///     PrintLine().Text("Qso ITA = ").Number(12).Tab(40).Text("Qso EST = ").Number(3).End()
class PrintLine {
 public:
  static constexpr std::size_t kZoneWidth = 14;

  PrintLine& Text(std::string_view text);

  /// A number: one blank ahead when it is not negative, one blank behind.
  PrintLine& Number(long long number);

  /// Pads with blanks, so that the next item begins at `column` (counted from 1). A line that has
  /// gone past that column stays as it is.
  PrintLine& Tab(std::size_t column);

  /// A comma between two items: pads with blanks to the beginning of the next zone.
  PrintLine& Zone();

  /// The line with its line end.
  std::string End() const;

  /// The line, left open for a next print to go on.
  const std::string& Open() const { return line_; }

 private:
  std::string line_;
};

}  // namespace velmar
