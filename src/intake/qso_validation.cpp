#include "intake/qso_validation.h"

#include "intake/insertion_messages.h"
#include "intake/log_header.h"
#include "intake/pass_messages.h"
#include "model/edi_log.h"
#include "model/error_list.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::string_view kCwCategory = "4IT";  ///< the one whose CW QSOs are listed
constexpr std::string_view kBandText = " 144 Mhz";
constexpr std::size_t kDeclaredWidth = 7;

std::string AsFile(const std::vector<std::string>& rows) {
  std::string text;
  for (const std::string& row : rows) {
    AddLine(text, row);
  }
  return text;
}

}  // namespace

void QsoValidation::ValidateQsos(IntakeState& log) {
  log.qsos.clear();
  log.totals = {};
  log.invalid = false;
  log.pass_failed = false;
  try {
    Run(log);
  } catch (const RunTimeError&) {
    Fail(log);
  }
}

void QsoValidation::Run(IntakeState& log) {
  const QsoRows found = CollectQsoRows(files_.ReadAll(log.log_path));
  log.totals.lines = found.lines;
  log.totals.rows = static_cast<int>(found.rows.size());
  files_.WriteAll(folder_.RowCopyPath(log), AsFile(found.rows));
  if (found.rows.empty()) {
    manager_.Show(NoRowsBox());
    log.invalid = true;
    return;
  }
  if (!LocatorValid(Loc6(log.own_locator))) {
    manager_.Show(OwnLocatorBox(false));
    throw ProgramEnd();
  }
  const QsoFault last = TestRows(log, found.rows);
  if (last != QsoFault::kNone && last != QsoFault::kSelf) {
    return;  // the log is refused, or will be
  }
  if (log.invalid) {
    Fail(log);
  } else {
    Close(log);
  }
}

/// Takes the rows up to the one that ends the pass, and gives its fault.
QsoFault QsoValidation::TestRows(IntakeState& log, const std::vector<std::string>& rows) {
  QsoFault last = QsoFault::kNone;
  QsoPass pass(
      log, form_.Testlog.checked,
      [&](const QsoProblem& problem) {
        last = problem.fault;
        TakeProblem(log, problem);
      },
      [&](const ValidatedQso& qso, char mode) { AddCwQso(log, qso, mode); });
  for (const std::string& row : rows) {
    if (!pass.Take(row)) {
      return last;
    }
  }
  return QsoFault::kNone;
}

void QsoValidation::TakeProblem(IntakeState& log, const QsoProblem& problem) {
  manager_.Show(ProblemBox(log, problem));
  switch (problem.fault) {
    case QsoFault::kEarly:
      return Refuse(log, Refusal::kEarly);
    case QsoFault::kLate:
      return Refuse(log, Refusal::kLate);
    case QsoFault::kTimeFormat:
      return Refuse(log, Refusal::kTimeFormat);
    case QsoFault::kNoMode:
      return store_.Append(StoreFile::kControlLog, log.code,
                           Join(ControlLogRow(log.own_call), kLineEnd));
    default:
      return;
  }
}

void QsoValidation::AddCwQso(IntakeState& log, const ValidatedQso& qso, char mode) {
  if (log.category == kCwCategory && (mode == '2' || mode == '4')) {
    ++log.totals.cw_rows;
    store_.Append(StoreFile::kCwQsos, log.code,
                  Join(CwQsoRow(log.own_call, log.own_locator, log.section, qso.call, qso.locator,
                                qso.points),
                       kLineEnd));
  }
}

void QsoValidation::Close(IntakeState& log) {
  const double declared = Val(HeaderValue(log, header_row::kPoints));
  const auto total = static_cast<double>(log.totals.distance);
  if (total == 0) {
    throw RunTimeError(ErrorNumber::kDivisionByZero, "a log without a kilometre");
  }
  panel_.ShowScore(declared, total);
  StartErrorList(log, declared);
  if (log.category == kBothCategories) {
    log.category = kCategory;
  }
  log.totals.doubles = MarkDoubles(log.qsos);
  panel_.ShowCounts(log);
  if (log.RowsBetween() == log.declared_rows) {
    panel_.BecomeLoaded();
    return;
  }
  manager_.Show(RowCountBox(log));
  form_.StopTurbo();
  Refuse(log, Refusal::kRowCount);
}

void QsoValidation::Refuse(IntakeState& log, Refusal refusal) {
  folder_.MoveToRefused(log, refusal);
  panel_.Drop();
  log.pass_failed = true;
}

void QsoValidation::StartErrorList(const IntakeState& log, double declared) {
  const bool both = log.category == kBothCategories;
  const bool known = both || log.category == kCategory;
  store_.AppendToErrorList(
      log.own_call, log.code, session_.category_month,
      ErrorListHeadText({.title = session_.contest_label,
                         .month = Upper(session_.category_month),
                         .call = log.own_call,
                         .locator = log.own_locator,
                         .declared = Pad(StrReal(declared), kDeclaredWidth),
                         .band = std::string(known ? kBandText : ""),
                         .category = both ? std::string(kCategory) : log.category}));
}

void QsoValidation::Fail(IntakeState& log) {
  manager_.Show(PassFailedBox());
  log.pass_failed = true;
  form_.Marcafile.visible = false;
}

}  // namespace velmar
