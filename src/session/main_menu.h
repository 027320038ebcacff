#pragma once

#include <functional>

#include "platform/file_system.h"
#include "platform/form.h"
#include "platform/manager.h"
#include "session/contest_session.h"
#include "session/main_form.h"
#include "session/menu_trap.h"
#include "session/month_assignment.h"

namespace velmar {

/// The steps that the menu opens. The program joins them to the modules.
struct MenuSteps {
  std::function<void()> open_recalculation{};
  std::function<void()> open_renaming{};
  std::function<void()> open_check{};
  std::function<void()> open_absent{};
  std::function<void()> open_info{};
  std::function<void()> classify_areas{};
  std::function<void()> open_statistics{};
  std::function<void()> open_export{};
};

/// The menu and the small controls of the main screen.
class MainMenu {
 public:
  MainMenu(ContestSession& session, FileSystem& files, Manager& manager, MenuTrap& trap,
           Screen& screen, MainForm& form, MonthAssignment& months, MenuSteps steps);

  void restore_1KM_Click();
  /// Opens the second step. Logs that wait to be inserted are not to be mixed with newly renamed
  /// ones: they end the program.
  void Rinomina_ita_Click();
  void Inserire_log_Click();
  /// Opens the check desk, which takes this screen's place when it is ready.
  void controlla_locatori_Click();
  void Assenti_Click();
  void Info_Click();
  void cla_x_callarea_Click();
  void statistiche_Click();
  void CLA_mese_excel_Click();
  void Elimina_log_Click();
  void vis_puls_Click();
  void Check_AUT_entry_Click();
  void turbo_Click();
  void Ins_auto_Click();
  void Testlog_Click();
  void Rookie_Click();
  void Young_Click();
  void Command1_Click();

 private:
  void OnClick(Control& control, void (MainMenu::*event)());
  void StopByKey(const std::string& key);
  void StartByKey(Button& button, const std::string& key);
  void ControllaCla();
  void MarkOperator(OperatorMark mark);
  void ShowOperatorMark();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Screen& screen_;
  MainForm& form_;
  MenuTrap& trap_;
  MenuSteps steps_;
};

}  // namespace velmar
