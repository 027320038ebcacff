#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/ports.h"
#include "platform/workbook.h"
#include "publish/classification_sheet.h"
#include "publish/export_form.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// The month's workbook: the classification, its copy to be printed, the statistics and the call
/// areas, made in one run and saved beside the program and in the category's folder.
class ExcelExport {
 public:
  ExcelExport(ContestSession& session, const Ports& ports, Screen& screen, MainForm& main,
              ExportForm& form);

  void Open();

  void SI_stat_Click();
  void NO_stat_Click();
  void SI_graf_Click();
  void SI_testo_Click();
  void SI_callarea_Click();
  void NO_callarea_Click();
  void HScroll1_Change();
  void crea_cla_band_xls_01_Click();
  void torna_casa_Click();

 private:
  enum class Outcome { kSaved, kUnsaved };

  void JoinControls();
  void ShowRunning();
  void ChooseStatistics(bool wanted);
  void ChooseKind(bool chart);
  void ChooseAreas(bool wanted);

  void Run();
  void Make();
  bool Begin();
  void ReadSource();
  std::optional<std::string> ReadPresent(const std::string& path);
  std::string ReadContestDate();
  void MakeClassification();
  void MakePrintedCopy();
  void MakeStatistics();
  void DropPlaceHolders();
  void MakeAreas();
  void RemoveOld();
  Outcome Save();
  void Finish();
  void KeepUnfinished(const RunTimeError& error);

  void Status(std::string_view text);
  void Progress(int value, int maximum);
  void Checkpoint(std::string_view name);
  bool KeepAs(std::string_view name);
  void Drop(std::string_view sheet);
  std::string Moment();
  std::string Beside(std::string_view name) const;
  std::string FileName() const;
  std::string InCategory() const;

  ContestSession& session_;
  Ports ports_;
  Screen& screen_;
  MainForm& main_;
  ExportForm& form_;

  // Of a run.
  int step_ = 0;
  double start_ = 0;  ///< of the clock, seconds
  std::optional<Workbook> book_;
  std::optional<std::string> classification_;  ///< nothing where there is none
  SheetTexts texts_;
  bool statistics_possible_ = true;
};

}  // namespace velmar
