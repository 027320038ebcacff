// The session of the desk: opening, loading a classification, finding rows.

#include <gtest/gtest.h>

#include <utility>

#include "open_desk.h"
#include "three_logs.h"

namespace velmar::test {
namespace {

constexpr const char* kName = "2IT Classifica Mensile 144 gennaio 2025.cla";
TEST(CheckSession, OpensReadyToLoad) {
  OpenDesk desk;
  EXPECT_TRUE(desk.form.visible());
  EXPECT_FALSE(desk.main.visible());
  EXPECT_EQ(desk.form.title, "V A R T O  VLM - by Iz9qqq  GENNAIO 2025 Ver. 2024-008 ");
  EXPECT_TRUE(desk.form.Frame1.visible);
  EXPECT_TRUE(desk.Queue().empty());
  EXPECT_TRUE(desk.manager.boxes.empty());
  desk.form.exit_frame_caricacla.Click();
  EXPECT_FALSE(desk.form.Option3.Reachable());
  desk.form.load_cla_banda.Click();
  EXPECT_TRUE(desk.form.Option3.Reachable());
  desk.form.prossimo.Click();
  desk.form.primo_dacontrollare.Click();
  desk.form.Visualizza_solo_classifica.Click();
  EXPECT_EQ(desk.TakeBoxes(), (std::vector{kLoadFirst, kLoadFirst, kLoadFirst}));
  EXPECT_EQ(desk.files.changes, 0);
}

TEST(CheckSession, TheMainScreenGoesWhenTheDeskIsReady) {
  DeskFixture desk;  // without participants
  Names seen;
  desk.screen.on_visibility = [&](Form& form) {
    seen.push_back(Join(form.name(), form.visible() ? " shown after " : " hidden after ",
                        desk.manager.boxes.size()));
  };
  desk.desk.Open();
  EXPECT_EQ(desk.manager.boxes,
            std::vector{Told(" Il file dei partecipanti è assente. Attenzione "_a)});
  EXPECT_EQ(seen, (Names{"VLM2M_01_input hidden after 1", "VLM2M_02_Controlli shown after 1"}));
}

TEST(CheckSession, RedIsACategoryThatIsNotCompletelyChecked) {
  const auto red = [](const std::string& text) {
    const OpenDesk desk(text);
    EXPECT_EQ(desk.form.La_info.visible, desk.form.Option3.colour == colour::kRed);
    if (desk.form.La_info.visible) {
      EXPECT_EQ(desk.form.La_info.caption,
                "In rosso sono le categorie in cui non sono terminati i controlli.");
    }
    return desk.form.La_info.visible;
  };
  EXPECT_TRUE(red(Classification({DoneRow("IK2QAA"), WaitingRow("IZ9QBC")})));
  EXPECT_FALSE(red(Classification({DoneRow("IK2QAA")}) + "\r\n\r\n"));
  EXPECT_FALSE(red(Classification({}) + "short")) << "too short to have ten blanks";
  EXPECT_FALSE(red(Join(std::string(200, ' '), kLineEnd, DoneRow("IK2QAA"))))
      << "the first line is the header";
  EXPECT_FALSE(red(""));
}

TEST(CheckSession, WithoutAClassificationTheDeskOpensAllTheSame) {
  OpenDesk desk;
  desk.form.exit.Click();
  desk.workspace.files().Remove(desk.session.workspace.classification("GENNAIO 2025"));
  desk.desk.Open();
  EXPECT_TRUE(desk.form.visible());
  EXPECT_FALSE(desk.form.La_info.visible);
  EXPECT_TRUE(desk.manager.boxes.empty());
  desk.form.Option3.Click();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{DeskFailure(53, 10)});
  EXPECT_TRUE(desk.Queue().empty());
  EXPECT_FALSE(desk.session.classifica_loaded);
}

TEST(CheckSession, LoadsTheClassificationOfTheMonth) {
  Names rows;
  for (const char* call : {"I1QA", "I1QB", "I1QC", "I1QD", "I1QE"}) {
    rows.push_back(DoneRow(call));
  }
  rows.push_back(WaitingRow("I1QF"));
  rows.push_back(WaitingRow("I1QG"));
  OpenDesk desk("\r\n" + Classification(rows) + "\r\n");
  desk.form.Option3.Click();
  ASSERT_EQ(desk.Queue().size(), 8U);
  EXPECT_EQ(desk.Queue()[0], classification_row::kHeader);
  EXPECT_EQ(desk.Queue()[1], rows[0] + " 1");
  EXPECT_EQ(desk.Queue()[7], rows[6] + " 7");
  EXPECT_EQ(desk.form.bandaesame.caption, kName);
  EXPECT_EQ(desk.form.n_cla.caption, "7");
  EXPECT_EQ(desk.form.listacall_banda.selection, 6);
  EXPECT_EQ(desk.form.listacall_banda.top, 3) << "three rows stand above the chosen one";
  EXPECT_TRUE(desk.form.prossimo.visible);
  EXPECT_TRUE(desk.session.classifica_loaded);
  EXPECT_TRUE(desk.manager.boxes.empty());
}

TEST(CheckSession, ACompleteClassificationBeginsAtItsTop) {
  OpenDesk desk(Classification({DoneRow("IK2QAA"), DoneRow("IZ9QBC")}));
  desk.form.Option3.Click();
  EXPECT_EQ(desk.form.listacall_banda.selection, 0);
  desk.form.listacall_banda.selection = 2;
  desk.form.primo_dacontrollare.Click();
  desk.form.prossimo.Click();
  EXPECT_EQ(desk.TakeBoxes(), (std::vector{kAllChecked, kAllChecked}));
  EXPECT_EQ(desk.form.listacall_banda.selection, 2);
}

TEST(CheckSession, ABrokenClassificationLeavesNoneInUse) {
  OpenDesk desk;
  desk.form.Option3.Click();
  desk.workspace.With(kClassificationFile, "no header\r\n" + WaitingRow("IK2QAA"));
  desk.form.Option3.Click();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{kBrokenFile});
  EXPECT_TRUE(desk.Queue().empty());
  EXPECT_EQ(desk.form.bandaesame.caption, "");
  EXPECT_EQ(desk.form.n_cla.caption, "");
  EXPECT_FALSE(desk.form.prossimo.visible);
  desk.form.primo_dacontrollare.Click();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{kLoadFirst});
  desk.workspace.With(kClassificationFile, Classification({WaitingRow("IZ9QBC")}));
  desk.form.Option3.Click();
  EXPECT_EQ(desk.form.listacall_banda.selection, 1);
  EXPECT_TRUE(desk.manager.boxes.empty());
}

TEST(CheckSession, AFileIsPickedByTheNameOfTheMonth) {
  OpenDesk desk;
  desk.form.Option3.Click();
  desk.manager.picks = {std::nullopt};
  desk.form.primo_carico.Click();
  EXPECT_EQ(desk.Queue().size(), 2U) << "a cancelled dialog changes nothing";

  const std::string elsewhere = Join("elsewhere/", kName);
  desk.workspace.With(elsewhere, Classification({DoneRow("IZ9QBC"), WaitingRow("IV3QYY")}));
  desk.manager.picks = {Join(desk.session.workspace.base(), "/", elsewhere)};
  desk.form.primo_carico.Click();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.form.n_cla.caption, "2");
  EXPECT_EQ(desk.form.bandaesame.caption, kName);
  EXPECT_EQ(desk.form.listacall_banda.selection, -1) << "no row is chosen by itself";

  for (const char* other : {"2IT Classifica Mensile 144 febbraio 2025.cla",
                            "3IT Classifica Mensile 144 gennaio 2025.cla",
                            "2IT Classifica Mensile 144 GENNAIO 2025.cla"}) {
    desk.manager.picks = {Join("C:\\x\\", other)};
    desk.form.primo_carico.Click();
    EXPECT_EQ(desk.TakeBoxes(),
              (std::vector<Box>{
                  {.lines = {"Classifica corrotta o non valida, controlla"}, .title = kName}}));
    EXPECT_TRUE(desk.Queue().empty()) << "the older one is gone";
  }
}

TEST(CheckSession, APickedFileRemindsOfTimesAndMessages) {
  const auto boxes = [](bool times, bool messages, bool picked) {
    OpenDesk desk;
    desk.form.no_control_time.checked = times;
    desk.form.vis_mess.checked = messages;
    if (picked) {
      desk.manager.picks = {desk.session.workspace.classification("GENNAIO 2025")};
      desk.form.primo_carico.Click();
    } else {
      desk.form.Option3.Click();
    }
    EXPECT_EQ(desk.Queue().size(), 2U);
    return desk.TakeBoxes();
  };
  EXPECT_EQ(
      boxes(true, true, true),
      std::vector{Told(Join(" IL CONTROLLO ORARIO E LA VISUALIZZAZIONE DEI MESSAGGI SONO ATTIVI|",
                            "       (per disattivarli : menu --> option --> togli il check)"))});
  EXPECT_TRUE(boxes(true, false, true).empty());
  EXPECT_TRUE(boxes(false, true, true).empty());
  EXPECT_TRUE(boxes(true, true, false).empty());
}

TEST(CheckSession, LoadingPutsTheDeskInOrder) {
  DeskFixture desk;
  ThreeLogs(desk).Loaded().Started("IK2QAA");
  desk.form.Frame_unici.visible = true;
  desk.form.vis_err.Click();
  ASSERT_TRUE(desk.form.List_errori.visible);
  desk.form.Option3.Click();
  EXPECT_TRUE(desk.form.Lista_dubbi.items.rows().empty());
  EXPECT_FALSE(desk.form.Frame_unici.visible);
  EXPECT_FALSE(desk.form.Frame_Controllo_locatori.visible);
  EXPECT_FALSE(desk.form.List_errori.visible);
  EXPECT_EQ(desk.form.conf_err_time.caption, "conf. errore Time a :");
  EXPECT_EQ(desk.form.evidenzia.caption, "");
  EXPECT_EQ(desk.form.call_in_esame.caption, "");
  desk.manager.boxes.clear();
  desk.form.torna_menu.Click();
  EXPECT_EQ(desk.manager.boxes, std::vector{kCheckRuns}) << "a check is not ended by loading";
}

TEST(CheckSession, TheFirstThatWaitsIsStartedWithoutAQuestion) {
  DeskFixture desk;
  MarkChecked(ThreeLogs(desk), {"IK2QAA"}).Loaded();
  desk.form.listacall_banda.selection = 0;
  desk.form.primo_dacontrollare.Click();
  EXPECT_EQ(desk.form.listacall_banda.selection, 2);
  desk.form.listacall_banda.DoubleClick();
  desk.form.listacall_banda.selection = 3;
  desk.form.listacall_banda.DoubleClick();
  EXPECT_TRUE(desk.manager.boxes.empty()) << "nor are the next ones asked about";
  EXPECT_EQ(desk.form.call_in_esame.caption, "IV3QYY");
  desk.form.sigla_call.Type("IZ9");
  desk.form.sigla_call.Press("Enter");
  desk.manager.replies = {Reply::kCancel};
  desk.form.listacall_banda.DoubleClick();
  EXPECT_EQ(desk.form.call_in_esame.caption, "IV3QYY") << "asked about again";
}

TEST(CheckSession, FindsARowByPartOfTheCall) {
  OpenDesk desk(
      Classification({WaitingRow("IK2QAA"), WaitingRow("IZ9QBC/4"), WaitingRow("IZ9QBC")}));
  desk.form.Option3.Click();
  desk.form.sigla_call.Type("qbc");
  desk.form.vai_a_un_call.Click();
  EXPECT_EQ(desk.form.listacall_banda.selection, 2);
  EXPECT_EQ(desk.form.LBL_doppioclick.caption, " DOPPIO CLICK PER INIZIARE IL CONTROLLO");
  EXPECT_EQ(desk.form.LBL_doppioclick.colour, colour::kYellow);
  EXPECT_TRUE(desk.form.LBL_doppioclick.Reachable());
  EXPECT_EQ(desk.session.last_call_search, "QBC");
  desk.form.sigla_call.Type("K2QA");
  desk.form.sigla_call.Press("K");
  EXPECT_EQ(desk.form.listacall_banda.selection, 2) << "Enter alone looks for it";
  desk.form.sigla_call.Press("Enter");
  EXPECT_EQ(desk.form.listacall_banda.selection, 1);
  EXPECT_TRUE(desk.manager.boxes.empty());
  desk.form.sigla_call.Type("I5ZZZ");
  desk.form.vai_a_un_call.Click();
  EXPECT_EQ(desk.TakeBoxes(), std::vector{Told(" il call  <I5ZZZ> non è in classifica "_a)});
  EXPECT_EQ(desk.form.listacall_banda.selection, 1);
}

}  // namespace
}  // namespace velmar::test
