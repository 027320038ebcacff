#include "check/time_differences.h"

#include <algorithm>
#include <cstdlib>
#include <unordered_map>

#include "model/columns.h"
#include "model/text.h"

namespace velmar {

namespace {

constexpr int kDay = 24 * 60;  ///< minutes
constexpr std::size_t kTestedCharacters = 2;
constexpr Column kHour{1, 2};
constexpr Column kMinute{3, 2};
constexpr std::size_t kOrdinalWidth = 3;

constexpr std::size_t kLongestCall = 10;  ///< that shifts what stands behind it

/// The columns of an item behind the call, which takes `length` of them.
struct ItemColumns {
  explicit ItemColumns(std::size_t length)
      : own_time{6 + length, 4},
        other_time{11 + length, 4},
        other_call{16 + length, kCallWidth},
        difference{28 + length, 6} {}

  Column own_time;
  Column other_time;
  Column other_call;
  Column difference;
};

constexpr std::size_t kItemWidth = 4 + 40;

int MinutesOf(std::string_view time) {
  return static_cast<int>(Val(Cut(time, kHour))) * 60 + static_cast<int>(Val(Cut(time, kMinute)));
}

std::string WithColon(std::string_view time) {
  return Join(Cut(time, kHour), ":", Cut(time, kMinute));
}

/// The rows of a log. They lie together: the first row of another owner behind them ends them.
std::vector<const SommaQso*> RowsOf(const std::vector<SommaQso>& rows, std::string_view call) {
  const auto own = [call](const SommaQso& row) { return row.owner == call; };
  const auto first = std::ranges::find_if(rows, own);
  const auto last = std::find_if_not(first, rows.end(), own);
  std::vector<const SommaQso*> log;
  for (auto row = first; row != last; ++row) {
    log.push_back(&*row);
  }
  return log;
}

/// The number that the log sent; its place in the log, counted from 0, where it sent none.
std::string OrdinalOf(const SommaQso& row, std::size_t place) {
  return row.number.empty() ? std::to_string(place + 1) : std::string(row.number);
}

}  // namespace

std::optional<BrokenTime> FindBrokenTime(const std::vector<SommaQso>& rows) {
  for (std::size_t row = 0; row < rows.size(); ++row) {
    const std::string time = Pad(rows[row].time, kTestedCharacters);
    for (std::size_t i = 0; i < kTestedCharacters; ++i) {
      if (time[i] < '0' || time[i] > '9') {
        return BrokenTime{.row = row, .character = i + 1};
      }
    }
  }
  return std::nullopt;
}

TimeDifferences FindTimeDifferences(const std::vector<SommaQso>& rows, std::string_view call) {
  const auto log = RowsOf(rows, call);
  // The other logs' rows with the call, by their owner, in the order of the file.
  std::unordered_map<std::string_view, std::vector<const SommaQso*>> answers;
  for (const SommaQso* row : log) {
    answers.try_emplace(row->call);
  }
  for (const SommaQso& row : rows) {
    if (row.call == call) {
      if (const auto found = answers.find(row.owner); found != answers.end()) {
        found->second.push_back(&row);
      }
    }
  }
  TimeDifferences differences;
  for (std::size_t i = 0; i < log.size(); ++i) {
    const SommaQso& own = *log[i];
    for (const SommaQso* other : answers.at(own.call)) {
      ++differences.compared;
      const int minutes = std::abs(MinutesOf(own.time) - MinutesOf(other->time));
      if (minutes > kTimeTolerance) {
        differences.items.push_back(TimeItemRow({.ordinal = OrdinalOf(own, i),
                                                 .own_time = std::string(own.time),
                                                 .other_time = std::string(other->time),
                                                 .other_call = std::string(own.call),
                                                 .difference = std::to_string(minutes),
                                                 .points = std::string(own.points)},
                                                call));
      }
    }
  }
  return differences;
}

std::string TimeItemRow(const TimeItem& item, std::string_view call) {
  std::string ordinal = Join("000", item.ordinal);
  ordinal = Right(ordinal, kOrdinalWidth);
  const std::string row = Join(ordinal, " ", Left(call, kLongestCall), " ", Pad(item.own_time, 4),
                               " ", Pad(item.other_time, 4), " ", Pad(item.other_call, kCallWidth),
                               Pad(Join("*", item.difference), 6), item.points);
  return std::string(Left(row, kItemWidth));
}

TimeItem ReadTimeItem(std::string_view row, std::string_view call) {
  const ItemColumns columns(std::min(call.size(), kLongestCall));
  const std::size_t blank = row.rfind(' ');
  return {.ordinal = std::string(Left(row, kOrdinalWidth)),
          .own_time = std::string(Cut(row, columns.own_time)),
          .other_time = std::string(Cut(row, columns.other_time)),
          .other_call = std::string(Cut(row, columns.other_call)),
          .difference = std::string(Trim(Mid(Cut(row, columns.difference), 2))),
          .points = std::string(blank == std::string_view::npos ? row : row.substr(blank + 1))};
}

ReportItem ReadReportItem(std::string_view row, std::size_t call_length) {
  const std::size_t length = std::min(call_length, kLongestCall);
  const auto cut = [row, length](std::size_t start, std::size_t width) {
    constexpr std::size_t kShortestCall = 4;  // the columns are those of such a call
    return std::string(Cut(row, {start + length - kShortestCall, width}));
  };
  return {.ordinal = std::string(Left(row, kOrdinalWidth)),
          .sent = cut(10, 6),
          .received = cut(19, 6),
          .other_call = cut(26, 10),
          .points = cut(36, 4)};
}

TimeOnAir FindTimeOnAir(const std::vector<SommaQso>& rows, std::string_view call) {
  constexpr std::size_t kManyQsos = 10;
  std::vector<const SommaQso*> log;
  for (const SommaQso& row : rows) {
    if (row.owner == call) {
      log.push_back(&row);
    }
  }
  TimeOnAir time;
  time.qsos = log.size();
  if (log.empty()) {
    return time;
  }
  time.first = WithColon(log.front()->time);
  time.last = WithColon(log.back()->time);
  int minutes = MinutesOf(log.back()->time) - MinutesOf(log.front()->time);
  if (minutes < 0) {
    minutes += kDay;
  }
  time.hours = minutes / 60;
  time.minutes = minutes % 60;
  if (log.size() > kManyQsos && minutes == 0) {
    time.hours = 24;  // the first and the last QSO at the same time of day: a full turn
  }
  return time;
}

std::string_view TimeListTitles(std::size_t call_length) {
  switch (call_length) {
    case 4:
      return "QSO      Log di      TIME     orario nel log di:                  Time error     qrb";
    case 5:
      return "QSO      Log di        TIME     orario nel log di:                Time error     qrb";
    case 6:
      return "QSO      Log di           TIME    orario nel log di:                Time error     "
             "qrb";
    case 7:
      return "QSO      Log di            TIME      orario nel log di:                Time error    "
             " "
             "qrb";
    case 8:
      return "QSO      Log di                TIME     orario nel log di:               Time error  "
             " "
             "  qrb";
    default:
      return {};
  }
}

}  // namespace velmar
