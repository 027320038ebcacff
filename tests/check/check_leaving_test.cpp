// The session of the desk: its options, the wide view, and the ways out.

#include <gtest/gtest.h>

#include "open_desk.h"
#include "three_logs.h"

namespace velmar::test {
namespace {

TEST(CheckLeaving, EachOptionIsALineOfTheSettings) {
  for (const Setting setting :
       {Setting::kTimeCheckOn, Setting::kNotInLogCheckOn, Setting::kMessagesOn,
        Setting::kForcedErrorOn, Setting::kHideUniqueInDatabase, Setting::kHideUniqueWithLog}) {
    OpenDesk desk;
    Settings expected = Settings::New();
    const bool on = expected.On(setting);
    EXPECT_EQ(desk.form.ItemOf(setting).checked, on);
    desk.form.ItemOf(setting).Click();
    EXPECT_EQ(desk.form.ItemOf(setting).checked, !on);
    EXPECT_EQ(desk.files.changes, 0) << "nothing is kept ahead of leaving";
    desk.form.torna_menu.Click();
    expected.Set(setting, on ? "NO" : "SI");
    EXPECT_EQ(desk.workspace.Read("VartoVLM.ini"), expected.Text());
    EXPECT_EQ(desk.files.changed_paths, Names{desk.session.workspace.settings()});
    desk.desk.Open();
    desk.form.ItemOf(setting).Click();
    EXPECT_EQ(desk.form.ItemOf(setting).checked, on);
  }
}

TEST(CheckLeaving, OfTheLastTwoOptionsExactlyOneIsOn) {
  OpenDesk desk;
  const auto state = [&](Menu& clicked) {
    clicked.Click();
    EXPECT_EQ(desk.session.settings.On(Setting::kHideOverTwo), desk.form.Check7.checked);
    EXPECT_EQ(desk.session.settings.On(Setting::kHideOverThree), desk.form.Check8.checked);
    return Join(desk.form.Check7.checked ? "3" : "-", desk.form.Check8.checked ? "4" : "-");
  };
  EXPECT_TRUE(desk.form.Check7.checked);
  EXPECT_EQ(state(desk.form.Check7), "-4");
  EXPECT_EQ(state(desk.form.Check7), "3-");
  EXPECT_EQ(state(desk.form.Check8), "-4");
  EXPECT_EQ(state(desk.form.Check8), "3-");
}

TEST(CheckLeaving, LeavingRepairsTheSettings) {
  const auto saved = [](const char* ini) {
    OpenDesk desk;
    desk.form.exit.Click();
    desk.session.settings.Parse(ini);
    desk.desk.Open();
    EXPECT_NE(desk.form.Check7.checked, desk.form.Check8.checked) << ini;
    desk.form.torna_menu.Click();
    return desk.workspace.Read("VartoVLM.ini");
  };
  EXPECT_EQ(saved(""), "NO\r\nSI\r\nNO\r\nNO\r\nSI\r\nSI\r\nNO\r\nSI\r\n");
  EXPECT_EQ(saved("SI\nNO\nSI\nSI\nNO\nNO\nNO\nNO\n"),
            "SI\r\nNO\r\nSI\r\nSI\r\nNO\r\nNO\r\nNO\r\nSI\r\n");
  EXPECT_EQ(saved("SI\nNO\nSI\nSI\nNO\nNO\nSI\nNO\n"),
            "SI\r\nNO\r\nSI\r\nSI\r\nNO\r\nNO\r\nSI\r\nNO\r\n");
}

TEST(CheckLeaving, SomeOptionsLiveForOneSession) {
  OpenDesk desk;
  desk.form.exit.Click();
  desk.form.Check9.checked = true;  // as the configuration leaves it
  desk.desk.Open();
  EXPECT_FALSE(desk.form.Check9.checked);
  desk.form.Check9.Click();
  desk.form.NOT_ERROR.Click();
  desk.form.Pass_next.Click();
  EXPECT_TRUE(desk.form.Check9.checked && desk.form.NOT_ERROR.checked &&
              desk.form.Pass_next.checked);
  EXPECT_TRUE(desk.manager.boxes.empty());
  desk.form.torna_menu.Click();
  EXPECT_EQ(desk.workspace.Read("VartoVLM.ini"), Settings::New().Text());
  desk.desk.Open();
  EXPECT_FALSE(desk.form.Check9.checked);
  EXPECT_TRUE(desk.form.NOT_ERROR.checked) << "the run is not over";
}

TEST(CheckLeaving, TakingTheAutomaticVerdictBackWarns) {
  OpenDesk desk;
  desk.form.NOT_ERROR.Click();
  desk.form.NOT_ERROR.Click();
  EXPECT_FALSE(desk.form.NOT_ERROR.checked);
  EXPECT_EQ(desk.TakeBoxes(),
            std::vector{Told(Join(
                " Attenzione. disattivare questa opzione comporta un maggiore numero di 'Click'|",
                " perchè i locatori ritenuti validi sono da confermare, da parte del manager|"_a,
                " che effettua i controlli. |",
                " disattivare vuol dire verificare di persona se il locatore è corretto e|"_a,
                " convalidare il qso evidenziato in finestra"))});
}

TEST(CheckLeaving, LeavingGoesBackToTheMainScreen) {
  OpenDesk desk;
  desk.form.Option3.Click();
  desk.form.Frame_Classifica_gene_banda.caption = "another title";
  desk.main.Inserire_log.enabled = false;
  desk.form.torna_menu.Click();
  EXPECT_FALSE(desk.form.visible());
  EXPECT_TRUE(desk.main.visible());
  EXPECT_TRUE(desk.Queue().empty());
  EXPECT_EQ(desk.form.Frame_Classifica_gene_banda.caption, "Classifica generale di banda");
  EXPECT_FALSE(desk.main.Inserire_log.enabled) << "no log waits";
  desk.desk.Open();
  desk.workspace.With("03 Log da inserire/2IT-IK2QAA.edi", "x");
  desk.form.torna_menu.Click();
  EXPECT_TRUE(desk.main.Inserire_log.enabled);
}

TEST(CheckLeaving, ADiskThatKeepsNoSettingsHoldsTheDeskOpen) {
  OpenDesk desk;
  desk.form.Option3.Click();
  desk.files.broken_path = "VartoVLM.ini";
  desk.form.torna_menu.Click();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{DeskFailure(61, 30)});
  EXPECT_TRUE(desk.form.visible());
  EXPECT_EQ(desk.Queue().size(), 2U);
  desk.form.exit.Click();
  EXPECT_TRUE(desk.main.visible());
  EXPECT_TRUE(desk.manager.boxes.empty());
}

TEST(CheckLeaving, AfterExitNoCheckRunsAndEachStartIsAskedAbout) {
  DeskFixture desk;
  ThreeLogs(desk).Loaded();
  desk.form.primo_dacontrollare.Click();
  desk.form.listacall_banda.DoubleClick();
  desk.form.exit.Click();
  desk.Loaded();
  desk.manager.replies = {Reply::kNo};
  desk.form.listacall_banda.DoubleClick();
  desk.form.torna_menu.Click();
  EXPECT_TRUE(desk.main.visible());
}

TEST(CheckLeaving, TheWideViewStandsInPlaceOfTheDesk) {
  DeskFixture desk;
  ThreeLogs(desk).Loaded().Started("IV3QYY");
  const std::string text = desk.workspace.Read(kClassificationFile);
  const auto lines = SplitLines(text);
  const Names rows(lines.begin(), lines.end());
  desk.form.load_cla_banda.visible = false;
  bool unici_seen = true;
  for (Control* way_back :
       {static_cast<Control*>(&desk.form.esci_da_cla), static_cast<Control*>(&desk.form.uscita2)}) {
    desk.form.Frame_unici.visible = unici_seen;
    EXPECT_FALSE(way_back->Reachable());
    desk.form.Visualizza_solo_classifica.Click();
    EXPECT_EQ(desk.form.visualizza_classifica.items.rows(),
              (Names{rows[0], rows[1] + " (1", rows[2] + " (2", rows[3] + " (3"}));
    EXPECT_EQ(desk.form.Text1.value, "2IT Classifica Mensile 144 gennaio 2025");
    EXPECT_TRUE(desk.form.visualizza_classifica.Reachable() && way_back->Reachable());
    for (const Control* control : {static_cast<const Control*>(&desk.form.torna_menu),
                                   static_cast<const Control*>(&desk.form.exit),
                                   static_cast<const Control*>(&desk.form.Check5),
                                   static_cast<const Control*>(&desk.form.unici),
                                   static_cast<const Control*>(&desk.form.listacall_banda)}) {
      EXPECT_FALSE(control->Reachable()) << control->name;
    }
    desk.form.Visualizza_solo_classifica.Click();  // a hot key reaches it all the same
    way_back->Click();
    EXPECT_FALSE(desk.form.visualizza_classifica.Reachable());
    EXPECT_TRUE(desk.form.torna_menu.Reachable() && desk.form.unici.Reachable());
    EXPECT_TRUE(desk.form.unici.enabled) << "the check goes on where it was";
    EXPECT_EQ(desk.form.Frame_unici.visible, std::exchange(unici_seen, false));
    EXPECT_FALSE(desk.form.load_cla_banda.visible) << "what was hidden before stays so";
  }
}

TEST(CheckLeaving, TheWideViewReadsTheFileAgain) {
  OpenDesk desk;
  desk.form.Option3.Click();
  desk.workspace.With(kClassificationFile,
                      Classification({WaitingRow("IZ9QBC"), WaitingRow("IV3QYY")}));
  desk.form.Visualizza_solo_classifica.Click();
  EXPECT_EQ(desk.form.visualizza_classifica.items.rows().at(2), WaitingRow("IV3QYY") + " (2");
  desk.form.esci_da_cla.Click();
  EXPECT_EQ(desk.Queue().size(), 2U);
  desk.workspace.With(kClassificationFile, "no header");
  desk.form.Visualizza_solo_classifica.Click();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{kBrokenFile});
  EXPECT_TRUE(desk.form.torna_menu.Reachable());
}

TEST(CheckLeaving, TheDeskIsWholeAgainAfterExitFromTheWideView) {
  OpenDesk desk;
  desk.form.Option3.Click();
  desk.form.Visualizza_solo_classifica.Click();
  desk.form.exit.Click();
  desk.desk.Open();
  EXPECT_TRUE(desk.form.Option3.Reachable() && desk.form.torna_menu.Reachable());
  EXPECT_FALSE(desk.form.esci_da_cla.Reachable());
}

TEST(CheckLeaving, ALogInsertedSinceTheLoadMakesReloadingDue) {
  OpenDesk desk;
  desk.form.Option3.Click();
  desk.form.torna_menu.Click();
  desk.session.log_inserted_since_load = true;
  desk.workspace.With(kClassificationFile,
                      Classification({WaitingRow("IK2QAA"), WaitingRow("IZ9QBC")}));
  Names seen;
  desk.screen.on_visibility = [&](Form&) {
    seen.push_back(std::to_string(desk.manager.boxes.size()));
  };
  desk.desk.Open();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{kInserted});
  EXPECT_EQ(seen, (Names{"0", "0"})) << "told on the open desk";
  desk.form.listacall_banda.DoubleClick();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{kMustReload});
  desk.form.exit.Click();
  desk.desk.Open();
  EXPECT_TRUE(desk.manager.boxes.empty()) << "told once";
  desk.form.listacall_banda.DoubleClick();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{kMustReload}) << "but still due";
  desk.form.Option3.Click();
  EXPECT_EQ(desk.form.n_cla.caption, "2");
  desk.manager.replies = {Reply::kNo};
  desk.form.listacall_banda.DoubleClick();
  EXPECT_EQ(desk.TakeBoxes().back().lines[0], " Inizio il controllo ?");
}

TEST(CheckLeaving, AClassificationOfTooManyRowsIsAFailureAndNoneIsInUse) {
  std::string text = Classification({});
  for (int row = 0; row < 370'000; ++row) {
    text += "x\n";
  }
  OpenDesk desk(text);
  desk.form.Option3.Click();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{DeskFailure(9, 10)});
  desk.form.primo_dacontrollare.Click();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{kLoadFirst});
}

}  // namespace
}  // namespace velmar::test
