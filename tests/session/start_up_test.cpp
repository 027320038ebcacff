#include "session/start_up.h"

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <optional>

#include "model/text.h"
#include "platform/error.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* kNoArchive = " L' archivio del programma \xE8 assente,";
constexpr const char* kClassification =
    "Trofeo_Velmar/2IT/2IT Classifica Mensile 144 gennaio 2025.cla";

/// One run of the program up to the end of its start.
struct StartedProgram {
  StartedProgram(const std::string& base, FileSystem& files, Manager& manager, Clock& clock,
                 Machine& machine, Web& web, Printer& printer, PictureFiles& pictures,
                 WorkbookApp& workbooks)
      : session(base),
        trap(manager),
        config(session, files, manager, trap, screen, main, check),
        dialog(session, files, manager, trap, clock, screen, main, config),
        months(session, files, manager, trap, clock),
        start(session, {files, manager, clock, machine, web, printer, pictures, workbooks}, trap,
              screen, main, info, months, dialog) {
    for (Form* form : std::initializer_list<Form*>{&main, &dialog.form(), &config.form()}) {
      screen.Add(*form);
    }
    screen.on_visibility = [this](const Form& form) {
      events.push_back((form.visible() ? "+" : "-") + form.name());
    };
    try {
      start.Run();
    } catch (const ProgramEnd&) {
      ended = true;
    }
  }

  ContestSession session;
  Screen screen;
  MainForm main;
  CheckOptions check;
  InfoForm info;
  MenuTrap trap;
  ConfigDialog config;
  MonthDialog dialog;
  MonthAssignment months;
  StartUp start;
  Lines events;
  bool ended = false;
};

class StartUpTest : public testing::Test {
 protected:
  StartedProgram& Start() {
    run = std::make_unique<StartedProgram>(workspace.paths().base(), files, manager, clock, machine,
                                           web, printer, pictures, workbooks);
    return *run;
  }

  /// A workspace that a start goes through in silence.
  void Configured() {
    workspace.WithTree().WithMonth("GENNAIO 2025").WithSettings();
    workspace.With("Varto_book.bin", "a book of one line");
  }

  TempWorkspace workspace;
  FailingFileSystem files{workspace.files()};
  ScriptedManager manager;
  FixedClock clock;
  FakeMachine machine;
  FakeWeb web;
  RecordingPrinter printer;
  RecordingPictures pictures;
  RecordingWorkbooks workbooks{workspace.files()};
  std::unique_ptr<StartedProgram> run;
};

TEST_F(StartUpTest, TheVeryFirstStartMakesTheTreeAndEnds) {
  EXPECT_TRUE(Start().ended);
  EXPECT_EQ(run->events, (Lines{"+VLM2M_01_input", "-VLM2M_01_input"}));
  ASSERT_EQ(manager.boxes.size(), 2U);
  EXPECT_EQ(manager.boxes[0].lines.size(), 9U);
  EXPECT_EQ(manager.boxes[1].lines, Lines{" PROGRAMMA TERMINATO"});
  for (const char* folder : {"Trofeo_Velmar/2IT", "Trofeo_Velmar/Log errati",
                             "Trofeo_Velmar/Log doppi", "Trofeo_Velmar/Log da ricontrollare",
                             "01 Log da RICALCOLARE", "02 Log ricalcolati", "03 Log da inserire"}) {
    EXPECT_TRUE(workspace.files().FolderExists(Join(workspace.paths().base(), "/", folder)));
  }
  manager.boxes.clear();
  EXPECT_FALSE(Start().ended) << "the second start goes on without the settings file";
  EXPECT_EQ(manager.TakeFirstLines(), Lines{kNoArchive});
}

TEST_F(StartUpTest, AFirstStartBesideSettingsSkipsToTheDialogs) {
  workspace.WithSettings();
  EXPECT_FALSE(Start().ended);
  EXPECT_TRUE(manager.boxes.empty());
  EXPECT_FALSE(run->main.restore_1KM.enabled);
  EXPECT_FALSE(run->main.Rinomina_ita.enabled);
  EXPECT_EQ(run->events, (Lines{"+VLM2M_01_input", "+VLM2M_00_Mese", "-VLM2M_01_input"}));
}

TEST_F(StartUpTest, EmptyFoldersGateTheSteps) {
  Configured();
  const MainForm& main = Start().main;
  EXPECT_TRUE(manager.boxes.empty());
  EXPECT_TRUE(main.restore_1KM.checked);
  EXPECT_FALSE(main.restore_1KM.enabled);
  EXPECT_TRUE(main.Rinomina_ita.checked);
  EXPECT_FALSE(main.Rinomina_ita.enabled);
  EXPECT_TRUE(main.Inserire_log.checked);
  EXPECT_FALSE(main.Inserire_log.enabled);
  EXPECT_FALSE(main.controlla_locatori.enabled);
  EXPECT_FALSE(main.CLA_mese_excel.enabled);
  EXPECT_FALSE(main.Callusato.visible || main.caricaedi.visible || main.File1.visible);
  EXPECT_TRUE(run->session.month_assigned);
}

TEST_F(StartUpTest, WaitingLogsOpenTheirSteps) {
  Configured();
  workspace.WithLog("a.edi", "x")
      .With("02 Log ricalcolati/a.edi", "x")
      .With("03 Log da inserire/a.edi", "x");
  const MainForm& main = Start().main;
  EXPECT_EQ(manager.boxes.at(0).lines,
            (Lines{"            Attenzione ci sono dei file nella cartella :",
                   "'01 Log da RICALCOLARE' e, nella cartella '02 Log ricalcolati'",
                   "            Questa condizione non \xE8 normale. ",
                   "            una delle directory deve essere vuota."}));
  EXPECT_TRUE(main.restore_1KM.enabled && main.Rinomina_ita.enabled && main.Inserire_log.enabled);
  EXPECT_FALSE(main.restore_1KM.checked || main.Rinomina_ita.checked || main.Inserire_log.checked);
  EXPECT_TRUE(main.Callusato.visible && main.caricaedi.visible && main.File1.visible);
  EXPECT_EQ(main.num_file2.caption, "1");
}

TEST_F(StartUpTest, TheStoreIsRead) {
  Configured();
  workspace.With("Trofeo_Velmar/2IT/2IT partecipanti.par", "one\r\ntwo\r\n")
      .With("Trofeo_Velmar/2IT/2ITlibreria_totale.tot", "qso\r\n")
      .With(kClassification, "header\r\nrow\r\n");
  EXPECT_EQ(Start().session.participants[2], "two");
  EXPECT_EQ(run->session.total_library.size(), 1U);
  EXPECT_EQ(run->session.classifica_rows[1], "header");
  EXPECT_TRUE(run->main.controlla_locatori.enabled && run->main.CLA_mese_excel.enabled);
}

TEST_F(StartUpTest, AnOverfullTableCutsTheStartShort) {
  Configured();
  std::string rows;
  for (int i = 0; i <= 10'000; ++i) {
    rows += "x\n";
  }
  workspace.With("Trofeo_Velmar/2IT/2IT partecipanti.par", rows);
  EXPECT_FALSE(Start().ended);
  EXPECT_EQ(manager.TakeFirstLines(),
            Lines{" errore imprevisto numero: 9 nella linea : 17 menu form principale Contatta l' "
                  "autore del software_0.0.8"});
  EXPECT_EQ(run->events, Lines{"+VLM2M_01_input"}) << "the main screen stays";
}

TEST_F(StartUpTest, RefusedLogsStopEveryStartAndWrongOnesDoNot) {
  Configured();
  workspace.With("Trofeo_Velmar/Log errati/a.edi", "x");
  EXPECT_FALSE(Start().ended);
  EXPECT_EQ(manager.TakeFirstLines(), Lines{"La cartella 'Log errati', contiene file. Verifica"});
  workspace.With("Trofeo_Velmar/Log da ricontrollare/a.txt", "x");
  EXPECT_TRUE(Start().ended);
  EXPECT_EQ(manager.boxes.at(0).lines.size(), 6U);
  EXPECT_EQ(manager.TakeFirstLines(),
            Lines{" La cartella ' Log da ricontrolalre ', contiene file. Verifica."});
}

TEST_F(StartUpTest, MonthsThatDifferAreRepairedAndEndTheStart) {
  Configured();
  workspace.With("Trofeo_Velmar/mese_verifica.dat", "GENNAIO 2024\r\nGENNAIO 2025\r\n")
      .With("Trofeo_Velmar/2IT/mese.dat", "GENNAIO 2025\r\nGENNAIO 2023\r\nGENNAIO 2025\r\n")
      .With("Trofeo_Velmar/Log da ricontrollare/a.txt", "x");
  manager.inputs = {"gennaio 2023"};
  EXPECT_TRUE(Start().ended);
  ASSERT_EQ(manager.boxes.size(), 3U);
  EXPECT_EQ(manager.boxes[0].lines,
            Lines{" il mese della categoria 2IT non coincide con il mese da controllare"});
  EXPECT_EQ(manager.boxes[1].icon, Icon::kStop);
  EXPECT_EQ(manager.boxes[1].lines,
            (Lines{" ATTENZIONE hai selezionato il mese di (GENNAIO 2025)",
                   "                             ", " Ma nelle directory il mese \xE8 GENNAIO 2023",
                   "  ", " Il programma \xE8 terminato. Verifica le date dello Velmar."}));
  EXPECT_EQ(manager.boxes[2].lines, Lines{" Correggi la data e riavia"});
  EXPECT_EQ(workspace.Read("Trofeo_Velmar/mese_verifica.dat"), "GENNAIO 2023\r\n");
  EXPECT_EQ(workspace.Read("Trofeo_Velmar/2IT/mese.dat"), "GENNAIO 2023\r\n");
}

TEST_F(StartUpTest, TheCallBookHasOneLongLine) {
  Configured();
  for (const auto& [book, valid] :
       std::map<std::string, bool>{{"", false},
                                   {"123456789012", false},
                                   {"1234567890123\nshort\r\n", true},
                                   {"1234567890123\n1234567890123\n", false}}) {
    workspace.With("Varto_book.bin", book);
    Start();
    EXPECT_EQ(manager.TakeFirstLines().empty(), valid) << book;
    EXPECT_FALSE(run->session.archive_missing);
  }
}

TEST_F(StartUpTest, SystemsAndDatesThatAreRefused) {
  Configured();
  for (const char* name : {"Windows XP", "winxp", "VISTA", "Windows Vista Home"}) {
    machine.product_name = name;
    EXPECT_TRUE(Start().ended) << name;
    EXPECT_EQ(manager.boxes.back().lines.size(), 4U);
  }
  machine.product_name = "Debian";
  for (const char* date : {"21/01/2026", "21/01/2019", "2034", "", "2025-01-21"}) {
    clock.date = date;
    EXPECT_TRUE(Start().ended) << date;
    EXPECT_EQ(manager.boxes.back().lines.size(), 10U);
    EXPECT_EQ(manager.boxes.back().lines[3], Join(" Il pc dice che oggi \xE8 il  :  ", date));
  }
  clock.date = "31/12/2033";
  EXPECT_FALSE(Start().ended);
}

TEST_F(StartUpTest, RootsOfDrivesAreRefused) {
  for (const auto& [base, last] : std::map<std::string, std::string>{
           {"D:\\", "crea una directory e posta il programma"}, {"A:\\", "questo Drive"}}) {
    StartedProgram at_root(base, files, manager, clock, machine, web, printer, pictures, workbooks);
    EXPECT_TRUE(at_root.ended);
    EXPECT_TRUE(manager.boxes.back().lines[0].ends_with(last));
  }
}

TEST_F(StartUpTest, TheWorkbookApplicationIsLookedFor) {
  Configured();
  machine.workbook_running = true;
  machine.workbook_refuses_to_end = true;
  EXPECT_EQ(Start().main.ExcelOpen.colour, colour::kRed);
  EXPECT_EQ(machine.workbooks_ended, 1);
  EXPECT_EQ(run->session.excel_major_version, 16);
  EXPECT_EQ(run->main.Label_excel.caption, "Excel 2016");

  machine.workbook_running = false;
  machine.workbook_version = 0;
  EXPECT_EQ(Start().main.ExcelOpen.colour, colour::kGreen);
  EXPECT_EQ(manager.boxes.at(0).lines.size(), 6U);
  EXPECT_EQ(run->session.excel_major_version, 0);
  EXPECT_TRUE(run->dialog.form().visible()) << "the start goes on";
}

TEST_F(StartUpTest, ANewVersionIsToldWhereTheHostAnswers) {
  Configured();
  machine.connected = true;
  web.page = "25-112\r\n";
  for (const std::optional<double> ping :
       {std::optional<double>(), std::optional(0.0), std::optional(1000.0)}) {
    machine.ping = ping;
    Start();
    EXPECT_TRUE(web.fetched.empty());
  }
  machine.ping = 12;
  EXPECT_EQ(Start().info.lblVersion.caption, "Vers. in uso 0.0.8 New version 1.1.2");
  EXPECT_EQ(run->info.Label2.colour, colour::kYellow);
  EXPECT_EQ(manager.boxes.at(0).lines[1], " versione in uso  0.0.8");
  EXPECT_EQ(manager.boxes.at(0).lines[2], "     Nuova versione  1.1.2");
  manager.boxes.clear();

  web.page = "24-008\r\n";
  EXPECT_EQ(Start().info.lblVersion.caption, "");
  web.page = std::nullopt;
  EXPECT_FALSE(Start().session.online) << "a failed fetch";
  EXPECT_TRUE(manager.boxes.empty());

  machine.connected = false;
  machine.ping = std::nullopt;
  machine.product_name = "Windows 10 Home";
  web.page = "24-009";
  Start();
  EXPECT_EQ(manager.boxes.size(), 1U) << "this system counts as connected";
}

// Whatever file is locked or broken, the start tells it or passes it over, and stays usable.
TEST_F(StartUpTest, NoFileStopsAStartInSilence) {
  Configured();
  for (const char* path : {"mese.dat", "VartoVLM.ini", "Varto_book", "Log errati", "01 Log da",
                           "02 Log ric", "03 Log da", "Log da ricontrollare"}) {
    for (const auto number : {ErrorNumber::kPathFileAccess, ErrorNumber::kPathNotFound,
                              ErrorNumber::kPermissionDenied, ErrorNumber::kDeviceError}) {
      files.broken_path = path;
      files.number = number;
      Start();
      const bool passed_over =
          number == ErrorNumber::kPathFileAccess || number == ErrorNumber::kPathNotFound;
      EXPECT_FALSE(run->ended) << path;
      EXPECT_EQ(manager.TakeFirstLines().empty(), passed_over) << path;
      EXPECT_EQ(run->dialog.form().visible(), number != ErrorNumber::kDeviceError) << path;
    }
  }
}

}  // namespace
}  // namespace velmar::test
