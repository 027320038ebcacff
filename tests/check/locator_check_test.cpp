// What the check of the locators finds, and the evidence that it lays out for it.

#include <gtest/gtest.h>

#include "check/locator_desk.h"

namespace velmar::test {
namespace {

TEST(LocatorCheck, ShowsWhatTheOthersHaveForTheSelectedDoubt) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  CheckForm& form = desk.form;
  EXPECT_EQ(form.Lista_dubbi.items.rows(), Names{"IK2QAA      I1QXX       JN44BC 107  2"});
  EXPECT_EQ(form.N_dubbi.caption, "1");
  EXPECT_FALSE(form.err_loc_log.visible);
  form.Lista_dubbi.Select(0);
  EXPECT_EQ(form.Lista_locatori.items.rows(),
            (Names{"IZ9QBC      I1QXX       JN44BB *", "IV3QYY      I1QXX       JN44BB *"}));
  EXPECT_EQ(form.internet.caption, "cerca I1QXX su QRZ");
  EXPECT_EQ(form.SEARC_loc.caption, "Mappa JN44BC");
  EXPECT_EQ(form.ric_in_quel_locatore.caption, "cerca in JN44");
  EXPECT_EQ(form.vedi_locator.caption, "Visualizza in mappa il locatore : ");
  form.Lista_locatori.Select(1);
  EXPECT_EQ(form.vedi_locator.caption, "Visualizza in mappa il locatore : JN44BB");
}

// The log under examination counts for its own locator.
TEST(LocatorCheck, TheVerdictFollowsTheWitnesses) {
  const struct {
    int same, other;
    const char *counts, *verdict;
    std::optional<int> accept, penalise;
  } cases[] = {{0, 1, "1/1", " ho un DUBBIO !! ", {}, colour::kYellow},
               {0, 2, "1/2", "          ", {}, colour::kRed},
               {1, 1, "2/1", "Locator OK", colour::kGreen, {}},
               {1, 2, "2/2", " ho un DUBBIO !! ", {}, colour::kYellow},
               {3, 1, "4/1", "Locator OK", colour::kGreen, {}}};
  for (const auto& [same, other, counts, verdict, accept, penalise] : cases) {
    LocatorDesk desk;
    desk.Examined({{"I1QXX", "JN44BC"}});
    for (int i = 0; i < same; ++i) {
      desk.Witness(Join("IZ9QB", i), {"I1QXX", "JN44BC"});
    }
    for (int i = 0; i < other; ++i) {
      desk.Witness(Join("IV3QY", i), {"I1QXX", "JN44BB"});
    }
    desk.Checked();
    desk.form.Lista_dubbi.Select(0);
    EXPECT_EQ(Join(desk.form.log_uguali.caption, "/", desk.form.log_diverso.caption), counts);
    EXPECT_EQ(desk.form.infoloc.caption, verdict) << counts;
    EXPECT_EQ(desk.form.QSO_ok.colour, accept) << counts;
    EXPECT_EQ(desk.form.conferma_errore.colour, penalise) << counts;
  }
}

TEST(LocatorCheck, ABrokenLocatorIsToldOnReadingAndOnSelecting) {
  LocatorDesk desk;
  desk.Examined({{"I1QXX", "JN44BY"}, {"DL1QAA", "JS30AA"}, {"IZ9QBC", "JM67AA"}})
      .Witness("IZ9QBC", {"I1QXX", "JN44BB"})
      .Checked();
  const std::string zero =
      " non ci possono essere numeri oltre ai due centrali, verifica la lettera O con lo zero ";
  const std::string letters = " le lettere valide sono da AA a XX, non validi Y e Z";
  ASSERT_EQ(desk.manager.boxes.size(), 3U);
  EXPECT_EQ(
      desk.manager.boxes[1].lines,
      (Names{" il locatore JN44BY del QSO n° 1 di I1QXX è SBAGLIATO  controlla numeri e lettere"_a,
             zero, letters}));
  EXPECT_EQ(desk.manager.boxes[2].lines[0],
            " il locatore JS30AA del QSO n° 2 di DL1QAA è SBAGLIATO  controlla numeri e lettere"_a);
  desk.manager.boxes.clear();
  desk.form.Lista_dubbi.Select(0);
  const Box told = {
      .lines =
          {" il locatore JN44BY è SBAGLIATO  controlla numeri e lettere"_a, zero, letters,
           " Verifica se il qso è stato decurtato in inserimento log , in questo caso consideralo qso valido perchè già tolti i punti del qso"_a,
           Join(" con questo locatore errato non si potranno fare delle ricerche di altri call su ",
                "questo locatore inesistente")},
      .title = " LOCATORE ERRATO"};
  EXPECT_EQ(desk.manager.boxes, std::vector{told});
}

TEST(LocatorCheck, AnItalianPortableIsADoubtWhateverTheOthersSay) {
  LocatorDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}, {"IK4QZZ/P", "JN54AA"}, {"DL1QAA/P", "JO30AA"}})
      .Witness("IZ9QBC", {"I1QXX", "JN44BB"})
      .Checked();
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            (Names{" Inizio il controllo ?",
                   " se il call è italiano il '/P' nel trofeo non è ammesso, errore"_a}));
  EXPECT_EQ(desk.Doubts(), (Names{"IK4QZZ/P", "I1QXX"}));
}

TEST(LocatorCheck, AStationThatWorkedItselfIsToldAsAnErrorOfTheCall) {
  LocatorDesk desk;
  desk.Examined({{"IZ9QBC", "JM67AA"}, {"IK2QAA", "JN45AA"}})
      .Witness("IZ9QBC", {"IK2QAA", "JN45AA"})
      .Checked();
  EXPECT_EQ(desk.form.Lista_dubbi.items.rows(), Names{"IK2QAA      IK2QAA      JN45AA 100  2"});
  desk.form.Lista_dubbi.Select(0);
  EXPECT_EQ(desk.form.infoloc.caption, "Locator OK");
  EXPECT_EQ(desk.manager.boxes.back(), Told(" Il call IK2QAA è uguale al dichiarante. |    "
                                            "| Non è possibile inserire SE STESSI nel log. "
                                            "| Il qso sarà considerato ERROR CALL. "_a));
}

TEST(LocatorCheck, TellsWhatTheStationItselfDeclares) {
  const std::string arrived = "Locator in log arrivato : ";
  const std::string declared = "Locator dichiarato da : ";
  const struct {
    std::vector<std::pair<const char*, const char*>> participants;  // call, and locator or category
    std::string caption;
  } cases[] = {{{{"I1QXX", "JN44BA"}}, arrived + "I1QXX       JN44BA"},
               {{{"I1QXX/P", "JN44BA"}}, declared + "I1QXX/P     JN44BA"},
               {{{"9A/I1QXX", "JN44BA"}}, declared + "9A/I1QXX    JN44BA"},
               {{{"I1QXX", "JN44BA"}, {"I1QXX/P", "JN44BD"}}, arrived + "I1QXX       JN44BA"},
               {{{"I1QXX/P", "JN44BD"}, {"I1QXX", "JN44BA"}}, arrived + "I1QXX       JN44BA"},
               {{{"I1QXX", "3IT"}}, ""},
               {{{"I1QXXA", "JN44BA"}}, ""},
               {{}, ""}};
  for (const auto& [participants, caption] : cases) {
    LocatorDesk desk;
    desk.OneDoubt();
    for (const auto& [call, tells] : participants) {
      const bool other_category = std::string_view(tells) == "3IT";
      desk.Declared(call, other_category ? "JN44BA" : tells, other_category ? "3IT" : "2IT");
    }
    desk.Checked();
    desk.form.Lista_dubbi.Select(0);
    EXPECT_EQ(desk.form.Locatore_in_log_arrivato.caption, caption);
  }
}

TEST(LocatorCheck, WithoutADoubtTheQsosAreComparedWithWhatTheStationsDeclare) {
  LocatorDesk desk;
  desk.Examined({{"IZ9QBC", "JM67AB"}, {"DL1QAA", "JO30AA"}})
      .Witness("IZ9QBC", {"DL1QAA", "JO30AA"})
      .Checked();
  EXPECT_EQ(desk.Doubts(), Names{"IZ9QBC"});
  EXPECT_TRUE(desk.form.err_loc_log.visible);
  desk.form.Lista_dubbi.Select(0);
  EXPECT_TRUE(desk.form.err_loc_log.visible);
  EXPECT_EQ(desk.form.log_uguali.caption, "0");
  EXPECT_EQ(desk.form.log_diverso.caption, "1");
  EXPECT_EQ(desk.form.infoloc.caption, " DUBBIO ");
  EXPECT_EQ(desk.form.conferma_errore.colour, colour::kYellow);
  EXPECT_EQ(desk.form.Locatore_in_log_arrivato.caption,
            "Locator in log arrivato : IZ9QBC      JM67AA");
  desk.form.QSO_ok.Click();
  EXPECT_FALSE(desk.form.err_loc_log.visible);

  LocatorDesk with_a_doubt;
  with_a_doubt.Examined({{"IZ9QBC", "JM67AB"}, {"DL1QAA", "JO30AA"}})
      .Witness("IZ9QBC", {"DL1QAA", "JO30AB"})
      .Checked();
  EXPECT_EQ(with_a_doubt.Doubts(), Names{"DL1QAA"});
  EXPECT_FALSE(with_a_doubt.form.err_loc_log.visible);
}

TEST(LocatorCheck, TheComparisonTakesSevenHundredParticipants) {
  LocatorDesk desk;
  desk.Examined({{"IZ9QBC", "JM67AA"}}).Declared("IZ9QBC", "JM67AB");
  for (int i = 2; i < 700; ++i) {
    desk.Declared(Join("I1", i), "JN44BB");
  }
  desk.store.Append(StoreFile::kPartecipanti, kCategory, "a short line\r\n");
  desk.Checked();
  EXPECT_EQ(desk.Doubts(), Names{"IZ9QBC"});
  desk.form.exit.Click();
  desk.Declared("I1QZZ", "JN44BB").Checked();
  EXPECT_EQ(desk.manager.boxes.back(), DeskFailure(9, 20));
  EXPECT_EQ(desk.Doubts(), Names{});
  EXPECT_FALSE(desk.form.unici.enabled);
}

TEST(LocatorCheck, WithoutTheParticipantsTheCheckGoesOn) {
  LocatorDesk desk;
  desk.Examined({{"IZ9QBC", "JM67AB"}}).Loaded();
  desk.files.Remove(desk.session.workspace.store_file(StoreFile::kPartecipanti));
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.manager.boxes.back(), Told(" Il file dei partecipanti è assente. Attenzione "_a));
  EXPECT_TRUE(desk.form.unici.enabled);
}

TEST(LocatorCheck, ALogWithoutADoubtIsToldWhereMessagesAreOn) {
  const std::string told = "   LOG SENZA LOCATORI ERRATI ";
  for (const bool messages : {true, false}) {
    for (const bool doubt : {true, false}) {
      LocatorDesk desk;
      desk.Examined({{"I1QXX", "JN44BC"}})
          .Witness("IZ9QBC", {"I1QXX", doubt ? "JN44BB" : "JN44BC"})
          .Loaded();
      desk.form.vis_mess.checked = messages;
      desk.Started("IK2QAA");
      EXPECT_EQ(desk.manager.boxes.back() == Told(told), messages && !doubt);
      EXPECT_EQ(desk.form.unici.enabled, !doubt);
      EXPECT_EQ(desk.form.N_dubbi.caption, doubt ? "1" : "0");
    }
  }
}

}  // namespace
}  // namespace velmar::test
