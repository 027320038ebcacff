#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/columns.h"

namespace velmar {

/// The error list of a log (.err), which is the report to its participant: a head, then a line for
/// each decision.

/// What the head of an error list tells.
struct ErrorListHead {
  std::string title;  ///< of the contest
  std::string month;  ///< in capitals
  std::string call;   ///< 12 characters
  std::string locator;
  std::string declared;  ///< points
  std::string band;
  std::string category;
};

/// The six lines of the head, with their line ends.
std::string ErrorListHeadText(const ErrorListHead& head);

/// The lines of the head: a list that has more holds decisions.
inline constexpr std::size_t kErrorListHeadLines = 6;

/// The head of a list alone, each of its lines with a line end.
std::string ErrorListHeadOf(std::string_view list);

/// A line of the error list behind its head: one decision.
namespace error_row {
inline constexpr Column kIndex{2, 6};  ///< of the decision in this check of the log
inline constexpr Column kCall{8, 12};
inline constexpr Column kQso{20, 7};  ///< ordinal of the QSO in its log, at least three digits
inline constexpr Column kTag{27, 18};
inline constexpr Column kWrong{45, 12};
inline constexpr Column kRight{57, 11};
inline constexpr Column kDash{68, 1};
inline constexpr Column kPoints{69, 4};  ///< lost, as the QSO has them
static_assert(
    FollowOneAnother({{1, 1}, kIndex, kCall, kQso, kTag, kWrong, kRight, kDash, kPoints}));
}  // namespace error_row

/// What was judged. The two ways to write "not in log" belong to two decisions.
namespace error_tag {
inline constexpr std::string_view kCall = "errore call       ";
inline constexpr std::string_view kLocator = "errore locator    ";
inline constexpr std::string_view kNotInLog = "NOT IN LOG        ";
inline constexpr std::string_view kTime = "errore time       ";
inline constexpr std::string_view kReport = "errore num ric.   ";
inline constexpr std::string_view kUnique = "call   unico      ";
}  // namespace error_tag

/// One decision. Texts are cut or padded to their columns.
struct ErrorEntry {
  int index = 1;
  std::string call;     ///< to which the error belongs
  std::string ordinal;  ///< of the QSO
  std::string_view tag;
  std::string wrong;
  std::string right{};
  std::string points{};
};

/// The line of a decision, without its line end.
std::string ErrorListLine(const ErrorEntry& entry);

/// The line of a call that is noted as unique: it costs nothing.
std::string UniqueCallLine(int index, std::string_view call, std::string_view ordinal);

/// The line of a QSO that the other station's log lacks, in a form of its own.
std::string NotInLogLine(int index, std::string_view call, std::string_view points);

/// The lines that close the list, with their line ends: points before the check, and what is left.
std::string ErrorListTotals(double official, double final);

/// Whether the list holds a decision on a call, blanks behind it apart. A call that was noted as
/// unique does not count.
bool ErrorListHolds(std::string_view list, std::string_view call);

}  // namespace velmar
