#include "session/main_menu.h"

#include "model/classification_row.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "session/workbook_version.h"

namespace velmar {

MainMenu::MainMenu(ContestSession& session, FileSystem& files, Manager& manager, MenuTrap& trap,
                   Screen& screen, MainForm& form, MonthAssignment& months, MenuSteps steps)
    : session_(session),
      files_(files),
      manager_(manager),
      screen_(screen),
      form_(form),
      trap_(trap),
      steps_(std::move(steps)) {
  OnClick(form.restore_1KM, &MainMenu::restore_1KM_Click);
  OnClick(form.Rinomina_ita, &MainMenu::Rinomina_ita_Click);
  OnClick(form.Inserire_log, &MainMenu::Inserire_log_Click);
  OnClick(form.controlla_locatori, &MainMenu::controlla_locatori_Click);
  OnClick(form.Assenti, &MainMenu::Assenti_Click);
  OnClick(form.Info, &MainMenu::Info_Click);
  OnClick(form.cla_x_callarea, &MainMenu::cla_x_callarea_Click);
  OnClick(form.statistiche, &MainMenu::statistiche_Click);
  OnClick(form.CLA_mese_excel, &MainMenu::CLA_mese_excel_Click);
  OnClick(form.Elimina_log, &MainMenu::Elimina_log_Click);
  OnClick(form.vis_puls, &MainMenu::vis_puls_Click);
  OnClick(form.Check_AUT_entry, &MainMenu::Check_AUT_entry_Click);
  OnClick(form.turbo, &MainMenu::turbo_Click);
  OnClick(form.Ins_auto, &MainMenu::Ins_auto_Click);
  OnClick(form.Testlog, &MainMenu::Testlog_Click);
  OnClick(form.Rookie, &MainMenu::Rookie_Click);
  OnClick(form.Young, &MainMenu::Young_Click);
  OnClick(form.Command1, &MainMenu::Command1_Click);
  form.ass_mese.on_click = [this, &months] { trap_.Procedure([&] { months.ass_mese_Click(); }); };
  for (Button* button : {&form.caricaedi, &form.Marcafile}) {
    button->on_key = [this, button](const std::string& key) { StartByKey(*button, key); };
  }
  form.turbo.on_key = [this](const std::string& key) { StopByKey(key); };
}

void MainMenu::OnClick(Control& control, void (MainMenu::*event)()) {
  control.on_click = [this, event] { trap_.Procedure([&] { (this->*event)(); }); };
}

void MainMenu::StartByKey(Button& button, const std::string& key) {
  if (key == "a" || key == "A" || key == "F5") {
    form_.focus = &button;
    button.Click();
  }
}

void MainMenu::restore_1KM_Click() {
  trap_.Statement(81, [&] {
    session_.recalc_dest_not_empty = HoldsFiles(files_, session_.workspace.recalculated());
  });
  screen_.Hide(form_);
  steps_.open_recalculation();
  if (session_.recalc_dest_not_empty) {
    manager_.Show(
        {.lines = {"La cartella ' Log ricalcolati', NON è vuota. "_a,
                   " elimina i file, altrimenti si mischiano i file nuovi con i vecchi."}});
  }
}

void MainMenu::Rinomina_ita_Click() {
  screen_.Hide(form_);
  steps_.open_renaming();
  bool in_the_way = false;
  trap_.Statement(84, [&] { in_the_way = HoldsFiles(files_, session_.workspace.to_insert()); });
  if (in_the_way) {
    manager_.Show(
        {.lines = {" La cartella ' 03 Log da inserire', NON è vuota. "_a,
                   " Esci ed elimina i file, altrimenti si mischiano i file nuovi con i vecchi."}});
    manager_.Show({.lines = {" Programma terminato "}, .icon = Icon::kStop});
    throw ProgramEnd();
  }
}

void MainMenu::Inserire_log_Click() {
  form_.ShowInsertStep(true);
}

void MainMenu::controlla_locatori_Click() {
  steps_.open_check();
}

void MainMenu::Assenti_Click() {
  screen_.Hide(form_);
  steps_.open_absent();
}

void MainMenu::Info_Click() {
  steps_.open_info();
}

void MainMenu::cla_x_callarea_Click() {
  steps_.classify_areas();
}

void MainMenu::statistiche_Click() {
  screen_.Hide(form_);
  steps_.open_statistics();
}

void MainMenu::ControllaCla() {
  session_.checks_unfinished = false;
  const std::string path = session_.workspace.classification(session_.category_month);
  const std::string text = ReadIfThere(files_, path).value_or("");
  const auto rows = SplitLines(text);
  for (std::size_t i = 1; i < rows.size(); ++i) {
    constexpr Column kBlank = classification_row::kUnchecked;
    if (Cut(rows[i], kBlank) == std::string(kBlank.width, ' ')) {
      session_.checks_unfinished = true;
    }
  }
}

void MainMenu::CLA_mese_excel_Click() {
  trap_.Statement(82, [&] { ControllaCla(); });
  if (session_.checks_unfinished) {
    manager_.Show({.lines = {" NON sono terminati i controlli. Opzione non eseguibile"}});
  } else if (session_.category_month.empty()) {
    manager_.Show({.lines = {" Devi assegnare il mese prima della classifica"}});
  } else if (session_.excel_major_version < kLowestWorkbookVersion) {
    manager_.Show({.lines = {" Spiacente ma è necessario una versione excel superiore,"_a,
                             " alla attuale per poter esportare la classifica in excel. ",
                             " Necessaria minimo ver. 14 o sucessive.(da excel 2010 in poi)",
                             " Procedura negata "},
                   .icon = Icon::kStop});
  } else {
    steps_.open_export();
  }
}

void MainMenu::Elimina_log_Click() {
  form_.Inserimento_OK.visible = false;
  manager_.Show({.lines = {" Per cancellare un log seleziona da menù la voce "_a,
                           " Menù di controllo ---> 'Controllo LOG'."_a,
                           " carica la categoria dove si trova il log da eliminare e",
                           " clicca sul pulsante 'SOLO CLASSIFICA' sul menù."_a, " ",
                           "In questa finestra da menù attiva la procedura 'Cancella log ."_a}});
}

void MainMenu::vis_puls_Click() {
  form_.ShowHeaderPanel();
  form_.caricaedi.visible = true;
}

void MainMenu::Check_AUT_entry_Click() {
  if (!form_.File1.visible) {
    form_.File1.visible = true;
    form_.Text3.visible = true;
    form_.Dir1.visible = true;
    form_.num_file2.visible = true;
    trap_.Statement(83, [&] { form_.ListFiles(files_, session_.workspace.to_insert()); });
  } else if (!form_.Check_AUT_entry.checked) {
    form_.File1.visible = false;
  }
}

void MainMenu::turbo_Click() {
  if (form_.turbo.checked) {
    form_.Ins_auto.checked = true;
    form_.info_turbo.visible = true;
  } else {
    form_.StopTurbo();
  }
}

void MainMenu::Ins_auto_Click() {
  if (!form_.Ins_auto.checked) {
    form_.StopTurbo();
  }
}

void MainMenu::Testlog_Click() {
  form_.Testlog.checked = !form_.Testlog.checked;
}

void MainMenu::StopByKey(const std::string& key) {
  if (key == "Esc") {
    form_.StopTurbo();
  }
}

void MainMenu::Rookie_Click() {
  MarkOperator(OperatorMark::kRookie);
}

void MainMenu::Young_Click() {
  MarkOperator(OperatorMark::kYoung);
}

void MainMenu::Command1_Click() {
  session_.operator_mark = OperatorMark::kNone;
  ShowOperatorMark();
}

void MainMenu::MarkOperator(OperatorMark mark) {
  if (form_.Callusato.value.starts_with('I')) {
    session_.operator_mark = mark;
  }
  ShowOperatorMark();
}

void MainMenu::ShowOperatorMark() {
  form_.Rookie.checked = session_.operator_mark == OperatorMark::kRookie;
  form_.Young.checked = session_.operator_mark == OperatorMark::kYoung;
}

}  // namespace velmar
