#include "session/main_menu.h"

#include <gtest/gtest.h>

#include "model/text.h"
#include "platform/error.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

using Lines = std::vector<std::string>;

class MainMenuTest : public testing::Test {
 protected:
  MainMenuTest() {
    workspace.WithTree();
    screen.Add(form);
    screen.Show(form);
  }

  void NoteOpening() {
    EXPECT_FALSE(form.visible());
    EXPECT_TRUE(manager.boxes.empty()) << "the message comes behind the screen";
    ++opened;
  }

  TempWorkspace workspace;
  ScriptedManager manager;
  FixedClock clock;
  Screen screen;
  ContestSession session{workspace.paths().base()};
  MainForm form;
  MenuTrap trap{manager};
  MonthAssignment months{session, workspace.files(), manager, trap, clock};
  int opened = 0;
  int opened_info = 0;
  int exports = 0;
  MainMenu menu{session,
                workspace.files(),
                manager,
                trap,
                screen,
                form,
                months,
                {.open_recalculation = [this] { NoteOpening(); },
                 .open_renaming = [this] { NoteOpening(); },
                 .open_check =
                     [this] {
                       EXPECT_TRUE(form.visible()) << "the desk takes its place when it is ready";
                       ++opened;
                     },
                 .open_absent = [this] { NoteOpening(); },
                 .open_info = [this] { ++opened_info; },
                 .open_export = [this] { ++exports; }}};
};

TEST_F(MainMenuTest, TheRecalculationOpensAndIsToldOfLogsInItsWay) {
  form.restore_1KM.Click();
  EXPECT_EQ(opened, 1);
  EXPECT_FALSE(session.recalc_dest_not_empty);
  workspace.With("02 Log ricalcolati/old.edi", "x");
  form.restore_1KM.Click();
  EXPECT_TRUE(session.recalc_dest_not_empty);
  EXPECT_EQ(manager.boxes.at(0).lines,
            (Lines{"La cartella ' Log ricalcolati', NON \xE8 vuota. ",
                   " elimina i file, altrimenti si mischiano i file nuovi con i vecchi."}));
}

TEST_F(MainMenuTest, LogsThatWaitToBeInsertedEndTheRenaming) {
  form.Rinomina_ita.Click();
  EXPECT_TRUE(manager.boxes.empty());
  EXPECT_EQ(opened, 1);
  screen.Show(form);
  workspace.With("03 Log da inserire/a.edi", "x");
  EXPECT_THROW(form.Rinomina_ita.Click(), ProgramEnd);
  EXPECT_EQ(opened, 2) << "the screen opens all the same";
  EXPECT_EQ(manager.boxes.at(1), (Box{.lines = {" Programma terminato "}, .icon = Icon::kStop}));
}

TEST_F(MainMenuTest, TheCheckDeskTheNoticesAndTheAbsentStationsOpen) {
  form.controlla_locatori.Click();
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(opened_info, 0);
  form.Info.Click();
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(opened_info, 1);
  form.Assenti.Click();
  EXPECT_EQ(opened, 2);
  EXPECT_TRUE(manager.boxes.empty());
}

TEST_F(MainMenuTest, TheWorkbookHasItsGatesInOrder) {
  const std::string checked(99, 'x');
  const std::string unchecked = std::string(89, 'x') + std::string(10, ' ') + "x";
  const auto refusal = [&] {
    form.CLA_mese_excel.Click();
    const Lines lines = manager.TakeFirstLines();
    return lines.empty() ? std::string() : lines[0];
  };
  EXPECT_EQ(refusal(), " Devi assegnare il mese prima della classifica");
  session.category_month = "GENNAIO 2025";
  EXPECT_EQ(refusal(), " Spiacente ma \xE8 necessario una versione excel superiore,");
  session.excel_major_version = 14;
  EXPECT_EQ(refusal(), "");
  const std::string cla = "Trofeo_Velmar/2IT/2IT Classifica Mensile 144 gennaio 2025.cla";
  workspace.With(cla, Join(unchecked, "\r\n", checked, "\r\nshort\r\n"));
  EXPECT_EQ(refusal(), "") << "the header row does not count";
  EXPECT_EQ(exports, 2);
  workspace.With(cla, Join("header\r\n", checked, "\r\n", unchecked));
  EXPECT_EQ(refusal(), " NON sono terminati i controlli. Opzione non eseguibile");
}

TEST_F(MainMenuTest, TurboGoesWithAutomaticInsertion) {
  form.turbo.Click();
  EXPECT_TRUE(form.Ins_auto.checked);
  EXPECT_TRUE(form.info_turbo.visible);
  form.Ins_auto.Click();
  EXPECT_FALSE(form.turbo.checked);
  EXPECT_FALSE(form.info_turbo.visible);
  form.Ins_auto.Click();
  EXPECT_FALSE(form.turbo.checked);
}

TEST_F(MainMenuTest, TheOperatorMarkIsForItalianCallsAlone) {
  form.Callusato.value = "9A1QAA";
  form.Rookie.Click();
  EXPECT_FALSE(form.Rookie.checked);
  EXPECT_EQ(session.operator_mark, OperatorMark::kNone);
  form.Callusato.value = "IK2QAA";
  form.Rookie.Click();
  form.Young.Click();
  EXPECT_FALSE(form.Rookie.checked);
  EXPECT_TRUE(form.Young.checked);
  EXPECT_EQ(session.operator_mark, OperatorMark::kYoung);
  form.Command1.Click();
  EXPECT_FALSE(form.Young.checked);
  EXPECT_EQ(session.operator_mark, OperatorMark::kNone);
}

TEST_F(MainMenuTest, TheFileListIsShownAndHidden) {
  workspace.With("03 Log da inserire/b.edi", "x").With("03 Log da inserire/A.edi", "x");
  form.File1.visible = false;
  form.Check_AUT_entry.Click();
  EXPECT_TRUE(form.File1.visible);
  EXPECT_EQ(form.File1.items.rows(), (Lines{"A.edi", "b.edi"}));
  EXPECT_EQ(form.num_file2.caption, "2");
  form.Check_AUT_entry.Click();
  EXPECT_FALSE(form.File1.visible);
}

TEST_F(MainMenuTest, KeysStartTheButtonThatHasTheFocus) {
  int started = 0;
  form.caricaedi.on_click = [&] { ++started; };
  for (const char* key : {"a", "A", "F5", "b", "Enter"}) {
    form.caricaedi.Press(key);
  }
  EXPECT_EQ(started, 3);
  EXPECT_EQ(form.focus, &form.caricaedi);
}

TEST_F(MainMenuTest, TheThirdStepShowsItsPanel) {
  form.HideHeaderPanel();
  form.caricaedi.visible = form.turbo.visible = false;
  form.Inserire_log.Click();
  EXPECT_TRUE(form.caricaedi.visible && form.turbo.visible && form.Callusato.visible);
}

TEST_F(MainMenuTest, DeletingALogIsANoticeOnly) {
  form.Inserimento_OK.visible = true;
  form.Elimina_log.Click();
  EXPECT_FALSE(form.Inserimento_OK.visible);
  EXPECT_EQ(manager.boxes.at(0).lines.size(), 6U);
}

TEST_F(MainMenuTest, AFailingItemIsToldAndTheScreenStays) {
  FailingFileSystem files(workspace.files());
  MainMenu failing(session, files, manager, trap, screen, form, months, {});
  files.broken_path = "03 Log da inserire";
  form.File1.visible = false;
  files.number = ErrorNumber::kPathFileAccess;
  form.Check_AUT_entry.Click();
  EXPECT_TRUE(manager.boxes.empty()) << "a refused path is passed over";
  files.number = ErrorNumber::kPermissionDenied;
  form.File1.visible = false;
  form.Check_AUT_entry.Click();
  EXPECT_EQ(manager.TakeFirstLines().at(0),
            " errore numero: 70 nella linea : 83 menu principale. Un file su disco \xE8 "
            "inacessibile ");
  files.number = ErrorNumber::kDeviceError;
  form.File1.visible = false;
  form.Check_AUT_entry.Click();
  EXPECT_EQ(manager.TakeFirstLines().at(0),
            " errore imprevisto numero: 57 nella linea : 83 menu form principale Contatta l' "
            "autore del software_0.0.8");
}

}  // namespace
}  // namespace velmar::test
