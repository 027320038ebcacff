#include "intake/log_check.h"

#include <algorithm>
#include <array>
#include <unordered_set>

#include "intake/rescoring.h"
#include "model/edi_log.h"
#include "model/lines.h"
#include "model/locator.h"
#include "model/text.h"

namespace velmar {

namespace {

struct HeaderKey {
  std::size_t row;
  std::string_view key;
};

/// The keys that must stand in a log, in the order in which a missing one is told.
constexpr std::array<HeaderKey, 5> kKeys = {
    {{4, "PCall="}, {5, "PWWLo="}, {6, "PExch="}, {9, "PSect="}, {10, "PBand="}}};

constexpr std::size_t kHeadingRows = 5;
constexpr std::string_view kObsoleteMark = "-SUP";  ///< what the obsolete writer has as its row 3

/// One look through a log, row by row.
class Checker {
 public:
  explicit Checker(std::string_view text) : lines_(SplitLines(text)) { owner_.TakeCall(lines_); }

  std::optional<LogFault> Run() {
    for (const std::string_view line : lines_) {
      if (!line.empty() && !Passes(line)) {
        return fault_;
      }
    }
    for (std::size_t i = 0; i < kKeys.size(); ++i) {
      if (!found_[i]) {
        Refuse(LogFaultKind::kMissingKey, kKeys[i].row, kKeys[i].key);
        return fault_;
      }
    }
    return std::nullopt;
  }

 private:
  bool Passes(std::string_view line) {
    ++row_;
    if (heading_.size() < kHeadingRows) {
      heading_.push_back(line);
    }
    NoteKeys(line);
    if (row_ == kHeadingRows && heading_[2] == kObsoleteMark) {
      return Refuse(LogFaultKind::kObsoleteWriter);
    }
    const LineMarks marks = MarksOf(line);
    if (marks.own_locator) {
      owner_.SetLocator(Mid(line, edi::kValueColumn));
      if (owner_.locator().size() != 6) {
        return Refuse(LogFaultKind::kOwnLocator);
      }
    }
    if (marks.closes_qsos) {
      in_qsos_ = false;
    } else if (marks.opens_qsos) {
      in_qsos_ = true;
      return OwnerPasses();
    } else if (in_qsos_ && line.size() >= edi::kShortestQso) {
      return QsoPasses(line);
    }
    return true;
  }

  void NoteKeys(std::string_view line) {
    for (std::size_t i = 0; i < kKeys.size() && missing_ > 0; ++i) {
      if (!found_[i] && Holds(line, kKeys[i].key)) {
        found_[i] = true;
        --missing_;
      }
    }
  }

  bool OwnerPasses() {
    if (!owner_.placed()) {
      return Refuse(LogFaultKind::kOwnLocator);
    }
    const bool in_italy = owner_.locator().starts_with("JN") || owner_.locator().starts_with("JM");
    return !owner_.call().starts_with('I') || in_italy || Refuse(LogFaultKind::kForeignLocator);
  }

  bool QsoPasses(std::string_view row) {
    ++number_;
    qsos_.push_back(row);
    const auto semicolons = static_cast<std::size_t>(std::ranges::count(row, ';'));
    if (semicolons < edi::kSemicolons) {
      Refuse(LogFaultKind::kSemicolons, number_, row);
      fault_->semicolons = semicolons;
      return false;
    }
    std::string repaired;
    if (Holds(row, ":") || Holds(row, ".")) {
      repaired = RepairedRow(row);
      row = repaired;
    }
    const std::string locator = Upper(QsoField(row, edi::kLocatorField));
    return locator.size() != 6 || LocatorValid(locator) || DoesNotCount(row) ||
           Refuse(LogFaultKind::kQsoLocator, number_, QsoField(row, edi::kLocatorField));
  }

  /// Whether a row scores nothing whatever its locator is.
  bool DoesNotCount(std::string_view row) {
    return MarkedInvalid(row) || MarkedDuplicate(row) || owner_.IsOwn(row) || IsRepeated(row);
  }

  /// Whether a row has a call that came before. Asked of doubtful rows alone, so that the calls of
  /// a good log are never looked at.
  bool IsRepeated(std::string_view row) {
    for (; calls_taken_ < number_ - 1; ++calls_taken_) {
      const std::string earlier = RepairedRow(qsos_[calls_taken_]);
      calls_.emplace(owner_.IsOwn(earlier) ? "ERROR" : QsoField(earlier, edi::kCallField));
    }
    return calls_.contains(std::string(QsoField(row, edi::kCallField)));
  }

  bool Refuse(LogFaultKind kind, std::size_t number = 0, std::string_view text = {}) {
    fault_ =
        LogFault{kind, owner_.declared_call(), owner_.locator(), number, 0, std::string(text), {}};
    for (std::size_t i = 0; i < kHeadingRows; ++i) {
      fault_->heading.emplace_back(i < heading_.size() ? heading_[i] : std::string_view());
    }
    return false;
  }

  std::vector<std::string_view> lines_;
  std::vector<std::string_view> heading_;
  LogOwner owner_;
  std::array<bool, kKeys.size()> found_{};
  std::size_t missing_ = kKeys.size();
  std::vector<std::string_view> qsos_;     // as they stand
  std::unordered_set<std::string> calls_;  // of the first `calls_taken_` of them
  std::size_t calls_taken_ = 0;
  std::size_t row_ = 0;  // empty lines do not count
  std::size_t number_ = 0;
  bool in_qsos_ = false;
  std::optional<LogFault> fault_;
};

}  // namespace

std::optional<LogFault> FindLogFault(std::string_view text) {
  return Checker(text).Run();
}

std::string RepairedRow(std::string_view row) {
  return Replaced(Replaced(row, ':', ';'), '.', ';');
}

}  // namespace velmar
