#pragma once

#include <array>

#include "platform/ansi.h"
#include "platform/file_system.h"
#include "platform/form.h"
#include "platform/manager.h"
#include "session/check_options.h"
#include "session/contest_session.h"
#include "session/main_form.h"
#include "session/menu_trap.h"

namespace velmar {

/// The dialog that shows the settings at every start. It edits nothing.
struct ConfigForm : Form {
  ConfigForm();

  Label& heading = AddLabel(
      "Label_titolo", "Attenzione , attualmente il programma è configurato in questo modo."_a);
  Label& frame = AddLabel("Frame1", "Configurazione attuale");

  /// What one setting is shown by. The first one has no box.
  struct Line {
    Label* mark;
    Check* box;
    Label* text;
  };
  std::array<Line, kSettings> lines;

  Label& rule = AddLabel("Label_unici", "--------  VISUALIZZAZIONE CALL UNICI  --------");
  Label& hint = AddLabel("Label_opzioni",
                         "Se vuoi attivare / disattivare queste opzioni vai sul menu \"option\" e "
                         "\"unici\"");
  Button& Command2 = AddButton("Command2", "OK");

  Line& LineOf(Setting setting) { return lines.at(static_cast<std::size_t>(setting)); }

 private:
  std::array<Line, kSettings> AddLines();
};

/// The configuration dialog, the last screen of a start.
class ConfigDialog {
 public:
  ConfigDialog(ContestSession& session, FileSystem& files, Manager& manager, MenuTrap& trap,
               Screen& screen, MainForm& main, CheckOptions& check);

  ConfigForm& form() { return form_; }

  /// Loads the settings, and shows their state in the dialog and on the check desk.
  void Prepare();

  void Open();

  /// The confirmation: makes the settings file where there is none, and brings the main screen
  /// back. Ends the program on the first start of a new tree.
  void Command2_Click();

 private:
  void LoadSettings();
  void ShowSetting(Setting setting);
  void ShowExclusive(Setting on, Setting off);
  void CreateSettings();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Screen& screen_;
  MainForm& main_;
  CheckOptions& check_;
  MenuTrap& trap_;
  ConfigForm form_;
};

/// Writes the settings file out of the session's settings, repaired; ticks the last option of the
/// check desk where the repair set it. For the way out of the check desk.
void SaveSettings(ContestSession& session, FileSystem& files, CheckOptions& check);

}  // namespace velmar
