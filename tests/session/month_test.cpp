#include "session/month.h"

#include <gtest/gtest.h>

#include "platform/error.h"
#include "session/month_assignment.h"
#include "session/month_dialog.h"
#include "session/version.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

TEST(Month, NamesAndDefaultsByDate) {
  EXPECT_EQ(MonthNameOf("21/01/2025"), "GENNAIO ");
  EXPECT_EQ(MonthNameOf("31/12/2025"), "DICEMBRE ");
  EXPECT_EQ(MonthNameOf("21/13/2025"), "");
  EXPECT_EQ(MonthNameOf(""), "");
  EXPECT_EQ(ContestDateDefault("2IT", "GENNAIO 2025"), "2IT 250119");
  EXPECT_EQ(ContestDateDefault("2IT_x.edi", "GENNAIO 2030"), "2IT 3001..");
  EXPECT_EQ(ContestDateDefault("2IT", "MARZO 2025"), "");
  EXPECT_EQ(ContestDateDefault("3IT", "GENNAIO 2025"), "");
  EXPECT_EQ(DottedVersion("25-012"), "0.1.2");
}

class MonthTest : public testing::Test {
 protected:
  MonthTest() {
    workspace.WithTree().WithSettings();
    for (Form* form : std::initializer_list<Form*>{&main, &dialog.form(), &config.form()}) {
      screen.Add(*form);
    }
  }

  MonthForm& form() { return dialog.form(); }
  std::string Verified() { return workspace.Read("Trofeo_Velmar/mese_verifica.dat"); }
  std::string Stored() { return workspace.Read("Trofeo_Velmar/2IT/mese.dat"); }

  TempWorkspace workspace;
  ScriptedManager manager;
  FixedClock clock;
  Screen screen;
  ContestSession session{workspace.paths().base()};
  MainForm main;
  CheckOptions check;
  MenuTrap trap{manager};
  ConfigDialog config{session, workspace.files(), manager, trap, screen, main, check};
  MonthDialog dialog{session, workspace.files(), manager, trap, clock, screen, main, config};
  MonthAssignment months{session, workspace.files(), manager, trap, clock};
};

TEST_F(MonthTest, TheDialogOpensWithTheDateWhereNothingIsStored) {
  dialog.Open();
  EXPECT_EQ(form().Combo_mese.value, "GENNAIO ");
  EXPECT_EQ(form().Combo_anno.value, "2025");
  EXPECT_EQ(form().title, " Velmar ");
  form().OK_mese.Click();
  EXPECT_EQ(Verified(), "GENNAIO 2025\r\n");
  EXPECT_EQ(Stored(), "GENNAIO 2025\r\n");
  EXPECT_TRUE(session.month_assigned);
  EXPECT_EQ(main.title, "    V A R T O  Velmar VHF - by Iz9qqq  Ver. 2024-008       GENNAIO 2025");
  EXPECT_FALSE(form().visible());
  EXPECT_TRUE(config.form().visible());
}

TEST_F(MonthTest, TheDialogOpensWithTheStoredMonth) {
  workspace.WithMonth("MARZO 2024");
  session.month_to_check = "MARZO 2024";  // as start-up leaves it
  dialog.Open();
  EXPECT_EQ(form().Combo_mese.value, "MARZO ");
  EXPECT_EQ(form().Combo_anno.value, "2024");
  EXPECT_EQ(form().title, "2024 Velmar ");
  form().Combo_mese.Type("Gennaio ");
  EXPECT_EQ(form().Combo_mese.value, "Marzo ") << "typing goes back to the remembered month";

  form().OK_mese.Click();
  EXPECT_EQ(manager.TakeFirstLines(),
            std::vector<std::string>{" Il contest Velmar si svolge solo a gennaio"});
  EXPECT_EQ(Verified(), "MARZO 2024\r\n");
  EXPECT_TRUE(form().visible());

  form().Combo_mese.Select(0);
  form().Combo_anno.Select(11);
  form().OK_mese.Click();
  EXPECT_EQ(Verified(), "GENNAIO 2031\r\n");
  EXPECT_EQ(session.category_month, "GENNAIO 2031");
}

TEST_F(MonthTest, TheMenuGivesTheStoreItsMonthOnce) {
  manager.inputs = {"", std::nullopt, "marzo 2024"};
  months.ass_mese_Click();
  EXPECT_EQ(manager.asked.back(), (InputBox{"Mese e anno Contest Velmar ",
                                            {" Scrivi il mese e anno del contest (es: MARZO ) "},
                                            "GENNAIO 2025"}));
  EXPECT_EQ(Stored(), "MARZO 2024\r\n");
  EXPECT_EQ(Verified(), "<missing>") << "the difference is found at the next start";
  months.ass_mese_Click();
  EXPECT_EQ(manager.boxes.back().lines.back(), " il mese attuale \xE8  MARZO 2024");
}

TEST_F(MonthTest, AFailureNamesTheStepThatFailed) {
  FailingFileSystem files(workspace.files());
  files.broken_path = "mese.dat";
  MonthAssignment failing{session, files, manager, trap, clock};
  manager.inputs = {"gennaio 2025"};
  trap.Statement(99, [] {});
  trap.Procedure([&] { failing.ass_mese_Click(); });
  EXPECT_EQ(manager.TakeFirstLines(),
            std::vector<std::string>{" errore imprevisto numero: 61 nella linea : 24 menu form "
                                     "principale Contatta l' autore del software_0.0.8"});
}

TEST_F(MonthTest, TheRepairAsksUntilTheAnswerEndsInANumber) {
  session.category_month = "GENNAIO 2024";
  manager.inputs = {"gennaio", "gennaio 2023"};
  months.RepairMonth();
  EXPECT_EQ(manager.asked[0].lines[0], " Scrivi il mese e anno da controllare (es: aprile 2025)");
  EXPECT_EQ(Verified(), "GENNAIO 2023\r\n");
  EXPECT_EQ(Stored(), "GENNAIO 2024\r\n");

  workspace.files().Remove(workspace.paths().month_to_check());
  workspace.files().MakeFolder(workspace.paths().month_to_check());  // refuses to be written
  session.category_month = "GENNAIO 2022";
  manager.inputs = {"gennaio 2023"};
  months.RepairMonth();
  EXPECT_EQ(Stored(), "GENNAIO 2022\r\n") << "the next statement follows";

  manager.inputs = {std::nullopt};
  EXPECT_THROW(months.RepairMonth(), ProgramEnd);
  EXPECT_EQ(manager.boxes.back().icon, Icon::kStop);
}

TEST_F(MonthTest, TheContestDateIsReadOrAskedFor) {
  session.category_month = "GENNAIO 2025";
  manager.inputs = {"3it 250118", "2it 250119"};
  EXPECT_TRUE(months.ReadContestDate("2IT"));
  EXPECT_EQ(session.contest_date, "250119");
  EXPECT_EQ(manager.asked[1], (InputBox{"CATEGORIA spazio  DATA CONTEST",
                                        {" Scrivi la categoria e data del contest ( 2IT AAMMGG )"},
                                        "2IT 250119"}));
  EXPECT_EQ(workspace.Read("Trofeo_Velmar/2IT/2IT data contest.dat"), "2IT 250119\r\n");
  EXPECT_EQ(workspace.Read("Trofeo_Velmar/3IT/3IT data contest.dat"), "3IT 250118\r\n");

  workspace.With("Trofeo_Velmar/2IT/2IT data contest.dat", "old\r\n2IT 240121\r\n");
  EXPECT_TRUE(months.ReadContestDate("2IT"));
  EXPECT_EQ(session.contest_date, "240121");

  manager.inputs = {std::nullopt};
  EXPECT_FALSE(months.ReadContestDate("4IT"));
}

}  // namespace
}  // namespace velmar::test
