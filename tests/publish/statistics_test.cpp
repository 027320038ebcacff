#include "publish/statistics.h"

#include <gtest/gtest.h>

#include "publish/statistics_desk.h"

namespace velmar::test {
namespace {

const char* const kStatistics = "2IT/XA  144 statistica.txt";

/// A contest of three logs.
StatisticsDesk& Prepare(StatisticsDesk& desk) {
  desk.WithClassification({desk.Classified("IK2QAA", "1234"), desk.Classified("IS0QBB", "9"),
                           desk.Classified("DL3QCC", "2")});
  desk.WithParticipants({{"IK2QAA", "JN45AA"}, {"IS0QBB", "JM49AA"}, {"DL3QCC", "JN58AA"}});
  desk.WithQsos({{"IK2QAA", "IW2ABC", "JN45BB", 50},
                 {"IK2QAA", "IW2ABD", "JN45CC", 101},
                 {"IK2QAA", "EA8QA", "IL18AA", 1000},
                 {"IS0QBB", "IK2QAA/P", "JN45AA", 901},
                 {"IS0QBB", "SM5QA", "JM00AA", 901},
                 {"DL3QCC", "IY3QA", "JM67AA", 301}});
  return desk;
}

TEST(Statistics, TheTotalsOfAContest) {
  StatisticsDesk desk;
  Prepare(desk);
  desk.form.calcola_qso.Click();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(
      desk.Read(kStatistics),
      (Names{"Categoria 2IT - 144 MHz gennaio 2025", " ", "Log totali     3 ",
             // Of the four digits of the first log three are counted.
             "Qso totali     134 ", "QRB DX         1000 ",
             "QSO DX         JN45AA  IK2QAA      EA8QA       IL18AA 1000", "QRB Totale     3254 ",
             // IK2QA and IW2AB stand for two calls each.
             "Call in aria   7 ", "Call esteri    4 ", "Call ita       3 ", "Country  144   DL",
             "Country  144   SM", "Country  144   EA8", "Country  144   altri", "Paesi esteri   3 ",
             "Paesi totali   4 ", "Squares        IL18", "Field          IL", "Squares        JM00",
             "Squares        JM67", "Field          JM", "Squares        JN45", "Field          JN",
             "  ", "Locatori       6 ", "SQR. tot       4 ", "Field          3 ",
             "---------------------------", "call on air I 0 = 0 ", "call on air IX1 = 0 ",
             "call on air I 1 = 0 ", "call on air I 2 = 2 ", "call on air I 3 = 0 ",
             "call on air IN3 = 0 ", "call on air IV3 = 0 ", "call on air I 4 = 0 ",
             "call on air I 5 = 0 ", "call on air I 6 = 0 ", "call on air I 7 = 0 ",
             "call on air I 8 = 0 ", "call on air I 9 = 0 ", "call on air IS0 = 1 ",
             "Part.Attivi I 0 = 0 ", "Part.Attivi IX1 = 0 ", "Part.Attivi I 1 = 0 ",
             "Part.Attivi I 2 = 1 ", "Part.Attivi I 3 = 1 ", "Part.Attivi IN3 = 0 ",
             "Part.Attivi IV3 = 0 ", "Part.Attivi I 4 = 0 ", "Part.Attivi I 5 = 0 ",
             "Part.Attivi I 6 = 0 ", "Part.Attivi I 7 = 0 ", "Part.Attivi I 8 = 0 ",
             "Part.Attivi I 9 = 0 ", "Part.Attivi IS0 = 1 ", "Log da sqr JN45 = 1 ",
             "Log da sqr JN58 = 1 ", "Attivi da  JN45 = 3 ", "Attivi da  JM67 = 1 "}));
  EXPECT_EQ(desk.Read("XA  144 statistica.txt"),
            (Names{"qso di esteri  0 ", "Qso totali     134 "}));
  EXPECT_EQ(desk.Read("144nodoppi.txt").front(), "DL3QCC       1 ");
  EXPECT_EQ(desk.Read("2IT nodoppi gennaio 2025.mnt"),
            (Names{"DL3QCC      ", "EA8QA       ", "IK2QAA      ", "IS0QBB      ", "IW2ABC      ",
                   "IY3QA       ", "SM5QA       "}));
  EXPECT_EQ(desk.Read("2IT/altri.est"), (Names{"IY3QA       "}));
  EXPECT_EQ(desk.Read("144loc_nodoppi.txt").size(), 6U);
  EXPECT_EQ(desk.Read("144sqr_144.txt"), (Names{"IL18", "JM00", "JM67", "JN45"}));
  EXPECT_EQ(desk.Read("144fld_144.txt"), (Names{"IL", "JM", "JN"}));
  EXPECT_EQ(desk.Read("2IT Solo i call esteri.est"),
            (Names{"EA8QA       IL18AA", "SM5QA       JM00AA"}));
  const StatisticsForm& form = desk.form;
  EXPECT_EQ(
      (Names{form.qso_144_tot.caption, form.dx_144_tot.caption, form.qrb_144_tot.caption,
             form.onair_144_tot.caption, form.paesi_144_tot.caption, form.loc_onair_144_tot.caption,
             form.sqr_onair_144_tot.caption, form.field_onair_144_tot.caption}),
      (Names{"134", "1000", "3,254", "7", "4", "6", "4", "3"}));
  EXPECT_EQ(
      (Names{form.menocento.caption, form.centre.caption, form.trecin.caption, form.cinset.caption,
             form.setnov.caption, form.piunov.caption, form.piu1200.caption}),
      (Names{"1", "1", "1", "0", "0", "2", "1"}));
  EXPECT_EQ(desk.Cells(form.Grid_italia, 1), (Names{"144", "0", "0", "0", "2", "0", "0", "0", "0",
                                                    "0", "0", "0", "0", "0", "1", "3"}));
  const Names countries = desk.Cells(form.Grid_estero, 1);
  EXPECT_EQ((Names{countries.begin(), countries.begin() + 7}),
            (Names{"144", "4", "3", "7", "0", "", "0"}));
  EXPECT_EQ((Names{countries[9], countries[32], countries[47], countries[55]}),
            (Names{"1", "1", "1", "1"}));

  const Names first = desk.Read(kStatistics);
  desk.form.calcola.Click();
  EXPECT_EQ(desk.Read(kStatistics), first) << "a second run begins anew";
  EXPECT_EQ(desk.Read("2IT/altri.est").size(), 2U);
  EXPECT_EQ(desk.Read("XA  144 statistica.txt").size(), 4U);
}

TEST(Statistics, WithoutAQsoThereAreNoSquares) {
  StatisticsDesk desk;
  desk.WithClassification({}).WithParticipants({}).WithQsos({});
  desk.form.calcola_qso.Click();
  const Names lines = desk.Read(kStatistics);
  EXPECT_EQ(lines[2], "Log totali     0 ");
  EXPECT_EQ(lines[5], "QSO DX           ");
  EXPECT_EQ(lines.back(), "---------------------------");
  EXPECT_EQ(desk.form.menocento.caption, "0") << "the run goes on behind the squares";
  EXPECT_EQ(desk.Read("2IT Solo i call esteri.est"), Names{});
}

TEST(Statistics, LimitsAndMissingFilesEndARun) {
  StatisticsDesk desk;
  desk.form.calcola_qso.Click();
  desk.WithClassification({desk.Classified("IK2QAA", "1")});
  desk.form.calcola_qso.Click();
  EXPECT_EQ(desk.Read(kStatistics).size(), 4U) << "what was written stays";
  desk.WithParticipants({{"IK2QAA", "JN45AA"}});
  const StoredQso qso{"IK2QAA", "IK2QBB", "JN45AA", 7};
  desk.WithQsos(std::vector<StoredQso>(16'001, qso));
  desk.form.calcola_qso.Click();
  const std::string stop = " errore imprevisto numero: 53 nella linea : ";
  const std::string tag = "     Contatta il fornitore del software";
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            (Names{stop + "1" + tag, stop + "5" + tag, " il qso totali superano i 32000"}));
  EXPECT_EQ(desk.form.dx_144_tot.caption, "");
  desk.WithQsos(std::vector<StoredQso>(16'000, qso));
  desk.form.calcola_qso.Click();
  EXPECT_EQ(desk.form.dx_144_tot.caption, "7");
  desk.WithParticipants(
      std::vector<std::pair<std::string, std::string>>(501, {"IK2QAA", "JN45AA"}));
  desk.form.calcola_qso.Click();
  desk.WithParticipants({{"IK2QAA", "JN45AA"}});
  desk.WithQsos(std::vector<StoredQso>(30'000, {"IK2QAA", "IK2QBB", "JN45AA", 9999}));
  desk.form.calcola_qso.Click();
  desk.workspace.With("Trofeo_Velmar/2IT/2IT Classifica Mensile 144 gennaio 2025.cla",
                      TextOfLines(Names(22'000, std::string(50, ' ') + "99999")));
  desk.form.calcola_qso.Click();
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            (Names{" errore imprevisto numero: 9 nella linea : 5" + tag,
                   " il qso totali superano i 32000",
                   " OVERFLOW     ci sono oltre 32255 qso in libreria"}));
}

TEST(Statistics, QsosByAreaAndCountry) {
  StatisticsDesk desk;
  Prepare(desk);
  desk.workspace.With("Trofeo_Velmar/2IT/2ITsomma_qso.slx",
                      "IK2QAA      ;250119;1400;IW2ABC;1;59;;59;;;JN45BB;50;;;;D\r\n"
                      "IK2QAA      ;250119;1401;EA8QA;1;59;;59;;;IL18AA;1000;;;;D\r\n"
                      "IK2QAA      ;250119;1402;IW2ABD;1;59;;59;;;JN45CC;101;;;;\r\n");
  EXPECT_FALSE(desk.form.trova.enabled);
  desk.form.banda_qso.Select(0);
  desk.form.trova.Click();
  EXPECT_FALSE(desk.form.trova.enabled);
  const Names lines = desk.Read("2IT Statistica_gennaio 2025.txt");
  ASSERT_EQ(lines.size(), 19U);
  EXPECT_EQ(lines[0], " -----------    Categoria  2IT   gennaio 2025 ------------");
  EXPECT_EQ(lines[5], "Qso ITA fatti  da  I 2  =  2           Qso EST fatti  da  I 2  =  1 ");
  EXPECT_EQ(lines[15], "Qso ITA fatti  da  IS0  =  1           Qso EST fatti  da  IS0  =  1 ");
  EXPECT_EQ(lines[16], std::string(68, '-'));
  EXPECT_EQ(lines[17], "qsoitalia               =  4           qsoestero            =  2 ");
  EXPECT_EQ(desk.Read("2IT Partecipanti_gennaio 2025.ese").front(), "DL3QCC      JN58AA 2IT 144M");
  EXPECT_EQ((Names{desk.form.qso_italia.caption, desk.form.qso_estero.caption,
                   desk.form.totale_qso.caption, desk.form.dopi.caption}),
            (Names{"3", "1", "4", "2"}));
  const Names countries = desk.Cells(desk.form.Grid_estero, 3);
  EXPECT_EQ((Names{countries[0], countries[6], countries[32], countries[47], countries[55]}),
            (Names{"QSO", "1", "2", "1", "4"}))
      << "EA8 counts in EA as well, and SM twice";
}

TEST(Statistics, CallsThatTheZonesWorked) {
  StatisticsDesk desk;
  Prepare(desk);
  desk.WithQsos({{"IK2QAA/3", "IW2ABC", "JN45BB", 50},
                 {"IK2QAA", "IW2ABC", "JN45BB", 50},
                 {"IK2QAA", "IW2ABC/P", "JN45BB", 50},
                 {"IS0QBB", "SM5QA", "JM00AA", 901},
                 {"DL3QCC", "IK2QAA", "JM67AA", 301}});
  desk.form.calcola_qso.Click();
  desk.form.qso_est.Click();
  EXPECT_EQ(desk.manager.boxes,
            (std::vector<Box>{Told(" salvataggio file statistica  2IT  \xE8 terminato")}));
  EXPECT_EQ(desk.Read("2IT Part_ita_mensili da zona 2  gennaio 2025.mes"),
            (Names{"IW2ABC", "IW2ABC/P"}));
  EXPECT_EQ(desk.Read("2IT Part_ita_mensili da zona 3  gennaio 2025.mes"), (Names{"IW2ABC"}));
  EXPECT_EQ(desk.Read("2IT Part_est_mensili da zona 0  gennaio 2025.mes"), (Names{"SM5QA"}));
  EXPECT_EQ(desk.Read("2IT Part_est_mensili da zona IS0  gennaio 2025.mes"), (Names{"SM5QA"}));
  EXPECT_EQ(desk.Read("2IT OM ita mensili gennaio 2025.ese"),
            (Names{"IK2QAA      ", "IW2ABC      "}));
  const Names lines = desk.Read("2IT Statistica_gennaio 2025.txt");
  ASSERT_EQ(lines.size(), 36U);
  EXPECT_EQ(lines[1], "Call ita colleg da I 0  =  0           call est colleg da I 0  =  1 ");
  EXPECT_EQ(lines[4], "Call ita colleg da I 2  =  2           call est colleg da I 2  =  0 ");
  EXPECT_EQ(lines[16], "Partecipanti italia     =  3       (ita+est) 5     Totali estero 2 ");
  EXPECT_EQ(desk.form.tot_qso_est.caption, "5");
  EXPECT_EQ(lines[23], "Call on air    da  I 2 =  2                           ");
  EXPECT_EQ(lines[35], "Totali mensile Italia  =  3            Totali annuali Italia = ");
  EXPECT_FALSE(desk.form.qso_est.enabled);
  EXPECT_EQ(desk.form.calcola_qso.caption, " RIcalcola");

  // A copy that lies beside the categories is taken ahead of the category's own file.
  desk.workspace.With("Trofeo_Velmar/libreria_totale.tot", "");
  desk.workspace.With("Trofeo_Velmar/XA  144 statistica.txt", "call on air I 2 = 77 \r\n");
  desk.form.qso_est.Click();
  EXPECT_EQ(desk.Read("2IT Part_ita_mensili da zona 2  gennaio 2025.mes"), Names{});
  EXPECT_EQ(desk.Read("2IT Statistica_gennaio 2025.txt")[59],
            "Call on air    da  I 2 =  77                          ");

  desk.form.usci.Click();
  EXPECT_EQ(desk.Read("2IT Part_ita_mensili da zona 2  gennaio 2025.mes"), (Names{"<missing>"}));
}

TEST(Statistics, LookUpsInWhatWasCounted) {
  StatisticsDesk desk;
  Prepare(desk);
  desk.form.dx_144_tot.Click();
  EXPECT_TRUE(desk.manager.boxes.empty()) << "nothing was counted yet";
  desk.form.calcola_qso.Click();
  desk.form.dx_144_tot.Click();
  EXPECT_EQ(
      desk.manager.boxes,
      (std::vector<Box>{Told(" Il proprietario del DX in 144 Mhz \xE8  IK2QAA  JN45AA  che ha "
                             "collegato  EA8QA nel locator IL18AA  qrb =  1000     nella "
                             "routine 144 Mhz")}));
  EXPECT_EQ(desk.form.dx_144_tot.colour, colour::kWhite);
  desk.form.sqr_onair_144_tot.Click();
  EXPECT_EQ(desk.form.Lista_sqr_fld_loc.items.rows(), (Names{"IL18", "JM00", "JM67", "JN45"}));
  desk.form.field_onair_144_tot.Click();
  EXPECT_EQ(desk.form.Lista_sqr_fld_loc.items.rows(), (Names{"IL", "JM", "JN"}));
  EXPECT_EQ(desk.form.sqr_onair_144_tot.colour, colour::kWhite);
  EXPECT_EQ(desk.form.field_onair_144_tot.colour, colour::kYellow);
  desk.form.field_onair_144_tot.Click();
  EXPECT_FALSE(desk.form.Lista_sqr_fld_loc.visible);
  EXPECT_EQ(desk.form.field_onair_144_tot.colour, colour::kWhite);
}

}  // namespace
}  // namespace velmar::test
