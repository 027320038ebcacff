#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// A QSO row as the pass over the rows saw it; all empty for a row that it passed over.
struct ValidatedQso {
  std::string row;      ///< in capitals
  std::string call;     ///< worked
  std::string locator;  ///< worked
  std::string points;   ///< claimed
  int distance = 0;     ///< km
  bool deleted = false;
  bool doubled = false;
};

/// What the pass over the rows of a log found.
struct QsoTotals {
  std::size_t lines = 0;  ///< of the log, up to its end row
  int rows = 0;           ///< QSO rows of the log
  int error_rows = 0;
  int deleted_rows = 0;
  int doubles = 0;
  int ssb_qsos = 0;
  int cw_qsos = 0;
  int no_mode_qsos = 0;
  int cw_rows = 0;           ///< written to the list of CW QSOs
  long long distance = 0;    ///< km, of all QSOs that count
  int best_distance = 0;     ///< km
  std::string best_locator;  ///< of the farthest QSO
  std::string best_call;
};

/// A category that stands for another one: it becomes that of the contest once its rows have
/// passed.
inline constexpr std::string_view kBothCategories = "UNI";

/// The log that is being read, from its choice to its filing.
struct IntakeState {
  // The file.
  std::string log_path;
  std::string log_name;           ///< at most 35 characters
  std::string code;               ///< category of the name: its first three letters, in capitals
  std::vector<std::string> rows;  ///< the lines, each cut at its first tab

  // Its QSO section; row numbers count from 1.
  std::size_t first_qso_row = 0;
  std::size_t last_qso_row = 0;
  bool end_seen = false;
  bool qso_records_seen = false;
  int declared_rows = 0;  ///< the number in the row ahead of the QSOs
  std::string last_row_date;

  // Its header.
  std::string own_call;     ///< 12 characters
  std::string own_locator;  ///< in capitals, as long as it is
  std::string category;     ///< as declared
  double frequency = 0;     ///< MHz
  std::string section;      ///< of the operator
  double power = 0;         ///< W
  std::string antenna;
  std::string height;         ///< m above sea level, digits
  std::string shown_height;   ///< with the height above ground, as declared
  bool height_wrong = false;  ///< it was no number
  std::string declared_qsos;  ///< valid ones, as text
  std::string declared_points;
  std::string dx_call;      ///< of the farthest QSO, as declared
  std::string dx_distance;  ///< km, as declared
  bool needs_category = false;

  bool accepted = false;  ///< every test is passed: the log waits to be filed

  // The pass over its rows.
  std::vector<ValidatedQso> qsos;  ///< by row number, the first at index 0
  QsoTotals totals;
  bool invalid = false;      ///< a rule is broken
  bool pass_failed = false;  ///< and the manager has been told

  /// A row by its number; empty beyond the last.
  std::string_view Row(std::size_t number) const {
    return number >= 1 && number <= rows.size() ? std::string_view(rows[number - 1])
                                                : std::string_view();
  }

  /// The rows between the one ahead of the QSOs and the end row.
  int RowsBetween() const {
    return static_cast<int>(last_qso_row) - static_cast<int>(first_qso_row) + 1;
  }
};

}  // namespace velmar
