#include "intake/rescoring.h"

#include <array>
#include <cstdint>
#include <deque>
#include <utility>

#include "model/edi_log.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

/// Where the call stands in a log, and is put in order when it has blanks; counted from 1.
constexpr std::size_t kCallLine = 4;

bool IsUntidyCall(std::string_view line) {
  return Holds(line, " ") && ParseHeaderRow(line).key == "PCALL";
}

}  // namespace

void LogOwner::TakeCall(const std::vector<std::string_view>& lines) {
  declared_call_ = FindOwnCall(lines);
  call_ = WithoutBlanks(declared_call_);
  if (lines.size() >= kCallLine && IsUntidyCall(lines[kCallLine - 1])) {
    call_ = Upper(call_);
  }
  base_ = OwnCallBase(call_);
}

void LogOwner::SetLocator(std::string_view value) {
  locator_ = Upper(Trim(value));
  placed_ = LocatorValid(locator_);
  if (placed_) {
    position_ = LocatorPosition(locator_);
  }
}

bool LogOwner::IsOwn(std::string_view row) const {
  // The base is a part of the call, so that a row which holds the call holds it too.
  const std::string& shortest = base_.empty() ? call_ : base_;
  return !shortest.empty() && Holds(row, shortest);
}

int LogOwner::PointsTo(std::string_view locator) const {
  return QsoPoints(locator_, position_, Upper(locator));
}

namespace {

/// The calls of a log, each told apart from those that came before it.
class SeenCalls {
 public:
  SeenCalls() { calls_.reserve(128); }

  /// Adds a call, which outlives this; false when it was seen before. The first call beyond the
  /// bound raises error 9.
  bool Add(std::string_view call) {
    if (calls_.size() == kMostLogQsos) {
      throw RunTimeError(ErrorNumber::kSubscript, "a log with too many QSOs");
    }
    calls_.push_back(call);
    std::size_t slot = std::hash<std::string_view>()(call) % kSlots;
    for (; slots_[slot] != 0; slot = (slot + 1) % kSlots) {
      if (calls_[slots_[slot] - 1U] == call) {
        return false;
      }
    }
    slots_[slot] = static_cast<std::uint16_t>(calls_.size());
    return true;
  }

 private:
  static constexpr std::size_t kSlots = 2048;  // a power of two, twice the bound

  std::vector<std::string_view> calls_;
  std::array<std::uint16_t, kSlots> slots_{};  // number of a call, counted from 1; 0 for none
};

class Rescorer {
 public:
  Rescorer(std::string_view text, const std::function<void(RowRepair)>& on_repair)
      : lines_(SplitLines(text)), on_repair_(on_repair) {
    if (lines_.size() > kMostLogLines) {
      throw RunTimeError(ErrorNumber::kSubscript, "a log with too many lines");
    }
    log_.owner.TakeCall(lines_);
    log_.text.reserve(text.size() + 2 * lines_.size());
  }

  RescoredLog Run() {
    for (std::size_t i = 0; i < lines_.size() && !ended_; ++i) {
      line_number_ = i + 1;
      if (!Take(lines_[i])) {
        return std::move(log_);
      }
    }
    if (!ended_) {
      Write(edi::kRecalculated);
    }
    log_.complete = true;
    return std::move(log_);
  }

 private:
  /// False when the rescoring cannot go on.
  bool Take(std::string_view line) {
    if (line_number_ == kCallLine && IsUntidyCall(line)) {
      Write(WithoutBlanks(Upper(line)));
      return true;
    }
    const LineMarks marks = MarksOf(line);
    in_qsos_ = (in_qsos_ || marks.opens_qsos) && !marks.closes_qsos;
    if (marks.own_locator) {
      log_.owner.SetLocator(Mid(line, edi::kValueColumn));
    }
    if (marks.closes_qsos && Holds(line, edi::kEndRow)) {
      Write(edi::kRecalculated, line);
      ended_ = true;
    } else if (in_qsos_ && !marks.opens_qsos) {
      return TakeQso(line);
    } else {
      Write(line);
    }
    return true;
  }

  bool TakeQso(std::string_view line) {
    const std::string_view row = Repair(Repair(line, ':'), '.');
    if (row.size() < edi::kShortestQso) {
      return true;
    }
    if (!log_.owner.placed()) {
      return false;
    }
    Score(row);
    return true;
  }

  /// The row with each `found` turned into ";".
  std::string_view Repair(std::string_view row, char found) {
    const std::size_t first = row.find(found);
    if (first == std::string_view::npos) {
      return row;
    }
    const std::string& repaired = repaired_.emplace_back(Replaced(row, found, ';'));
    on_repair_({line_number_, found, first + 1, std::string(row), repaired});
    return repaired;
  }

  void Score(std::string_view row) {
    const bool invalid = MarkedInvalid(row);
    const bool marked_duplicate = MarkedDuplicate(row);
    const bool own = log_.owner.IsOwn(row);
    QsoRecord qso = SplitQso(row);
    if (own) {
      qso.set_call("ERROR");
    }
    const bool repeated = !seen_.Add(qso.call());
    const bool counts = !invalid && !marked_duplicate && !own && !repeated;
    const int points = counts ? log_.owner.PointsTo(qso.locator()) : 0;
    log_.qsos += 1;
    log_.errors += (invalid ? 1U : 0U) + (own ? 1U : 0U);
    log_.duplicates += (marked_duplicate ? 1U : 0U) + (own ? 1U : 0U);
    log_.points += points;
    const std::string number = std::to_string(points);
    qso.set_points(number);
    AppendQso(qso, log_.text);
    Write();
  }

  template <typename... Parts>
  void Write(const Parts&... parts) {
    (log_.text.append(parts), ...);
    log_.text.append(kLineEnd);
  }

  std::vector<std::string_view> lines_;
  const std::function<void(RowRepair)>& on_repair_;
  std::deque<std::string> repaired_;  // rows that calls are seen in
  SeenCalls seen_;
  RescoredLog log_;
  std::size_t line_number_ = 0;
  bool in_qsos_ = false;
  bool ended_ = false;
};

}  // namespace

RescoredLog Rescore(std::string_view text, const std::function<void(RowRepair)>& on_repair) {
  return Rescorer(text, on_repair).Run();
}

}  // namespace velmar
