#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "model/bounded_table.h"
#include "model/workspace.h"
#include "session/settings.h"

namespace velmar {

/// The mark of a log's operator.
enum class OperatorMark : char { kNone = ' ', kRookie = 'R', kYoung = 'Y' };

/// The state of a run that the steps share.
struct ContestSession {
  explicit ContestSession(std::string base_dir) : workspace(std::move(base_dir)) {}

  Workspace workspace;

  // What start-up saw.
  std::string current_year;             ///< last 4 characters of the system date
  std::string contest_label;            ///< used in window titles
  bool tree_existed = false;            ///< the store existed before this start
  std::size_t files_in_insert_dir = 0;  ///< logs that wait for the third step
  bool online = false;                  ///< the machine reports an Internet connection
  bool host_reachable = false;          ///< the test ping answered in under 1000 ms
  bool excel_running = false;           ///< a workbook process existed at start
  int excel_major_version = 0;          ///< 0 when it can't be found
  bool step1_pending = false;           ///< logs lie in "01 Log da RICALCOLARE"
  bool step2_pending = false;           ///< logs lie in "02 Log ricalcolati"
  bool step3_pending = false;           ///< logs lie in "03 Log da inserire"

  // The month of the contest, upper case, as "GENNAIO 2024".
  std::string month_to_check;  ///< selected for this session
  std::string category_month;  ///< found in the store; it names the classification
  std::string month_shown;     ///< for the message that a month is assigned already
  std::string month_text;      ///< working text: name, blank, year
  std::string contest_year;    ///< last 4 characters of a month
  std::string system_year;     ///< last 4 characters of the date, when it was needed
  bool month_assigned = false;
  bool month_mismatch = false;  ///< the two month files disagree
  std::string contest_date;     ///< YYMMDD

  // The store.
  BoundedTable<std::string, 10'000> participants;
  BoundedTable<std::string, 370'000> total_library;
  BoundedTable<std::string, 370'000> classifica_rows;
  bool archive_missing = false;  ///< the call book was not found, or is none
  bool book_loaded = false;
  std::vector<std::string_view> iaru_table;  ///< the rows that are built in
  std::vector<std::string> call_book;        ///< the records of the archive

  // What the steps tell one another.
  std::string last_call_search;          ///< what the check desk looked for last, in capitals
  bool log_inserted_since_load = false;  ///< the classification in memory lacks a log
  bool classifica_loaded = false;        ///< the check desk has held one
  bool reload_needed = false;            ///< the check desk must read it again
  bool checks_unfinished = false;        ///< rows of the classification were never checked
  bool recalc_dest_not_empty = false;    ///< the recalculation found logs where it writes
  OperatorMark operator_mark = OperatorMark::kNone;  ///< of the log on screen

  Settings settings;
};

}  // namespace velmar
