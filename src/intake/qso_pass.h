#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "intake/intake_state.h"
#include "model/locator.h"

namespace velmar {

/// What is wrong with a QSO row by itself.
enum class QsoFault {
  kNone,
  kEarly,
  kLate,
  kTimeFormat,
  kSelf,  ///< a QSO with the log's own call
  kNoMode,
  kLocator  ///< the only one that does not end the pass
};

struct QsoProblem {
  QsoFault fault = QsoFault::kNone;
  int number = 0;  ///< of the row, from 1
  std::string row{};
  std::string call{};
  std::string time{};
  std::string locator{};
};

/// The most rows of a log whose QSOs are taken.
inline constexpr int kMostQsoRows = 1499;

/// The QSO rows of a log, in capitals, without the empty ones; and the number of its lines up to
/// the end row.
struct QsoRows {
  std::vector<std::string> rows;
  std::size_t lines = 0;
};
QsoRows CollectQsoRows(std::string_view log);

/// Goes through the QSO rows of one log by themselves: tests each, works out its distance, and
/// counts.
class QsoPass {
 public:
  /// `state` tells the owner and the declared rows, and takes what is found. In a test run the
  /// times are not tested. `on_problem` is told each problem as it is met; `on_qso` each QSO that
  /// counts, with its mode.
  QsoPass(IntakeState& state, bool test_run,
          std::function<void(const QsoProblem& problem)> on_problem,
          std::function<void(const ValidatedQso& qso, char mode)> on_qso);

  /// Takes the next row; false when the pass ends with it. Raises error 9 for one row too many and
  /// error 5 for a row without the semicolons of its fields.
  bool Take(const std::string& row);

 private:
  QsoFault Test(ValidatedQso& qso, const std::string& row);
  QsoFault TestTime(std::string_view time) const;
  bool Measure(ValidatedQso& qso);
  void AddUp(const ValidatedQso& qso);

  IntakeState& state_;
  bool test_run_;
  std::function<void(const QsoProblem& problem)> on_problem_;
  std::function<void(const ValidatedQso& qso, char mode)> on_qso_;
  Position own_;
  QsoProblem problem_{};
  char mode_ = ' ';
};

/// Marks the doubled rows of a pass and gives their number: a row without a call, one marked so by
/// its writer, and each but the last QSO with a call, save one that holds "ERROR". So of a station
/// worked three times the last QSO is the one that is no double.
int MarkDoubles(std::vector<ValidatedQso>& qsos);

}  // namespace velmar
