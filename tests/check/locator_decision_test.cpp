// What the manager decides on a doubt, and how the desk goes on behind it.

#include <gtest/gtest.h>

#include "check/locator_desk.h"

namespace velmar::test {
namespace {

const std::string kQuestion = " Scrivi il locatore esatto o conferma locatore";

TEST(LocatorDecision, WithoutASelectedDoubtNothingHappens) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  const auto before = desk.workspace.Everything();
  desk.manager.boxes.clear();
  for (Button* button : {&desk.form.conferma_errore, &desk.form.errore_call, &desk.form.not_inlog,
                         &desk.form.QSO_ok}) {
    button->Click();
  }
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_TRUE(desk.manager.asked.empty());
  EXPECT_EQ(desk.workspace.Everything(), before);
  EXPECT_EQ(desk.Doubts(), Names{"I1QXX"});
}

TEST(LocatorDecision, TheSuggestionComesFromTheStationOrFromTwoWhoAgree) {
  const struct {
    const char* declared;  // "" for nobody
    std::vector<std::string> heard;
    const char *title, *suggestion;
  } cases[] = {{"JN44BA", {"JN44BB", "JN44BB"}, "Errore locatore", "JN44BA"},
               {"", {"JN44BD", "JN44BB", "JN44BB"}, "Error locator", "JN44BB"},
               {"", {"JN44BD", "JN44BB"}, "Error locator", ""}};
  for (const auto& [declared, heard, title, suggestion] : cases) {
    LocatorDesk desk;
    desk.Examined({{"I1QXX", "JN44BC"}});
    for (std::size_t i = 0; i < heard.size(); ++i) {
      desk.Witness(Join("IZ9QB", i), {"I1QXX", heard[i]});
    }
    if (*declared != '\0') {
      desk.Declared("I1QXX", declared);
    }
    desk.Checked();
    desk.manager.inputs = {"JN44BX"};
    desk.Decide(desk.form.conferma_errore);
    EXPECT_EQ(desk.manager.asked, (std::vector<InputBox>{{title, {kQuestion}, suggestion}}));
    EXPECT_EQ(desk.Decisions("IK2QAA"),
              Names{"  1    I1QXX       001    errore locator    JN44BC      JN44BX     -100 "});
  }
}

TEST(LocatorDecision, ALocatorOfAnotherLengthIsAskedForAgain) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  desk.manager.inputs = {"JN44", "JN44BBX", "JN44BD"};
  desk.Decide(desk.form.conferma_errore);
  ASSERT_EQ(desk.manager.asked.size(), 3U);
  EXPECT_EQ(desk.manager.asked[0].lines, Names{kQuestion});
  EXPECT_EQ(desk.manager.asked[1].lines, Names{" Scrivi il LOCATORE esatto 2"});
  EXPECT_EQ(desk.manager.asked[2].lines, Names{" Scrivi il LOCATORE esatto 2"});
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    I1QXX       002    errore locator    JN44BC      JN44BD     -107 "});
}

TEST(LocatorDecision, AStarAnEmptyAnswerAndCancelLeaveAllAsItWas) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  const auto before = desk.workspace.Everything();
  for (const std::optional<std::string>& answer :
       {std::optional<std::string>("*"), std::optional<std::string>(""),
        std::optional<std::string>()}) {
    for (Button* button : {&desk.form.conferma_errore, &desk.form.errore_call}) {
      desk.manager.inputs = {answer};
      desk.Decide(*button);
    }
    desk.manager.inputs = {"JN44", answer};
    desk.Decide(desk.form.conferma_errore);
  }
  EXPECT_EQ(desk.workspace.Everything(), before);
  EXPECT_EQ(desk.Doubts(), Names{"I1QXX"});
  EXPECT_EQ(desk.Score(), "0 0 5000");
}

TEST(LocatorDecision, ALocatorBelievedWrongIsAcceptedBehindAQuestion) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  const Box question = {.lines = {" Vuoi considerare valido il qso ?"},
                        .icon = Icon::kQuestion,
                        .buttons = Buttons::kYesNo};
  desk.manager.replies = {Reply::kNo};
  desk.Decide(desk.form.QSO_ok);
  EXPECT_EQ(desk.manager.boxes.back(), question);
  EXPECT_EQ(desk.Doubts(), Names{"I1QXX"});
  desk.manager.replies = {Reply::kYes};
  desk.Decide(desk.form.QSO_ok);
  EXPECT_EQ(desk.Doubts(), Names{});
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
  EXPECT_EQ(desk.Score(), "0 0 5000");
}

// Who has begun to penalise it and thought better of it is not asked again.
TEST(LocatorDecision, ThePenaltyTakesTheMarkOfAWrongLocatorAway) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  desk.manager.inputs = {"*"};
  desk.Decide(desk.form.conferma_errore);
  desk.form.QSO_ok.Click();
  EXPECT_EQ(desk.Doubts(), Names{});
}

TEST(LocatorDecision, AQsoThatIsNotInTheOtherLogHasTheFirstLocatorOfTheOthers) {
  LocatorDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}, {"IK2QAA", "JN45AA", "1"}})
      .Witness("IZ9QBC", {"I1QXX", "JN44BD"})
      .Witness("IV3QYY", {"I1QXX", "JN44BB"})
      .Checked();
  desk.Decide(desk.form.not_inlog);
  desk.Decide(desk.form.not_inlog);
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            (Names{"  1    I1QXX       001    NOT IN LOG        JN44BD                 -100 ",
                   "  2    IK2QAA      002    NOT IN LOG                               -1   "}));
  EXPECT_TRUE(desk.manager.asked.empty());
}

TEST(LocatorDecision, TheCorrectCallIsChosenKnownOrAskedFor) {
  LocatorDesk chosen;
  chosen.OneDoubt().Checked();
  chosen.form.Lista_dubbi.Select(0);
  chosen.form.Lista_locatori.Select(0);
  chosen.form.errore_call.Click();
  EXPECT_EQ(chosen.Decisions("IK2QAA"),
            Names{"  1    I1QXX       002    errore call       I1QXX       I1QXX      -107 "});

  LocatorDesk own;
  own.Examined({{"IK2QAA", "JN45AA", "1"}}).Checked();
  own.Decide(own.form.errore_call);
  EXPECT_EQ(own.Decisions("IK2QAA"),
            Names{"  1    IK2QAA      001    errore call       IK2QAA      IK2QAA     -1   "});
  EXPECT_TRUE(own.manager.asked.empty());

  LocatorDesk asked;
  asked.OneDoubt().Checked();
  asked.manager.inputs = {"IV3/IK2QAB/P"};
  asked.Decide(asked.form.errore_call);
  EXPECT_EQ(
      asked.manager.asked,
      (std::vector<InputBox>{{"Error call", {" Scrivi il CALL esatto / Corretto "}, "I1QXX"}}));
  EXPECT_EQ(asked.Decisions("IK2QAA"),
            Names{"  1    I1QXX       002    errore call       I1QXX       IV3/IK2QAB/-107 "});
}

// The call is taken as it stands for the station itself alone, not for the doubt behind it.
TEST(LocatorDecision, TheOwnCallIsForgottenWithItsDoubt) {
  LocatorDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}, {"IK2QAA", "JN45AA"}})
      .Witness("IZ9QBC", {"I1QXX", "JN44BB"})
      .Checked();
  desk.form.Lista_dubbi.Select(1);
  desk.form.errore_call.Click();
  ASSERT_EQ(desk.Doubts(), Names{"I1QXX"});
  desk.manager.inputs = {"I1QXZ"};
  desk.form.errore_call.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA").at(1),
            "  2    I1QXX       001    errore call       I1QXX       I1QXZ      -100 ");
}

// A locator of four characters moves the points to the left, and the columns stay where they are.
TEST(LocatorDecision, ThePointsAreThoseOfTheirColumns) {
  LocatorDesk desk;
  desk.Examined({{"I1QXX", "JN44", "123"}, {"DL1QAA", "JO30AA", "12345"}})
      .Witness("IZ9QBC", {"I1QXX", "JN44BB"})
      .Witness("IV3QYY", {"DL1QAA", "JO30AB"})
      .Checked();
  desk.Decide(desk.form.not_inlog);
  desk.Decide(desk.form.not_inlog);
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            (Names{"  1    I1QXX       001    NOT IN LOG        JN44BB                 -23  ",
                   "  2    DL1QAA      002    NOT IN LOG        JO30AB                 -1234"}));
  EXPECT_EQ(desk.Score(), "2 1257 3743");
}

TEST(LocatorDecision, TheNextDoubtIsShownAndTheLastOneOpensTheUniqueCalls) {
  LocatorDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}, {"DL1QAA", "JO30AA"}, {"OK1QAA", "JO70AA"}})
      .Witness("IZ9QBC", {"I1QXX", "JN44BB"})
      .Witness("IV3QYY", {"DL1QAA", "JO30AB"})
      .Witness("S57QAA", {"OK1QAA", "JO70AB"})
      .Checked();
  desk.form.Lista_dubbi.Select(1);
  desk.form.QSO_ok.Click();
  EXPECT_EQ(desk.Doubts(), (Names{"I1QXX", "OK1QAA"}));
  EXPECT_EQ(desk.form.N_dubbi.caption, "2");
  EXPECT_EQ(desk.form.SEARC_loc.caption, "Mappa JO70AA");
  desk.form.not_inlog.Click();
  EXPECT_EQ(desk.form.SEARC_loc.caption, "Mappa JN44BC") << "the first one behind the last";
  EXPECT_FALSE(desk.form.unici.enabled);
  desk.form.QSO_ok.Click();
  EXPECT_EQ(desk.form.N_dubbi.caption, "0");
  EXPECT_TRUE(desk.form.unici.enabled);
  EXPECT_EQ(desk.form.unici.colour, colour::kGreen);
  EXPECT_EQ(desk.form.infoloc.caption, "");
  EXPECT_TRUE(desk.form.Lista_locatori.items.rows().empty());
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    OK1QAA      003    NOT IN LOG        JO70AB                 -100 "});
}

TEST(LocatorDecision, GoodLocatorsPassByThemselvesWhereTheManagerWantsItSo) {
  LocatorDesk desk;
  desk.Examined(
      {{"I1QXX", "JN44BC"}, {"DL1QAA", "JO30AA"}, {"OK1QAA", "JO70AA"}, {"9A1QAA", "JN75AA"}});
  for (const auto& [call, good, bad] : {std::array{"I1QXX", "JN44BC", "JN44BB"},
                                        {"DL1QAA", "JO30AA", "JO30AB"},
                                        {"OK1QAA", "JO70AB", "JO70AB"},
                                        {"9A1QAA", "JN75AA", "JN75AB"}}) {
    desk.Witness(Join("IZ9Q", Left(call, 2)), {call, good})
        .Witness(Join("IV3Q", Left(call, 2)), {call, bad});
  }
  desk.Checked();
  ASSERT_EQ(desk.Doubts().size(), 4U);
  desk.form.NOT_ERROR.Click();
  desk.form.Lista_dubbi.Select(0);
  EXPECT_EQ(desk.Doubts(), (Names{"OK1QAA", "9A1QAA"}));
  EXPECT_EQ(desk.form.N_dubbi.caption, "2");
  EXPECT_EQ(desk.form.SEARC_loc.caption, "Mappa JO70AA");
  EXPECT_FALSE(desk.form.unici.enabled);
  desk.form.not_inlog.Click();
  EXPECT_EQ(desk.Doubts(), Names{});
  EXPECT_TRUE(desk.form.unici.enabled);
  EXPECT_EQ(desk.Decisions("IK2QAA").size(), 1U);
}

}  // namespace
}  // namespace velmar::test
