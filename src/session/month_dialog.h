#pragma once

#include "platform/ansi.h"
#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/form.h"
#include "platform/manager.h"
#include "session/config_dialog.h"
#include "session/contest_session.h"
#include "session/main_form.h"
#include "session/menu_trap.h"

namespace velmar {

/// The dialog in which the manager chooses the month and year of the contest.
struct MonthForm : Form {
  MonthForm();

  Label& Mese_kqv = AddLabel("Mese_kqv", "Inserisci il mese da controllare");
  Label& Label1 = AddLabel("Label1", "Seleziona il mese dello KQV da controllare");
  Combo& Combo_mese;
  Combo& Combo_anno;
  Label& note = AddLabel("Label_nota",
                         "Il programma è in continua evoluzione, l' errore è sempre in "
                         "agguato. Segnala ogni problema. Grazie, insieme lo "
                         "risolveremo."_a);
  Button& OK_mese = AddButton("OK_mese", "OK");
};

/// The month dialog, which every start ends in, and which goes on to the configuration dialog.
class MonthDialog {
 public:
  MonthDialog(ContestSession& session, FileSystem& files, Manager& manager, MenuTrap& trap,
              Clock& clock, Screen& screen, MainForm& main, ConfigDialog& config);

  MonthForm& form() { return form_; }

  /// Fills the dialog out of the month files or, without them, out of the date, and shows it.
  void Open();

  /// The confirmation: any month but January is refused; else both month files are written, and the
  /// configuration dialog follows.
  void OK_mese_Click();

 private:
  void Form_Load();
  void RememberMonth();
  void Combo_mese_Change();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Clock& clock_;
  Screen& screen_;
  MainForm& main_;
  ConfigDialog& config_;
  MenuTrap& trap_;
  MonthForm form_;
  int remembered_ = 0;  ///< row of the month that the dialog opened with
};

/// The title of the main screen, which shows the month in force.
std::string MainTitle(const ContestSession& session);

}  // namespace velmar
