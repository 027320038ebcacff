// What the logs of the other stations lack.

#include <gtest/gtest.h>

#include "check/library_split.h"
#include "check/not_in_log_search.h"
#include "check/unique_desk.h"

namespace velmar::test {
namespace {

struct Filed {
  std::string owner;
  std::string call;
  std::string locator = "JN45AA";
  std::string category = "2IT";
};

struct Sent {
  std::string call = "IZ9QBC";
  std::string category = "2IT";
};

/// What is found for a log of `call` in JN45AA with one QSO, of `worked`: item and explanation.
std::string Find(const std::string& worked, const std::vector<Sent>& sent,
                 const std::vector<Filed>& filed, bool hide = false,
                 const std::string& call = "IK2ABC") {
  std::string library = LibreriaRow(call, worked, "JM67AA", "832").value() + "\r\n";
  std::string total;
  for (const Filed& qso : filed) {
    AddLine(library, LibreriaRow(qso.owner, qso.call, qso.locator, "832").value());
    AddLine(total,
            LibreriaTotaleRow(qso.owner, qso.call, qso.locator, qso.category, "832").value());
  }
  std::string participants;
  for (const Sent& log : sent) {
    AddLine(participants, PartecipanteRow(log.call, "JM67AA", log.category));
  }
  const LibrarySplit split = SplitLibrary(library, call);
  const auto lines = SplitLines(participants);
  const auto rows = SplitLines(total);
  const auto hits = FindNotInLog({.log = split.log,
                                  .others = split.others,
                                  .participants = {lines},
                                  .total_library = {rows},
                                  .category = "2IT",
                                  .call = call,
                                  .locator = "JN45AA"},
                                 hide);
  EXPECT_LE(hits.size(), 1U);
  return hits.empty() ? "" : Join(hits[0].item, "|", hits[0].explanation);
}

const std::string kLacking =
    "IZ9QBC      832   NOT in log|Nel log di IZ9QBC  non risulta il qso con IK2ABC.  Visualizza il "
    "log e confronta con l' orario.";

std::string OwnError(const std::string& start, const std::string& written) {
  return Join("IZ9QBC      832   NO errore di questo log.|IZ9QBC    ", start, "a scritto  ",
              written, "  al posto di  IK2ABC   L' errore è di  IZ9QBC      "_a);
}

TEST(NotInLogSearch, OnlyALogOfThisCategoryCanLackAQso) {
  EXPECT_EQ(Find("IZ9QBC", {{}}, {}), kLacking);
  EXPECT_EQ(Find("IZ9QBC", {}, {}), "");
  EXPECT_EQ(Find("IZ9QBC", {{"IZ9QBC", "3IT"}}, {}), "");
  EXPECT_EQ(Find("IZ9QBC", {{"IZ9QBC/P"}}, {}), "");
  EXPECT_EQ(Find("IZ9QBC", {{"XIZ9QBC"}, {"IZ9QBC", "3IT"}}, {}), "");
  EXPECT_EQ(Find("IZ9QBC", {{"IZ9QBC/P"}, {"IZ9QBC"}}, {}), kLacking);
  EXPECT_EQ(Find("IV3QYYABCDEF", {{"IV3QYYABCDEF"}}, {}).substr(0, 16), "IV3QYYABCDEF832 ");
  EXPECT_EQ(Find("I1A", {{"I1A"}}, {}).substr(0, 16), "I1A         832 ");
}

TEST(NotInLogSearch, TheOtherLogHasTheCallOrNot) {
  const struct {
    std::vector<Filed> filed;
    std::string found;
  } cases[] = {{{{"IZ9QBC", "IK2ABC"}}, ""},
               {{{"IZ9QBC", "IK2ABC", "JN44BC"}}, ""},
               {{{"IZ9QBC", "OE5QZZ"}, {"IZ9QBC", "IK2ABC"}}, ""},
               {{{"IZ9QBC/P", "IK2ABC"}}, kLacking},
               {{{"IZ9QBC", "IK2ABD", "JN44BC"}}, kLacking},
               {{{"IZ9QBC", "OE5QZZ"}}, kLacking},
               {{{"IV3QYY", "IK2ABD"}}, kLacking},
               {{{"IZ9QBC", "IK2ABD"}}, OwnError("H", "IK2ABD")},
               {{{"IZ9QBC", "IK2AB"}}, OwnError("H", "IK2AB")},
               {{{"IZ9QBC", "IK2ABC/P"}}, OwnError("h", "IK2ABC/P")},
               {{{"IZ9QBC", "IK2ACB"}}, OwnError("h", "IK2ACB")},
               {{{"IZ9QBC", "CBA2KI"}}, OwnError("h", "CBA2KI")},
               {{{"IZ9QBC", "IK2ACB"}, {"IZ9QBC", "IK2ABD"}}, OwnError("h", "IK2ACB")},
               {{{"IZ9QBC", "OE5QZZ"}, {"IZ9QBC", "IK2ABD"}, {"IZ9QBC", "IK2ACB"}},
                OwnError("H", "IK2ABD")}};
  for (const auto& [filed, found] : cases) {
    EXPECT_EQ(Find("IZ9QBC", {{}}, filed), found) << filed.back().call;
  }
  // In the store under another category it is no proof, but likeness is looked for all the same.
  EXPECT_EQ(Find("IZ9QBC", {{}}, {{"IZ9QBC", "IK2ABC", "JN44BC", "3IT"}}), kLacking);
  EXPECT_EQ(Find("IZ9QBC", {{}}, {{"IZ9QBC", "IK2ABC", "JN45AA", "3IT"}}), OwnError("H", "IK2ABC"));
}

// Only ten characters are tested, nine of them for a gap.
TEST(NotInLogSearch, ALongCallIsNeverMadeOfSwappedLetters) {
  const auto fault = [](const std::string& call, const std::string& written) {
    const std::string found = Find("IZ9QBC", {{}}, {{"IZ9QBC", written}}, false, call);
    return found.substr(0, found.find('|')).substr(18);
  };
  EXPECT_EQ(fault("IK2ABCDEFG", "GFEDCBA2KI"), "NO errore di questo log.");
  EXPECT_EQ(fault("IK2ABCDEFGH", "HGFEDCBA2KI"), "NOT in log");
  EXPECT_EQ(fault("IK2ABCDEFGHJ", "IK2ABCDEXGHJ"), "NO errore di questo log.");
  EXPECT_EQ(fault("IK2ABCDEFGHJ", "IK2ABCDEFXHJ"), "NOT in log");
  EXPECT_EQ(fault("I1A", "I1B"), "NO errore di questo log.");
  EXPECT_EQ(fault("9A/I1A/P", "9A/I1B/P"), "NO errore di questo log.");
}

/// Of three stations with a log, IZ9QBC has miscopied the call and IV3QYY lacks it.
UniqueDesk& TwoLacking(UniqueDesk& desk) {
  return desk
      .Examined({{"IZ9QBC", "JM67AA", "832"}, {"IV3QYY", "JN66AA", "1234"}, {"IN3QZZ", "JN56AA"}},
                "IV3QYY")
      .Log("IZ9QBC", "JM67AA", {{"IK2QAB", "JN45AA", "832"}})
      .Log("IV3QYY", "JN66AA", {{"IN3QZZ", "JN56AA"}})
      .Log("IN3QZZ", "JN56AA", {{"IK2QAA", "JN45AA"}, {"IV3QYY", "JN66AA"}});
}

TEST(NotInLogCheck, FollowsWhereNoCallIsUnique) {
  UniqueDesk desk;
  TwoLacking(desk).Searched();
  CheckForm& form = desk.form;
  EXPECT_EQ(form.Lista_simili.items.rows(),
            (Names{"IZ9QBC      832   NO errore di questo log.", "IV3QYY      1234  NOT in log"}));
  EXPECT_EQ(
      form.lista_notlog.items.rows(),
      (Names{"IZ9QBC    Ha scritto  IK2QAB  al posto di  IK2QAA   L' errore è di  IZ9QBC      "_a,
             "Nel log di IV3QYY  non risulta il qso con IK2QAA.  Visualizza il log e "
             "confronta con l' orario."}));
  EXPECT_EQ(form.Frame_unici.caption, " NOT in LOG  ");
  EXPECT_EQ(form.ric_notinlog.caption, "");
  EXPECT_EQ(form.regola_notlog.caption,
            " ATTENZIONE.    Quando il corrispondente sbaglia a scrivere , E' SEMPRE  un \"NOT IN "
            "LOG\" . ");
  EXPECT_EQ(form.num_unici.caption, "2");
  EXPECT_EQ(form.Lista_simili.selection, 0);
  EXPECT_EQ(form.lista_notlog.selection, 0);
  EXPECT_EQ(form.no_errore.colour, colour::kGreen);
  EXPECT_FALSE(form.NO_in_log.colour);
  form.Lista_simili.Select(1);
  EXPECT_EQ(form.lista_notlog.selection, 1);
  EXPECT_EQ(form.NO_in_log.colour, colour::kGreen);
  EXPECT_FALSE(form.no_errore.colour);
  EXPECT_FALSE(form.aggiorna_punt_class.enabled);
  EXPECT_EQ(form.passi[4]->colour, colour::kYellow);
}

TEST(NotInLogCheck, ThePenaltyIsTheQsoAndTheLastDecisionLeadsOn) {
  UniqueDesk desk;
  TwoLacking(desk).Searched();
  CheckForm& form = desk.form;
  form.Lista_simili.Select(1);
  form.NO_in_log.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    IV3QYY             NOT in LOG                          1234"});
  EXPECT_EQ(desk.Score(), "1 1234 3766");
  EXPECT_EQ(Mid(form.evidenzia.caption, 65, 1), "*");
  EXPECT_EQ(form.num_unici.caption, "1");
  EXPECT_EQ(form.Lista_simili.selection, 0);
  EXPECT_EQ(form.lista_notlog.items.rows().size(), 1U);
  EXPECT_EQ(form.no_errore.colour, colour::kGreen);
  form.NO_in_log.Click();  // even where the other station is at fault
  EXPECT_EQ(desk.Decisions("IK2QAA").back(),
            "  2    IZ9QBC             NOT in LOG                          832 ");
  EXPECT_EQ(desk.Score(), "2 2066 2934");
  EXPECT_EQ(form.num_unici.caption, "0");
  EXPECT_FALSE(form.Frame_unici.visible);
  EXPECT_FALSE(form.no_errore.colour);
  EXPECT_EQ(form.aggiorna_punt_class.colour, colour::kGreen);
  EXPECT_TRUE(form.aggiorna_punt_class.enabled);
  EXPECT_EQ(form.messaggio.caption,
            " Non si trasmettono i progressivi nello VLM. Procedura saltata");
  EXPECT_EQ(desk.manager.beeps, 0);
}

TEST(NotInLogCheck, AnAcceptedItemLeavesNoTrace) {
  UniqueDesk desk;
  TwoLacking(desk).Searched();
  desk.form.vedi_log2.Click();
  ASSERT_TRUE(desk.form.Frame_log.visible);
  desk.form.no_errore.Click();
  EXPECT_EQ(desk.form.Lista_simili.items.rows(), Names{"IV3QYY      1234  NOT in log"});
  EXPECT_EQ(desk.form.lista_notlog.selection, 0);
  EXPECT_EQ(desk.form.num_unici.caption, "1");
  desk.form.no_errore.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
  EXPECT_EQ(desk.Score(), "0 0 5000");
  EXPECT_FALSE(desk.form.Frame_log.visible);
  EXPECT_EQ(desk.form.aggiorna_punt_class.colour, colour::kGreen);
}

TEST(NotInLogCheck, WithoutASelectionItBeeps) {
  UniqueDesk desk;
  TwoLacking(desk).Searched();
  desk.form.Lista_simili.selection = -1;
  desk.form.no_errore.Click();
  EXPECT_EQ(desk.manager.beeps, 0);
  desk.form.NO_in_log.Click();
  EXPECT_EQ(desk.manager.beeps, 2);
  EXPECT_EQ(desk.form.Lista_simili.items.rows().size(), 2U);
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
}

TEST(NotInLogCheck, ACallIsPenalisedOnce) {
  UniqueDesk desk;
  desk.Examined({{"IZ9QBC", "JM67AA", "832"}, {"IZ9QBC", "JM67AB", "833"}})
      .Log("IZ9QBC", "JM67AA", {{"OE5QZZ", "JN78AA"}})
      .Searched();
  desk.form.NO_in_log.Click();
  desk.form.NO_in_log.Click();
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            Names{" Il call IZ9QBC       è già presente  sulla lista degli errori "_a});
  EXPECT_EQ(desk.Score(), "1 832 4168");
  EXPECT_EQ(desk.form.Lista_simili.items.rows(), Names{"IZ9QBC      833   NOT in log"});
}

TEST(NotInLogCheck, TheOptionsDecideWhatIsLookedFor) {
  UniqueDesk hidden;
  TwoLacking(hidden).Checked();
  hidden.form.Check9.Click();
  hidden.form.unici.Click();
  EXPECT_EQ(hidden.form.Lista_simili.items.rows(), Names{"IV3QYY      1234  NOT in log"});

  UniqueDesk off;
  TwoLacking(off).Checked();
  off.form.NOT_IN_LOG.Click();
  off.form.unici.Click();
  EXPECT_EQ(off.form.Lista_simili.items.rows(), Names{});
  EXPECT_EQ(off.form.aggiorna_punt_class.colour, colour::kGreen);
}

/// The same with a unique call, and a similar one in another log.
UniqueDesk& UniqueToo(UniqueDesk& desk) {
  return TwoLacking(desk)
      .Examined({{"I1QXX", "JN44BC"}})
      .Log("IN3QYX", "JN56AB", {{"I1QXY", "JN44BC"}});
}

TEST(NotInLogCheck, TheSearchMayBeMadeAheadOfTheUniqueCalls) {
  UniqueDesk desk;
  UniqueToo(desk).Searched();
  CheckForm& form = desk.form;
  ASSERT_EQ(desk.Open(), Names{"I1QXX 4"});
  form.not_button.Click();
  EXPECT_EQ(form.num_unici.caption, "3");
  EXPECT_EQ(form.Frame_unici.caption, " NOT in LOG  ");
  form.Controlla_estero.Click();  // its rows come behind the items, and are none
  ASSERT_GT(form.Lista_simili.items.rows().size(), 2U);
  form.Lista_simili.Select(2);
  EXPECT_EQ(form.lista_notlog.selection, -1);
  form.NO_in_log.Click();
  EXPECT_EQ(desk.manager.beeps, 2);
  form.Lista_simili.Select(0);
  form.no_errore.Click();
  EXPECT_EQ(form.num_unici.caption, "2");

  form.Call_unici.Select(0);  // back to the unique calls
  EXPECT_EQ(form.Frame_unici.caption, "    Call unici    ");
  EXPECT_EQ(form.num_unici.caption, "1");
  EXPECT_EQ(form.lista_notlog.items.rows(), Names{});
  form.Lista_simili.Select(0);
  form.NO_in_log.Click();
  EXPECT_EQ(desk.manager.beeps, 4);
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
  form.ok_call_unici.Click();
  EXPECT_EQ(form.Lista_simili.items.rows().size(), 2U);
  EXPECT_EQ(form.num_unici.caption, "2");
}

TEST(NotInLogCheck, AnEmptyListDoesNotPassOverTheUniqueCalls) {
  for (const bool on : {true, false}) {
    UniqueDesk desk;
    UniqueToo(desk).Searched();
    desk.form.NOT_IN_LOG.checked = on;
    desk.form.not_button.Click();
    if (on) {
      desk.form.no_errore.Click();
      desk.form.no_errore.Click();
    }
    EXPECT_TRUE(desk.form.Frame_unici.visible);
    EXPECT_EQ(desk.form.Frame_unici.caption, "    Call unici    ");
    EXPECT_FALSE(desk.form.aggiorna_punt_class.enabled);
    EXPECT_EQ(desk.form.num_unici.caption, "1");
  }
}

TEST(NotInLogCheck, AMissingTotalLibraryIsTold) {
  UniqueDesk desk;
  TwoLacking(desk).Checked();
  desk.files.Remove(desk.session.workspace.store_file(StoreFile::kLibreriaTotale));
  desk.form.unici.Click();
  EXPECT_EQ(
      desk.manager.boxes,
      std::vector{Told(" il file 'libreria_totale.tot' di categoria è assente. Attenzione "_a)});
  EXPECT_EQ(desk.form.Lista_simili.items.rows().size(), 3U);  // nothing proves a QSO then
}

TEST(NotInLogCheck, ALogOfMoreThanAThousandQsosEndsTheSearch) {
  for (const std::size_t qsos : {1000U, 1001U}) {
    UniqueDesk desk;
    desk.Examined(std::vector<FiledQso>(qsos, {"IZ9QBC", "JM67AA"}))
        .Log("IZ9QBC", "JM67AA", {{"IK2QAA", "JN45AA"}})
        .Searched();
    const bool fails = qsos > 1000;
    EXPECT_EQ(desk.manager.boxes, fails ? std::vector{DeskFailure(9, 90)} : std::vector<Box>{});
    EXPECT_EQ(desk.form.ric_notinlog.caption, "");
    EXPECT_EQ(desk.form.aggiorna_punt_class.enabled, !fails);
  }
}

// The evidence on similar calls is that of the selected doubt here.
TEST(NotInLogCheck, TheLookUpByEndShowsSimilarCalls) {
  UniqueDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}})
      .Log("IZ9QBC", "JM67AA", {{"I1QXX", "JN44BB"}, {"DL7QXX", "JO30AA"}})
      .Known("I4QXX", "JN54AA")
      .Checked();
  desk.form.Lista_dubbi.Select(0);
  desk.form.Tutti_call.Click();
  EXPECT_EQ(
      desk.form.Lista_simili.items.rows(),
      (Names{"IZ9QBC      I1QXX       JN44BB 100", "------------------------------------------>",
             desk.session.call_book.front() + " <-- Book"}));
}

}  // namespace
}  // namespace velmar::test
