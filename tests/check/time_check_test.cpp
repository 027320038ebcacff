// The check of the times on the desk, from its list to its last decision, and the step of the
// reports behind it.

#include <gtest/gtest.h>

#include "check/time_differences.h"
#include "three_logs.h"
#include "times_desk.h"

namespace velmar::test {
namespace {

const Names kTwoItems = {"001 IK2QAA 1005 1025 IZ9QBC      *20   100",
                         "002 IK2QAA 1010 0955 IV3QYY      *15   307"};
constexpr const char* kTimeLine =
    "  1    IZ9QBC      001    errore time       1005        1025  20   -100 ";
constexpr const char* kTempiLine = "2IT  IK2QAA       3    Qso   1  ore   25 minuti\r\n";
const Box kSelectFirst{.lines = {"Devi selezionare il qso da visualizzare"},
                       .title = "Visualizza LOG"};

Box NoRows(std::string_view hint) {
  return Told(Join("                    OPSSSS   c'è un problema . |"_a,
                   "         NON sono stati trovati i qso del call in esame.|", hint));
}

TEST(TimeCheck, AStartListsWhatDiffers) {
  TimesDesk desk;
  desk.Checked();
  EXPECT_EQ(desk.Items(), kTwoItems);
  EXPECT_EQ(desk.form.Label11.caption, TimeListTitles(6));
  EXPECT_EQ(desk.form.Label25.caption, " Errori di orario");
  EXPECT_EQ(desk.form.messaggio.caption, "");
  EXPECT_EQ(desk.form.Frame_Log_errori_tempo.caption, "    Controllo orari : 2    ");
  EXPECT_EQ(desk.manager.boxes.size(), 1U) << "the question of the start alone";
  EXPECT_FALSE(desk.form.unici.enabled) << "the times come first";
  EXPECT_EQ(desk.form.passi[1]->colour, colour::kYellow);
  EXPECT_EQ(desk.Tempi(), "") << "not ahead of the decisions";
  EXPECT_EQ(desk.workspace.Read("somma_qso.tmp"), desk.files.ReadAll(desk.StorePath()));
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
}

TEST(TimeCheck, WithoutItsOptionTheStartLooksAtNoTime) {
  TimesDesk desk;
  desk.session.settings.Set(Setting::kTimeCheckOn, "NO");
  desk.Checked();
  EXPECT_EQ(desk.Items(), Names{});
  EXPECT_TRUE(desk.form.unici.enabled);
  EXPECT_EQ(desk.workspace.Read("somma_qso.tmp"), "<missing>");
  desk.form.control_time.Click();
  EXPECT_EQ(desk.Items(), kTwoItems) << "its button does";
  EXPECT_EQ(desk.form.passi[1]->colour, colour::kYellow);
}

TEST(TimeCheck, AClickShowsBothLogs) {
  TimesDesk desk;
  desk.Checked();
  desk.manager.boxes.clear();
  desk.form.Lista_err_orario.Click();
  EXPECT_EQ(desk.manager.boxes, std::vector{kSelectFirst});
  desk.form.Lista_err_orario.Select(1);
  EXPECT_EQ(desk.form.kmerr.caption, "307");
  EXPECT_TRUE(desk.form.Frame_log.visible);
  EXPECT_EQ(desk.form.Label16.caption, " Log del call in esame : IK2QAA");
  EXPECT_EQ(desk.form.Label17.caption, " log del corrispondente :IV3QYY");
  EXPECT_EQ(desk.form.List_log_call_esame.items.rows(),
            (Names{"IK2QAA   250119;1005;IZ9QBC;1;59;;59;;;JM67AA;100;;N;;",
                   "IK2QAA   250119;1010;IV3QYY;1;59;;59;;;JN66AA;307;;N;;",
                   "IK2QAA   250119;1130;I1QXX;1;59;;59;;;JN44BB;55;;N;;"}));
  EXPECT_EQ(desk.form.List_log_call_esame.selection, 1) << "the QSO in its log";
  EXPECT_EQ(desk.form.List_log_corrispondente.items.rows(),
            Names{"IV3QYY 250119;0955;IK2QAA;1;59;;59;;;JN45AA;307;;N;;"});
  EXPECT_EQ(desk.form.List_log_corrispondente.selection, 0);
  // The other log has gone in the meantime.
  std::string text = desk.files.ReadAll(desk.StorePath());
  text.erase(text.find("250119;0955"),
             text.find("IV3QYY      \r\n") + 14 - text.find("250119;0955"));
  desk.workspace.files().WriteAll(desk.StorePath(), text);
  desk.form.Lista_err_orario.Select(1);
  EXPECT_EQ(desk.form.List_log_corrispondente.items.rows(),
            (Names{"  LOG non VISUALIZZABILE in questa finestra",
                   " il log di IV3QYY  partecipa in altra categoria",
                   "                 (oppure non è pervenuto)"_a}));
  desk.form.vis_log.Click();
  EXPECT_EQ(desk.form.List_log_call_esame.items.rows().size(), 3U);
}

TEST(TimeCheck, APenaltyFallsOnTheLogUnderExaminationAlone) {
  TimesDesk desk;
  desk.Checked();
  auto expected = desk.workspace.Everything();
  expected["Trofeo_Velmar/2IT/2IT-IK2QAA Lista errori GENNAIO 2025.err"] +=
      Join(kTimeLine, kLineEnd);
  desk.form.Lista_err_orario.Select(0);
  desk.form.conf_err_time.Click();
  EXPECT_EQ(desk.workspace.Everything(), expected);
  EXPECT_EQ(desk.Score(), "1 100 4900");
  EXPECT_EQ(desk.Items(), Names{kTwoItems[1]});
  EXPECT_EQ(desk.form.Lista_err_orario.selection, 0) << "the next one";
  EXPECT_EQ(desk.form.kmerr.caption, "307");
  EXPECT_EQ(desk.form.Label17.caption, " log del corrispondente :IV3QYY");
  EXPECT_FALSE(desk.form.unici.enabled);
  EXPECT_EQ(Mid(desk.form.evidenzia.caption, 65, 1), " ");
  desk.form.conf_err_time.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            (Names{kTimeLine,
                   "  2    IV3QYY      002    errore time       1010        0955  15   -307 "}));
  EXPECT_EQ(desk.Score(), "2 407 4593");
  EXPECT_EQ(Mid(desk.form.evidenzia.caption, 65, 1), "*") << "the QSO with the DX call";
}

TEST(TimeCheck, AnItemOfTimesIsNoItemOfReports) {
  TimesDesk desk;
  desk.Checked();
  const std::string list = desk.ErrorListOf("IK2QAA");
  desk.form.Lista_err_orario.selection = 0;
  desk.form.conf_err_RST.Click();
  EXPECT_EQ(desk.Items().size(), 2U);
  EXPECT_EQ(desk.ErrorListOf("IK2QAA"), list);
  EXPECT_EQ(desk.Score(), "0 0 5000");
}

TEST(TimeCheck, BehindTheLastDecisionTheTimeOnTheAirIsRecorded) {
  TimesDesk desk;
  desk.Checked();
  desk.form.Lista_err_orario.Select(1);
  desk.form.convalida_qso_time.Click();
  EXPECT_EQ(desk.form.Lista_err_orario.selection, 0) << "behind the last one the first";
  EXPECT_EQ(desk.Tempi(), "");
  desk.manager.boxes.clear();
  desk.form.convalida_qso_time.Click();
  EXPECT_EQ(desk.Tempi(), kTempiLine);
  ASSERT_EQ(desk.Items().size(), 1U);
  EXPECT_TRUE(Holds(desk.Items()[0], "intercorso"));
  EXPECT_TRUE(desk.form.unici.enabled);
  EXPECT_EQ(desk.form.unici.colour, colour::kGreen);
  EXPECT_EQ(desk.form.kmerr.caption, "");
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
  EXPECT_EQ(desk.Score(), "0 0 5000");
  EXPECT_TRUE(desk.manager.boxes.empty()) << "messages are off";
  // That row is no QSO.
  for (const int row : {0, -1}) {
    desk.form.Lista_err_orario.selection = row;
    for (Button* button :
         {&desk.form.conf_err_time, &desk.form.conf_err_RST, &desk.form.convalida_qso_time}) {
      button->Click();
    }
  }
  EXPECT_EQ(desk.Items().size(), 1U);
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
  EXPECT_TRUE(desk.manager.boxes.empty());
}

TEST(TimeCheck, ALogThatAgreesGoesOnAtOnce) {
  TimesDesk desk;
  desk.Checked("I1QXX");
  EXPECT_EQ(desk.form.messaggio.caption, " gli orari rientrano nella regola 10 m.");
  EXPECT_EQ(desk.Tempi(), "2IT  I1QXX        1    Qso   0  ore   0  minuti\r\n");
  EXPECT_TRUE(desk.form.unici.enabled);
  EXPECT_EQ(desk.form.Frame_Log_errori_tempo.caption, "    Controllo orari : 0    ");

  DeskFixture alone;
  alone.session.settings.Set(Setting::kTimeCheckOn, "SI");
  alone.Filed({.call = "IK2QAA", .locator = "JN45AA", .qsos = {{"I1QXX", "JN44BB"}}})
      .Loaded()
      .Started("IK2QAA");
  EXPECT_EQ(alone.form.messaggio.caption, "nessun qso trovato in altri log");
}

TEST(TimeCheck, TheSameCallIsPenalisedOnce) {
  TimesDesk desk;
  desk.Checked();
  const std::string unique = "  1    IZ9QBC      001    call   unico      IZ9QBC                 -";
  desk.store.AppendToErrorList("IK2QAA", kCategory, "GENNAIO 2025", unique + "\r\n");
  desk.form.Lista_err_orario.Select(0);
  desk.form.conf_err_time.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"), (Names{unique, kTimeLine})) << "a unique call may be";
  desk.form.Lista_err_orario.Fill({kTwoItems[0]});
  desk.form.Lista_err_orario.Select(0);
  desk.manager.boxes.clear();
  const auto before = desk.workspace.Everything();
  desk.form.conf_err_time.Click();
  EXPECT_EQ(
      desk.manager.boxes,
      std::vector{Told(
          " Il call IZ9QBC è già presente  sulla lista degli errori |    | SE per lo stesso call sono stati commessi più errori, non è possibile penalizzarlo più di una volta. | Per proseguire considera valido il qso."_a)});
  EXPECT_EQ(desk.workspace.Everything(), before);
  EXPECT_EQ(desk.Items().size(), 1U);
  EXPECT_EQ(desk.Score(), "1 100 4900");
}

TEST(TimeCheck, ATimeThatIsNoNumberEndsTheProgram) {
  const auto boxes = [](std::string_view time) {
    TimesDesk desk;
    const std::string row = Join("250119;", time, ";I1QXX;1;;;;;;;;2ITJM67AAI4QZZ       ");
    desk.store.Append(StoreFile::kSommaQso, kCategory, row + "\r\n");
    EXPECT_THROW(desk.Checked("I1QXX"), ProgramEnd);
    EXPECT_EQ(desk.Tempi(), "");
    std::vector<Box> told(desk.manager.boxes.begin() + 1, desk.manager.boxes.end());
    EXPECT_EQ(told.size(), 3U);
    EXPECT_EQ(told[0],
              Told(Join(" il qso :  ", row,
                        " contiene un carattere che NON è un numero nel campo dell' ora  "_a, "'",
                        time, "'")));
    EXPECT_EQ(
        told[2],
        Told(" spiacente ma il programma NON può proseguire, il log da correggere è di I4QZZ"_a));
    return told[1];
  };
  EXPECT_EQ(boxes("A234"),
            Told(" Soluzione : cancella il log, correggilo, rileggi il log e prosegui con i "
                 "controlli"));
  EXPECT_EQ(boxes("1A34"),
            Told(" Soluzione : cancella il log, correggi il log , rileggi il log e prosegui con i "
                 "controlli"));
  TimesDesk desk;
  desk.store.Append(StoreFile::kSommaQso, kCategory,
                    "250119;12A4;I1QXX;1;;;;;;;;2ITJM67AAI4QZZ       \r\n");
  desk.Checked();
  EXPECT_EQ(desk.Items(), kTwoItems) << "the third and the fourth are not tested";
}

TEST(TimeCheck, ALogThatTheStoreLacksIsTold) {
  const std::string others = "250119;1025;I1QXX;1;;;;;;;;2ITJM67AAI4QZZ       \r\n";
  TimesDesk desk;
  desk.workspace.files().WriteAll(desk.StorePath(), others);
  desk.Checked();
  EXPECT_EQ(desk.form.messaggio.caption, "nessun qso trovato in altri log");
  EXPECT_EQ(
      desk.manager.boxes.back(),
      NoRows(
          "  controlla nel file somma_qso.qso o se il nome del file è: categoria-call.EDI e nulla altro"_a));
  EXPECT_EQ(desk.Tempi(), "2IT  IK2QAA       0    Qso   0  ore   0  minuti\r\n");

  TimesDesk later;
  later.session.settings.Set(Setting::kMessagesOn, "SI");
  later.Checked();
  later.workspace.files().WriteAll(later.StorePath(), others);
  later.form.Lista_err_orario.Select(0);
  later.form.convalida_qso_time.Click();
  later.manager.boxes.clear();
  later.form.convalida_qso_time.Click();
  EXPECT_EQ(
      later.manager.boxes,
      (std::vector{
          Told(
              " il tempo intercorso fra il primo qso e| l'ultimo qso del contest è stato di: | |     0 ore  e  0  minuti| |      call = IK2QAA|      primo  qso ore :|      ultimo qso ore :"_a),
          NoRows("  controlla se il nome del call da cancellare e barrato mentre il nome del file "
                 "no.")}));
}

TEST(TimeCheck, AMissingStoreFileIsAnErrorOfTheForm) {
  TimesDesk desk;
  desk.session.settings.Set(Setting::kTimeCheckOn, "NO");
  desk.Checked();
  desk.workspace.files().Remove(desk.StorePath());
  desk.form.control_time.Click();
  EXPECT_EQ(desk.manager.boxes.back(), DeskFailure(53, 80));
  EXPECT_EQ(desk.Items(), Names{});
}

TEST(TimeCheck, WithoutACheckTheButtonDoesNothing) {
  TimesDesk desk;
  MarkChecked(desk, {"IK2QAA"}).Loaded();
  desk.form.control_time.Click();
  desk.Choose("IK2QAA");
  desk.manager.replies = {Reply::kYes, Reply::kNo};  // to look at, not to check again
  desk.form.listacall_banda.DoubleClick();
  desk.manager.boxes.clear();
  const auto before = desk.workspace.Everything();
  desk.form.control_time.Click();
  EXPECT_EQ(desk.Items(), Names{}) << "a decision would go into a list that is closed";
  EXPECT_FALSE(desk.form.unici.enabled);
  EXPECT_EQ(desk.workspace.Everything(), before);
  EXPECT_TRUE(desk.manager.boxes.empty());
}

/// The desk behind the step of the reports, with these rows in the list.
struct ReportsDesk : TimesDesk {
  explicit ReportsDesk(const Names& rows = {}) {
    Checked();
    form.Lista_err_orario.Select(0);
    form.convalida_qso_time.Click();
    form.convalida_qso_time.Click();
    form.unici.Click();
    if (!rows.empty()) {
      form.Lista_err_orario.Fill(rows);
    }
  }
};

TEST(ReportStep, IsPassedOverWithoutADialog) {
  TimesDesk desk;
  desk.Checked("I1QXX");
  desk.manager.boxes.clear();
  desk.form.unici.Click();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.form.messaggio.caption,
            " Non si trasmettono i progressivi nello VLM. Procedura saltata");
  EXPECT_EQ(desk.form.Label25.caption, " Errori di RAPPORTO");
  EXPECT_EQ(desk.form.Text3.value, "0");
  EXPECT_TRUE(desk.form.Frame_Classifica_gene_banda.visible);
  EXPECT_TRUE(desk.form.aggiorna_punt_class.enabled);
  EXPECT_EQ(desk.form.aggiorna_punt_class.colour, colour::kGreen);

  desk.session.settings.Set(Setting::kTimeCheckOn, "NO");
  desk.form.no_control_time.checked = false;
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.form.Label25.caption, " Errori di orario") << "the next check begins anew";
  EXPECT_EQ(desk.form.messaggio.caption, "");
  EXPECT_EQ(desk.form.Text3.value, "");
}

TEST(ReportStep, DifferingTimesGiveItAnotherText) {
  const ReportsDesk desk;
  EXPECT_EQ(desk.form.messaggio.caption, " i rapporti risultano corretti");
  EXPECT_EQ(desk.form.aggiorna_punt_class.colour, colour::kGreen);
}

TEST(ReportStep, AnItemOfItsListIsDecided) {
  ReportsDesk desk(
      {"003 IK2QAA 001234   000987 IZ9QBC    100 ", "001 IK2QAA 000001   000002 IV3QYY    307 "});
  desk.form.aggiorna_punt_class.enabled = false;
  desk.form.conf_err_RST.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{}) << "nothing is selected";
  desk.form.Lista_err_orario.Select(0);
  EXPECT_EQ(desk.form.kmerr.caption, "100");
  EXPECT_EQ(desk.form.Label17.caption, " log del corrispondente :IZ9QBC");
  desk.form.cerca_qso_rst.Click();
  EXPECT_EQ(desk.form.List_log_call_esame.items.rows(),
            (Names{"IK2QAA 250119;1005;IZ9QBC;1;59;;59;;;JM67AA;100;;N;;2IT",
                   "IK2QAA 250119;1010;IV3QYY;1;59;;59;;;JN66AA;307;;N;;2IT",
                   "IK2QAA 250119;1130;I1QXX;1;59;;59;;;JN44BB;55;;N;;2IT"}));
  EXPECT_EQ(desk.form.List_log_call_esame.selection, 0);
  desk.form.Lista_err_orario.Select(1);
  desk.form.cerca_qso_rst.Click();
  EXPECT_EQ(desk.form.List_log_call_esame.selection, 1);
  desk.form.Lista_err_orario.Select(0);
  desk.form.conf_err_RST.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    IZ9QBC      003    errore num ric.   234         987        -100 "});
  EXPECT_EQ(desk.Score(), "1 100 4900");
  EXPECT_EQ(desk.Items().size(), 1U);
  EXPECT_EQ(desk.form.kmerr.caption, "307") << "the next one";
  EXPECT_FALSE(desk.form.aggiorna_punt_class.enabled);
  const std::string tempi = desk.Tempi();
  desk.form.conf_err_RST.Click();
  EXPECT_EQ(desk.Score(), "2 407 4593");
  EXPECT_EQ(Mid(desk.form.evidenzia.caption, 65, 1), "*");
  EXPECT_EQ(desk.Items(), Names{});
  EXPECT_EQ(desk.Tempi(), tempi) << "the time on the air is known already";
  EXPECT_TRUE(desk.form.aggiorna_punt_class.enabled);
  EXPECT_FALSE(desk.form.unici.colour.has_value()) << "not back to the unique calls";
}

TEST(ReportStep, TheSameCallIsPenalisedOnce) {
  ReportsDesk desk(
      {"003 IK2QAA 001234   000987 IZ9QBC    100 ", "001 IK2QAA 000001   000002 IZ9QBC    307 "});
  desk.form.Lista_err_orario.Select(0);
  desk.form.conf_err_RST.Click();
  desk.manager.boxes.clear();
  desk.form.conf_err_RST.Click();
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            Names{" Il call IZ9QBC è già presente  sulla lista degli errori "_a});
  EXPECT_EQ(desk.Score(), "1 100 4900");
  EXPECT_EQ(desk.Items().size(), 1U);
}

}  // namespace
}  // namespace velmar::test
