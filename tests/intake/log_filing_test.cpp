#include <gtest/gtest.h>

#include "intake/first_store.h"
#include "intake/insertion_desk.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar::test {
namespace {

TEST(LogFilingTest, TheFirstLogMakesTheStore) {
  InsertionDesk desk;
  desk.Waiting(kName, kGood).Waiting("2IT_IK2QAB.edi", "next");
  desk.Read();
  desk.main.Marcafile.Click();
  EXPECT_TRUE(desk.manager.boxes.empty());
  Files want = FirstStore();
  want["03 Log da inserire/2IT_IK2QAB.edi"] = "next";
  ExpectFiles(desk.workspace.Everything(), want);
  const MainForm& main = desk.main;
  EXPECT_TRUE(main.caricaedi.visible && main.caricaedi.enabled && main.apri.enabled &&
              main.Inserimento_OK.visible && main.Aggiorna.visible);
  EXPECT_FALSE(main.Marcafile.visible || main.Marcatura.enabled || main.Aggiorna.enabled ||
               main.aggiorna_categoria.enabled);
  EXPECT_TRUE(main.controlla_locatori.enabled && main.statistiche.enabled &&
              main.CLA_mese_excel.enabled && main.controllo.enabled && main.ass_mese.enabled &&
              main.Utility.enabled && main.Info.enabled);
  EXPECT_EQ(main.focus, &main.caricaedi);
  EXPECT_EQ(main.num_file2.caption, "1");
  EXPECT_EQ(main.Callusato.value + main.qsovalidi.value, "") << "the form is emptied";
  EXPECT_TRUE(desk.session.log_inserted_since_load);
}

TEST(LogFilingTest, TheSecondLogIsAddedRowByRow) {
  const Names rows = {"250119;1000;IK2QAA/PORTABLE;1;59;001;59;001;;JN45AA;111;;;;",
                      "250119;1001;DL1AA;1;59;002;59;;;jo30;;;;;",
                      "250119;1002;ERROR;1;59;003;59;;;JN45AA;0;;;;",
                      "250119;1003;error;1;59;004;59;;;;;;;;",
                      "250119;1004;F1AA;1;59;005;59;;;JN26AA;385;;;;DELETET",
                      "250119;1005;hb9aa;4;59;006;59;;;JN36AA;272;;;;DELETED",
                      "250119;1006;HB9AA;1;59;007;59;;;JN36AA;272;;;;D"};
  InsertionDesk desk;
  desk.main.Ins_auto.checked = true;
  desk.Waiting(kName, kGood);
  desk.Waiting("2IT_IW1XYZ_P.edi", InsertableLog()
                                       .Of("iw1xyz-p", "jn44aa")
                                       .Qsos(rows)
                                       .Row(24, "SPowe=1000")
                                       .Row(26, "SAnte=Yagi di venti caratteri e piu'")
                                       .Row(27, "SAntH=10;")
                                       .Row(28, "CQSOs=4;1")
                                       .Row(29, "CQSOP=1234567890")
                                       .Row(37, "CODXC=DL1AA/PORTABLE;JO30;726 km")
                                       .Text());
  desk.Read();
  EXPECT_TRUE(desk.main.Ins_auto.checked);
  EXPECT_EQ(desk.main.Callusato.value, "IK2QAA") << "stays to be seen until the next read";
  desk.main.Ins_auto.checked = false;
  desk.Read();
  desk.main.Young.Click();
  desk.main.Marcafile.Click();
  EXPECT_EQ(desk.manager.TakeFirstLines(), Names{});
  const std::string call = "IW1XYZ/P    ";
  const std::string behind = "2ITJN44AAIW1XYZ/P    ";
  Files want = FirstStore();
  const auto added = [&](const std::string& tail, const Names& lines) {
    EXPECT_EQ(desk.Store(tail), want.at("Trofeo_Velmar/2IT/2IT" + tail) + Text(lines));
  };
  added("libreria.qso", {call + "IK2QAA/PORTAJN45AA 111", call + "DL1AA       JO30 0",
                         call + "ERROR       JN45AA 0", call + "F1AA        JN26AA 385",
                         call + "HB9AA       JN36AA 272", call + "HB9AA       JN36AA 272"});
  added("libreria_totale.tot",
        {call + "IK2QAA/PORTAJN45AA 2IT 111", call + "ERROR       JN45AA 2IT 0",
         call + "F1AA        JN26AA 2IT 385", call + "HB9AA       JN36AA 2IT 272",
         call + "HB9AA       JN36AA 2IT 272"});
  Names all;
  for (const std::string& row : rows) {
    all.push_back(call + ";" + row);
  }
  added("somma_qso.slx", all);
  added("somma_qso.qso", {rows[0] + behind, rows[1] + behind, rows[5] + behind, rows[6] + behind});
  added(" partecipanti.par", {"IW1XYZ/P    JN44AA 2IT 144M"});
  added("Classifica_modo.par", {"IW1XYZ/P    JN44AA 144M  SSB= 6    CW = 1  "});
  added("tempi.txt", {});
  added(" Statistica DX.cdx", {"2IT - IW1XYZ/P    JN44AA - JO30  DL1AA/PORTAB-  726 k"});
  added(" Classifica Mensile 144 gennaio 2025.cla",
        {"IW1XYZ/P     JN44AA  0    Yagi di venti caratt 500  4    12345678DL1AA/PORT 726 k 1494  "
         "                 1494      0.0%  Y"});
  EXPECT_TRUE(desk.Store("-IW1XYZ_P Lista errori GENNAIO 2025.err").size() > 300);
  EXPECT_NE(desk.Store("_IW1XYZ_P.edi"), "<missing>");
}

TEST(LogFilingTest, TheOperatorMark) {
  struct Case {
    std::string call;
    std::vector<Option& (*)(MainForm&)> clicks;
    bool cleared;
    char mark;
  };
  const auto young = [](MainForm& form) -> Option& { return form.Young; };
  const auto rookie = [](MainForm& form) -> Option& { return form.Rookie; };
  for (const Case& c : std::initializer_list<Case>{{"IK2QAA", {young}, false, 'Y'},
                                                   {"IK2QAA", {young, rookie}, false, 'R'},
                                                   {"IK2QAA", {rookie}, true, ' '},
                                                   {"DL1AA", {young}, false, ' '}}) {
    InsertionDesk desk;
    desk.Waiting(kName, InsertableLog().Of(c.call).Qsos({ContestQso("HB9A", "JN36AA")}).Text());
    desk.Read();
    for (auto* button : c.clicks) {
      button(desk.main).Click();
    }
    if (c.cleared) {
      desk.main.Command1.Click();
    }
    desk.main.Marcatura.Click();
    const std::string text = desk.Store(" Classifica Mensile 144 gennaio 2025.cla");
    EXPECT_EQ(Mid(LastLine(text), 115), Join(" 0.0%  ", std::string(1, c.mark)));
    EXPECT_FALSE(desk.main.Young.checked || desk.main.Rookie.checked);
  }
}

TEST(LogFilingTest, TheStoreIsWrittenInItsOrder) {
  InsertionDesk desk;
  desk.Waiting(kName, kGood).Read();
  desk.files.changed_paths.clear();
  desk.main.Marcafile.Click();
  Names names;
  for (const std::string& path : desk.files.changed_paths) {
    const std::string name = path.substr(desk.workspace.paths().base().size() + 1);
    if (!Holds(name, ".ED")) {
      names.push_back(name.starts_with("Trofeo") ? name.substr(21) : name);
    }
  }
  EXPECT_EQ(names, (Names{"tempi.txt", "somma_qso.slx", "somma_qso.qso", "libreria.qso",
                          "libreria_totale.tot", " Classifica Mensile 144 gennaio 2025.cla",
                          "Classifica_modo.par", "_IK2QAA.edi", Join("03 Log da inserire/", kName),
                          " Statistica DX.cdx", " partecipanti.par"}));
}

TEST(LogFilingTest, WhatKeepsALogFromTheStore) {
  InsertionDesk repeated;
  repeated.Waiting(kName, kGood).Read();
  repeated.workspace.With("Trofeo_Velmar/2IT/2ITlibreria.qso", "IK2QAA      \r\n");
  repeated.main.Marcafile.Click();
  EXPECT_EQ(repeated.manager.TakeFirstLines(), Names{" log già inserito in questa categoria"_a});
  EXPECT_EQ(repeated.PlacesOf(kGood), Names{Join("Trofeo_Velmar/Log doppi/", kName)});
  EXPECT_EQ(repeated.Inbox(), Names{});
  EXPECT_EQ(repeated.Store("tempi.txt"), "");
  EXPECT_EQ(repeated.Store("somma_qso.slx"), "<missing>");
  EXPECT_FALSE(repeated.main.Marcafile.visible || repeated.main.Marcatura.enabled);
  EXPECT_TRUE(repeated.main.caricaedi.visible);

  InsertionDesk section;
  section.Waiting(kName, kGood).Read();
  section.main.Label_sezione.visible = true;
  section.main.Marcafile.Click();
  EXPECT_EQ(section.manager.boxes.at(0).lines,
            (Names{" Devi selezionare una sezione prima di inserire il log,",
                   " poi salva la sezione sul log e rileggi il log."}));
  EXPECT_EQ(section.PlacesOf(kGood), Names{Join("03 Log da inserire/", kName)});
  EXPECT_EQ(section.Store("tempi.txt"), "<missing>");

  const std::string both = InsertableLog().Row(9, "PSect=UNI").Text();
  InsertionDesk category;
  category.Waiting(kName, both).Read();
  category.manager.boxes.clear();
  category.main.Marcafile.Click();
  EXPECT_EQ(category.manager.TakeFirstLines(),
            Names{" devi aggiornare la categoria prima di inserire il file"});
  EXPECT_EQ(category.PlacesOf(both), Names{Join("Trofeo_Velmar/2IT/", kName)});
  EXPECT_EQ(category.Store(" partecipanti.par"), "IK2QAA      JN45AA 2IT 144M\r\n");
  for (const char* tail : {"somma_qso.slx", "libreria.qso", "Classifica_modo.par",
                           " Classifica Mensile 144 gennaio 2025.cla"}) {
    EXPECT_EQ(category.Store(tail), "<missing>") << tail;
  }

  InsertionDesk same;
  same.Waiting("2IT_IK2QAB.edi", "x").workspace.With(Join("Trofeo_Velmar/2IT/", kName), kGood);
  same.main.Check_AUT_entry.checked = false;
  same.manager.picks = {same.workspace.paths().category() + "/" + kName};
  same.Read();
  same.main.Marcafile.Click();
  EXPECT_EQ(same.manager.boxes.at(0).lines,
            Names{" Hai manipolato un file che era nella directory di destinazione. Azione "
                  "annullata.(4)"});
  Files want = FirstStore();
  want["03 Log da inserire/2IT_IK2QAB.edi"] = "x";
  ExpectFiles(same.workspace.Everything(), want);
}

TEST(LogFilingTest, ALogOfTheSameNameIsReplaced) {
  InsertionDesk desk;
  desk.Waiting(kName, kGood).workspace.With(Join("Trofeo_Velmar/2IT/", kName), "older");
  desk.Read();
  desk.main.Marcafile.Click();
  ExpectFiles(desk.workspace.Everything(), FirstStore());
}

// A prefix or suffix of a call does not stand in the name, so that two calls may come to one.
TEST(LogFilingTest, TheLogOfAnotherCallOfThatNameIsKept) {
  const std::string other = InsertableLog().Of("IK2QAA/P").Text();
  const std::string older = InsertableLog().Of("IK2QAA").Row(26, "SAnte=dipole").Text();
  for (const std::string& there : {other, older}) {
    InsertionDesk desk;
    desk.Waiting(kName, kGood).workspace.With(Join("Trofeo_Velmar/2IT/", kName), there);
    desk.Read();
    desk.main.Marcafile.Click();
    EXPECT_EQ(desk.PlacesOf(kGood), Names{Join("Trofeo_Velmar/2IT/", kName)});
    EXPECT_EQ(desk.PlacesOf(other),
              there == other ? Names{Join("Trofeo_Velmar/Log doppi/", kName)} : Names{});
  }
}

// A command that is pressed where no log waits for it leaves the store alone.
TEST(LogFilingTest, NothingIsFiledThatWasNotAccepted) {
  const std::string self = InsertableLog().Qsos({ContestQso("IK2QAA", "JN45AA")}).Text();
  for (const std::string& next :
       {std::string(), std::string("2IT_IK2QAB -_- x.edi"), std::string("2IT_IK2QAB.edi")}) {
    InsertionDesk desk;
    desk.Waiting(kName, kGood).Waiting(next.empty() ? "x" : next, self).Read();
    desk.main.vis_puls.Click();  // it shows the button that reads, although a log is loaded
    desk.main.Check_AUT_entry.checked = false;
    desk.manager.picks = {next.empty() ? std::nullopt
                                       : std::optional(desk.main.Dir1.value + "/" + next)};
    desk.Read();
    const auto before = desk.workspace.Everything().size();
    for (Control* command :
         std::initializer_list<Control*>{&desk.main.Marcafile, &desk.main.Marcatura}) {
      if (command->visible && command->enabled) {
        command->Click();
      }
    }
    EXPECT_LE(desk.workspace.Everything().size(), before) << "files were made behind " << next;
    EXPECT_EQ(desk.PlacesOf(self).size(), 1U);
  }
}

}  // namespace
}  // namespace velmar::test
