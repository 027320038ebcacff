#include "intake/recalculation.h"

#include <gtest/gtest.h>

#include <optional>

#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

/// The first step on a temporary workspace.
class RecalculationTest : public testing::Test {
 protected:
  RecalculationTest() {
    workspace.WithTree();
    for (Form* form : std::initializer_list<Form*>{&main, &step.form()}) {
      screen.Add(*form);
    }
  }

  void RunStep() {
    step.Open();
    step.form().rinomina.Click();
  }

  std::vector<std::string> Received() { return workspace.Names("01 Log da RICALCOLARE"); }
  std::vector<std::string> Recalculated() { return workspace.Names("02 Log ricalcolati"); }
  std::vector<std::string> SetAside() {
    return workspace.Names("Trofeo_Velmar/Log da ricontrollare");
  }

  const std::string good = LogText("IK2QAA", "JN45AA", {QsoRow("IZ9QBC", "JN45AA")});

  TempWorkspace workspace;
  FailingFileSystem files{workspace.files()};
  ScriptedManager manager;
  Screen screen;
  ContestSession session{workspace.paths().base()};
  MainForm main;
  Recalculation step{session, files, manager, screen, main};
};

using Names = std::vector<std::string>;

TEST_F(RecalculationTest, AGoodRunAndLeaving) {
  workspace.WithLog("b.EDI", good).WithLog("a.edi", good).WithLog("log.txt", good);
  RunStep();
  EXPECT_EQ(manager.TakeFirstLines(), Names{" finito"});
  EXPECT_EQ(Recalculated(), (Names{"a.edi", "b.EDI", "log.txt"}));
  EXPECT_EQ(Received(), Recalculated()) << "the received logs stay until the step is left";
  EXPECT_EQ(step.form().num_file.caption, "3");
  EXPECT_EQ(step.form().Text1.value, "3");
  EXPECT_FALSE(step.form().rinomina.enabled);

  workspace.WithLog("late.edi", good);
  step.form().torna_menu.Click();
  EXPECT_EQ(Received(), (Names{"late.edi", "log.txt"}))
      << "only .edi that were recalculated are removed";
  EXPECT_FALSE(step.form().visible());
  EXPECT_TRUE(main.visible());
  EXPECT_TRUE(main.restore_1KM.enabled) << "logs are left";
  EXPECT_FALSE(main.restore_1KM.checked);
  EXPECT_TRUE(main.Rinomina_ita.enabled);
}

TEST_F(RecalculationTest, LeavingWithoutARunRemovesNothing) {
  main.Rinomina_ita.enabled = false;
  workspace.WithLog("a.edi", good);
  step.Open();
  step.form().torna_menu.Click();
  EXPECT_EQ(Received(), Names{"a.edi"});
  EXPECT_FALSE(main.Rinomina_ita.enabled);
}

TEST_F(RecalculationTest, TheButtonIsOutOfReachWithNothingToDoOrSomethingInTheWay) {
  const auto ready = [&] {
    step.Open();
    EXPECT_EQ(step.form().rinomina.colour == std::nullopt, step.form().rinomina.enabled);
    return step.form().rinomina.enabled;
  };
  EXPECT_FALSE(ready()) << "no log";
  workspace.WithLog("a.edi", good);
  EXPECT_TRUE(ready());
  session.recalc_dest_not_empty = true;
  EXPECT_FALSE(ready());
  session.recalc_dest_not_empty = false;
  workspace.With("02 Log ricalcolati/old.edi", good);
  EXPECT_FALSE(ready()) << "a log where the run writes";
}

TEST_F(RecalculationTest, EachRefusalMovesItsLogAloneAndSaysWhy) {
  const std::string short_row = "250119;0812;IZ9QBC;1;59;001;59;012;;JM67AA;99";
  struct Case {
    std::string log;
    std::string suffix;
    Names lines;
  };
  const std::vector<Case> cases = {
      {LogText("IK2QAA", "JN45AA", {QsoRow("IZ9QBC", "JM67AA"), short_row}),
       " - mancano punti virgola, no 14.edi",
       {" il log di bad.edi è errato non è possibile elaborarlo"_a, "   ",
        " in questo log i delimitatori dei campi dati (;) non sono in numero corretto",
        " controlla se ogni qso abbia 14 punti e virgola.", "  ",
        " Nel qso 2 sotto elencato ci sono 10 punti e virgola al posto di 14.",
        " Correggi manualmente il log e ripeti il controlo.",
        " il qso che crea problemi è:"_a.data() + short_row,
        " Il file è stato spostato nella directory di ricontrolo."_a}},
      {LogText("IK2QAA", "JN45", {}),
       " + manca locatore partenza.edi",
       {" Il Locatore di IK2QAA è errato JN45"_a,
        " programma terminato - controlla log e ripeti procedura"}},
      {LogText("IK2QAA", "JN45AA", {QsoRow("IZ9QBC", "JM67AY")}),
       " - qso 1 con locatore non valido.edi",
       {" LOCATORE ERRATO",
        "Il locatore del QSO n° 1 nel log di bad.edi risulta essere \"JM67AY\"   probabilmente è SBAGLIATO."_a,
        "                     ",
        " Controlla numeri e lettere. Non ci possono essere numeri oltre ai due centrali,",
        " verifica la lettera O con lo zero 0, ",
        " le lettere valide sono: da AA a XX. Non sono validi le lettere Y e Z.",
        " Forse manca qualche punto e virgola.",
        " Il file è stato spostato. Correggi locatore qso"_a, "  "}},
      {"[REG1TEST;1]\r\nTName=\r\n-SUP\r\nTDate=\r\nPCall=IK2QAA\r\n",
       " - intestazione con programma errato.edi",
       {" ATTENZIONE ", " il log di \"bad.edi\" è stato scritto con un programma obsoleto,"_a,
        " del quale si è a conoscenza dell' errore prodotto. "_a,
        " Il programma crea sulla terza riga un scritta supplementare che non deve esserci",
        " elimina la terza riga con la scritta '-SUP' dell' intestazione", "  ",
        " riga 1    [REG1TEST;1]", " riga 2    TName=", " riga 3    -SUP", " riga 4    TDate=",
        " riga 5    PCall=IK2QAA", "  ", " Elimina la riga 3, salva e ripeti procedura"}},
  };
  for (const Case& c : cases) {
    TempWorkspace fresh;
    fresh.WithTree().WithLog("bad.edi", c.log).WithLog("good.edi", good);
    ContestSession fresh_session(fresh.paths().base());
    Recalculation fresh_step(fresh_session, fresh.files(), manager, screen, main);
    fresh_step.Open();
    fresh_step.form().rinomina.Click();
    ASSERT_EQ(manager.boxes.size(), 3U) << c.suffix;
    EXPECT_EQ(manager.boxes[0].lines, c.lines);
    EXPECT_EQ(manager.boxes[1].lines, Names{" finito"});
    EXPECT_EQ(manager.boxes[2].lines,
              (Names{" Attenzione , sono stati spostati alcuni file perche non corretti",
                     " Controlla nella directory  'Log da ricontrollare' i file da correggere"}));
    manager.boxes.clear();
    EXPECT_EQ(fresh.Read("Trofeo_Velmar/Log da ricontrollare/bad.edi" + c.suffix), c.log);
    EXPECT_EQ(fresh.Names("01 Log da RICALCOLARE"), Names{"good.edi"});
    EXPECT_EQ(fresh.Names("02 Log ricalcolati"), Names{"good.edi"});
    EXPECT_EQ(fresh.Read("Trofeo_Velmar/file_non_corretti.dat"), "bad.edi\r\n");
  }
}

TEST_F(RecalculationTest, AnItalianAbroadLeavesTheRunWhateverTheAnswer) {
  const std::string abroad = LogText("IK2QAA", "JO20AA", {});
  workspace.WithLog("no.edi", abroad).WithLog("si.edi", abroad);
  manager.replies = {Reply::kNo, Reply::kYes};
  RunStep();
  EXPECT_EQ(
      manager.boxes[0],
      (Box{
          .lines =
              {" A T T E N Z I O N E !!!!",
               " Il nominativo del log è italiano (IK2QAA) ma il locatore dichiarato NON è in italia."_a,
               " Il locatore dichiarato è : JO20AA"_a, "   Gli squares italiani sono solo JN o JM.",
               "  ", " Vuoi confermare questo locatore ?", "    ",
               " SI = avanti         NO = sposta il file "},
          .icon = Icon::kQuestion,
          .title = " Conferma Locatore ",
          .buttons = Buttons::kYesNo}));
  EXPECT_EQ(manager.boxes[1].lines, Names{" File spostato "});
  EXPECT_EQ(manager.boxes[3].lines, (Names{" Se confermi il locatore questo log NON può"_a,
                                           " partecipare alla classifica italiana"}));
  EXPECT_EQ(SetAside(), (Names{"no.edi - locatore fuori italia.edi",
                               "si.edi locatore no italia- contoll log.edi"}));
}

TEST_F(RecalculationTest, ALogSetAsideEarlierIsNotOverwritten) {
  const std::string bad = LogText("IK2QAA", "JN45", {});
  const std::string other = LogText("IK2QAB", "JN45", {});
  for (const std::string& log : {bad, other, bad}) {
    workspace.WithLog("a.edi", log);
    RunStep();
  }
  EXPECT_EQ(SetAside(), (Names{"a.edi (2) + manca locatore partenza.edi",
                               "a.edi + manca locatore partenza.edi"}));
  EXPECT_EQ(
      workspace.Read("Trofeo_Velmar/Log da ricontrollare/a.edi + manca locatore partenza.edi"),
      bad);
}

TEST_F(RecalculationTest, AMissingKeyEndsTheProgramAndLeavesTheLog) {
  workspace.WithLog("bad.edi", "PWWLo=JN45AA\r\nPExch=\r\nPSect=\r\nPBand=\r\n");
  step.Open();
  EXPECT_THROW(step.form().rinomina.Click(), ProgramEnd);
  EXPECT_EQ(
      manager.boxes.at(0).lines,
      (Names{" Attenzione nel log di bad.edi manca la riga numero 4  PCall=",
             " Nel log manca il nominativo del log. Programma terminato ", " Esci e correggi"}));
  EXPECT_EQ(Received(), Names{"bad.edi"});
}

TEST_F(RecalculationTest, RepairsAreToldOnceAndKeepTheLog) {
  workspace.WithLog(
      "a.edi", LogText("IK2QAA", "JN45AA", {"250119;0812;IZ9QBC;1;59;001;59;012;;JN45AA;9;.;;;"}));
  RunStep();
  ASSERT_EQ(manager.boxes.size(), 2U);
  EXPECT_EQ(manager.boxes[0].lines,
            (Names{" attenzione carattere non valido del qso alla riga 14", " del log di   a.edi",
                   "   ", " C'è un punto (.)  al posto del (;) punto e virgola "_a,
                   " nella posizione del carattere numero 46",
                   " il programma corregge automaticamente l' errore.", "  ",
                   " qso  originale  = 250119;0812;IZ9QBC;1;59;001;59;012;;JN45AA;9;.;;;", "  ",
                   " qso  corretto   = 250119;0812;IZ9QBC;1;59;001;59;012;;JN45AA;9;;;;;"}));
}

TEST_F(RecalculationTest, AFaultInOneLogStopsTheRunAndEmptiesTheDestination) {
  std::vector<std::string> rows(1001, QsoRow("IZ9QBC", "JN45AA"));
  workspace.WithLog("a.edi", good).WithLog("b.edi", LogText("IK2QAA", "JN45AA", rows));
  RunStep();
  EXPECT_EQ(manager.TakeFirstLines(),
            (Names{" Attenzione il log di b.edi ha un problema ",
                   " Procedura interrotta, esci e correggi/elimina il log di    b.edi"}));
  EXPECT_EQ(Recalculated(), Names{});
  EXPECT_EQ(Received(), (Names{"a.edi", "b.edi"}));
  step.form().torna_menu.Click();
  EXPECT_EQ(Received(), (Names{"a.edi", "b.edi"})) << "no run was made";
}

TEST_F(RecalculationTest, AFileThatCannotBeReadIsToldAndStays) {
  workspace.WithLog("a.edi", good);
  files.broken_path = "RICALCOLARE/a.edi";
  files.number = ErrorNumber::kPathFileAccess;
  RunStep();
  EXPECT_EQ(manager.TakeFirstLines(),
            Names{" Errore imprevisto numero: 75 nella linea : 2 Modulo ricalcolo log   Contatta "
                  "l' autore del software_0.0.8"});
  EXPECT_EQ(Received(), Names{"a.edi"});
}

// Whatever write breaks, each received log is whole in one of the folders afterwards.
TEST_F(RecalculationTest, NoLogIsLostWhereverTheDiskFails) {
  const std::string bad = LogText("IK2QAA", "JN45", {});
  for (int broken = 1; broken <= 12; ++broken) {
    TempWorkspace fresh;
    fresh.WithTree().WithLog("bad.edi", bad).WithLog("good.edi", good);
    FailingFileSystem failing(fresh.files());
    failing.break_at_change = broken;
    ContestSession fresh_session(fresh.paths().base());
    Recalculation fresh_step(fresh_session, failing, manager, screen, main);
    fresh_step.Open();
    fresh_step.form().rinomina.Click();
    fresh_step.form().torna_menu.Click();
    EXPECT_FALSE(manager.TakeFirstLines().empty());
    EXPECT_TRUE(fresh.Read("01 Log da RICALCOLARE/bad.edi") == bad ||
                fresh.Read("Trofeo_Velmar/Log da ricontrollare/bad.edi + manca locatore "
                           "partenza.edi") == bad)
        << broken;
    EXPECT_TRUE(fresh.Read("01 Log da RICALCOLARE/good.edi") == good ||
                fresh.Read("02 Log ricalcolati/good.edi").ends_with("[END;a writer]\r\n"))
        << broken;
  }
}

TEST_F(RecalculationTest, BadInputIsSetAsideOrToldAndNeverCrashes) {
  const std::string endless(5'000'000, 'x');
  for (const std::string& junk :
       {std::string(), std::string("\xEF\xBB\xBF"), std::string(1000, '\0'), endless}) {
    TempWorkspace fresh;
    fresh.WithTree().WithLog("junk.edi", junk);
    ContestSession fresh_session(fresh.paths().base());
    Recalculation fresh_step(fresh_session, fresh.files(), manager, screen, main);
    fresh_step.Open();
    EXPECT_THROW(fresh_step.form().rinomina.Click(), ProgramEnd);
    EXPECT_EQ(fresh.Read("01 Log da RICALCOLARE/junk.edi"), junk);
  }
  EXPECT_EQ(manager.TakeFirstLines().size(), 4U);
}

}  // namespace
}  // namespace velmar::test
