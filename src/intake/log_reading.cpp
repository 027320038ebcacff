#include "intake/log_reading.h"

#include <algorithm>

#include "intake/insertion_messages.h"
#include "intake/log_lines.h"
#include "model/edi_log.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::size_t kLongestName = 35;
constexpr std::size_t kNamePrefix = 4;  ///< characters, the category and what follows it
constexpr std::string_view kUnfinishedName = "-_-";
constexpr std::string_view kNameEnds = ".-_";
constexpr std::string_view kMark =
    edi::kRecalculated.substr(edi::kValueColumn - 1, 20);  ///< at column 7 of the last row
constexpr std::size_t kMostMarkedLines = 1000;

/// Whether a log went through the recalculation. One of too many lines raises error 9.
bool IsMarked(std::string_view log) {
  const auto lines = SplitLines(log);
  if (lines.size() > kMostMarkedLines) {
    throw RunTimeError(ErrorNumber::kSubscript, "a log of too many lines");
  }
  return !lines.empty() && Mid(lines.back(), edi::kValueColumn).starts_with(kMark);
}

Refusal RefusalFor(ValueFault fault) {
  switch (fault) {
    case ValueFault::kCallWithoutDigit:
      return Refusal::kCallWithoutDigit;
    case ValueFault::kZeroQsos:
      return Refusal::kZeroDeclared;
    case ValueFault::kBadPoints:
    case ValueFault::kNoPoints:
      return Refusal::kBadPoints;
    case ValueFault::kNoTotal:
      return Refusal::kNoTotal;
    default:
      return Refusal::kBadDx;
  }
}

}  // namespace

LogReading::LogReading(ContestSession& session, FileSystem& files, Manager& manager,
                       ContestStore& store, MonthAssignment& months, IntakeFolder& folder,
                       IntakePanel& panel, MainForm& form, LogFiling& filing, IntakeState& log)
    : session_(session),
      files_(files),
      manager_(manager),
      store_(store),
      months_(months),
      folder_(folder),
      panel_(panel),
      form_(form),
      filing_(filing),
      log_(log),
      validation_(session, files, manager, store, folder, panel, form),
      category_(files, manager, panel, form),
      last_folder_(session.workspace.to_insert()) {}

void LogReading::caricaedi_Click() {
  at_start_ = 0;
  folder_.ExpectChanges();
  while (ReadNext() && form_.turbo.checked) {
  }
  form_.Bar1.visible = false;
}

/// Whether the log has left the folder.
bool LogReading::ReadNext() {
  gone_ = false;
  Trap([&] { Read(); });
  return gone_;
}

void LogReading::Trap(const std::function<void()>& procedure) {
  try {
    procedure();
  } catch (const RunTimeError& error) {
    if (error.number() == ErrorNumber::kBadFileName) {
      manager_.Show(NoFileBox());
      return;
    }
    manager_.Show(LogTroubleBox());
    panel_.Drop();
  }
}

void LogReading::Read() {
  folder_.RemoveCopies(log_);
  folder_.RefreshNowAndThen();
  if (!HasLogs()) {
    return;
  }
  if (!session_.month_assigned) {
    manager_.Show(NoMonthBox());
    return;
  }
  ShowProgress();
  panel_.Reset();
  log_ = {};
  const bool fits = ChooseFile() && NameFits() && months_.ReadContestDate(log_.code) &&
                    TakeFile() && HeaderFits() && TakeHeader() && CategoryFits() && CountsFit() &&
                    RowsFit() && LastChecksPass();
  log_.accepted = fits;
  if (fits) {
    FileAtOnce();
  }
}

void LogReading::ShowProgress() {
  form_.Bar1.visible = form_.turbo.checked;
  if (form_.turbo.checked) {
    const std::size_t left = folder_.waiting().size();
    at_start_ = std::max(at_start_, left);
    form_.Bar1.maximum = at_start_;
    form_.Bar1.value = std::to_string(at_start_ - left);
    manager_.Progress(at_start_ - left, at_start_);
  }
}

bool LogReading::HasLogs() {
  if (!folder_.waiting().empty()) {
    return true;
  }
  form_.Inserire_log.enabled = false;
  form_.Inserire_log.checked = true;
  manager_.Show(NoLogsBox());
  panel_.Close();
  return false;
}

bool LogReading::ChooseFile() {
  if (form_.turbo.checked && manager_.StopWanted()) {
    form_.StopTurbo();
  }
  if (form_.Check_AUT_entry.checked) {
    if (form_.File1.items.rows().empty()) {
      return false;
    }
    log_.log_path = form_.Dir1.value + "/" + form_.File1.items.rows().front();
  } else {
    const auto picked =
        manager_.PickFile({.title = "",
                           .filter = "fileedi (*.edi)|*.edi|*.ed2)|*.ed2|*.ed3)|*.ed3",
                           .folder = last_folder_});
    if (!picked) {
      return false;
    }
    log_.log_path = *picked;
    last_folder_ = picked->substr(0, picked->rfind('/'));
  }
  log_.log_name = Trim(
      Left(std::string_view(log_.log_path).substr(log_.log_path.rfind('/') + 1), kLongestName));
  return true;
}

bool LogReading::NameFits() {
  if (Holds(log_.log_name, kUnfinishedName)) {
    manager_.Show(UnfinishedNameBox());
    return false;
  }
  if (log_.log_name == "*.edi") {
    return false;
  }
  const std::string prefix = Upper(Left(log_.log_name, kNamePrefix));
  log_.code = CategoryCode(prefix);
  if (log_.code != kCategory || prefix.size() < kNamePrefix ||
      !Holds("_- ", prefix.substr(kNamePrefix - 1))) {
    RefuseAndTell(Refusal::kBadName, BadNameBox(log_));
    return false;
  }
  return true;
}

bool LogReading::TakeFile() {
  if (!files_.StampOf(log_.log_path)) {
    throw RunTimeError(ErrorNumber::kBadFileName, log_.log_path);
  }
  const std::string text = files_.ReadAll(log_.log_path);
  const LineCheck check = TakeLines(text, session_.contest_date, form_.Testlog.checked, log_);
  switch (check.fault) {
    case LineFault::kDate:
      RefuseAndTell(Refusal::kBadDate, BadDateBox(log_, session_.contest_date));
      return false;
    case LineFault::kNoQsos:
      RefuseAndTell(Refusal::kNoQsos, NoQsosBox(log_, check.row));
      return false;
    case LineFault::kFirstRow:
      manager_.Show(BadFirstRowBox(log_));
      RefuseAndTell(Refusal::kBadHeader, BadHeaderBox());
      return false;
    case LineFault::kNone:
      break;
  }
  panel_.ShowFile(log_);
  if (!HasDigitAhead(Mid(log_.log_name, kNamePrefix + 1), kNameEnds)) {
    RefuseAndTell(Refusal::kNameWithoutDigit, NameWithoutDigitBox());
    return false;
  }
  return true;
}

bool LogReading::HeaderFits() {
  bool bad = false;
  if (!log_.Row(1).starts_with("[REG1T")) {
    manager_.Show(NoHeaderBox());
    bad = true;
  }
  for (const HeaderKey* key : MissingKeys(log_)) {
    manager_.Show(MissingKeyBox(log_, *key));
    bad = true;
  }
  if (bad) {
    RefuseAndTell(Refusal::kBadHeader, BadHeaderBox());
  }
  return !bad;
}

bool LogReading::TakeHeader() {
  const auto fault = TakeOwner(log_);
  panel_.ShowOwner(log_);
  if (fault) {
    form_.Callusato.colour = colour::kLightRed;
  }
  if (!Takes(fault) || !LocatorFits()) {
    return false;
  }
  log_.section = form_.club.value;
  TakeStation(log_);
  panel_.ShowStation(log_);
  if (!Takes(TakeCounts(log_))) {
    return false;
  }
  WarnOfRows();
  if (!Takes(TakeTotals(log_))) {
    return false;
  }
  panel_.ShowDeclared(log_);
  return true;
}

/// Refuses the log for a fault of its values.
bool LogReading::Takes(std::optional<ValueFault> fault) {
  if (fault) {
    RefuseAndTell(RefusalFor(*fault), ValueFaultBox(log_, *fault));
  }
  return !fault;
}

bool LogReading::LocatorFits() {
  if (log_.own_locator.empty()) {
    manager_.Show(NoLocatorBox());
  }
  if (!LocatorValid(Loc6(log_.own_locator))) {
    manager_.Show(OwnLocatorBox(true));
    throw ProgramEnd();
  }
  const bool in_italy = log_.own_locator.starts_with("JN") || log_.own_locator.starts_with("JM");
  if (!log_.own_call.starts_with('I') || in_italy) {
    return true;
  }
  const Reply reply = manager_.Show(ForeignLocatorQuestion(log_));
  if (reply == Reply::kNo) {
    Refuse(Refusal::kForeignLocator);
  }
  return reply == Reply::kYes;
}

void LogReading::WarnOfRows() {
  for (const std::size_t row : {header_row::kSquares, header_row::kExchanges}) {
    if (!ThreeParts(log_, row)) {
      manager_.Show(UnusableRowBox(row));
    }
  }
}

bool LogReading::CategoryFits() {
  switch (category_.Test(log_)) {
    case CategoryChoice::Verdict::kFits:
      return true;
    case CategoryChoice::Verdict::kRefused:
      Refuse(Refusal::kCategory);
      return false;
    default:
      return false;
  }
}

bool LogReading::CountsFit() {
  const double invalid = log_.declared_rows - Val(log_.declared_qsos);
  if (invalid < 0) {
    // The pass is run all the same, on a log that is gone.
    RefuseAndTell(Refusal::kMoreValidThanRows, MoreValidThanRowsBox(log_));
  }
  form_.doppi.value = Trim(StrReal(invalid));
  form_.caricaedi.visible = false;
  form_.Aggiorna.enabled = true;
  return true;
}

bool LogReading::RowsFit() {
  validation_.ValidateQsos(log_);
  if (!log_.pass_failed) {
    return true;
  }
  gone_ = gone_ || !files_.StampOf(log_.log_path);
  form_.doppi.value = std::to_string(log_.totals.doubles);
  form_.caricaedi.visible = true;
  return false;
}

bool LogReading::LastChecksPass() {
  if (!IsMarked(files_.ReadAll(log_.log_path))) {
    RefuseAndTell(Refusal::kNotRecalculated, NotRecalculatedBox());
    return false;
  }
  if (log_.invalid) {
    folder_.RemoveRowCopies();
    Refuse(Refusal::kInvalid);
    return false;
  }
  if (filing_.TurnAwayRepeated()) {
    gone_ = true;
    return false;
  }
  const double counted = log_.totals.error_rows + log_.totals.doubles + Val(log_.declared_qsos);
  if (counted != log_.totals.rows) {
    form_.qsovalidi.colour = colour::kRed;
    RefuseAndTell(Refusal::kCountsDiffer, CountsDifferBox(log_));
    return false;
  }
  panel_.LockMenus();
  if (form_.Marcafile.visible) {
    form_.focus = &form_.Marcafile;
  }
  if (log_.category == kCategory) {
    AppendTeam();
  }
  form_.perc_mem.caption = std::to_string(store_.LibraryLines(log_.code));
  form_.Lbl_cat.caption = log_.category;
  return NameFitsCategory();
}

void LogReading::AppendTeam() {
  store_.Append(StoreFile::kContestTeam, log_.code,
                Join(ContestTeamRow(log_.own_call, HeaderValue(log_, header_row::kOperators),
                                    HeaderValue(log_, header_row::kOperators + 1)),
                     kLineEnd));
}

bool LogReading::NameFitsCategory() {
  if (log_.code != log_.category) {
    form_.StopTurbo();
    RefuseAndTell(Refusal::kNameOfOtherCategory, OtherCategoryBox(log_));
    return false;
  }
  if (log_.totals.cw_rows > 0) {
    store_.Append(
        StoreFile::kCwCalls, log_.code,
        Join(CwCallRow(log_.own_call, log_.code, log_.section, log_.totals.cw_rows), kLineEnd));
  }
  return true;
}

void LogReading::FileAtOnce() {
  if (form_.Ins_auto.checked && form_.Marcafile.visible) {
    gone_ = filing_.File();
  }
}

void LogReading::Refuse(Refusal refusal) {
  folder_.MoveToRefused(log_, refusal);
  panel_.Drop();
  gone_ = true;
}

void LogReading::RefuseAndTell(Refusal refusal, const Box& box) {
  manager_.Show(box);
  Refuse(refusal);
}

void LogReading::Aggiorna_Click() {
  Trap([&] { category_.Update(log_); });
}

void LogReading::Dir1_Change() {
  Trap([&] {
    const std::string folder = form_.Dir1.value;
    if (files_.FolderExists(folder)) {
      form_.ListFiles(files_, folder);
    } else {
      form_.ShowFiles(folder, {});
    }
  });
}

}  // namespace velmar
