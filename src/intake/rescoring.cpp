#include "intake/rescoring.h"

#include <unordered_set>
#include <vector>

#include "model/edi_log.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

void LogOwner::SetCall(std::string_view call) {
  call_ = WithoutBlanks(call);
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
  return (!call_.empty() && Holds(row, call_)) || (!base_.empty() && Holds(row, base_));
}

int LogOwner::PointsTo(std::string_view locator) const {
  return QsoPoints(locator_, position_, Upper(locator));
}

namespace {

/// Line 4 of a log, where a call with blanks in it is put in order.
constexpr std::size_t kCallLine = 4;

class Rescorer {
 public:
  Rescorer(std::string_view text, const std::function<void(const RowRepair&)>& on_repair)
      : lines_(SplitLines(text)), on_repair_(on_repair) {
    if (lines_.size() > kMostLogLines) {
      throw RunTimeError(ErrorNumber::kSubscript, "a log with too many lines");
    }
    log_.owner.SetCall(FindOwnCall(lines_));
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
    if (line_number_ == kCallLine && ParseHeaderRow(line).key == "PCALL" && Holds(line, " ")) {
      TakeCallRow(line);
      return true;
    }
    const bool opens = Holds(line, edi::kQsoRecords);
    in_qsos_ = (in_qsos_ || opens) && !Holds(line, edi::kEnd);
    if (Holds(line, "PWWLo")) {
      log_.owner.SetLocator(Mid(line, edi::kValueColumn));
    }
    if (Holds(line, "[END;")) {
      Write(edi::kRecalculated, line);
      ended_ = true;
    } else if (in_qsos_ && !opens) {
      return TakeQso(line);
    } else {
      Write(line);
    }
    return true;
  }

  void TakeCallRow(std::string_view line) {
    const std::string row = WithoutBlanks(Upper(line));
    log_.owner.SetCall(Mid(row, edi::kValueColumn));
    Write(row);
  }

  bool TakeQso(std::string_view line) {
    std::string colons;
    std::string dots;
    const std::string_view row = Repair(Repair(line, ':', colons), '.', dots);
    if (row.size() < edi::kShortestQso) {
      return true;
    }
    if (!log_.owner.placed()) {
      return false;
    }
    Score(row);
    return true;
  }

  /// The row with each `found` turned into ";", kept in `repaired` where there was one.
  std::string_view Repair(std::string_view row, char found, std::string& repaired) {
    const std::size_t first = row.find(found);
    if (first == std::string_view::npos) {
      return row;
    }
    repaired = Replaced(row, found, ';');
    on_repair_({line_number_, found, first + 1, row, repaired});
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
    const bool repeated = Repeats(qso.call());
    const bool counts = !invalid && !marked_duplicate && !own && !repeated;
    const int points = counts ? log_.owner.PointsTo(qso.locator()) : 0;
    log_.qsos += 1;
    log_.errors += (invalid ? 1U : 0U) + (own ? 1U : 0U);
    log_.duplicates += (marked_duplicate ? 1U : 0U) + (own ? 1U : 0U);
    log_.points += points;
    const std::string number = std::to_string(points);
    qso.set_points(number);
    Write(JoinQso(qso));
  }

  /// Whether a call was seen before in this log, on whatever row.
  bool Repeats(std::string_view call) {
    if (log_.qsos == kMostLogQsos) {
      throw RunTimeError(ErrorNumber::kSubscript, "a log with too many QSOs");
    }
    return !seen_.emplace(call).second;
  }

  template <typename... Parts>
  void Write(const Parts&... parts) {
    (log_.text.append(parts), ...);
    log_.text.append(kLineEnd);
  }

  std::vector<std::string_view> lines_;
  const std::function<void(const RowRepair&)>& on_repair_;
  std::unordered_set<std::string> seen_;
  RescoredLog log_;
  std::size_t line_number_ = 0;
  bool in_qsos_ = false;
  bool ended_ = false;
};

}  // namespace

RescoredLog Rescore(std::string_view text, const std::function<void(const RowRepair&)>& on_repair) {
  return Rescorer(text, on_repair).Run();
}

}  // namespace velmar
