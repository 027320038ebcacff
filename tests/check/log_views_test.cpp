// The log under examination beside another one, and the search for a similar call in it.

#include <gtest/gtest.h>

#include "check/unique_desk.h"

namespace velmar::test {
namespace {

/// A row of the log under examination, of the other log, and of that with what a test says.
std::string Own(std::size_t minute, const FiledQso& qso) {
  return Join("IK2QAA   ", UniqueDesk::QsoRow(minute, qso));
}

std::string Other(std::string_view call, std::size_t minute, const FiledQso& qso) {
  return Join(call, " ", UniqueDesk::QsoRow(minute, qso));
}

std::string Graded(std::size_t minute, const FiledQso& qso, std::string_view text) {
  return Join("IZ9QBC 140", minute, ";", UniqueDesk::QsoRow(minute, qso), "2IT", text);
}

const FiledQso kOfOther{"IZ9QBC", "JM67AA", "832"};
const FiledQso kOfThird{"IV3QYY", "JN66AA", "1234"};

/// A log with two stations that lack it; what IZ9QBC has instead is told.
UniqueDesk& Lacking(UniqueDesk& desk, std::vector<FiledQso> instead) {
  return desk.Examined({kOfOther, kOfThird}).Log("IZ9QBC", "JM67AA", std::move(instead));
}

TEST(LogViews, BothLogsAreShownWithEachOther) {
  UniqueDesk desk;
  Lacking(desk, {{"OE5QZZ", "JN78AA"}, {"IK2QAA", "JN45AA", "832"}}).Searched();
  CheckForm& form = desk.form;
  ASSERT_EQ(desk.Open(), Names{"IV3QYY 2"});
  form.log_callda_cercare.caption = "cerca  sul log di IZ9QBC";
  form.log_callda_cercare.Click();
  EXPECT_TRUE(form.Frame_log.visible);
  EXPECT_EQ(form.Label16.caption, " Log del call in esame : IK2QAA");
  EXPECT_EQ(form.List_log_call_esame.items.rows(),
            (Names{Own(0, kOfOther), " il call dichiarato da IK2QAA si trova nel log di IZ9QBC",
                   " eventuale errore è da attribuire a : IK2QAA"_a}));
  EXPECT_EQ(form.List_log_corrispondente.items.rows(),
            (Names{Other("IZ9QBC", 1, {"IK2QAA", "JN45AA", "832"}),
                   " nel log diIZ9QBC c'è il qso dichiarato da IK2QAA"_a}));
  form.List_log_call_esame.Select(1);  // a text is no QSO
  EXPECT_EQ(form.List_log_corrispondente.items.rows().size(), 2U);
  form.chiudi.Click();
  EXPECT_FALSE(form.Frame_log.visible);
}

TEST(LogViews, WhatTheOtherLogLacksIsTold) {
  const std::string rule =
      " -------------------------------------------------------------------------";
  UniqueDesk desk;
  Lacking(desk, {{"OE5QZZ", "JN78AA"}}).Checked();
  desk.form.log_callda_cercare.caption = "cerca  sul log di IZ9QBC";
  desk.form.log_callda_cercare.Click();
  const Names arrived = desk.form.List_log_corrispondente.items.rows();
  ASSERT_EQ(arrived.size(), 3U);
  EXPECT_EQ(arrived[0], rule);
  EXPECT_EQ(arrived[1], " il log diIZ9QBC è pervenuto, "_a);
  EXPECT_EQ(desk.form.List_log_call_esame.items.rows(), Names{Own(0, kOfOther)});
  desk.form.log_callda_cercare.caption = "cerca  sul log di IV3QYY";
  desk.form.log_callda_cercare.Click();
  EXPECT_EQ(desk.form.List_log_corrispondente.items.rows(),
            (Names{rule, " il log diIV3QYY NON è pervenuto"_a}));
  desk.form.log_callda_cercare.caption = "cerca  sul log di IK2QAA";
  desk.form.log_callda_cercare.Click();
  EXPECT_EQ(desk.form.List_log_call_esame.items.rows(),
            (Names{Own(0, kOfOther), Own(1, kOfThird)}));
  EXPECT_EQ(desk.form.List_log_corrispondente.items.rows(), Names{});
}

TEST(LogViews, AClickedQsoShowsTheLogOfItsStation) {
  UniqueDesk desk;
  Lacking(desk, {{"OE5QZZ", "JN78AA"}, {"DL1QAA", "JO30AA"}})
      .Examined({{"IN3QZZ_P", "JN56AA"}})
      .Log("IN3QZZ/P", "JN56AA", {{"OE5QZZ", "JN78AA"}})
      .Checked();
  CheckForm& form = desk.form;
  form.log_call.Click();
  ASSERT_EQ(form.List_log_call_esame.items.rows().size(), 3U);
  form.List_log_call_esame.Select(0);
  EXPECT_EQ(
      form.List_log_corrispondente.items.rows(),
      (Names{Other("IZ9QBC", 0, {"OE5QZZ", "JN78AA"}), Other("IZ9QBC", 1, {"DL1QAA", "JO30AA"})}));
  EXPECT_EQ(form.cerca_qso2.caption, "Visualizza solo i qso di IK2QAA nel log di IZ9QBC");
  form.List_log_call_esame.Select(1);
  EXPECT_EQ(form.List_log_corrispondente.items.rows(),
            (Names{"  LOG non VISUALIZZABILE in questa finestra",
                   " il log di IV3QYY  partecipa in altra categoria",
                   "                 (oppure non è pervenuto)"_a}));
  form.List_log_call_esame.Select(2);
  EXPECT_EQ(form.List_log_corrispondente.items.rows(),
            Names{Other("IN3QZZ/P", 0, {"OE5QZZ", "JN78AA"})});
}

// What the other station has in place of IK2QAA, how it is graded, and what is said of it.
TEST(LogViews, ASimilarCallIsGradedAndRemarkedOn) {
  const Box one = Told("Probabile errore di  IZ9QBC  premi  NO ERROR DI IK2QAA");
  const Box two = Told(
      "Attenzione, il call qui elencato questo potrebbe essere un call valido."
      "|Il call IZ9QBC sopra evidenziato è un probabile NOT IN LOG."_a);
  const Box swapped = Told(
      "Attenzione, il call qui elencato potrebbe essere un call valido,"
      "|se non sono state invertire le lettere del call. "
      "|Verifica con l' orario se potrebbe essere lo stesso qso.");
  const std::string similar = "            Call più simile "_a;
  const std::string no_error = "NO ERROR di IK2QAA";
  const struct {
    Names calls;
    Names texts;  // the number of the row that each belongs to, and the text behind it
    std::string label;
    std::vector<Box> boxes;
    std::string caption;
  } cases[] = {
      {{"IK3QAA"}, {"0 (1 err.) IK_QAA", "0 (1 err.) IK_QAA"}, similar + "5", {one}, no_error},
      {{"IK2QAB"}, {"0 (1 err.) IK2QA_"}, similar + "3", {one}, no_error},
      {{"IK2XXA", "IK2QBC"}, {"1 (2 err.) IK2Q__"}, similar + "4", {two}, "NO error"},
      {{"IK2AQA"}, {"0 (2 err.) IK2__A"}, "", {swapped}, no_error},
      {{"IK2AQA", "IK2QBC", "IK2QAB", "OE5QZZ"},
       {"0 (2 err.) IK2__A", "1 (2 err.) IK2Q__", "2 (1 err.) IK2QA_"},
       similar + "3",
       {one, two, swapped},
       no_error},
      {{"OE5QZZ", "IK2X", "IK2AQ"}, {"1 (1 err.) IK2X"}, similar + "6", {one}, no_error},
      {{"IK2X", "IK2QBC"}, {"1 (2 err.) IK2Q__"}, similar + "4", {two}, "NO error"},
      {{"K2QAA"}, {"0 (1 err.) _K2QAA"}, similar + "5", {one}, no_error},
      {{"IK2QBC", "IK2QAA/P", "IK2QAB"},
       {"0 (2 err.) IK2Q__", "1 (0 err.) IK2QAA"},
       "  Errori       Call Corretto 0",
       {two},
       "NO error"}};
  for (const auto& [calls, texts, label, boxes, caption] : cases) {
    UniqueDesk desk;
    std::vector<FiledQso> instead;
    for (const std::string& call : calls) {
      instead.push_back({call, "JN45AB"});
    }
    Lacking(desk, instead).Declared("IV3QYY", "JN66AA").Searched();
    ASSERT_EQ(desk.form.Lista_simili.ChosenRow(), "IZ9QBC      832   NOT in log") << calls[0];
    desk.form.vedi_log2.Click();
    Names rows;
    for (const std::string& text : texts) {
      const std::size_t row = text[0] - '0';
      rows.push_back(Graded(row, instead[row], text.substr(1)));
    }
    EXPECT_EQ(desk.form.List_log_corrispondente.items.rows(), rows) << calls[0];
    EXPECT_EQ(desk.form.Label_simile.caption, label) << calls[0];
    EXPECT_TRUE(desk.form.Label_info_errati.visible);
    EXPECT_EQ(desk.form.Label17.caption, " log di:IZ9QBC   non c'è IK2QAA"_a);
    EXPECT_EQ(desk.form.cerca_qso2.caption, "Cerca il qso di IK2QAA nel log di IZ9QBC");
    EXPECT_EQ(desk.form.List_log_call_esame.selection, 0);
    EXPECT_EQ(desk.manager.boxes, boxes) << calls[0];
    EXPECT_EQ(desk.form.no_errore.caption, caption) << calls[0];
  }
}

TEST(LogViews, ALogWithoutAnythingSimilarIsShownWhole) {
  UniqueDesk desk;
  Lacking(desk, {{"OE5QZZ", "JN78AA"}}).Declared("IV3QYY", "JN66AA").Searched();
  CheckForm& form = desk.form;
  ASSERT_EQ(form.Lista_simili.items.rows().size(), 2U);
  form.vedi_log2.Click();
  EXPECT_EQ(
      form.List_log_corrispondente.items.rows(),
      (Names{" Il qso NON esiste sul log di IZ9QBC", Other("IZ9QBC", 0, {"OE5QZZ", "JN78AA"})}));
  EXPECT_FALSE(form.Label_info_errati.visible);
  EXPECT_EQ(form.Label_simile.caption, "");
  EXPECT_EQ(form.no_errore.caption, "NO error");
  form.Lista_simili.Select(1);
  form.vedi_log2.Click();
  EXPECT_EQ(form.List_log_call_esame.selection, 1);
  EXPECT_EQ(form.List_log_corrispondente.items.rows().front(),
            "  LOG non VISUALIZZABILE in questa finestra");
  EXPECT_EQ(desk.manager.boxes, std::vector<Box>{});
}

TEST(LogViews, WithoutTheQsoInTheLogNothingIsSearched) {
  const Names problem{"  Il qso NON esiste sul log di IK2QAA", "",
                      "      questo è un problema del programma."_a, ""};
  UniqueDesk desk;
  Lacking(desk, {{"IK2QAB", "JN45AB"}}).Searched();
  desk.workspace.With(
      "Trofeo_Velmar/2IT/2ITsomma_qso.qso",
      Join(SommaQsoRow(UniqueDesk::QsoRow(0, kOfOther), "2IT", "JN45AA", "IK2QAA"), "\r\n"));
  ASSERT_EQ(desk.Open(), Names{"IV3QYY 2"});
  desk.form.vedi_log2.Click();
  EXPECT_EQ(desk.form.List_log_corrispondente.items.rows(), problem);
  desk.form.cerca_qso2.Click();  // there is no QSO to look for, and not another one's either
  EXPECT_EQ(desk.form.List_log_corrispondente.items.rows(), problem);
  desk.form.List_log_call_esame.Select(0);
  desk.form.cerca_qso2.Click();
  EXPECT_EQ(desk.form.Label17.caption, " log di:IZ9QBC   non c'è IK2QAA"_a);
}

TEST(LogViews, WithoutASelectionTheManagerIsToldToMakeOne) {
  UniqueDesk desk;
  Lacking(desk, {{"IK2QAA", "JN45AA"}}).Declared("IV3QYY", "JN66AA").Checked();
  for (Button* button : {&desk.form.vedi_log2, &desk.form.cerca_qso}) {
    button->Click();
    EXPECT_EQ(desk.manager.boxes,
              std::vector{(Box{.lines = {" Seleziona un qso "}, .title = "Visualizza LOG"})});
    desk.manager.boxes.clear();
    EXPECT_FALSE(desk.form.Frame_log.visible);
  }
  desk.form.cerca_primo_qso.Click();
  EXPECT_EQ(desk.manager.boxes, std::vector<Box>{});
}

TEST(LogViews, TheLogIsCutToTheQsosWithTheStation) {
  UniqueDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}, kOfOther, {"I1QXX", "JN44BC"}})
      .Log("IZ9QBC", "JM67AA", {{"IK2QAA", "JN45AA"}})
      .Searched();
  CheckForm& form = desk.form;
  ASSERT_EQ(desk.Open(), (Names{"I1QXX 1", "I1QXX 3"}));
  form.cerca_qso.Click();
  EXPECT_EQ(form.List_log_call_esame.items.rows().size(), 3U);
  EXPECT_EQ(form.List_log_call_esame.selection, 0);
  form.cerca_primo_qso.Click();
  EXPECT_EQ(form.List_log_call_esame.items.rows(),
            (Names{Own(0, {"I1QXX", "JN44BC"}), Own(2, {"I1QXX", "JN44BC"})}));
  form.List_log_call_esame.Fill({Own(1, kOfOther)});
  form.cerca_primo_qso.Click();
  EXPECT_EQ(desk.manager.TakeFirstLines(), Names{" NON risultano altri qso in log con I1QXX"});
  EXPECT_EQ(form.List_log_call_esame.items.rows().size(), 1U);
  form.List_log_call_esame.Fill(Names(2'001, Own(0, {"I1QXX", "JN44BC"})));
  form.cerca_primo_qso.Click();
  EXPECT_EQ(form.List_log_call_esame.items.rows().size(), 2'000U);
}

// A similar call is no item: the unique call that it belongs to is.
TEST(LogViews, ASelectedSimilarCallDoesNotStandForItsOwner) {
  UniqueDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}}).Log("IZ9QBC", "JM67AA", {{"I1QXY", "JN44BC"}}).Searched();
  ASSERT_EQ(desk.form.Lista_simili.items.rows().size(), 1U);
  desk.form.Lista_simili.Select(0);
  desk.form.vedi_log2.Click();
  EXPECT_EQ(desk.form.cerca_qso2.caption, "Cerca il qso di IK2QAA nel log di I1QXX");
}

TEST(LogViews, ALongCallIsFoundByItsFirstTwelveCharacters) {
  UniqueDesk desk;
  desk.Examined({{"IK2ABCDEFGHJKL", "JN44BC"}, {"I1A", "JN44BC"}, {"9A/I1QX/P", "JN44BC"}})
      .Searched();
  ASSERT_EQ(desk.Open(), (Names{"IK2ABCDEFGHJ 1", "I1A 2", "9A/I1QX/P 3"}));
  for (int row = 0; row < 3; ++row) {
    desk.form.Call_unici.Select(row);
    desk.form.vedi_log2.Click();
    EXPECT_EQ(desk.form.List_log_call_esame.selection, row);
  }
}

TEST(LogViews, RowsCutShortAreReadAsFarAsTheyGo) {
  UniqueDesk desk;
  Lacking(desk, {{"IK2QAB", "JN45AB"}})
      .SommaRow("")
      .SommaRow("250121;1400")
      .SommaRow("IZ9QBC      ")
      .SommaRow("250121;2ITJM67AAIZ9QBC      ")
      .SommaRow("2ITJN45AAIK2QAA      ")
      .Declared("IV3QYY", "JN66AA")
      .Searched();
  desk.form.vedi_log2.Click();
  EXPECT_EQ(desk.form.List_log_corrispondente.items.rows(),
            Names{Graded(0, {"IK2QAB", "JN45AB"}, " (1 err.) IK2QA_")});
  EXPECT_EQ(desk.form.List_log_call_esame.items.rows(),
            (Names{Own(0, kOfOther), Own(1, kOfThird), "IK2QAA   "}));
  desk.form.List_log_call_esame.Select(2);
  desk.form.List_log_call_esame.Select(0);
  EXPECT_EQ(desk.form.List_log_corrispondente.items.rows(),
            (Names{Other("IZ9QBC", 0, {"IK2QAB", "JN45AB"}), "IZ9QBC ", "IZ9QBC 250121;"}));
  desk.form.log_callda_cercare.caption = "cerca  sul log di IZ9QBC";
  desk.form.log_callda_cercare.Click();
  desk.files.Remove(desk.session.workspace.store_file(StoreFile::kSommaQso));
  desk.manager.boxes.clear();
  desk.form.vedi_log2.Click();
  EXPECT_EQ(desk.manager.boxes, std::vector{DeskFailure(53, 113)});
}

}  // namespace
}  // namespace velmar::test
