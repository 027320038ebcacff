#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/somma_qso.h"

namespace velmar {

/// The most minutes by which two logs of one QSO may differ.
inline constexpr int kTimeTolerance = 10;

/// A time that no clock has. Only its first two characters are tested, and that is meant so.
struct BrokenTime {
  std::size_t row = 0;        ///< counted from 0
  std::size_t character = 0;  ///< of the time, counted from 1
};

/// The first row whose time is not a number.
std::optional<BrokenTime> FindBrokenTime(const std::vector<SommaQso>& rows);

/// The QSOs of a log whose time differs from that in the other log.
struct TimeDifferences {
  std::vector<std::string> items;  ///< rows of the list, see TimeItem
  std::size_t compared = 0;        ///< QSOs that the other log has as well
};

/// Compares the log of `call` with all others. There is no wrap at midnight: the manager settles
/// such a case.
TimeDifferences FindTimeDifferences(const std::vector<SommaQso>& rows, std::string_view call);

/// A QSO with differing times, as the list has it. Where things stand depends on the length of the
/// call under examination, of which ten characters count.
struct TimeItem {
  std::string ordinal;     ///< of the QSO in the log, the last three digits
  std::string own_time;    ///< HHMM
  std::string other_time;  ///< HHMM
  std::string other_call;
  std::string difference;  ///< minutes, digits
  std::string points;
};

std::string TimeItemRow(const TimeItem& item, std::string_view call);

/// Reads a row of the list back.
TimeItem ReadTimeItem(std::string_view row, std::string_view call);

/// A row of the list when it holds reports.
struct ReportItem {
  std::string ordinal;
  std::string sent;
  std::string received;
  std::string other_call;
  std::string points;
};

ReportItem ReadReportItem(std::string_view row, std::size_t call_length);

/// The time that a log spent on the air, from its first row to its last.
struct TimeOnAir {
  std::size_t qsos = 0;
  int hours = 0;
  int minutes = 0;
  std::string first;  ///< HH:MM; empty without a row
  std::string last;
};

TimeOnAir FindTimeOnAir(const std::vector<SommaQso>& rows, std::string_view call);

/// The titles over the list, for the length of the call under examination; empty for lengths
/// without one.
std::string_view TimeListTitles(std::size_t call_length);

}  // namespace velmar
