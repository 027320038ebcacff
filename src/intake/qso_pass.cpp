#include "intake/qso_pass.h"

#include <unordered_set>
#include <utility>

#include "model/edi_log.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::size_t kShortestRow = 6;
constexpr std::size_t kLocatorWidth = 8;
constexpr std::string_view kContestStart = "1000";
constexpr std::string_view kContestEnd = "1101";  ///< a minute more than the limit that is told
constexpr double kPassRadius = 40009 / 6.28318530717958;  ///< km, as this pass writes it

/// Fields of a row, as they stand between their semicolons.
class Fields {
 public:
  explicit Fields(std::string_view row) : rest_(row) {}

  std::string_view Next() {
    const std::size_t end = rest_.find(';');
    if (end == std::string_view::npos) {
      throw RunTimeError(ErrorNumber::kInvalidCall, "a QSO row short of semicolons");
    }
    const std::string_view field = rest_.substr(0, end);
    rest_.remove_prefix(end + 1);
    return field;
  }

 private:
  std::string_view rest_;
};

bool IsError(std::string_view call) {
  return call == "ERROR";
}

}  // namespace

QsoRows CollectQsoRows(std::string_view log) {
  QsoRows found;
  bool in_qsos = false;
  LineReader reader(log);
  for (std::string_view line; reader.Next(line);) {
    ++found.lines;
    if (Holds(line, edi::kEndRow)) {
      break;
    }
    if (in_qsos && !line.empty()) {
      found.rows.push_back(Upper(line));
    }
    in_qsos = in_qsos || Holds(line, edi::kQsoRecords);
  }
  return found;
}

QsoPass::QsoPass(IntakeState& state, bool test_run,
                 std::function<void(const QsoProblem& problem)> on_problem,
                 std::function<void(const ValidatedQso& qso, char mode)> on_qso)
    : state_(state),
      test_run_(test_run),
      on_problem_(std::move(on_problem)),
      on_qso_(std::move(on_qso)),
      own_(LocatorPosition(Loc6(state.own_locator))) {}

bool QsoPass::Take(const std::string& row) {
  if (state_.qsos.size() == static_cast<std::size_t>(kMostQsoRows)) {
    throw RunTimeError(ErrorNumber::kSubscript, "too many QSO rows");
  }
  ValidatedQso& qso = state_.qsos.emplace_back();
  const int number = static_cast<int>(state_.qsos.size());
  state_.totals.error_rows += Holds(row, "ERROR") ? 1 : 0;
  qso.deleted = MarkedDuplicate(row);
  state_.totals.deleted_rows += qso.deleted ? 1 : 0;
  if (number > state_.declared_rows || row.size() < kShortestRow) {
    return true;
  }
  qso.row = row;
  problem_ = {.fault = QsoFault::kNone, .number = number, .row = row};
  problem_.fault = Test(qso, row);
  if (problem_.fault != QsoFault::kNone) {
    state_.invalid =
        state_.invalid || problem_.fault == QsoFault::kSelf || problem_.fault == QsoFault::kNoMode;
    on_problem_(problem_);
    return false;
  }
  if (IsError(qso.call)) {
    return true;
  }
  if (!Measure(qso) && !qso.deleted) {
    state_.invalid = true;
    problem_.fault = QsoFault::kLocator;
    problem_.locator = qso.locator;
    on_problem_(problem_);
  }
  AddUp(qso);
  on_qso_(qso, mode_);
  return true;
}

QsoFault QsoPass::Test(ValidatedQso& qso, const std::string& row) {
  Fields fields(row);
  fields.Next();  // the date, which was compared when the log was read
  problem_.time = fields.Next();
  if (const QsoFault fault = TestTime(problem_.time); fault != QsoFault::kNone) {
    return fault;
  }
  const std::string call(RTrim(Left(fields.Next(), kCallWidth)));
  problem_.call = Trim(call);
  if (problem_.call == Trim(state_.own_call)) {
    return QsoFault::kSelf;
  }
  mode_ = Pad(fields.Next(), 1).front();
  state_.totals.ssb_qsos += mode_ == '1' ? 1 : 0;
  state_.totals.cw_qsos += mode_ == '2' || mode_ == '4' ? 1 : 0;
  state_.totals.no_mode_qsos += mode_ == ' ' ? 1 : 0;
  if (mode_ == ' ' && !problem_.call.empty() && !IsError(problem_.call)) {
    return QsoFault::kNoMode;
  }
  const std::string sent_report = Pad(fields.Next(), 3);
  mode_ = sent_report.back() == ' ' ? mode_ : '2';
  constexpr std::size_t kFieldsTaken = 5;
  for (std::size_t field = kFieldsTaken + 1; field < edi::kLocatorField; ++field) {
    fields.Next();
  }
  qso.call = call;
  qso.locator = RTrim(Left(fields.Next(), kLocatorWidth));
  qso.points = RTrim(fields.Next());
  return QsoFault::kNone;
}

QsoFault QsoPass::TestTime(std::string_view time) const {
  // As text, in this order: a time of three digits may be told to be late.
  if (test_run_) {
    return QsoFault::kNone;
  }
  if (time < kContestStart) {
    return QsoFault::kEarly;
  }
  if (time > kContestEnd) {
    return QsoFault::kLate;
  }
  return time.size() == kContestStart.size() ? QsoFault::kNone : QsoFault::kTimeFormat;
}

bool QsoPass::Measure(ValidatedQso& qso) {
  std::string locator = qso.locator;
  if (locator == state_.own_locator) {
    qso.distance = 1;
    return true;
  }
  if (locator.size() == 4) {
    locator += "MM";
  }
  if (!LocatorValid(locator)) {
    qso.distance = 0;
    return false;
  }
  qso.distance = Distance(own_, LocatorPosition(locator), kPassRadius);
  return true;
}

void QsoPass::AddUp(const ValidatedQso& qso) {
  QsoTotals& totals = state_.totals;
  if (qso.distance > totals.best_distance) {
    totals.best_distance = qso.distance;
    totals.best_locator = qso.locator;
    totals.best_call = qso.call;
  }
  // The farthest QSO may be a deleted one, which adds nothing.
  totals.distance += qso.deleted ? 0 : qso.distance;
}

int MarkDoubles(std::vector<ValidatedQso>& qsos) {
  int doubles = 0;
  std::unordered_set<std::string_view> later;  // calls of the QSOs behind the one in hand
  for (std::size_t number = qsos.size(); number > 0; --number) {
    ValidatedQso& qso = qsos[number - 1];
    const bool repeated = later.contains(qso.call) && !Holds(qso.call, "ERROR");
    const bool marked = MarkedDuplicate(qso.row);
    qso.doubled = qso.call.empty() || marked || repeated;
    doubles += qso.doubled ? 1 : 0;
    if (!marked) {
      later.insert(qso.call);
    }
  }
  return doubles;
}

}  // namespace velmar
