#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// What the search for unique calls goes by, and what it leaves out.
struct UniqueSources {
  const std::vector<std::string_view>& log;     ///< library rows of the log under examination
  const std::vector<std::string_view>& others;  ///< library rows of the other logs
  const std::vector<std::string_view>& participants;
  const std::vector<std::string>& call_book;
  bool hide_in_book = false;   ///< calls that the book has in that locator
  bool hide_with_log = false;  ///< calls that sent a log
  bool hide_over_two = false;  ///< calls that any other log has in that locator
};

/// The QSOs whose call stands alone among the other logs, in the order of the log, and behind them
/// those whose call and locator only one other QSO has. Rows of the list: the line of the QSO, its
/// ordinal, perhaps a remark.
std::vector<std::string> FindUniqueCalls(const UniqueSources& sources);

/// The row of the first QSO with a call, without a remark; empty where the log has none.
std::string ForcedRow(const std::vector<std::string_view>& log, std::string_view call);

}  // namespace velmar
