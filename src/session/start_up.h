#pragma once

#include <string>

#include "platform/form.h"
#include "platform/manager.h"
#include "platform/ports.h"
#include "session/contest_session.h"
#include "session/info_form.h"
#include "session/main_form.h"
#include "session/menu_trap.h"
#include "session/month_assignment.h"
#include "session/month_dialog.h"

namespace velmar {

/// The chain of checks that every start runs: the machine, the workspace, the store, the folders
/// that tell which step is next. It ends in the month dialog, or ends the program.
class StartUp {
 public:
  StartUp(ContestSession& session, const Ports& ports, MenuTrap& trap, Screen& screen,
          MainForm& main, InfoForm& info, MonthAssignment& months, MonthDialog& month_dialog)
      : session_(session),
        ports_(ports),
        screen_(screen),
        main_(main),
        info_(info),
        months_(months),
        month_dialog_(month_dialog),
        trap_(trap) {}

  /// Runs the chain. An unexpected error is told and leaves the main screen as it then is.
  void Run();

 private:
  void Chain();

  // The machine.
  void TestConnection();
  void TestSystem();
  void TestWorkbook();
  void TestDate();
  void TestLocation();

  // The workspace and the store.
  void SetDefaults();
  void CreateTree();
  void ListInsertDir();
  void RequireSettings();
  void ReadMonths();
  void ReadStore();
  void TestCallBook();
  void ReadClassification();

  // What the folders tell.
  void TestRefusedLogs();
  void TestWrongLogs();
  void TestSteps();
  void ShowInsertStep(bool pending);
  void EndOnMismatch();

  void CheckVersion();
  void ShowNewVersion(const std::string& version);

  void Show(std::vector<std::string> lines, Icon icon = Icon::kInfo);
  [[noreturn]] void End(std::vector<std::string> lines);

  ContestSession& session_;
  Ports ports_;
  Screen& screen_;
  MainForm& main_;
  InfoForm& info_;
  MonthAssignment& months_;
  MonthDialog& month_dialog_;
  MenuTrap& trap_;
};

}  // namespace velmar
