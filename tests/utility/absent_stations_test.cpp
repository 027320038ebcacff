#include "utility/absent_stations.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/contest_store.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "support/boxes.h"
#include "support/outside.h"

namespace velmar::test {
namespace {

constexpr const char* kCla = "Trofeo_Velmar/2IT/2IT Classifica Mensile 144 gennaio 2025.cla";
constexpr AnsiView kPrintFailure = " si è verificato un errorenel modulo stampa, controlla"_a;

struct AbsentDesk : Outside {
  AbsentDesk() {
    workspace.WithTree();
    session.category_month = "GENNAIO 2025";
    session.contest_label = " Velmar  ";
    for (Form* one : std::initializer_list<Form*>{&main, &form}) {
      screen.Add(*one);
    }
    absent.Open();
  }

  /// A log of a station with those calls, each at 100 km.
  AbsentDesk& Filed(const std::string& owner, const Names& calls) {
    ContestStore store(workspace.files(), session.workspace);
    const auto append = [&](StoreFile file, const std::string& row) {
      store.Append(file, kCategory, Join(row, kLineEnd));
    };
    append(StoreFile::kPartecipanti, PartecipanteRow(owner, "JN45AA", kCategory));
    for (const std::string& call : calls) {
      append(StoreFile::kLibreria, LibreriaRow(owner, call, "JN44BB", "100").value());
      append(StoreFile::kSommaQso,
             SommaQsoRow(QsoRow(call, "JN44BB", "100"), kCategory, "JN45AA", owner));
    }
    return *this;
  }

  /// Three logs, and calls that are in none, in one, in two and in all of them.
  AbsentDesk& ThreeLogs() {
    Filed("IK2QAA", {"IZ9QBC", "I5QYY/P", "DL1QA", "I5QYY"});
    Filed("IZ9QBC", {"IK2QAA", "I5QYY/P", "IV3QZZ"});
    Filed("HB9QCC", {"IK2QAA", "I5QYY/P", "I5QYY"});
    workspace.With(kCla, Join("header\r\n", Pad("HB9QCC", 91), Pad(" 1", 13), " 300\r\n",
                              Pad("IK2QAA", 104), " 250\r\n", Pad("IZ9QBC", 104), " 200\r\n"));
    return *this;
  }

  AbsentDesk& Verified() {
    form.Verifica_assenti.Click();
    return *this;
  }

  std::string Scratch(const std::string& name) { return workspace.Read("Trofeo_Velmar/" + name); }

  MainForm main;
  int statistics_opened = 0;
  AbsentStations absent{session, ports, screen, main, [this] { ++statistics_opened; }};
  AbsentForm& form = absent.form();
};

Names NamesOf(const std::vector<std::string>& paths) {
  Names names;
  for (const std::string& path : paths) {
    names.push_back(path.substr(path.rfind('/') + 1));
  }
  return names;
}

TEST(AbsentStations, ListsWhoWasWorkedAndSentNoLog) {
  AbsentDesk desk;
  desk.ThreeLogs().Verified();
  AbsentForm& form = desk.form;
  EXPECT_EQ(
      form.List_libreria.items.rows(),
      (Names{"I5QYY       2", "I5QYY/P     3", "IK2QAA      2", "IV3QZZ      1", "IZ9QBC      1"}));
  EXPECT_EQ(form.Call_assenti.items.rows(),
            (Names{"I5QYY       2", "I5QYY/P     3", "IV3QZZ      1"}));
  const Names most_first = {"  3    I5QYY/P     ", "  2    I5QYY       ", "  1    IV3QZZ      "};
  EXPECT_EQ(form.Lista.items.rows(), most_first);
  Names counters;
  for (const Label* label :
       {&form.Log_inviati, &form.call_effettivi, &form.call_log, &form.qso_con_esteri, &form.call_T,
        &form.LB_list_libreria, &form.qsofraita, &form.no_log, &form.LB_call_ass,
        &form.perc_log_inv, &form.perc_assenti, &form.LB_lista, &form.Call_mancanti}) {
    counters.push_back(label->caption);
  }
  EXPECT_EQ(counters,
            (Names{"3", "3", "3", "1", "5", "5", "9", "3", "3", "60.0%", "60.0%", "3", "3"}));
  EXPECT_EQ(NamesOf(desk.files.changed_paths),
            (Names{"call_loggato_nodooppi.txt", "call_assenti.txt", "call_mancanti-1-max.txt",
                   "call_mancanti-max-1.txt", "call_mancanti-max-1.txt", "call_mancanti-1-max.txt",
                   "call_assenti.txt", "call_loggato_nodooppi.txt"}));
  for (const Control* seen : std::initializer_list<Control*>{
           &form.Lista, &form.List_libreria, &form.Call_assenti, &form.inverti_ordine_lista,
           &form.stampa_assenti, &form.stampa_log_assente}) {
    EXPECT_TRUE(seen->Reachable()) << seen->name;
  }
  EXPECT_FALSE(form.Bar1.visible || form.Bar2.visible);

  form.inverti_ordine_lista.Click();
  EXPECT_EQ(form.Lista.items.rows(), (Names{most_first.rbegin(), most_first.rend()}));
  EXPECT_EQ(form.inverti_ordine_lista.colour, colour::kYellow);
  EXPECT_EQ(form.inverti_ordine_lista.caption, "Inverti dal Max al Min");
  form.inverti_ordine_lista.Click();
  EXPECT_EQ(form.Lista.items.rows(), most_first);
  EXPECT_EQ(form.inverti_ordine_lista.colour, colour::kGreen);
  EXPECT_EQ(form.inverti_ordine_lista.caption, "Inverti dal Min al Max");

  form.inverti_ordine_lista.Click();
  desk.session.last_call_search = "IZ9QBC";
  form.con_trolla.Click();
  EXPECT_EQ(form.Log_inviati.caption, "1") << "the read of the participants stopped";
  EXPECT_EQ(form.no_log.caption, "3") << "but who was looked for is no absent";
  EXPECT_EQ(form.inverti_ordine_lista.caption, "Inverti dal Min al Max");
  EXPECT_TRUE(desk.manager.boxes.empty());
}

TEST(AbsentStations, ABrokenDiskEndsARunAndItsWorkingFilesHoldTheLists) {
  AbsentDesk desk;
  desk.ThreeLogs();
  for (const int change : {8, 7, 6, 5, 4, 3, 2, 1, 5}) {
    desk.files.changes = 0;
    desk.files.break_at_change = change;
    desk.manager.boxes.clear();
    desk.Verified();
    EXPECT_EQ(desk.manager.boxes.size(), 1U) << change;
    EXPECT_FALSE(desk.form.Lista.visible || desk.form.stampa_assenti.enabled) << change;
  }
  EXPECT_EQ(desk.Scratch("call_assenti.txt"),
            "I5QYY       2\r\nI5QYY/P     3\r\nIV3QZZ      1\r\n");
  EXPECT_EQ(desk.Scratch("call_mancanti-1-max.txt"),
            "  1    IV3QZZ      \r\n  2    I5QYY       \r\n  3    I5QYY/P     \r\n");
  EXPECT_EQ(desk.manager.boxes,
            std::vector{Told(" errore imprevisto numero: 61 nella linea : 13  134 modulo assenti.  "
                             "Contatta l' autore del software_0.0.8")});
}

TEST(AbsentStations, RebuildsAndPrintsTheLogOfACall) {
  AbsentDesk desk;
  desk.ThreeLogs().Verified();
  AbsentForm& form = desk.form;
  form.Lista.Select(0);
  const Names log = {"001  144 ita  IK2QAA      I5QYY/P     JN44BB       100",
                     "001  144 ita  IZ9QBC      I5QYY/P     JN44BB       100",
                     "001  144 ita  HB9QCC      I5QYY/P     JN44BB       100"};
  EXPECT_EQ(form.Log_assente.items.rows(), log);
  Names figures;
  for (const auto& [title, value] : form.figures()) {
    figures.push_back(value->caption);
  }
  EXPECT_EQ(figures,
            (Names{"I5QYY/P", "3", "300", "0", "0", "1", "3", "300", "100", "300", "2 su 3"}));
  EXPECT_EQ(form.pos_teo144.colour, colour::kGreen);
  EXPECT_EQ(form.tempo.caption, "0.00");
  EXPECT_EQ(desk.Scratch("144libreria.tmp"),
            desk.workspace.Read("Trofeo_Velmar/2IT/2ITsomma_qso.qso"));

  desk.files.changed_paths.clear();
  form.stampa_log_assente.Click();
  form.stampa_assenti.Click();
  const std::string rule(65, '-');
  const PrintJob log_pages = {
      {.lines = {"Log ricostruito di I5QYY/P", " Velmar     Mese : GENNAIO 2025", rule},
       .points = 12},
      {.lines = {log[0], log[1], log[2], rule, " punteggio teorico in 144 mhz = 300",
                 "   posizione teorica 2 su 3"},
       .points = 10}};
  const PrintJob list_pages = {
      {.lines = {"Lista dei call assenti GENNAIO 2025", std::string(37, '-'),
                 "  3    I5QYY/P        1    IV3QZZ      ", "  2    I5QYY       "},
       .points = 10}};
  EXPECT_EQ(desk.printer.printed, (std::vector{log_pages, list_pages}));
  const std::string file = "I5QYY_P  log assente GENNAIO 2025.prn";
  EXPECT_EQ(NamesOf(desk.files.changed_paths),
            (Names{file, file, "call assenti.prn", "call assenti.prn"}));
  EXPECT_EQ(desk.workspace.Names("Trofeo_Velmar"), Names{"144libreria.tmp"});

  desk.workspace.With(kCla, Join("header\r\n", Pad("IK2QAA", 104), " 250\r\n"));
  form.Lista.Select(1);
  EXPECT_EQ(form.pos_teo144.caption, "no applic.");
  EXPECT_EQ(form.pos_teo144.colour, std::nullopt);
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            Names{"la classifica dei 144 Mhz non e stata controllata"});
}

TEST(AbsentStations, MissingFilesAreNoFailure) {
  AbsentDesk desk;
  desk.Verified();
  EXPECT_EQ(desk.manager.TakeFirstLines(), Names{" Non c'è nessuna classifica inserita."_a});
  EXPECT_FALSE(desk.form.Bar1.visible);
  desk.Filed("IK2QAA", {"I5QYY", "I1QXX"}).Verified();
  desk.workspace.files().Remove(desk.workspace.paths().store_file(StoreFile::kSommaQso));
  desk.form.Lista.Select(0);
  EXPECT_EQ(desk.form.n_qsoita_144.caption, "0");
  EXPECT_EQ(desk.form.media_144.caption, "");
  EXPECT_FALSE(desk.form.stampa_log_assente.enabled);
  desk.Verified();
  desk.form.stampa_log_assente.Click();
  EXPECT_FALSE(desk.form.stampa_log_assente.enabled);
  EXPECT_TRUE(desk.printer.printed.empty());
  EXPECT_TRUE(desk.manager.boxes.empty());
}

TEST(AbsentStations, EachFailureIsToldInItsOwnWords) {
  AbsentDesk desk;
  desk.ThreeLogs().Verified();
  const auto told = [&](const std::string& path, const std::function<void()>& act) {
    desk.files.broken_path = path;
    act();
    desk.files.broken_path.clear();
    const Names lines = desk.manager.TakeFirstLines();
    return lines.size() == 1 ? lines[0] : std::to_string(lines.size()) + " boxes";
  };
  const auto select = [&] { desk.form.Lista.Select(0); };
  const std::string error = " errore imprevisto numero: 61 nella linea : ";
  EXPECT_EQ(told("libreria.qso", [&] { desk.Verified(); }),
            error + "4  134 modulo assenti.  Contatta l' autore del software_0.0.8");
  EXPECT_FALSE(desk.form.stampa_assenti.enabled) << "nothing to print";
  desk.Verified();
  EXPECT_EQ(told("somma_qso", select),
            error + "2 modulo statistica assenti.  Contatta l' autore del software_0.0.8");
  EXPECT_EQ(told(".cla", select),
            error + "6 modulo statistica assenti.  Contatta l' autore del software_0.0.8");
  select();
  const auto print = [&] { desk.form.stampa_assenti.Click(); };
  EXPECT_EQ(told("call assenti.prn", print), kPrintFailure);
  desk.printer.broken = true;
  EXPECT_EQ(told("", [&] { desk.form.stampa_log_assente.Click(); }), kPrintFailure);
  desk.printer.installed = false;
  EXPECT_EQ(told("", print), kPrintFailure);
}

TEST(AbsentStations, ALibraryOfTooManyRowsFailsAndSoDoTheirSums) {
  AbsentDesk desk;
  desk.ThreeLogs().Verified();
  std::string rows(370'001 * 13, 'I');
  for (std::size_t row = 0; row < 370'001; ++row) {
    rows[row * 13 + 12] = '\n';
  }
  desk.workspace.With("Trofeo_Velmar/2IT/2ITsomma_qso.qso", rows);
  desk.form.Lista.Select(0);
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            Names{" errore imprevisto numero: 9 nella linea : 3Modulo rintraccia progressivo.     "
                  "Contatta l' autore del software_0.0.8"});
  desk.workspace.With("Trofeo_Velmar/2IT/2ITlibreria.qso", rows.substr(13));
  desk.Verified();
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.form.qso_con_esteri.caption, "370000");
  EXPECT_EQ(desk.form.perc_assenti.caption, "");
  desk.workspace.With("Trofeo_Velmar/2IT/2ITlibreria.qso", rows);
  desk.Verified();
  EXPECT_TRUE(Holds(desk.manager.TakeFirstLines().at(0), "numero: 9 "));
}

TEST(AbsentStations, LeavesForTheMainScreenOrTheStatistics) {
  AbsentDesk desk;
  desk.form.usci.Click();
  EXPECT_FALSE(desk.form.visible());
  EXPECT_TRUE(desk.main.visible());
  desk.screen.Hide(desk.main);
  desk.absent.Open();
  desk.form.Es_sci.Click();
  EXPECT_EQ(desk.statistics_opened, 1);
  EXPECT_FALSE(desk.form.visible() || desk.main.visible());
}

}  // namespace
}  // namespace velmar::test
