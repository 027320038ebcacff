#include <gtest/gtest.h>

#include "intake/insertion_desk.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar::test {
namespace {

constexpr const char* kName = "2IT_IK2QAA.edi";
const std::string kGood = InsertableLog().Text();

TEST(LogReadingTest, AGoodLogIsShownAndWaits) {
  InsertionDesk desk;
  desk.Waiting(kName, kGood).Waiting("old.ed3", "x").Waiting("Old.ED2", "x");
  desk.session.operator_mark = OperatorMark::kYoung;
  desk.Read();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.Inbox(), (Names{"2IT_IK2QAA.ED3", kName}));
  EXPECT_EQ(desk.workspace.Read("03 Log da inserire/2IT_IK2QAA.ED3"),
            "250119;1000;IZ9QBC;1;59;001;59;012;;JM67AA;950;;N;;\r\n"
            "250119;1030;DL1AA;2;599;002;599;003;;JO30AA;576;;N;;\r\n"
            "250119;1101;I1ABC;1;59;003;59;004;;JN44BB;107;;;;\r\n");
  const MainForm& main = desk.main;
  EXPECT_TRUE(main.Marcafile.visible && main.Marcatura.enabled);
  EXPECT_EQ(main.focus, &main.Marcafile);
  EXPECT_FALSE(main.caricaedi.visible || main.apri.enabled || main.Aggiorna.enabled ||
               main.Info.enabled);
  EXPECT_FALSE(main.controllo.enabled || main.statistiche.enabled || main.ass_mese.enabled ||
               main.Utility.enabled || main.controlla_locatori.enabled);
  EXPECT_EQ(main.ultimo_call.caption, kName);
  EXPECT_EQ(main.Nomedelfile.caption, desk.workspace.paths().to_insert() + "/" + kName);
  EXPECT_EQ(main.Lbl_cat.caption, "2IT");
  EXPECT_EQ(main.perc_mem.caption, "0");
  EXPECT_EQ(main.num_file2.caption, "1");
  EXPECT_EQ(main.newcate.value, "2IT");
  EXPECT_EQ(main.sommaqrb.value, "1633");
  EXPECT_EQ(main.percentuale.colour, colour::kGreen);
  EXPECT_EQ(desk.session.operator_mark, OperatorMark::kNone);
  EXPECT_EQ(desk.Store("-Contest Team.txt"), "IK2QAA       altri OP. :IK2QAB IK2QAC\r\n");
  EXPECT_EQ(desk.Store("libreria.qso"), "<missing>");

  const std::string head = desk.Store("-IK2QAA Lista errori GENNAIO 2025.err");
  desk.Read();
  EXPECT_EQ(desk.Store("-IK2QAA Lista errori GENNAIO 2025.err"), head + head)
      << "a log read again starts a second head";
}

TEST(LogReadingTest, TheScoreIsComparedWithTheDeclaredOne) {
  struct Case {
    std::string_view declared;
    std::string_view label;
    std::string_view difference;
    std::optional<int> percentage;
    std::optional<int> colour;
  };
  // Of 1633 points.
  for (const Case& c :
       std::initializer_list<Case>{{"1600", "Diff +", "+33", colour::kGreen, std::nullopt},
                                   {"1634", "Diff -", "-1", colour::kGreen, colour::kGreen},
                                   {"1690", "Diff -", "-57", std::nullopt, colour::kYellow},
                                   {"1800", "Diff -", "-167", colour::kRed, colour::kYellow}}) {
    InsertionDesk desk;
    desk.Waiting(kName, InsertableLog().Row(29, Join("CQSOP=", c.declared)).Text());
    desk.Read();
    EXPECT_EQ(desk.main.differenza.caption, c.label);
    EXPECT_EQ(desk.main.differenza.value, c.difference);
    EXPECT_EQ(desk.main.percentuale.colour, c.percentage) << c.declared;
    if (c.label != "Diff +") {
      EXPECT_EQ(desk.main.differenza.colour, c.colour) << c.declared;
    }
  }
}

TEST(LogReadingTest, EndsThatLeaveTheFile) {
  const std::string next = InsertableLog().Of("IK2QAB").Text();
  const std::string self = ContestQso("IK2QAA", "JN45AA");
  const std::string lost = ContestQso("DL1AA", "JN45AY");
  const Box self_box{
      .lines = {
          "In questo log il qso con IK2QAA è uguale al proprietario del log (IK2QAA)"_a, "    ",
          " ", self, "  ",
          " Non è possibile inserire SE STESSI nel log. Se è un qso da considerare errato, "_a,
          " è nessario segnalarlo con ERROR e non inserire lo stesso call del log."_a,
          " Sostituisci IK2QAA con 'ERROR'     qso numero 2  "}};
  const Box locator_box{
      .lines =
          Lines("  Il locatore JN45AY del QSO n° 1 di DL1AA è SBAGLIATO.|                     |"
                " Controlla numeri e lettere, non ci possono essere numeri oltre ai due centrali,"
                " verifica la lettera O con lo zero 0 |"
                "                                 le lettere valide sono da AA a XX, non validi Y e"
                " Z.|"
                " Il log verrà inserito ugualmente ma DECURTATO del punteggio con locatore errato.|"
                " Prendi nota del qso per verifiche sucessive, se il qso non ha altri errori non"
                " verrà visualizzato e il punteggio finale è corretto.|    |"
                " Con questo locatore errato non si potranno fare delle ricerche di altri call su"
                " questo locatore inesistente.|"
                " Controlla che non sia un qso doppio nel quale non risulta il locatore. "_a),
      .icon = Icon::kStop,
      .title = " LOCATORE ERRATO"};
  const Box abroad{
      .lines =
          Lines(" A T T E N Z I O N E !!!!|"
                " Il nominativo del log è italiano ma il locatore dichiarato NON è in italia.|"
                " Il locatore dichiarato è : JO20AA   Gli squares italiani sono solo JN o JM.|  |"
                " Vuoi confermare questo locatore ?|    |"
                " SI= avanti         NO= salta log         ANNULLA= interrompi e esci"_a),
      .icon = Icon::kStop,
      .title = " Conferma Locatore ",
      .buttons = Buttons::kYesNoCancel,
      .default_button = 2};
  const Box trouble =
      Told(" Il LOG ha dei problemi, impossibile effettuare l' inserimento (controlla)");
  struct Case {
    InsertableLog log;
    std::vector<Box> boxes;
    std::deque<Reply> replies{};
    std::string name = kName;
  };
  for (const Case& c : std::initializer_list<Case>{
           {{},
            {Told(" questo file deve essere corretto/rinominato prima di caricarlo")},
            {},
            "2IT_IK2QAA.edi -_- x.edi"},
           {InsertableLog().Of("IK2QAA", "JO20AA"), {abroad}, {Reply::kCancel}},
           {InsertableLog().Row(9, "PSect=Controll Log"),
            {Told(" il call vuole essere Control log. Inserimento annullato")}},
           {InsertableLog().Qsos({ContestQso("DL2AA", "JO30AA"), self, lost}).Row(28, "CQSOs=1;1"),
            {self_box, kPassFailed}},
           {InsertableLog().Qsos({lost, ContestQso("DL2AA", "JO30AA")}),
            {locator_box, kPassFailed}},
           {InsertableLog().Qsos({ContestQso("ERROR", "")}).Row(28, "CQSOs=1;1"), {kPassFailed}},
           {InsertableLog().Qsos({"250119;1005;DL1AA;1;59;1;59;1;;JO30AA;5"}), {kPassFailed}},
           {InsertableLog().Qsos(Names(961, ContestQso("DL1AA", "JO30AA"))), {trouble}},
           {InsertableLog().Qsos(Names(1500, ContestQso("DL1AA", "JO30AA"))), {kPassFailed}}}) {
    InsertionDesk desk;
    desk.Turbo().Waiting(c.name, c.log.Text()).Waiting("2IT_IK2QAB.edi", next);
    desk.manager.replies = c.replies;
    desk.Read();
    EXPECT_EQ(desk.manager.boxes, c.boxes) << testing::PrintToString(desk.manager.TakeFirstLines());
    EXPECT_EQ(desk.PlacesOf(c.log.Text()), Names{"03 Log da inserire/" + c.name});
    EXPECT_EQ(desk.PlacesOf(next), Names{"03 Log da inserire/2IT_IK2QAB.edi"})
        << "the run ends here";
    EXPECT_TRUE(desk.main.caricaedi.visible);
    EXPECT_FALSE(desk.main.Marcafile.visible || desk.main.Marcatura.enabled);
    EXPECT_EQ(desk.Store("libreria.qso"), "<missing>");
    EXPECT_TRUE(c.boxes.back() != kPassFailed || desk.main.doppi.value == "0");
  }
}

TEST(LogReadingTest, ABadOwnLocatorEndsTheProgram) {
  for (const char* locator : {"", "JN45", "JS45AA", "JN45AY", "jn45a1"}) {
    InsertionDesk desk;
    desk.Waiting(kName, InsertableLog().Of("IK2QAA", locator).Text());
    EXPECT_THROW(desk.Read(), ProgramEnd) << locator;
    Names told = desk.manager.TakeFirstLines();
    EXPECT_EQ(told.back(), " LOCATORE ERRATO     programma terminato - controlla log ");
    EXPECT_EQ(told.size(), *locator == '\0' ? 2U : 1U);
    EXPECT_EQ(told.front() == " in questo log NON c'è dichiarato il locatore"_a, *locator == '\0');
    EXPECT_EQ(desk.Inbox(), Names{kName});
  }
}

TEST(LogReadingTest, AnItalianAbroad) {
  for (const auto& [call, locator, reply] :
       std::initializer_list<std::tuple<const char*, const char*, Reply>>{
           {"IK2QAA", "JO20AA", Reply::kYes}, {"IK2QAA", "JO20AA", Reply::kNo}}) {
    InsertionDesk desk;
    desk.Waiting(kName, InsertableLog().Of(call, locator).Text());
    desk.manager.replies = {reply};
    desk.Read();
    EXPECT_EQ(desk.manager.boxes.size(), 1U);
    EXPECT_EQ(desk.main.Marcafile.visible, reply == Reply::kYes);
    EXPECT_EQ(desk.SetAside(),
              reply == Reply::kYes ? Names{} : Names{"2IT_IK2QAA.edi -_- locator no ita.edi"});
  }
  for (const auto& [call, locator] : std::initializer_list<std::pair<const char*, const char*>>{
           {"IT9AAA", "JM67AA"}, {"DL1AA", "JO20AA"}, {"/IK2QAA", "JO20AA"}}) {
    InsertionDesk desk;
    desk.Waiting(kName,
                 InsertableLog().Of(call, locator).Qsos({ContestQso("HB9A", "JN36AA")}).Text());
    desk.Read();
    EXPECT_NE(desk.manager.boxes.size() == 1, desk.main.Marcafile.visible) << call;
  }
}

TEST(LogReadingTest, InATestRunDatesAndTimesAreNotTested) {
  InsertionDesk desk;
  desk.main.Testlog.checked = true;
  desk.Waiting(kName, InsertableLog()
                          .Qsos({"250118;1005;DL1AA;1;59;1;59;1;;JO30AA;576;;;;",
                                 "240119;2359;DL2AA;1;59;1;59;1;;JO30AA;576;;;;"})
                          .Text());
  desk.Read();
  desk.main.Marcafile.Click();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.Store("somma_qso.slx"),
            "IK2QAA      ;240119;2359;DL2AA;1;59;1;59;1;;JO30AA;576;;;;\r\n");
  EXPECT_EQ(desk.Store("libreria.qso"),
            "IK2QAA      DL1AA       JO30AA 576\r\nIK2QAA      DL2AA       JO30AA 576\r\n");
}

TEST(LogReadingTest, AMissingContestDateIsAskedFor) {
  const InputBox box{"CATEGORIA spazio  DATA CONTEST",
                     {" Scrivi la categoria e data del contest ( 2IT AAMMGG )"},
                     "2IT 250119"};
  InsertionDesk desk;
  desk.Waiting("2it_IK2QAA.edi", kGood);
  desk.workspace.files().Remove(desk.workspace.paths().contest_date("2IT"));
  for (const bool typed : {false, true}) {
    desk.manager.inputs = {typed ? std::optional<std::string>("") : std::nullopt};
    desk.Read();
    EXPECT_FALSE(desk.main.Marcafile.visible);
  }
  desk.manager.inputs = {"3it 250118", "2it 250119"};
  desk.Read();
  EXPECT_EQ(desk.manager.asked, std::vector<InputBox>(4, box));
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.Store(" data contest.dat"), "2IT 250119\r\n");
  EXPECT_EQ(desk.workspace.Read("Trofeo_Velmar/3IT/3IT data contest.dat"), "3IT 250118\r\n");
  EXPECT_TRUE(desk.main.Marcafile.visible);

  InsertionDesk open_date;
  open_date.Waiting(kName, kGood)
      .workspace.With(InsertionDesk::kDateFile, "x 250119\r\n2IT 3001..\r\n");
  open_date.Read();
  EXPECT_EQ(open_date.SetAside(), Names{"2IT_IK2QAA.edi -_- bad_data_qso.edi"});
}

TEST(LogReadingTest, TheChosenFile) {
  const std::string long_name = "2IT-IK2QAA di Ugo e dei suoi amici di Como.edi";
  InsertionDesk desk;
  desk.main.Check_AUT_entry.checked = false;
  desk.Waiting("2IT IK2QAA.edi", kGood).Waiting(long_name, kGood);
  const std::string folder = desk.workspace.paths().to_insert() + "/";
  desk.manager.picks = {std::nullopt, folder + long_name, folder + "2IT_IK2QAB.edi",
                        folder + "*.edi"};
  desk.Read();
  EXPECT_FALSE(desk.main.Marcafile.visible) << "the dialog was left";
  desk.Read();
  EXPECT_EQ(desk.main.ultimo_call.caption, RTrim(Left(long_name, 35)));
  EXPECT_TRUE(desk.main.Marcafile.visible);
  desk.Read();
  EXPECT_EQ(desk.manager.TakeFirstLines(), Names{" il file non è stato trovato"_a});
  desk.Read();
  EXPECT_TRUE(desk.manager.boxes.empty()) << "the pattern of the dialog is no file";
  EXPECT_EQ(desk.PlacesOf(kGood).size(), 2U);
}

TEST(LogReadingTest, ALogInsertedAlreadyGoesToTheRepeatedOnes) {
  for (const char* there : {"", "another log"}) {
    InsertionDesk desk;
    desk.Waiting(kName, kGood)
        .workspace.With("Trofeo_Velmar/2IT/2ITlibreria.qso",
                        "IK2QAA      DL1AA       JO30AA 576\r\n");
    if (*there != '\0') {
      desk.workspace.With(Join("Trofeo_Velmar/Log doppi/", kName), there);
    }
    desk.Read();
    EXPECT_EQ(desk.manager.TakeFirstLines(), Names{" log già inserito in questa categoria"_a});
    EXPECT_EQ(desk.PlacesOf(kGood),
              Names{Join("Trofeo_Velmar/Log doppi/",
                         *there == '\0' ? kName : std::string("2IT_IK2QAA (2).edi"))});
    EXPECT_TRUE(desk.Inbox().empty()) << "nor a scratch copy";
    EXPECT_EQ(desk.Store("-Contest Team.txt"), "<missing>");
    EXPECT_TRUE(desk.main.caricaedi.visible);
    EXPECT_FALSE(desk.main.Marcafile.visible || desk.main.Aggiorna.enabled);
  }
}

TEST(LogReadingTest, NothingToReadOrNoMonth) {
  InsertionDesk desk;
  desk.Waiting("old.ED3", "x").Read();
  EXPECT_EQ(desk.manager.boxes.at(0).lines,
            (Names{" Attenzione, nella cartella del programma,",
                   " (03 Log da inserire), NON ci sono log da inserire."}));
  EXPECT_FALSE(desk.main.Inserire_log.enabled);
  EXPECT_TRUE(desk.main.Inserire_log.checked);
  EXPECT_FALSE(desk.main.Callusato.visible);
  desk.manager.boxes.clear();
  desk.session.month_assigned = false;
  desk.Waiting(kName, kGood).Read();
  EXPECT_EQ(desk.manager.boxes.at(0).lines,
            (Names{" devi inserire il mese del contest. ",
                   " da: menu 'Controllo' --->  Assegna nome mese allo Velmar"}));
}

}  // namespace
}  // namespace velmar::test
