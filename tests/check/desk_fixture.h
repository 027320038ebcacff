#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "check/check_desk.h"
#include "model/classification_row.h"
#include "model/contest_store.h"
#include "model/error_list.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "support/boxes.h"
#include "support/outside.h"

namespace velmar::test {

/// A QSO as it lies in the store.
struct FiledQso {
  std::string call;
  std::string locator;
  std::string points = "100";
  std::string time = "1005";  ///< HHMM
};

/// A log as it lies in the store; its best DX QSO is that of `dx_call`.
struct FiledLog {
  std::string call;
  std::string locator;
  std::vector<FiledQso> qsos;
  std::string dx_call = "";
  long long points = 5000;
};

/// The check desk on a workspace of its own, with the settings of a new one, where all messages are
/// off.
struct DeskFixture : Outside {
  DeskFixture() {
    workspace.WithTree().WithSettings();
    session.category_month = "GENNAIO 2025";
    session.settings = Settings::New();
    session.archive_missing = true;
    screen.Add(main);
    screen.Add(form);
    screen.Add(desk.archive_form());
    screen.Add(desk.notices_form());
    screen.Show(main);
  }

  /// Puts a log into the store files, the classification, and gives it an error list.
  DeskFixture& Filed(const FiledLog& log) {
    std::string library;
    std::string total;
    std::string somma;
    std::string slx;
    Names rows;
    for (const FiledQso& qso : log.qsos) {
      rows.push_back(QsoOf(qso));
      AddLine(somma, SommaQsoRow(rows.back(), kCategory, log.locator, log.call));
      AddLine(slx, SommaSlxRow(log.call, rows.back()));
      library += LibreriaRow(log.call, qso.call, qso.locator, qso.points).value_or("") + "\r\n";
      total +=
          LibreriaTotaleRow(log.call, qso.call, qso.locator, kCategory, qso.points).value_or("") +
          "\r\n";
    }
    store.Append(StoreFile::kTempi, kCategory, "");
    store.Append(StoreFile::kSommaSlx, kCategory, slx);
    store.Append(StoreFile::kSommaQso, kCategory, somma);
    store.Append(StoreFile::kLibreria, kCategory, library);
    store.Append(StoreFile::kLibreriaTotale, kCategory, total);
    store.Append(StoreFile::kPartecipanti, kCategory,
                 Join(PartecipanteRow(log.call, log.locator, kCategory), kLineEnd));
    store.AppendToClassification(ClassificationRow({.call = Call12(log.call),
                                                    .locator = log.locator,
                                                    .height = "250",
                                                    .antenna = "9 el yagi",
                                                    .power = 100,
                                                    .qsos = std::to_string(log.qsos.size()),
                                                    .declared = std::to_string(log.points),
                                                    .dx_call = log.dx_call,
                                                    .dx_distance = "100",
                                                    .points = log.points}),
                                 kCategory, session.category_month);
    store.Append(StoreFile::kModi, kCategory,
                 Join(ModoRow(log.call, log.locator, static_cast<int>(rows.size()), 0), kLineEnd));
    workspace.With(FiledPath(log.call), LogText(log.call, log.locator, rows));
    store.AppendToErrorList(log.call, kCategory, session.category_month, Head(log));
    return *this;
  }

  /// The row of a QSO in its log.
  static std::string QsoOf(const FiledQso& qso) {
    return Join("250119;", qso.time, ";", qso.call, ";1;59;;59;;;", qso.locator, ";", qso.points,
                ";;N;;");
  }

  /// Where a log is filed.
  static std::string FiledPath(std::string_view call) {
    return Join("Trofeo_Velmar/2IT/", LogName(kCategory, FiledName(call)));
  }

  static std::string Head(const FiledLog& log) {
    return ErrorListHeadText({.title = " Velmar  ",
                              .month = "GENNAIO 2025",
                              .call = Call12(log.call),
                              .locator = log.locator,
                              .declared = std::to_string(log.points),
                              .band = "144 Mhz",
                              .category = std::string(kCategory)});
  }

  /// Opens the desk and loads the month's classification.
  DeskFixture& Loaded() {
    desk.Open();
    form.Option3.Click();
    return *this;
  }

  /// Starts the check of a call, with Yes to its question.
  DeskFixture& Started(std::string_view call) {
    Choose(call);
    manager.replies.push_back(Reply::kYes);
    form.listacall_banda.DoubleClick();
    return *this;
  }

  void Choose(std::string_view call) {
    const auto& rows = form.listacall_banda.items.rows();
    for (std::size_t row = 0; row < rows.size(); ++row) {
      if (ClassificaRow(rows[row]).Call() == call) {
        form.listacall_banda.selection = static_cast<int>(row);
      }
    }
  }

  std::string ErrorListOf(std::string_view call) {
    return ReadIfThere(workspace.files(),
                       session.workspace.error_list(kCategory, call, session.category_month))
        .value_or("<missing>");
  }

  /// The lines of an error list behind its head.
  Names Decisions(std::string_view call) {
    const std::string list = ErrorListOf(call);
    const auto lines = SplitLines(list);
    return {lines.begin() + std::min(lines.size(), kErrorListHeadLines), lines.end()};
  }

  /// Errors, points lost and points left, as the desk shows them.
  std::string Score() const {
    return Join(form.err_count.caption, " ", form.err_qrb.caption, " ", form.qrb_finale.caption);
  }

  MainForm main;
  ContestStore store{files, session.workspace};
  CheckForm form;
  CheckDesk desk{session, ports, store, screen, main, form};
};

/// The box of an error that a procedure of the desk ends with.
inline Box DeskFailure(int error, int step) {
  return Told(Join(" errore imprevisto numero: ", error, " nella linea : ", step,
                   " Modulo controlli   Contatta l' autore del software_0.0.8"));
}

}  // namespace velmar::test
