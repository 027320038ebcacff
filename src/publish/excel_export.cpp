#include "publish/excel_export.h"

#include <array>
#include <cstdio>

#include "model/columns.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "publish/area_sheets.h"
#include "publish/export_messages.h"
#include "publish/italy_outline.h"
#include "publish/month_files.h"
#include "publish/statistics_sheet.h"
#include "session/version.h"
#include "session/workbook_version.h"

namespace velmar {

namespace {

constexpr std::string_view kClassification = "2IT-144";
constexpr std::string_view kPrintedCopy = "2IT-TUTTO";
constexpr std::string_view kEnding = ".xlsx";
constexpr std::array<std::string_view, 3> kPlaceHolders = {"1EC-50M", "1IT-50M", "2EC-144"};

constexpr int kStages = 54;  // of the progress
constexpr int kClassificationDone = 4;
constexpr int kCopyDone = 28;
constexpr int kInStatistics = 37;

constexpr double kTopOfCopy = 0.196850393700787;  // inches
constexpr int kBehindLastRow = 3;                 // that are copied too: the legend is there

/// The month with a capital, and as many small letters behind it as leave the year out, of which
/// the length takes four digits and one letter more than there are: a blank stays behind the name.
std::string MonthTitle(std::string_view month) {
  constexpr std::size_t kYear = 5;
  return Join(Upper(Left(month, 1)),
              Lower(Mid(month, 2, month.size() > kYear ? month.size() - kYear : 0)));
}

bool IsMissing(const RunTimeError& error) {
  return error.number() == ErrorNumber::kFileNotFound ||
         error.number() == ErrorNumber::kPathNotFound;
}

/// Gives the copy the pages of its source. Its margin is higher, so that the rows of its logs are a
/// little lower.
void KeepPages(const Worksheet& source, Worksheet& copy) {
  constexpr double kLogRow = 11.25;
  constexpr double kLowerRow = 11;
  for (const int row : source.page_breaks()) {
    copy.AddPageBreak(row);
  }
  for (const auto& [row, height] : source.row_heights()) {
    if (height == kLogRow) {
      copy.Range(Join(row, ":", row)).RowHeight(kLowerRow);
    }
  }
}

std::string SecondsText(double seconds) {
  std::array<char, 32> text{};
  const int length = std::snprintf(text.data(), text.size(), "%.2f", seconds);
  return {text.data(), static_cast<std::size_t>(length)};
}

}  // namespace

ExcelExport::ExcelExport(ContestSession& session, const Ports& ports, Screen& screen,
                         MainForm& main, ExportForm& form)
    : session_(session), ports_(ports), screen_(screen), main_(main), form_(form) {
  JoinControls();
}

void ExcelExport::JoinControls() {
  form_.SI_stat.on_click = [this] { SI_stat_Click(); };
  form_.NO_stat.on_click = [this] { NO_stat_Click(); };
  form_.SI_graf.on_click = [this] { SI_graf_Click(); };
  form_.SI_testo.on_click = [this] { SI_testo_Click(); };
  form_.SI_callarea.on_click = [this] { SI_callarea_Click(); };
  form_.NO_callarea.on_click = [this] { NO_callarea_Click(); };
  form_.HScroll1.on_change = [this] { HScroll1_Change(); };
  form_.crea_cla_band_xls_01.on_click = [this] { crea_cla_band_xls_01_Click(); };
  form_.torna_casa.on_click = [this] { torna_casa_Click(); };
}

void ExcelExport::Open() {
  form_.Reset();
  form_.titolo.caption = Join(" Esportazione classifiche '", session_.contest_label, " ",
                              Right(session_.category_month, 4), "' in formato Excel");
  form_.title = Join("V A R T O  Velmar VHF - by Iz9qqq ", VersionDotted(),
                     "   Esportazione Classifiche di banda  ", session_.category_month);
  ShowRunning();
  screen_.Hide(main_);
  screen_.Show(form_);
}

void ExcelExport::ShowRunning() {
  form_.ExcelOpen.colour = ports_.machine.WorkbookRunning() ? colour::kRed : colour::kGreen;
}

void ExcelExport::ChooseStatistics(bool wanted) {
  form_.SI_stat.checked = wanted;
  form_.NO_stat.checked = !wanted;
  form_.Check6.checked = form_.Check7.checked = form_.Check8.checked = wanted;
}

void ExcelExport::SI_stat_Click() {
  ChooseStatistics(true);
}

void ExcelExport::NO_stat_Click() {
  ChooseStatistics(false);
}

void ExcelExport::ChooseKind(bool chart) {
  form_.SI_graf.checked = form_.Check7.checked = chart;
  form_.SI_testo.checked = form_.Check8.checked = !chart;
}

void ExcelExport::SI_graf_Click() {
  ChooseKind(true);
}

void ExcelExport::SI_testo_Click() {
  ChooseKind(false);
}

void ExcelExport::ChooseAreas(bool wanted) {
  form_.SI_callarea.checked = wanted;
  form_.NO_callarea.checked = !wanted;
}

void ExcelExport::SI_callarea_Click() {
  ChooseAreas(true);
}

void ExcelExport::NO_callarea_Click() {
  ChooseAreas(false);
}

void ExcelExport::HScroll1_Change() {
  form_.div_pag.caption = form_.HScroll1.value;
}

void ExcelExport::torna_casa_Click() {
  ChooseAreas(false);
  try {
    RemoveMatching(ports_.files, session_.workspace.store(), "*.mes");
  } catch (const RunTimeError& error) {
    ports_.manager.Show(UnexpectedExportBox(error, 0, VersionDotted()));
  }
  main_.CLA_mese_excel.checked = true;
  screen_.Hide(form_);
  screen_.Show(main_);
}

/// A path beside the program.
std::string ExcelExport::Beside(std::string_view name) const {
  return Join(session_.workspace.base(), "/", name);
}

std::string ExcelExport::InCategory() const {
  return Join(session_.workspace.category(), "/", FileName());
}

std::string ExcelExport::FileName() const {
  return MonthFiles(session_).workbook_name();
}

/// The moment as a file name can have it.
std::string ExcelExport::Moment() {
  const auto seconds = static_cast<int>(ports_.clock.Timer());
  const auto two = [](int number) { return Join(number < 10 ? "0" : "", number); };
  const std::string time =
      Join(two(seconds / 3600), ":", two(seconds / 60 % 60), ":", two(seconds % 60));
  return Join(Replaced(ports_.clock.ShortDate(), '/', '-'), " ", Replaced(time, ':', '_'), kEnding);
}

void ExcelExport::Status(std::string_view text) {
  form_.LBL_stato.caption = text;
}

void ExcelExport::Progress(int value, int maximum) {
  form_.Bar1.maximum = static_cast<std::size_t>(maximum);
  form_.Bar1.value = std::to_string(value);
  ports_.manager.Progress(static_cast<std::size_t>(value), form_.Bar1.maximum);
}

void ExcelExport::crea_cla_band_xls_01_Click() {
  try {
    Run();
  } catch (const RunTimeError& error) {
    if (const auto fatal = FatalExportBox(error, step_, FileName(), !book_)) {
      ports_.manager.Show(*fatal);
      throw ProgramEnd();
    }
    KeepUnfinished(error);
  }
  book_.reset();
}

void ExcelExport::Run() {
  if (!Begin()) {
    return;
  }
  Make();
  if (Save() == Outcome::kSaved) {
    Finish();
  }
}

/// False where no contest was chosen.
bool ExcelExport::Begin() {
  step_ = 1;
  book_.reset();
  form_.LBL_stato.visible = form_.Bar1.visible = true;
  ShowRunning();
  start_ = ports_.clock.Timer();
  Progress(0, kStages);
  step_ = 2;
  if (session_.contest_label == "scegli nome contest") {
    ports_.manager.Show({.lines = {" Devi caricare o offettuare i controlli di un contest,",
                                   " prima di eseguire questa procedura"}});
    return false;
  }
  step_ = 3;
  statistics_possible_ = session_.excel_major_version >= kLowestWorkbookVersion;
  if (!statistics_possible_) {
    ports_.manager.Show({.lines = {" versione excel non compatibile"}});
  }
  step_ = 4;
  Status(" inizio conversione ...... ");
  book_.emplace(static_cast<int>(kPlaceHolders.size()));
  step_ = 7;
  for (std::size_t i = 0; i < kPlaceHolders.size(); ++i) {
    book_->Rename(book_->Sheet(i + 1), kPlaceHolders.at(i));
  }
  return true;
}

void ExcelExport::Make() {
  step_ = 8;
  Status(" 2IT in corso.....");
  ReadSource();
  MakeClassification();
  step_ = 10;
  Checkpoint("144_Temporaneo_senza_tutto_");
  step_ = 11;
  MakePrintedCopy();
  step_ = 12;
  if (form_.SI_stat.checked && statistics_possible_) {
    step_ = 13;
    MakeStatistics();
  } else {
    Checkpoint("144_Temporaneo_senza_statistica_");
  }
  Progress(kStages, kStages);
  step_ = 14;
  DropPlaceHolders();
  step_ = 16;
  if (form_.SI_callarea.checked && form_.Check12_144.checked) {
    MakeAreas();
  }
  step_ = 17;
  book_->Select(book_->Sheet(1));
  book_->Sheet(1).selected = {};
}

/// The content of a file; nothing where it, or its folder, is missing.
std::optional<std::string> ExcelExport::ReadPresent(const std::string& path) {
  try {
    return ports_.files.ReadAll(path);
  } catch (const RunTimeError& error) {
    if (!IsMissing(error)) {
      throw;
    }
    return std::nullopt;
  }
}

void ExcelExport::ReadSource() {
  classification_ = ReadPresent(session_.workspace.classification(session_.category_month));
  texts_ = {.month_title = MonthTitle(session_.category_month),
            .year = std::string(Right(session_.category_month, 4)),
            .contest_date = ReadContestDate(),
            .version = VersionDotted(),
            .no_printer = !ports_.printer.Installed()};
}

/// The date of the contest out of "2IT 250119". Only without a classification it may be missing.
std::string ExcelExport::ReadContestDate() {
  constexpr Column kYear{5, 2};
  constexpr Column kMonth{7, 2};
  constexpr Column kDay{9, 2};
  const std::string path = session_.workspace.contest_date(kCategory);
  const auto text = classification_ ? ports_.files.ReadAll(path) : ReadPresent(path);
  if (!text) {
    return "";
  }
  std::string_view line;
  LineReader(*text).Next(line);
  return Join("20", Cut(line, kYear), ".", Cut(line, kMonth), ".", Cut(line, kDay));
}

/// Without a classification its sheets are made all the same, since the run goes on through the
/// same steps, and are taken out at its end.
void ExcelExport::MakeClassification() {
  step_ = 9;
  Worksheet& sheet = book_->Add();
  book_->Rename(sheet, kClassification);
  book_->Select(sheet);
  sheet.gridlines = false;
  if (classification_) {
    SetUpClassificationSheet(sheet);
    FillClassificationSheet(sheet, *classification_,
                            Join("Categoria UNICA   - 144 MHz - ", texts_.year), texts_);
    Progress(kClassificationDone, kStages);
    Status(" 2IT Fatto");
  }
}

void ExcelExport::MakePrintedCopy() {
  Status(" 2IT Tutti in corso.....");
  Worksheet& sheet = book_->Add();
  book_->Rename(sheet, kPrintedCopy);
  book_->Select(sheet);
  sheet.gridlines = false;
  SetUpClassificationSheet(sheet);
  sheet.Range("N:AZ").ColumnWidth(7);
  if (classification_) {
    Worksheet& source = book_->Sheet(kClassification);
    const int last = source.LastRow(1) + kBehindLastRow;
    source.Range(Join("1:", last)).Copy(sheet.Range("1:1"));
    KeepPages(source, sheet);
    source.selected = {.row = last, .column = 1};
  }
  if (!texts_.no_printer) {
    sheet.page_setup = ClassificationPage(texts_, kTopOfCopy);
  }
  Progress(kCopyDone, kStages);
  Status(" 2IT TUTTO Fatto");
}

void ExcelExport::MakeStatistics() {
  Progress(kInStatistics, kStages);
  CreateStatisticsSheet(
      *book_, [this] { return ports_.files.ReadAll(MonthFiles(session_).statistics()); }, texts_,
      ports_.pictures.Png(ItalyOutline()), [this](std::string_view status) { Status(status); });
}

/// Takes a sheet out, save the last one of all: a workbook has at least one.
void ExcelExport::Drop(std::string_view sheet) {
  if (book_->Count() > 1) {
    book_->Delete(sheet);
  }
}

void ExcelExport::DropPlaceHolders() {
  Status(" Eliminazione fogli vuoti in corso....");
  if (!classification_) {
    Drop(kClassification);
    Drop(kPrintedCopy);
  }
  for (const std::string_view name : kPlaceHolders) {
    Drop(name);
  }
}

void ExcelExport::MakeAreas() {
  const std::string first = book_->Sheet(1).name();
  CreateCallAreaSheets(*book_, texts_,
                       {.read =
                            [this](CallArea area) {
                              return ReadPresent(MonthFiles(session_).area_classification(area));
                            },
                        .status = [this](std::string_view text) { Status(text); },
                        .progress = [this](int done, int areas) { Progress(done, areas); }});
  if (!classification_ && first == kPlaceHolders.back()) {
    Drop(first);
  }
}

void ExcelExport::Checkpoint(std::string_view name) {
  ports_.workbooks.SaveAs(*book_, Beside(Join(name, Moment())));
}

void ExcelExport::RemoveOld() {
  for (const std::string& path : {InCategory(), Beside(FileName())}) {
    if (ports_.files.FolderExists(path) || !ports_.files.StampOf(path)) {
      continue;  // saving tells of a folder in the way
    }
    try {
      ports_.files.Remove(path);
    } catch (const RunTimeError& error) {
      // A file that is protected is told as one that somebody else holds.
      throw error.number() == ErrorNumber::kPathFileAccess
          ? RunTimeError(ErrorNumber::kPermissionDenied, path)
          : error;
    }
  }
}

ExcelExport::Outcome ExcelExport::Save() {
  step_ = 18;
  RemoveOld();
  step_ = 19;
  try {
    ports_.workbooks.SaveAs(*book_, Beside(FileName()));
    return Outcome::kSaved;
  } catch (const RunTimeError& error) {
    if (error.number() != ErrorNumber::kWorkbookRefused) {
      throw;
    }
    KeepAs("Non_salvato_");
    ports_.manager.Show(UnsavedBox(error, step_));
    return Outcome::kUnsaved;
  }
}

void ExcelExport::Finish() {
  step_ = 20;
  form_.LBL_tempo.caption = Join(" Elaborazione Effettuata in  ",
                                 SecondsText(ports_.clock.Timer() - start_), "  secondi");
  Status("");
  step_ = 21;
  ports_.files.Copy(Beside(FileName()), InCategory());
  step_ = 22;
  ports_.manager.Show({.lines = {" Procedura terminata correttamente.",
                                 Join(" File salvato in     : ", session_.workspace.base()),
                                 Join(" Nome File excel : ", FileName())}});
  form_.crea_cla_band_xls_01.colour = colour::kRed;
}

/// Keeps what there is under a name of its own, if the disk takes it: the box that follows tells
/// that the workbook is not what it should be, and there is no more to tell.
bool ExcelExport::KeepAs(std::string_view name) {
  try {
    Checkpoint(name);
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

void ExcelExport::KeepUnfinished(const RunTimeError& error) {
  ports_.manager.Show(UnexpectedExportBox(error, step_, VersionDotted()));
  if (book_) {
    KeepAs("FILE_ ERRORE_Non_terminato_");
  }
  Status("");
  ports_.manager.Show(UnfinishedBox(error, step_));
}

}  // namespace velmar
