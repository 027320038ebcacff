#include "intake/log_lines.h"

#include <algorithm>

#include "model/edi_log.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::size_t kMostLines = 370'000;
constexpr std::size_t kCountColumn = 13;
constexpr std::size_t kCountWidth = 4;
constexpr std::string_view kSectionStart = "[QSORecords";

/// A number of rows as a text tells it; what is past all sense is cut down to a billion.
int CountOf(std::string_view text) {
  constexpr double kMost = 1e9;
  return static_cast<int>(std::clamp(Val(text), -kMost, kMost));
}

/// Goes through the lines one by one.
class LineTaker {
 public:
  LineTaker(std::string_view contest_date, bool test_run, IntakeState& state)
      : contest_date_(contest_date), test_run_(test_run), state_(state) {}

  LineFault Take(std::string_view whole) {
    if (state_.rows.size() == kMostLines) {
      throw RunTimeError(ErrorNumber::kSubscript, "a log of too many lines");
    }
    const std::string_view line = whole.substr(0, whole.find('\t'));
    state_.rows.emplace_back(line);
    if (Holds(line, edi::kQsoRecords)) {
      state_.declared_rows = CountOf(Mid(line, kCountColumn, kCountWidth));
      state_.qso_records_seen = true;
    }
    if (!DateFits(line)) {
      return LineFault::kDate;
    }
    if (Number() == 1 && line != edi::kFirstRow) {
      return LineFault::kFirstRow;
    }
    return TakeMarks(line);
  }

 private:
  std::size_t Number() const { return state_.rows.size(); }

  bool DateFits(std::string_view line) {
    const bool in_qsos = state_.first_qso_row > 0 && !state_.end_seen;
    const bool behind_last = line.empty() && Number() == state_.first_qso_row + DeclaredRows();
    if (!in_qsos || line.starts_with(edi::kEnd) || behind_last) {
      return true;
    }
    state_.last_row_date = Left(line, edi::kDateWidth);
    return test_run_ || state_.last_row_date == contest_date_;
  }

  std::size_t DeclaredRows() const {
    return static_cast<std::size_t>(std::max(state_.declared_rows, 0));
  }

  LineFault TakeMarks(std::string_view line) {
    if (line.starts_with(kSectionStart)) {
      state_.first_qso_row = Number() + 1;
      const std::string_view count = Mid(line, kCountColumn);
      state_.declared_rows = CountOf(count.substr(0, count.size() - (count.empty() ? 0 : 1)));
      if (state_.declared_rows == 0) {
        return LineFault::kNoQsos;
      }
    }
    if (line.starts_with(edi::kEnd)) {
      state_.last_qso_row = Number() - 1;
      state_.end_seen = true;
    }
    if (Number() == header_row::kBand) {
      // So that the number of the band stops at the whole MHz.
      state_.rows.back() = Replaced(line, '.', ',');
    }
    return LineFault::kNone;
  }

  std::string_view contest_date_;
  bool test_run_;
  IntakeState& state_;
};

}  // namespace

LineCheck TakeLines(std::string_view text, std::string_view contest_date, bool test_run,
                    IntakeState& state) {
  LineTaker taker(contest_date, test_run, state);
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    const LineFault fault = taker.Take(line);
    if (fault != LineFault::kNone) {
      return {fault, state.rows.back()};
    }
  }
  if (!state.end_seen) {
    state.last_qso_row = state.rows.size();
  }
  return {};
}

bool HasDigitAhead(std::string_view text, std::string_view ends) {
  return std::ranges::any_of(text.substr(0, text.find_first_of(ends)),
                             [](char c) { return c >= '0' && c <= '9'; });
}

}  // namespace velmar
