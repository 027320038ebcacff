// The call book, its browser, and the look-ups as the desk offers them.

#include <gtest/gtest.h>

#include "check/locator_desk.h"
#include "model/call_book.h"

namespace velmar::test {
namespace {

const std::string kRecordOfXx = "I1QXX       JN44BBP 250119  12 144";
const std::string kRecordOfXy = "IK1QXY      JN44BAL 240121  10 144";
const std::string kNoNetwork = " Spiacente ma non c'è un collegamento a internet attivo."_a;

/// A doubt of I1QXX in JN44BC, with a book beside the program.
struct ArchiveDesk : LocatorDesk {
  ArchiveDesk() {
    session.archive_missing = false;
    session.iaru_table = {"I1QXX       JN44BB", "IK2QAA      JN44BC"};
    OneDoubt();
  }
  ArchiveDesk& Book(std::string_view bytes) {
    workspace.With("Varto_book.bin", bytes);
    return *this;
  }
  ArchiveDesk& GoodBook() { return Book(EncodeCallBook({kRecordOfXx, kRecordOfXy})); }
  ArchiveForm& Browser() { return desk.archive_form(); }
  const Names& Notices() { return desk.notices_form().List_avvisi.items.rows(); }
};

TEST(LoadBook, FillsTheBrowserAndTurnsTheOptionOn) {
  ArchiveDesk desk;
  desk.GoodBook().Loaded();
  desk.form.Check5.Click();
  ASSERT_FALSE(desk.form.Check5.checked);
  desk.Started("IK2QAA");
  EXPECT_TRUE(desk.session.book_loaded);
  EXPECT_FALSE(desk.session.archive_missing);
  EXPECT_EQ(desk.session.call_book, (Names{kRecordOfXx, kRecordOfXy}));
  EXPECT_EQ(desk.Browser().lista_archivio.items.rows(), desk.session.call_book);
  EXPECT_EQ(desk.Browser().lista_archivio.caption,
            "Call                         Locator    Last Date   Log     Band");
  EXPECT_EQ(desk.Browser().tot_in_archivio.caption, "2");
  EXPECT_TRUE(desk.form.Check5.checked);
  EXPECT_TRUE(desk.session.settings.On(Setting::kHideUniqueInDatabase));
}

TEST(LoadBook, ReadsTheFileOnceInARun) {
  ArchiveDesk desk;
  desk.GoodBook().Selected();
  desk.Book("no book any more");
  desk.form.Check5.Click();
  for (Button* look_up : {&desk.form.database, &desk.form.Tutti_call, &desk.form.Tutti_loc}) {
    look_up->Click();
  }
  desk.form.Vis_archivio.Click();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.session.call_book.size(), 2U);
  EXPECT_FALSE(desk.form.Check5.checked) << "what the manager chose since stays";
}

TEST(LoadBook, AMissingBookIsToldOnceAndTheLookUpsGoOn) {
  ArchiveDesk desk;
  desk.Checked();
  EXPECT_EQ(desk.manager.TakeFirstLines(), (Names{" Inizio il controllo ?", " ARCHIVIO ASSENTE "}));
  EXPECT_TRUE(desk.session.archive_missing);
  EXPECT_FALSE(desk.session.book_loaded);
  desk.GoodBook();
  desk.form.Lista_dubbi.Select(0);
  desk.form.database.Click();
  EXPECT_EQ(desk.Notices().at(2), "I1QXX       JN44BB  <-- QSO Unico ");
  EXPECT_EQ(desk.Notices().size(), 5U);
  desk.form.Vis_archivio.Click();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_TRUE(desk.Browser().lista_archivio.items.rows().empty());
}

TEST(LoadBook, AFileThatIsNoBookIsToldOnceAndTheRunGoesOnWithoutOne) {
  const std::string good = EncodeCallBook({kRecordOfXx});
  for (const std::string& bytes : {good + std::string("\x21\0", 2) + std::string(33, 'l'),
                                   good.substr(0, good.size() - 1), good + "\x22"}) {
    ArchiveDesk desk;
    desk.Book(bytes).Loaded();
    desk.form.Check5.Click();
    desk.Started("IK2QAA");
    EXPECT_EQ(
        desk.manager.boxes.back(),
        Told(
            " Il file letto dal programma NON è l' archivio call di Varto.| Il file ha lo stesso nome ma non contiene le informazioni necessarie| i controlli risulteranno più lunghi e non avranno l'aiuto in caso di dubbi."_a));
    EXPECT_TRUE(desk.session.archive_missing);
    EXPECT_FALSE(desk.session.book_loaded);
    EXPECT_TRUE(desk.session.call_book.empty());
    EXPECT_FALSE(desk.form.Check5.checked);
    EXPECT_EQ(desk.Doubts(), Names{"I1QXX"}) << "the check has begun";
    desk.manager.boxes.clear();
    desk.form.Lista_dubbi.Select(0);
    desk.form.Tutti_call.Click();
    desk.form.Tutti_loc.Click();
    EXPECT_TRUE(desk.manager.boxes.empty());
  }
}

TEST(LoadBook, AnEmptyBookIsOneWithoutRecords) {
  ArchiveDesk desk;
  desk.Book("").Loaded();
  desk.form.Check5.Click();
  desk.Started("IK2QAA");
  EXPECT_TRUE(desk.session.book_loaded);
  EXPECT_EQ(desk.Browser().tot_in_archivio.caption, "0");
  EXPECT_FALSE(desk.form.Check5.checked);
  EXPECT_EQ(desk.manager.boxes.back().lines[0], " Inizio il controllo ?");
}

TEST(LoadBook, ALookUpTellsABookThatIsGone) {
  ArchiveDesk desk;
  desk.GoodBook().Selected();
  desk.session.archive_missing = true;
  desk.form.Tutti_loc.Click();
  EXPECT_EQ(desk.manager.boxes, std::vector{Told(" Archivio interno assente")});
}

TEST(ArchiveLookUp, WithoutASelectedItemNothingHappens) {
  ArchiveDesk desk;
  desk.session.online = true;
  desk.GoodBook().Checked();
  desk.manager.boxes.clear();
  for (Button* button :
       {&desk.form.database, &desk.form.CercaDtbIaru, &desk.form.Controlla_estero,
        &desk.form.Tutti_call, &desk.form.Tutti_loc, &desk.form.ric_in_quel_locatore,
        &desk.form.internet, &desk.form.internet2, &desk.form.SEARC_loc, &desk.form.vedi_locator}) {
    button->Click();
  }
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_TRUE(desk.web.opened.empty());
  EXPECT_FALSE(desk.desk.notices_form().visible());
}

TEST(ArchiveLookUp, TheDatabaseTellsTheCallAndWhatItsStationDeclares) {
  ArchiveDesk desk;
  desk.GoodBook().Declared("I1QXX", "JN44BD", "3IT");
  desk.Declared("I1QXX/P", "JN44BE").Selected();
  EXPECT_EQ(desk.form.Locatore_in_log_arrivato.caption,
            "Locator dichiarato da : I1QXX/P     JN44BE");
  desk.form.database.Click();
  EXPECT_TRUE(desk.desk.notices_form().visible());
  EXPECT_EQ(desk.Notices().back(), kRecordOfXx);
  EXPECT_EQ(desk.form.Locatore_in_log_arrivato.caption, "") << "it asks for the call itself";

  ArchiveDesk declared;
  declared.GoodBook().Declared("I1QXX", "JN44BA").Checked();
  declared.form.Lista_dubbi.Select(0);
  declared.form.Locatore_in_log_arrivato.caption.clear();
  declared.form.database.Click();
  EXPECT_EQ(declared.form.Locatore_in_log_arrivato.caption,
            "Locator in log arrivato : I1QXX       JN44BA");
  declared.desk.notices_form().cmdOK.Click();
  EXPECT_FALSE(declared.desk.notices_form().visible());
}

TEST(ArchiveLookUp, TheLocatorIsLookedForWithoutTheLogItself) {
  ArchiveDesk desk;
  desk.GoodBook().Selected();
  desk.form.CercaDtbIaru.Click();
  EXPECT_EQ(desk.Notices().at(2), "         Nessun riscontro");
  EXPECT_EQ(desk.Notices().at(6), kRecordOfXx);
}

TEST(ArchiveLookUp, ACallWithTheSameEndSuggestsTheLocatorOfAnyWhoHoldsIt) {
  ArchiveDesk desk;
  desk.GoodBook().Declared("I1QXX/P", "JN44BE").Selected();
  desk.form.Tutti_call.Click();
  EXPECT_EQ(desk.Notices().front(), " Ricerca di call che contengono 'QXX'");
  EXPECT_EQ(desk.Notices().back(), kRecordOfXx);
  EXPECT_EQ(desk.form.Locatore_in_log_arrivato.caption,
            "nel log si è dichiarato: I1QXX/P     JN44BE"_a);
  desk.manager.inputs = {"*"};
  desk.form.conferma_errore.Click();
  EXPECT_EQ(desk.manager.asked.back().title, "Errore locatore");
  EXPECT_EQ(desk.manager.asked.back().default_text, "JN44BE");
}

TEST(ArchiveLookUp, WhatLiesNearIsTakenFromTheBookAndTheOtherLogs) {
  ArchiveDesk desk;
  desk.GoodBook().Selected();
  desk.form.Tutti_loc.Click();
  EXPECT_EQ(desk.Notices(),
            (Names{"       Ricerca in  archivio di JN44B*", kRecordOfXx, kRecordOfXy,
                   "-----------------------------------------",
                   " Ricerca in book e log esteri di JN44B*", "IZ9QBC      I1QXX       JN44BB 100",
                   "IV3QYY      I1QXX       JN44BB 100", " ", "           Ricerca terminata"}));
}

TEST(ArchiveLookUp, TheSquareIsLookedForInTheWholeStore) {
  ArchiveDesk desk;
  desk.Selected();
  desk.form.ric_in_quel_locatore.Click();
  EXPECT_EQ(desk.form.lista_call_unici.items.rows(),
            (Names{"JN44BC    I1QXX       IK2QAA    ", "JN44BB    I1QXX       IZ9QBC    ",
                   "JN44BB    I1QXX       IV3QYY    "}));
  desk.files.Remove(desk.session.workspace.store_file(StoreFile::kLibreriaTotale));
  desk.form.ric_in_quel_locatore.Click();
  EXPECT_EQ(
      desk.manager.boxes,
      std::vector{Told(" il file 'libreria_totale.tot' di categoria è assente. Attenzione "_a)});
}

TEST(ArchiveBrowser, TheMenuOpensAndClosesItTheButtonOpensIt) {
  ArchiveDesk desk;
  desk.GoodBook().Loaded();
  Menu& menu = desk.form.Vis_archivio;
  menu.Click();
  EXPECT_TRUE(desk.Browser().visible());
  EXPECT_EQ(desk.Browser().lista_archivio.items.rows().size(), 2U) << "loaded without a check";
  EXPECT_EQ(menu.caption, " chiudi");
  desk.form.espandi_archivio.Click();
  EXPECT_TRUE(desk.Browser().visible());
  menu.Click();
  EXPECT_FALSE(desk.Browser().visible());
  EXPECT_EQ(menu.caption, "Archivio");
  desk.form.espandi_archivio.Click();
  EXPECT_TRUE(desk.Browser().visible());
  EXPECT_EQ(menu.caption, " chiudi");
  desk.Browser().chiudi_archivio.Click();
  EXPECT_FALSE(desk.Browser().visible());
  EXPECT_EQ(menu.caption, "Archivio");
  menu.Click();
  desk.form.exit.Click();
  EXPECT_FALSE(desk.Browser().visible());
}

TEST(ArchiveBrowser, OpensOnWhatIsKnownOfTheSelectedCall) {
  ArchiveDesk desk;
  desk.GoodBook().Selected();
  desk.form.espandi_archivio.Click();
  EXPECT_EQ(desk.Browser().Lista_trovati.items.rows(), Names{kRecordOfXx});

  ArchiveDesk unknown;
  unknown.Book(EncodeCallBook({kRecordOfXy})).Selected();
  unknown.form.espandi_archivio.Click();
  EXPECT_EQ(unknown.Browser().Lista_trovati.items.rows(), Names{" No Found "});
  EXPECT_TRUE(unknown.manager.boxes.empty());
}

TEST(ArchiveBrowser, FindsATextAnywhereInARecord) {
  ArchiveDesk desk;
  desk.GoodBook().Selected();
  desk.form.espandi_archivio.Click();
  const auto found = [&](const std::optional<std::string>& answer) {
    desk.manager.inputs = {answer};
    desk.Browser().cerca.Click();
    return desk.Browser().Lista_trovati.items.rows();
  };
  EXPECT_EQ(found("jn44b"), (Names{kRecordOfXx, kRecordOfXy}));
  EXPECT_EQ(desk.manager.asked.back(),
            (InputBox{"Ricerca call", {" Scrivi il CALL da cercare o LOCATOR "}, "I1QXX"}));
  EXPECT_EQ(found("L 240121"), Names{kRecordOfXy});
  EXPECT_EQ(found(""), Names{kRecordOfXy}) << "nothing is done";
  EXPECT_EQ(found(std::nullopt), Names{kRecordOfXy});
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(found("OK1"), Names{});
  EXPECT_EQ(desk.manager.boxes, std::vector{Told(" Call no found")});
}

TEST(ArchiveWeb, OpensThePagesOfTheCallAndOfTheLocators) {
  ArchiveDesk desk;
  desk.session.online = true;
  desk.Selected();
  desk.form.internet.Click();
  desk.form.internet2.Click();
  desk.form.SEARC_loc.Click();
  desk.form.vedi_locator.Click();
  desk.form.Lista_locatori.Select(0);
  desk.form.vedi_locator.Click();
  EXPECT_EQ(desk.web.opened,
            (Names{"http://127.0.0.1/db/I1QXX", "http://127.0.0.1/db/I1QXX",
                   "http://127.0.0.1/grid/?qth=JN44BC&t=n", "http://127.0.0.1/grid/?qth=JN44BC&t=n",
                   "http://127.0.0.1/grid/?qth=JN44BB&t=n"}));
  EXPECT_TRUE(desk.manager.boxes.empty());
}

TEST(ArchiveWeb, WithoutANetworkEachPageSaysSo) {
  ArchiveDesk desk;
  desk.Selected();
  desk.form.Lista_locatori.Select(0);
  for (Button* page :
       {&desk.form.internet, &desk.form.internet2, &desk.form.SEARC_loc, &desk.form.vedi_locator}) {
    desk.manager.boxes.clear();
    page->Click();
    EXPECT_EQ(desk.manager.boxes, std::vector{Told(kNoNetwork)}) << page->name;
  }
  desk.form.Lista_dubbi.selection = -1;
  desk.form.SEARC_loc.Click();
  EXPECT_EQ(desk.manager.boxes.size(), 2U) << "the network is asked for ahead of the item";
  EXPECT_TRUE(desk.web.opened.empty());
}

}  // namespace
}  // namespace velmar::test
