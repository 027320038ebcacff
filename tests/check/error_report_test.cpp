// The error list of the log under examination, and what a penalty does to its score.

#include <gtest/gtest.h>

#include "check/locator_desk.h"

namespace velmar::test {
namespace {

/// Three doubts, which nothing but a click decides: of DL1QAA, I1QXX and OK1QAA.
LocatorDesk& ThreeDoubts(LocatorDesk& desk, long long points = 5000) {
  return desk
      .Examined({{"DL1QAA", "JO30AA", "600"}, {"I1QXX", "JN44BC", "107"}, {"OK1QAA", "JO70AA"}},
                "I1QXX", points)
      .Witness("IZ9QBC", {"I1QXX", "JN44BB"})
      .Witness("IV3QYY", {"DL1QAA", "JO30AB"})
      .Witness("S57QAA", {"OK1QAA", "JO70AB"})
      .Checked();
}

TEST(ErrorReport, APenaltyGoesIntoTheListTheScoreAndTheRow) {
  LocatorDesk desk;
  ThreeDoubts(desk);
  EXPECT_EQ(desk.Score(), "0 0 5000");
  EXPECT_EQ(desk.form.qrb_ufficiale.caption, "5000");
  desk.manager.inputs = {"JO30AB"};
  desk.Decide(desk.form.conferma_errore);
  EXPECT_EQ(desk.Score(), "1 600 4400");
  EXPECT_EQ(desk.form.evidenzia.caption,
            "IK2QAA       JN45AA  250  9 el yagi            100  3    5000    I1QXX      100   "
            "5000      1    600     4400     33.3%    1");
  desk.form.not_inlog.Click();
  EXPECT_EQ(desk.Score(), "2 707 4293");
  EXPECT_EQ(desk.form.evidenzia.caption,
            "IK2QAA       JN45AA  250  9 el yagi            100  3    5000   *I1QXX      100   "
            "5000      2    707     4293     66.6%    1")
      << "the QSO with the DX call";
  desk.manager.inputs = {"OK1QAB"};
  desk.form.errore_call.Click();
  EXPECT_EQ(desk.form.evidenzia.caption,
            "IK2QAA       JN45AA  250  9 el yagi            100  3    5000   *I1QXX      100   "
            "5000      3    807     4193      100%    1");
  EXPECT_EQ(desk.form.qrb_ufficiale.caption, "5000");
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            (Names{"  1    DL1QAA      001    errore locator    JO30AA      JO30AB     -600 ",
                   "  2    I1QXX       002    NOT IN LOG        JN44BB                 -107 ",
                   "  3    OK1QAA      003    errore call       OK1QAA      OK1QAB     -100 "}));
}

TEST(ErrorReport, TheScoreMayFallBelowNothing) {
  LocatorDesk desk;
  ThreeDoubts(desk, 50);
  desk.Decide(desk.form.not_inlog);
  EXPECT_EQ(desk.Score(), "1 600 -550");
  EXPECT_EQ(Mid(desk.form.evidenzia.caption, 82, 33), " 50        1    600    -550      ");
}

// The last digit of a declared score of eight stood where the mark is.
TEST(ErrorReport, TheMarkOfTheDxQsoIsBlankAtFirst) {
  LocatorDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}}, "I1QXX", 12'345'678)
      .Witness("IZ9QBC", {"I1QXX", "JN44BB"})
      .Checked();
  EXPECT_EQ(Mid(desk.form.evidenzia.caption, 58, 13), "1234567 I1QXX");
  desk.Decide(desk.form.not_inlog);
  EXPECT_EQ(Mid(desk.form.evidenzia.caption, 58, 13), "1234567*I1QXX");
}

TEST(ErrorReport, ASecondErrorOfTheSameCallIsRefused) {
  LocatorDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}, {"I1QXX", "JN44BD"}})
      .Witness("IZ9QBC", {"I1QXX", "JN44BB"})
      .Witness("IV3QYY", {"I1QXX", "JN44BB"})
      .Checked();
  desk.Decide(desk.form.not_inlog);
  const auto before = desk.workspace.Everything();
  desk.manager.boxes.clear();
  for (Button* button :
       {&desk.form.conferma_errore, &desk.form.errore_call, &desk.form.not_inlog}) {
    button->Click();
    ASSERT_EQ(desk.manager.boxes.size(), 1U);
    EXPECT_EQ(
        desk.manager.boxes.back(),
        Told(
            " Il call I1QXX        è già presente  sulla lista degli errori |    | SE per lo stesso call sono stati commessi più errori, non è possibile penalizzarlo più di una volta. | Per proseguire considera valido il qso."_a));
    desk.manager.boxes.clear();
  }
  EXPECT_TRUE(desk.manager.asked.empty()) << "the test comes ahead of any question";
  EXPECT_EQ(desk.workspace.Everything(), before);
  EXPECT_EQ(desk.Doubts(), Names{"I1QXX"});
  EXPECT_EQ(desk.Score(), "1 100 4900");
  desk.form.QSO_ok.Click();
  EXPECT_EQ(desk.Doubts(), Names{});
}

TEST(ErrorReport, EachCheckCountsFromOne) {
  LocatorDesk desk;
  ThreeDoubts(desk);
  desk.Decide(desk.form.not_inlog);
  desk.Decide(desk.form.not_inlog);
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.Score(), "0 0 5000");
  desk.form.Lista_dubbi.Select(2);
  desk.form.not_inlog.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    OK1QAA      003    NOT IN LOG        JO70AB                 -100 "});
  EXPECT_EQ(Mid(desk.form.evidenzia.caption, 65, 1), " ");
}

TEST(ErrorReport, AListThatCannotBeReadOrWrittenLeavesAllAsItWas) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  const std::string row = desk.form.evidenzia.caption;
  const std::string path = desk.session.workspace.error_list("2IT", "IK2QAA", "GENNAIO 2025");
  const std::string head = desk.ErrorListOf("IK2QAA");
  const auto refused = [&](int number) {
    desk.manager.boxes.clear();
    desk.Decide(desk.form.not_inlog);
    EXPECT_EQ(desk.manager.boxes, std::vector{DeskFailure(number, 44)});
    EXPECT_EQ(desk.Doubts(), Names{"I1QXX"});
    EXPECT_EQ(desk.Score(), "0 0 5000");
    EXPECT_EQ(desk.form.evidenzia.caption, row);
  };
  desk.files.broken_path = ".err";
  desk.files.number = ErrorNumber::kPermissionDenied;
  refused(70);
  desk.files.broken_path.clear();
  desk.files.break_at_change = desk.files.changes + 1;
  refused(70);
  EXPECT_EQ(desk.ErrorListOf("IK2QAA"), head);
  desk.files.Remove(path);
  refused(53);
  EXPECT_EQ(desk.ErrorListOf("IK2QAA"), "<missing>");
  desk.files.WriteAll(path, head);
  desk.form.not_inlog.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    I1QXX       002    NOT IN LOG        JN44BB                 -107 "});
}

TEST(ErrorReport, ALineThatWasCutKeepsToItself) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  desk.store.AppendToErrorList("IK2QAA", kCategory, "GENNAIO 2025", "  1    DL1QAA   ");
  desk.Decide(desk.form.not_inlog);
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            (Names{"  1    DL1QAA   ",
                   "  1    I1QXX       002    NOT IN LOG        JN44BB                 -107 "}));
}

TEST(ErrorReport, NoDecisionStandsAmongTheLinesOfACutHead) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  const std::string path =
      desk.session.workspace.error_list(kCategory, "IK2QAA", desk.session.category_month);
  desk.files.WriteAll(path, desk.ErrorListOf("IK2QAA").substr(0, 200));
  desk.form.vis_err.Click();
  desk.Decide(desk.form.not_inlog);
  const Names decided{"  1    I1QXX       002    NOT IN LOG        JN44BB                 -107 "};
  EXPECT_EQ(desk.Decisions("IK2QAA"), decided);
  EXPECT_EQ(desk.form.List_errori.items.rows().back(), decided[0]) << "the list in sight grows";
  desk.form.exit.Click();
  desk.Loaded().Started("IK2QAA");
  EXPECT_TRUE(desk.Decisions("IK2QAA").empty()) << "the broken check leaves no trace";
  desk.Decide(desk.form.not_inlog);
  EXPECT_EQ(desk.Decisions("IK2QAA"), decided);
}

TEST(ErrorReport, TheListIsShownAndHiddenAgain) {
  LocatorDesk desk;
  desk.OneDoubt().Checked();
  CheckForm& form = desk.form;
  EXPECT_EQ(form.vis_err.caption + "|" + form.vis_err2.caption, "Vis. err|Vis.Errori");
  for (Button* button : {&form.vis_err, &form.vis_err2}) {
    button->Click();
    EXPECT_TRUE(form.List_errori.visible);
    EXPECT_EQ(form.List_errori.items.rows().size(), 6U);
    EXPECT_EQ(form.List_errori.items.rows().back(),
              "  n     Call     n° qso   Tipo errore       errore     corretto   err qrb"_a);
    EXPECT_EQ(form.vis_err.caption, "Nascondi lista errori");
    EXPECT_EQ(form.vis_err2.caption, "Nascondi lista errori");
    button->Click();
    EXPECT_FALSE(form.List_errori.visible);
    EXPECT_EQ(form.vis_err.caption, "Visualizza errori");
    EXPECT_EQ(form.vis_err2.caption, "Visualizza errori");
  }
  desk.Decide(form.not_inlog);
  form.vis_err.Click();
  EXPECT_EQ(form.List_errori.items.rows().size(), 7U);
  form.List_errori.Click();
  EXPECT_FALSE(form.List_errori.visible);
  EXPECT_EQ(form.vis_err.caption, "Visualizza errori");
  form.vis_err.Click();
  form.exit.Click();
  EXPECT_FALSE(form.List_errori.visible) << "nothing is under examination";
  EXPECT_EQ(form.vis_err.caption, "Visualizza errori");
}

TEST(ErrorReport, TheListIsPrintedLineByLine) {
  LocatorDesk desk;
  desk.OneDoubt().Loaded();
  desk.form.stampa_errori.Click();
  EXPECT_TRUE(desk.printer.printed.empty()) << "no call is under examination";
  desk.Started("IK2QAA");
  desk.Decide(desk.form.not_inlog);
  desk.form.stampa_errori.Click();
  ASSERT_EQ(desk.printer.printed.size(), 1U);
  EXPECT_EQ(desk.printer.printed[0].at(0).lines.size(), 7U);
  EXPECT_EQ(desk.printer.printed[0].at(0).lines.back(),
            "  1    I1QXX       002    NOT IN LOG        JN44BB                 -107 ");
  desk.printer.installed = false;
  desk.form.stampa_errori.Click();
  EXPECT_EQ(desk.printer.printed.size(), 1U);
  EXPECT_EQ(desk.manager.boxes.back(), Told(" Nessuna stampante installata. "));
}

}  // namespace
}  // namespace velmar::test
