// The check of the unique calls, from its button to the last decision.

#include <gtest/gtest.h>

#include "check/unique_desk.h"
#include "check/unique_evidence.h"

namespace velmar::test {
namespace {

const std::string kChoose = "Seleziona il probabile call corretto dall'elenco";
const std::string kAskCall = " Scrivi il CALL esatto    (*) per uscire";

/// Two unique calls: I1QXX, which two logs have as I1QXY, and DL1QAA, alone in its locator.
UniqueDesk& TwoUnique(UniqueDesk& desk) {
  return desk
      .Examined({{"IZ9QBC", "JM67AA", "832"}, {"I1QXX", "JN44BC", "1234"}, {"DL1QAA", "JO30AA"}},
                "I1QXX")
      .Log("IZ9QBC", "JM67AA", {{"IK2QAA", "JN45AA", "832"}, {"I1QXY", "JN44BC", "900"}})
      .Log("IV3QYY", "JN66AA", {{"IZ9QBC", "JM67AA", "700"}, {"I1QXY", "JN44BC", "300"}});
}

void Choose(UniqueDesk& desk, const std::string& call) {
  const Names open = desk.Open();
  for (std::size_t row = 0; row < open.size(); ++row) {
    if (open[row].starts_with(call + " ")) {
      desk.form.Call_unici.Select(static_cast<int>(row));
      return;
    }
  }
  FAIL() << call << " is not open";
}

TEST(UniqueCheck, LaysOutTheEvidenceOfTheFirstItem) {
  UniqueDesk desk;
  TwoUnique(desk).Searched();
  CheckForm& form = desk.form;
  EXPECT_EQ(form.Call_unici.items.rows(), (Names{"IK2QAA      I1QXX       JN44BC 1234 2",
                                                 "IK2QAA      DL1QAA      JO30AA 100  3"}));
  EXPECT_EQ(form.Call_unici.selection, 0);
  EXPECT_EQ(form.num_unici.caption, "2");
  EXPECT_TRUE(form.Frame_unici.visible);
  EXPECT_EQ(form.Frame_unici.caption, "    Call unici    ");
  EXPECT_FALSE(form.Unici_in_attesa_conf.visible);
  EXPECT_EQ(form.internet.caption, "cerca I1QXX su QRZ");
  EXPECT_EQ(form.SEARC_loc.caption, "Mappa JN44BC");
  EXPECT_EQ(form.ric_in_quel_locatore.caption, "cerca in JN44");
  EXPECT_EQ(form.log_callda_cercare.caption, "cerca  sul log di I1QXY");
  EXPECT_TRUE(form.log_callda_cercare.enabled);
  EXPECT_EQ(form.Lista_simili.items.rows(),
            (Names{"IZ9QBC      I1QXY       JN44BC 900", "IV3QYY      I1QXY       JN44BC 300"}));
  EXPECT_EQ(form.lista_call_unici.items.rows(),
            (Names{"JN44BC    I1QXY       IZ9QBC     *", "JN44BC    I1QXY       IV3QYY     *"}));
  EXPECT_EQ(form.List2_unici.items.rows(), Names{"JN44BC    I1QXY       IZ9QBC     *"});
  EXPECT_EQ(form.messaggio_locatore.caption, kChoose);
  EXPECT_EQ(form.messaggio_unici.caption, "");
  EXPECT_EQ(form.pre_senze.caption + form.nome_call.caption, "0I1QXX");
  EXPECT_TRUE(form.Avviso.visible);
  EXPECT_EQ(form.focus, &form.error_call_unici);
  EXPECT_EQ(form.CercaDtbIaru.colour, colour::kYellow);
  EXPECT_EQ(desk.manager.boxes, std::vector<Box>{});
  EXPECT_EQ(SplitLines(desk.workspace.Read("2ITLog_da_verificare_doppi.tmp")).size(), 3U);
  EXPECT_EQ(SplitLines(desk.workspace.Read("2ITLibreria_temp_doppi.tmp")).size(), 4U);
}

TEST(UniqueCheck, ACallAloneInItsLocatorIsLookedForInOtherCategories) {
  UniqueDesk desk;
  TwoUnique(desk);
  const auto elsewhere = [&desk](const std::string& locator) {
    desk.store.Append(
        StoreFile::kLibreriaTotale, kCategory,
        Join(LibreriaTotaleRow("IV3QYY", "DL1QAA", locator, "3IT", "50").value(), kLineEnd));
  };
  elsewhere("JO30AB");
  desk.Searched();
  CheckForm& form = desk.form;
  form.Call_unici.Select(1);
  EXPECT_EQ(form.messaggio_unici.caption, "Nessun altro ha collegato DL1QAA in questa cat.");
  EXPECT_EQ(form.messaggio_unici.colour, colour::kYellow);
  EXPECT_EQ(form.messaggio_locatore.caption, "");
  EXPECT_EQ(form.Label12.caption, " Questo call era presente anche in altre bande.");
  EXPECT_EQ(form.lista_call_unici.items.rows(), Names{"JO30AB    DL1QAA      3IT"});
  EXPECT_EQ(form.List2_unici.items.rows(), Names{});
  EXPECT_EQ(form.marca_unico.colour, colour::kYellow);
  EXPECT_FALSE(form.CercaDtbIaru.colour);
  EXPECT_FALSE(form.log_callda_cercare.enabled);
  form.lista_call_unici.Select(0);
  EXPECT_EQ(form.log_callda_cercare.caption, "cerca  sul log di DL1QAA");
  EXPECT_TRUE(form.log_callda_cercare.enabled);

  for (int i = 0; i < 20; ++i) {
    elsewhere("JO30AB");
  }
  form.Call_unici.Select(1);
  EXPECT_EQ(form.lista_call_unici.items.rows().size(), 8U);  // from the second to the ninth
  desk.files.Remove(desk.session.workspace.store_file(StoreFile::kLibreriaTotale));
  form.Call_unici.Select(1);
  EXPECT_EQ(
      desk.manager.boxes,
      std::vector{Told(" il file 'libreria_totale.tot' di categoria è assente. Attenzione "_a)});
  EXPECT_EQ(form.Label12.caption, "");
}

// One unique call, with somebody else in its locator.
TEST(UniqueCheck, TheParticipantsGiveHints) {
  const struct {
    std::string call, neighbour, participant, category, unique, locator;
  } cases[] = {
      {"I1QXX", "DL5QZZ", "I1QXX/P", "2IT", " CALL PARTECIPANTE:   I1QXX/P     JN44BB", kChoose},
      {"I1QXX", "DL5QZZ", "I1QXX/P", "3IT", "", kChoose},
      {"I1QXX", "DL5QZZ", "I1QXX", "2IT", " CALL PARTECIPANTE:   I1QXX       JN44BB",
       " Nel log inviato I1QXX        ha dichiarato: JN44BB"},
      {"I1QXX/P", "DL5QZZ", "I1QXX", "2IT", "Partecipante:   I1QXX       JN44BB       2IT",
       kChoose},
      {"9A/I1QXX/P", "DL5QZZ", "I1QXX", "3IT", "Partecipante:   I1QXX       JN44BB       3IT",
       kChoose},
      {"I1QXX", "I1QXY", "I1QXX/P", "3IT", "Nel proprio log : I1QXXha dichiarato  JN44BB", kChoose},
      {"IK20QX", "DL5QZZ", "I1QXX", "2IT", " Troppi numeri, controlla lo ZERO(0) con lettera 'O'",
       kChoose},
  };
  for (const auto& [call, neighbour, participant, category, unique, locator] : cases) {
    UniqueDesk desk;
    desk.Examined({{call, "JN44BC"}})
        .Log("IZ9QBC", "JM67AA", {{neighbour, "JN44BC"}})
        .Declared(participant, "JN44BB", category)
        .Checked();
    desk.form.Check6.checked = false;
    desk.form.unici.Click();
    EXPECT_EQ(desk.form.messaggio_unici.caption, unique) << call;
    EXPECT_EQ(desk.form.messaggio_locatore.caption, locator) << call;
    EXPECT_EQ(desk.form.troppi_numeri.caption, CheckDigits(call).banner);
    const bool own = call == participant;
    EXPECT_EQ(desk.form.log_callda_cercare.caption,
              Join("cerca  sul log di ", own ? call : neighbour));
  }
}

TEST(UniqueCheck, ABrokenLocatorIsTold) {
  UniqueDesk desk;
  desk.Examined({{"I1QXX", "JN44BY"}}).Searched();
  EXPECT_EQ(desk.manager.boxes,
            std::vector{Told(Join(
                " il locatore JN44BY è SBAGLIATO | non ci possono essere numeri oltre ai due "_a,
                "centrali, verifica la lettera O con lo zero | IL PUNTEGGIO E' GIA' STATO ",
                "DECURTATO IN ''INSERIMENTO LOG''| considera il qso valido per non togliere 2 ",
                "volte il lo stesso punteggio"))});
}

TEST(UniqueCheck, AtMostOneButtonIsAdvised) {
  const struct {
    const char* what;
    bool neighbour, known;
    int presences;
    std::string advised;
  } cases[] = {{"alone", false, false, 0, "marca_unico"},
               {"alone, in the book", false, true, 0, "ok_call_unici"},
               {"not alone", true, false, 0, "CercaDtbIaru"},
               {"not alone, in the book", true, true, 0, "ok_call_unici"},
               {"two presences", true, false, 2, "CercaDtbIaru"},
               {"three presences", true, false, 3, "ok_call_unici"}};
  for (const auto& [what, neighbour, known, presences, advised] : cases) {
    UniqueDesk desk;
    std::vector<FiledQso> heard;
    if (neighbour) {
      heard.push_back({"DL5QZZ", "JN44BC"});
    }
    for (int i = 0; i < presences; ++i) {
      heard.push_back({"I1QXX", i == 0 ? "JN44BC" : "JN44BB"});
    }
    desk.Examined({{"I1QXX", "JN44BC"}}).Log("IZ9QBC", "JM67AA", heard);
    if (known) {
      desk.Known("I1QXX", "JN44BB");
    }
    desk.Searched();
    ASSERT_EQ(desk.Open().size(), 1U) << what;
    Names coloured;
    for (const Button* button : {&desk.form.ok_call_unici, &desk.form.marca_unico,
                                 &desk.form.CercaDtbIaru, &desk.form.error_call_unici}) {
      if (button->colour) {
        coloured.push_back(button->name);
      }
    }
    EXPECT_EQ(coloured, Names{advised}) << what;
    EXPECT_EQ(desk.form.pre_senze.caption, std::to_string(presences));
    EXPECT_EQ(desk.form.Avviso.visible, presences < 3) << what;
    EXPECT_EQ(desk.form.nome_call.visible, presences < 3) << what;
  }
}

TEST(UniqueCheck, TheOptionsLeaveCallsOut) {
  const auto open = [](bool book, bool with_log, bool over_two) {
    UniqueDesk desk;
    desk.Examined({{"I1QXX", "JN44BC"}, {"IV3QYY", "JN66AA"}, {"DL1QAA", "JO30AA"}})
        .Log("IZ9QBC", "JM67AA", {{"DL1QAA", "JO30AA"}})
        .Declared("IV3QYY", "JN66AA")
        .Known("I1QXX", "JN44BC")
        .Checked();
    for (const auto& [item, on] :
         {std::pair(&desk.form.Check5, book), std::pair(&desk.form.Check6, with_log),
          std::pair(&desk.form.Check7, over_two)}) {
      if (item->checked != on) {
        item->Click();
      }
    }
    EXPECT_NE(desk.form.Check7.checked, desk.form.Check8.checked);
    desk.form.NOT_IN_LOG.checked = false;
    desk.form.unici.Click();
    return desk.Open();
  };
  const std::string rare = "DL1QAA 3  < 3 questo call ha meno di 3 presenze";
  EXPECT_EQ(open(true, true, false), Names{rare});
  EXPECT_EQ(open(true, true, true), Names{});
  EXPECT_EQ(open(false, true, false), (Names{"I1QXX 1", rare}));
  EXPECT_EQ(open(true, false, true), Names{"IV3QYY 2"});
}

TEST(UniqueCheck, TheCorrectCallIsTakenFromTheListsOrAskedFor) {
  const InputBox asked{.title = "Error call", .lines = {kAskCall}, .default_text = "I1QXX"};
  const auto line = [](std::string_view right) {
    return Names{
        Join("  1    I1QXX       002    errore call       I1QXX       ", Pad(right, 11), "-1234")};
  };
  UniqueDesk grouped;
  TwoUnique(grouped).Searched();
  grouped.form.List2_unici.Select(0);
  EXPECT_EQ(grouped.form.Prob_call_corretto.caption, "I1QXY");
  EXPECT_EQ(grouped.form.log_callda_cercare.caption, "cerca  sul log di I1QXY");
  grouped.form.error_call_unici.Click();
  EXPECT_EQ(grouped.Decisions("IK2QAA"), line("I1QXY"));

  UniqueDesk typed;
  TwoUnique(typed).Searched();
  typed.manager.inputs = {"*", "", std::nullopt, "9A/I1QXX/P12"};
  for (int i = 0; i < 3; ++i) {
    typed.form.error_call_unici.Click();
    EXPECT_EQ(typed.Decisions("IK2QAA"), Names{});
    EXPECT_EQ(typed.Open().size(), 2U);
  }
  typed.form.error_call_unici.Click();
  EXPECT_EQ(typed.Decisions("IK2QAA"), line("9A/I1QXX/P1"));
  EXPECT_EQ(typed.manager.asked, std::vector(4, asked));
}

TEST(UniqueCheck, AnErrorOfTheLocatorAsksOnce) {
  UniqueDesk desk;
  TwoUnique(desk).Declared("I1QXX", "JN44BB").Checked();
  desk.form.Check6.checked = false;
  desk.form.unici.Click();
  Choose(desk, "I1QXX");
  desk.manager.inputs = {"*", "", "JN44B"};
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
    desk.form.Errore_locatore.Click();
  }
  const InputBox asked{.title = "Error Locator",
                       .lines = {" Scrivi il LOCATORE esatto  (*) per uscire e non proseguire"},
                       .default_text = "JN44BB"};
  EXPECT_EQ(desk.manager.asked, std::vector(3, asked));
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    I1QXX       002    errore locator    JN44BC      JN44B      -1234"});
  EXPECT_EQ(desk.Score(), "1 1234 3766");
}

TEST(UniqueCheck, AUniqueCallIsNotedAndCostsNothing) {
  UniqueDesk desk;
  TwoUnique(desk).Searched();
  EXPECT_EQ(desk.form.marca_unico.tip, "Il punteggio non verrà decurtato dal totale."_a);
  Choose(desk, "DL1QAA");
  desk.form.marca_unico.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    DL1QAA      003    call   unico      DL1QAA                 -"});
  EXPECT_EQ(desk.Score(), "0 0 5000");
  EXPECT_EQ(desk.Open(), Names{"I1QXX 2"});
  EXPECT_EQ(desk.form.nome_call.caption, "I1QXX");  // behind the last item is the first
}

TEST(UniqueCheck, ASecondErrorOfOneCallIsRefused) {
  UniqueDesk desk;
  desk.Examined({{"I1QXX", "JN44BC"}, {"I1QXX", "JN44BD"}, {"I1QXX", "JN44BE"}}).Searched();
  desk.form.marca_unico.Click();
  desk.manager.inputs = {"I1QXY"};
  desk.form.error_call_unici.Click();  // the note does not stand in its way
  EXPECT_EQ(desk.Decisions("IK2QAA").size(), 2U);
  for (Button* button :
       {&desk.form.error_call_unici, &desk.form.Errore_locatore, &desk.form.marca_unico}) {
    button->Click();
    EXPECT_EQ(desk.manager.TakeFirstLines(),
              Names{" Il call I1QXX        è già presente  sulla lista degli errori "_a});
    EXPECT_EQ(desk.Open(), Names{"I1QXX 3"});
  }
  desk.form.ok_call_unici.Click();
  EXPECT_EQ(desk.Open(), Names{});
  EXPECT_EQ(desk.Decisions("IK2QAA").size(), 2U);
}

TEST(UniqueCheck, WithoutASelectionNothingIsDecided) {
  UniqueDesk desk;
  TwoUnique(desk).Searched();
  desk.form.Call_unici.selection = -1;
  for (Button* button : {&desk.form.Errore_locatore, &desk.form.marca_unico,
                         &desk.form.ok_call_unici, &desk.form.cerca_probabile}) {
    button->Click();
    EXPECT_EQ(desk.manager.beeps, 0) << button->name;
  }
  desk.form.error_call_unici.Click();
  EXPECT_EQ(desk.manager.beeps, 2);
  EXPECT_EQ(desk.Open().size(), 2U);
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
}

TEST(UniqueCheck, ALikelyCallIsSuggestedAndKept) {
  UniqueDesk desk;
  TwoUnique(desk).Searched();
  CheckForm& form = desk.form;
  form.cerca_probabile.Click();
  EXPECT_EQ(form.Prob_call_corretto.caption, "I1QXY");
  EXPECT_EQ(form.call_scorretto.caption, "I1QXX");
  EXPECT_EQ(form.List2_unici.selection, 0);
  EXPECT_EQ(form.messaggio_unici.caption, "I call con UNA presenza, sono SEMPRE visualizzati");
  EXPECT_EQ(desk.workspace.Read("2ITcall_in_stesso_locatore.tmp"),
            "IZ9QBC      I1QXY       JN44BC 900\r\nIV3QYY      I1QXY       JN44BC 300\r\n");
  desk.manager.replies = {Reply::kNo};
  form.ok_call_unici.Click();
  EXPECT_EQ(desk.Open().size(), 2U);
  EXPECT_EQ(desk.manager.boxes, std::vector{(Box{.lines = {" Vuoi considerare valido il qso ?"},
                                                 .icon = Icon::kQuestion,
                                                 .title = "Call valutato errato",
                                                 .buttons = Buttons::kYesNo})});
  form.error_call_unici.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    I1QXX       002    errore call       I1QXX       I1QXY      -1234"});
  form.cerca_probabile.Click();  // nobody is in the locator of DL1QAA
  EXPECT_EQ(form.Prob_call_corretto.caption + form.call_scorretto.caption, "");
  form.ok_call_unici.Click();
  EXPECT_EQ(desk.Open(), Names{});

  UniqueDesk agreed;
  TwoUnique(agreed).Searched();
  agreed.form.cerca_probabile.Click();
  agreed.manager.replies = {Reply::kYes};
  agreed.form.ok_call_unici.Click();
  EXPECT_EQ(agreed.Open(), Names{"DL1QAA 3"});
  EXPECT_EQ(agreed.Decisions("IK2QAA"), Names{});
}

TEST(UniqueCheck, SwappedLettersAreALikelyCallToo) {
  const struct {
    std::vector<FiledQso> heard;
    std::string probable;
    bool asks;
  } cases[] = {{{{"IK2ACB", "JN44BC"}}, "IK2ACB", true},
               {{{"IK2ACB", "JN44BC"}, {"IK3ABC", "JN44BC"}}, "IK3ABC", true},
               {{{"IK2AXY", "JN44BC"}}, "", false},
               {{{"IK2ACB", "JN44BC"}, {"DL1QZZ", "JN44BC"}}, "", false},  // not the first
               {{{"IK2ABC", "JN44BC"}}, "IK2ABC", false}};
  for (const auto& [heard, probable, asks] : cases) {
    UniqueDesk desk;
    desk.Examined({{"IK2ABC", "JN44BC"}}).Log("IZ9QBC", "JM67AA", heard).Searched();
    desk.form.cerca_probabile.Click();
    EXPECT_EQ(desk.form.Prob_call_corretto.caption, probable);
    EXPECT_EQ(desk.form.call_scorretto.caption, probable.empty() ? "" : "IK2ABC");
    if (asks) {
      desk.manager.replies = {Reply::kNo};
    }
    desk.form.ok_call_unici.Click();
    EXPECT_EQ(desk.Open().size(), asks ? 1U : 0U) << probable;
  }
}

TEST(UniqueCheck, AForcedErrorIsAskedForOnce) {
  UniqueDesk desk;
  TwoUnique(desk).Checked();
  CheckForm& form = desk.form;
  form.assegna_errore_qso.Click();
  desk.manager.inputs = {" iz9qbc ", "IZ9QBD"};
  form.unici.Click();
  EXPECT_EQ(desk.manager.asked.front(),
            (InputBox{.title = "Error call",
                      .lines = {" Scrivi il call che vuoi considerare errato "},
                      .default_text = ""}));
  EXPECT_EQ(desk.Open(), (Names{"I1QXX 2", "DL1QAA 3", "IZ9QBC 1"}));
  EXPECT_FALSE(form.assegna_errore_qso.checked);
  EXPECT_FALSE(desk.session.settings.On(Setting::kForcedErrorOn));
  form.Call_unici.Select(2);
  ASSERT_FALSE(form.lista_call_unici.items.rows().empty());
  form.lista_call_unici.Select(0);  // the call is asked for all the same
  form.error_call_unici.Click();
  EXPECT_EQ(desk.manager.asked.back().default_text, "IZ9QBC");
  EXPECT_EQ(desk.Decisions("IK2QAA"),
            Names{"  1    IZ9QBC      001    errore call       IZ9QBC      IZ9QBD     -832 "});

  // Forced again, the same call may be on the list already; but only once more.
  form.assegna_errore_qso.Click();
  desk.manager.inputs = {"IZ9QBC", "IZ9QBE"};
  form.unici.Click();
  EXPECT_TRUE(form.Unici_in_attesa_conf.visible);
  Choose(desk, "IZ9QBC");
  form.error_call_unici.Click();
  EXPECT_EQ(desk.Decisions("IK2QAA").size(), 2U);
  EXPECT_EQ(desk.manager.boxes, std::vector<Box>{});
}

TEST(UniqueCheck, TheForcedErrorLastsForOneDecision) {
  for (const bool accepted : {true, false}) {
    UniqueDesk desk;
    TwoUnique(desk).Checked();
    desk.form.assegna_errore_qso.Click();
    desk.manager.inputs = {"IZ9QBC"};
    desk.form.unici.Click();
    if (accepted) {
      desk.form.ok_call_unici.Click();
    } else {
      desk.manager.inputs = {"I1QXY"};
      desk.form.error_call_unici.Click();
    }
    Choose(desk, "IZ9QBC");
    desk.form.lista_call_unici.Select(0);
    desk.form.error_call_unici.Click();  // an error like any other
    EXPECT_EQ(desk.Decisions("IK2QAA").back().substr(56), "IZ9QBC     -832 ");
  }
}

TEST(UniqueCheck, AForcedCallThatIsNotThereLeavesTheOptionOn) {
  for (const char* answer : {"I1QX", ""}) {
    UniqueDesk desk;
    TwoUnique(desk).Checked();
    desk.form.assegna_errore_qso.Click();
    desk.manager.inputs = {answer};
    desk.form.unici.Click();
    EXPECT_EQ(desk.Open().size(), 2U);
    EXPECT_EQ(desk.form.assegna_errore_qso.checked, *answer != '\0');
    EXPECT_EQ(desk.session.settings.On(Setting::kForcedErrorOn), *answer != '\0');
  }
}

TEST(UniqueCheck, OpenItemsAreRemindedOf) {
  UniqueDesk desk;
  TwoUnique(desk).Searched();
  desk.form.unici.Click();
  EXPECT_TRUE(desk.form.Unici_in_attesa_conf.visible);
  EXPECT_EQ(desk.Open().size(), 2U);
  desk.form.Unici_in_attesa_conf.Click();
  EXPECT_EQ(desk.manager.boxes,
            std::vector{Told(" C'è un elenco che devi classificare come errore, "_a
                             "| oppure ignorare la segnalazione ")});
}

TEST(UniqueCheck, TheCheckCanBeLeftOut) {
  UniqueDesk desk;
  TwoUnique(desk).Searched();
  desk.form.aggiorna_punt_class.visible = false;
  desk.form.nasondi.Click();
  EXPECT_EQ(desk.manager.boxes, std::vector{Told(" Hai saltato il controllo dei call unici/errati"
                                                 "| per proseguire clicca sul pulsante VERDE")});
  for (const List* list : {&desk.form.Call_unici, &desk.form.Lista_simili,
                           &desk.form.lista_call_unici, &desk.form.List2_unici}) {
    EXPECT_EQ(list->items.rows(), Names{}) << list->name;
  }
  EXPECT_TRUE(desk.form.aggiorna_punt_class.Reachable());
  EXPECT_EQ(desk.form.aggiorna_punt_class.colour, colour::kGreen);
  EXPECT_FALSE(desk.form.ordina.enabled);
}

TEST(UniqueCheck, WithoutAnItemTheNextCheckFollows) {
  for (const bool messages : {true, false}) {
    UniqueDesk desk;
    desk.Examined({{"IZ9QBC", "JM67AA"}}).Log("IZ9QBC", "JM67AA", {{"IK2QAA", "JN45AA"}}).Checked();
    desk.form.vis_mess.checked = messages;
    desk.form.unici.Click();
    EXPECT_EQ(desk.manager.TakeFirstLines(), messages ? Names{" LOG SENZA QSO UNICI "} : Names{});
    EXPECT_EQ(desk.form.num_unici.caption, "0");
    EXPECT_FALSE(desk.form.Frame_unici.visible);
    EXPECT_EQ(desk.form.aggiorna_punt_class.colour, colour::kGreen);
  }
}

TEST(UniqueCheck, AMissingLibraryIsTold) {
  UniqueDesk desk;
  TwoUnique(desk).Checked();
  desk.files.Remove(desk.session.workspace.store_file(StoreFile::kLibreria));
  desk.form.unici.Click();
  EXPECT_EQ(desk.manager.boxes,
            std::vector{Told(" Il file della libreria di categoria è assente. Attenzione "_a)});
  EXPECT_EQ(desk.Open(), Names{});
  EXPECT_FALSE(desk.form.Attendi_calcolo.visible);
  EXPECT_FALSE(desk.form.aggiorna_punt_class.enabled);
}

/// A manager who notes, whenever the windows are drawn, whether they ask him to wait.
class WaitingManager : public ScriptedManager {
 public:
  void Progress(std::size_t done, std::size_t total) override {
    ScriptedManager::Progress(done, total);
    waits.push_back(form->Attendi_calcolo.visible);
  }

  const CheckForm* form = nullptr;
  std::vector<bool> waits;
};

TEST(UniqueCheck, TheManagerIsAskedToWaitDuringTheSearch) {
  UniqueDesk desk;
  TwoUnique(desk);
  WaitingManager manager;
  CheckForm form;
  manager.form = &form;
  CheckDesk watched{desk.session,
                    {desk.files, manager, desk.clock, desk.machine, desk.web, desk.printer,
                     desk.pictures, desk.workbooks},
                    desk.store,
                    desk.screen,
                    desk.main,
                    form};
  watched.Open();
  form.Option3.Click();
  form.listacall_banda.selection = 1;
  manager.replies = {Reply::kYes};
  form.listacall_banda.DoubleClick();
  EXPECT_EQ(std::ranges::count(manager.waits, true), 0);
  form.unici.Click();
  EXPECT_EQ(std::ranges::count(manager.waits, true), 2);  // the list, and the first item
  EXPECT_FALSE(form.Attendi_calcolo.visible);
}

}  // namespace
}  // namespace velmar::test
