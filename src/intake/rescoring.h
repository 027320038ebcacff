#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "model/locator.h"

namespace velmar {

/// The station that a log belongs to.
class LogOwner {
 public:
  /// Takes the call that the log declares. Its blanks do not count; where it has some in the fourth
  /// line, its usual place, it is put in capitals as well.
  void TakeCall(const std::vector<std::string_view>& lines);

  /// Takes the value of the locator row; blanks around it do not count.
  void SetLocator(std::string_view value);

  const std::string& declared_call() const { return declared_call_; }  ///< as it stands in the log
  const std::string& call() const { return call_; }                    ///< in order
  const std::string& locator() const { return locator_; }  ///< in capitals, valid or not

  /// Whether the locator is one, so that the station has a place.
  bool placed() const { return placed_; }

  /// Whether a QSO row is one with oneself: it holds the own call, or that call without its "/"
  /// part, anywhere, also inside a longer call. An empty call is held by no row.
  bool IsOwn(std::string_view row) const;

  /// The points of a QSO with a station at `locator` (in any case of letters). The owner is placed.
  int PointsTo(std::string_view locator) const;

 private:
  std::string declared_call_;
  std::string call_;
  std::string base_;
  std::string locator_;
  bool placed_ = false;
  Position position_{};
};

/// A QSO row whose punctuation was repaired.
struct RowRepair {
  std::size_t line;      ///< in the file, counted from 1
  char found;            ///< ":" or "." that stood for ";"
  std::size_t position;  ///< of the first one in the row, counted from 1
  std::string before;
  std::string after;
};

/// A log scored at one point per kilometre.
struct RescoredLog {
  LogOwner owner;
  bool complete = false;  ///< false when a QSO stood behind an own locator that is none
  std::string text;       ///< the log as it is to be written
  std::size_t qsos = 0;
  std::size_t errors = 0;      ///< rows that their writer took back, and QSOs with oneself
  std::size_t duplicates = 0;  ///< rows that end as duplicates, and QSOs with oneself
  long long points = 0;        ///< km
};

/// The most lines and QSO rows of a log. The first one too many raises error 9.
inline constexpr std::size_t kMostLogLines = 50'000;
inline constexpr std::size_t kMostLogQsos = 1'000;

/// Scores each QSO of a log anew and puts the mark of the recalculation into its end row. The
/// punctuation of the QSO rows is repaired on the way, and each repair is told as it is made.
/// Raises error 9 for a log that is too long, and what the distance raises.
RescoredLog Rescore(std::string_view text, const std::function<void(RowRepair)>& on_repair);

}  // namespace velmar
