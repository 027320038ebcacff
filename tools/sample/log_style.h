#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "sample/random.h"
#include "sample/stations.h"

namespace velmar::sample {

/// What the writer of a log puts into the field of the points.
enum class PointsRule { kKilometres, kOtherContest, kNone };

/// How the program that wrote a log writes.
struct LogStyle {
  std::string_view writer;    ///< name and version, for the end row
  std::string_view line_end;  ///< CR LF or LF
  PointsRule points = PointsRule::kKilometres;
  bool odd_keys = false;        ///< unusual spellings of the keys that nobody compares
  bool small_letters = false;   ///< in the calls and locators of the QSO rows
  bool utf8 = false;            ///< else Latin-1
  bool end_row = true;          ///< the row "[END"
  bool trailing_blank = false;  ///< an empty line behind the last row
  char stray_mark = '\0';       ///< ":" or "." behind the points of one row, 0 for none
  std::size_t remarks = 0;      ///< number of remark lines
};

/// The style of a log. Logs of successive ranks go through all of the habits. A refused log has
/// none that would make it remarkable beyond its one fault.
LogStyle MakeStyle(std::size_t rank, bool accepted);

/// The name that a participant chooses for the file: the call with "_" for "/", and more.
std::string FileName(Random& random, std::string_view call, std::string_view year);

/// Who stands in the header of a log, in UTF-8.
struct Operator {
  std::string name;
  std::string city;
  std::string province;
  int post_code;
  int watts;
  int antenna_height;  ///< m above the ground
  int site_height;     ///< m above the sea
};

Operator MakeOperator(Random& random);

}  // namespace velmar::sample
