// The session of the desk: opening, loading a classification, finding rows, options, leaving.

#include <gtest/gtest.h>

#include <utility>

#include "classification_rows.h"
#include "three_logs.h"

namespace velmar::test {
namespace {

constexpr const char* kName = "2IT Classifica Mensile 144 gennaio 2025.cla";
const Box kBrokenFile = Told(" file clssifica corrotto o non valido ");
const Box kLoadFirst = Told(" è necessario caricare una classifica"_a);
const Box kInserted = Told(" è stato inserito un log, è necessario ricaricare la classifica"_a);
const Box kMustReload = Told(" E' obbligatorio ricaricare la classifica ");
const Box kCheckRuns = Told(" Devi finire il controllo in atto prima di uscire ");
const Box kAllChecked =
    Told(Join(" Il controllo di questa categoria è completato. | |"_a,
              " Se vuoi comunque effettuare il controllo di un call, fai doppio click sul call "
              "desiderato"));

std::string Classification(const Names& rows) {
  std::string text = Join(classification_row::kHeader, kLineEnd);
  for (const std::string& row : rows) {
    AddLine(text, row);
  }
  return text;
}

struct OpenDesk : DeskFixture {
  explicit OpenDesk(const std::string& classification = Classification({WaitingRow("IK2QAA")})) {
    workspace.With(kClassificationFile, classification).With(kParticipants, "");
    desk.Open();
  }

  const Names& Queue() const { return form.listacall_banda.items.rows(); }
  std::vector<Box> TakeBoxes() { return std::exchange(manager.boxes, {}); }

  static constexpr const char* kParticipants = "Trofeo_Velmar/2IT/2IT partecipanti.par";
};

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

TEST(CheckSession, TheTitlesOfTheQueueStandInTheirOrder) {
  Names titles;
  std::size_t at = 0;
  const OpenDesk desk;
  for (const char* title : {"Call", "Locatore", "Aslm", "Antenna", "Power", "Qso", "Declared",
                            "odx", "DX", "Qrb", "err", "errQRB", "Finale", "%", "pos ."}) {
    const std::size_t found = desk.form.titoli.caption.find(title, at);
    ASSERT_NE(found, std::string::npos) << title;
    at = found + 1;
  }
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

TEST(CheckSession, EachOpeningReadsTheParticipantsAnew) {
  OpenDesk desk;
  desk.session.participants.Add("stale");
  desk.form.exit.Click();
  desk.workspace.With(OpenDesk::kParticipants, "IK2QAA      JN45AA 2IT 144M\r\n");
  desk.desk.Open();
  ASSERT_EQ(desk.session.participants.size(), 1U);
  EXPECT_EQ(desk.session.participants[1], "IK2QAA      JN45AA 2IT 144M");
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

TEST(CheckSession, NextIsNotAskedAboutOnce) {
  DeskFixture desk;
  MarkChecked(ThreeLogs(desk), {"IK2QAA"}).Loaded();
  desk.form.listacall_banda.selection = 0;
  desk.form.prossimo.Click();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.form.listacall_banda.selection, 2);
  EXPECT_EQ(desk.form.call_in_esame.caption, "IZ9QBC");
  desk.manager.replies = {Reply::kCancel};
  desk.form.listacall_banda.DoubleClick();
  EXPECT_EQ(desk.manager.boxes.size(), 1U);
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

TEST(CheckSession, EachOptionIsALineOfTheSettings) {
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

TEST(CheckSession, OfTheLastTwoOptionsExactlyOneIsOn) {
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

TEST(CheckSession, LeavingRepairsTheSettings) {
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

TEST(CheckSession, SomeOptionsLiveForOneSession) {
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
  EXPECT_FALSE(desk.form.Check9.checked || desk.form.NOT_ERROR.checked);
}

TEST(CheckSession, TakingTheAutomaticVerdictBackWarns) {
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

TEST(CheckSession, LeavingGoesBackToTheMainScreen) {
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

TEST(CheckSession, ADiskThatKeepsNoSettingsHoldsTheDeskOpen) {
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

TEST(CheckSession, ExitBreaksTheCheckOffAndTheNextStartRepairs) {
  DeskFixture desk;
  ThreeLogs(desk).Loaded();
  const std::string head = desk.ErrorListOf("IK2QAA");
  const std::string classification = desk.workspace.Read(kClassificationFile);
  desk.Started("IK2QAA");
  desk.form.Lista_dubbi.Select(0);
  desk.form.not_inlog.Click();
  ASSERT_EQ(desk.Decisions("IK2QAA").size(), 1U);
  desk.form.no_control_time.Click();
  const std::string ini = desk.workspace.Read("VartoVLM.ini");
  desk.manager.boxes.clear();
  desk.form.exit.Click();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_TRUE(desk.main.visible() && !desk.form.visible());
  EXPECT_EQ(desk.workspace.Read(kClassificationFile), classification);
  EXPECT_EQ(desk.workspace.Read("VartoVLM.ini"), ini) << "the options are not kept";
  EXPECT_EQ(desk.Decisions("IK2QAA").size(), 1U);

  desk.Loaded();
  EXPECT_EQ(desk.form.listacall_banda.selection, 1) << "the log waits again";
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.ErrorListOf("IK2QAA"), head);
  EXPECT_EQ(desk.form.Lista_dubbi.items.rows().size(), 1U);
}

TEST(CheckSession, AfterExitNoCheckRunsAndEachStartIsAskedAbout) {
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

TEST(CheckSession, SkippingLeadsToTheResult) {
  DeskFixture desk;
  ThreeLogs(desk).Loaded().Started("IV3QYY");
  desk.manager.boxes.clear();
  desk.form.Call_unici.Fill({"IV3QYY      I1QXX"});
  desk.form.aggiorna_punt_class.visible = false;
  desk.form.nasondi.Click();
  EXPECT_EQ(desk.manager.boxes,
            std::vector{Told(Join(" Hai saltato il controllo dei call unici/errati|",
                                  " per proseguire clicca sul pulsante VERDE"))});
  EXPECT_TRUE(desk.form.Call_unici.items.rows().empty());
  EXPECT_TRUE(desk.form.aggiorna_punt_class.Reachable());
  EXPECT_EQ(desk.form.aggiorna_punt_class.colour, colour::kGreen);
  EXPECT_FALSE(desk.form.ordina.enabled);
}

TEST(CheckSession, TheWideViewStandsInPlaceOfTheDesk) {
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

TEST(CheckSession, TheWideViewReadsTheFileAgain) {
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

TEST(CheckSession, TheDeskIsWholeAgainAfterExitFromTheWideView) {
  OpenDesk desk;
  desk.form.Option3.Click();
  desk.form.Visualizza_solo_classifica.Click();
  desk.form.exit.Click();
  desk.desk.Open();
  EXPECT_TRUE(desk.form.Option3.Reachable() && desk.form.torna_menu.Reachable());
  EXPECT_FALSE(desk.form.esci_da_cla.Reachable());
}

TEST(CheckSession, ALogInsertedSinceTheLoadMakesReloadingDue) {
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

TEST(CheckSession, AClassificationThatWasNeverLoadedNeedsNoReloading) {
  OpenDesk desk;
  desk.form.exit.Click();
  desk.session.log_inserted_since_load = true;
  desk.desk.Open();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_FALSE(desk.session.reload_needed);
}

TEST(CheckSession, AClassificationOfTooManyRowsIsAFailureAndNoneIsInUse) {
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

TEST(CheckSession, DeletingIsDoneElsewhere) {
  OpenDesk desk;
  desk.form.elimina_L.Click();
  EXPECT_EQ(desk.TakeBoxes(),
            std::vector{Told(" Clicca sul pulsante in basso a destra 'SOLO CLASSIFICA'")});
}

}  // namespace
}  // namespace velmar::test
