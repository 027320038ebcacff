#include "session/start_up.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "model/iaru_table.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "platform/hosts.h"
#include "session/month.h"
#include "session/version.h"
#include "session/workbook_version.h"

namespace velmar {

namespace {

constexpr double kPingLimit = 1000;  ///< ms

/// The years that a machine may be dated. 2026 is not among them, and is meant so.
constexpr std::array<std::string_view, 13> kYears = {"2020", "2021", "2022", "2023", "2024",
                                                     "2025", "2027", "2028", "2029", "2030",
                                                     "2031", "2032", "2033"};

constexpr std::array<std::string_view, 9> kDriveRoots = {"C:\\", "D:\\", "E:\\", "F:\\", "G:\\",
                                                         "H:\\", "I:\\", "J:\\", "K:\\"};
constexpr std::array<std::string_view, 2> kFloppyRoots = {"B:\\", "A:\\"};

/// A line of the call book that counts is longer than this.
constexpr std::size_t kShortBookLine = 12;

bool HoldsAny(std::string_view text, std::string_view first, std::string_view second) {
  return Holds(text, first) || Holds(text, second);
}

}  // namespace

void StartUp::Show(std::vector<std::string> lines, Icon icon) {
  ports_.manager.Show({.lines = std::move(lines), .icon = icon});
}

void StartUp::End(std::vector<std::string> lines) {
  Show(std::move(lines));
  throw ProgramEnd();
}

void StartUp::Run() {
  trap_.Procedure([&] { Chain(); });
}

void StartUp::Chain() {
  TestConnection();
  TestSystem();
  TestWorkbook();
  TestDate();
  TestLocation();
  trap_.Statement(6, [&] { ports_.files.ChangeFolder(session_.workspace.base()); });
  session_.iaru_table = LoadIaruTable();
  SetDefaults();
  session_.tree_existed = ports_.files.FolderExists(session_.workspace.store());
  screen_.Show(main_);
  CreateTree();
  ListInsertDir();
  RequireSettings();
  if (!session_.tree_existed) {
    main_.restore_1KM.enabled = false;
    main_.Rinomina_ita.enabled = false;
  } else {
    ReadMonths();
    if (session_.month_mismatch) {
      EndOnMismatch();
    }
    ReadStore();
    TestCallBook();
    ReadClassification();
    TestRefusedLogs();
    TestWrongLogs();
    TestSteps();
    main_.title = MainTitle(session_);
  }
  CheckVersion();
  month_dialog_.Open();
  screen_.Hide(main_);
}

void StartUp::TestConnection() {
  session_.online = ports_.machine.Connected();
  const auto milliseconds = ports_.machine.Ping();
  session_.host_reachable = milliseconds && *milliseconds > 0 && *milliseconds < kPingLimit;
}

void StartUp::TestSystem() {
  const std::string name = ports_.machine.ProductName();
  const auto refuse = [&](const char* found) {
    End({found, " Sistema operativo non idoneo", " E' necesario almeno win 7 o superiore",
         " Programma terminato"});
  };
  if (HoldsAny(name, "XP", "xp")) {
    refuse(" Rilevato Microsoft XP");
  }
  if (HoldsAny(name, "VISTA", "Vista")) {
    refuse(" Rilevato Microsoft Vista");
  }
  main_.OS_versione.caption = name;
  if (Holds(name, "Windows 10")) {
    session_.online = true;
    session_.host_reachable = true;
  }
}

void StartUp::TestWorkbook() {
  session_.excel_running = ports_.machine.WorkbookRunning();
  main_.ExcelOpen.colour = session_.excel_running ? colour::kRed : colour::kGreen;
  if (session_.excel_running) {
    trap_.Tolerate([&] { ports_.machine.EndWorkbook(); });
  }
  const bool found = trap_.Tolerate([&] { ReadWorkbookVersion(session_, ports_.machine, main_); });
  if (!found) {
    Show({" Attenzione, il programma non riesce trovare ", " il numero di versione di excel.",
          " Probabilmente excel è stato distallato oppure "_a,
          " qualche DLL è stata cancellata. "_a, " Il programma prosegue ma non sarà possibile "_a,
          " esportare le classifiche in formato excel"});
  }
}

void StartUp::TestDate() {
  const std::string date = ports_.clock.ShortDate();
  if (std::ranges::find(kYears, YearOf(date)) != kYears.end()) {
    return;
  }
  End({" attenzione il formato della data NON è corretto"_a,
       " il pc deve essere configurato per avere la data in formato italiano",
       " e cioè:  giorno / mese / anno.  (gg/mm/yyyy)"_a,
       Join(" Il pc dice che oggi è il  :  "_a, date), "   ",
       " procedura :", " Fare clic sul pulsante Start, Pannello di controllo, orologio,",
       " lingua e area geograficae, Opzioni internazionali.",
       " Nella scheda formati , in formato corrente, fare clic su Personalizza.",
       " scegli formato gg / mm / yyyy"});
}

void StartUp::TestLocation() {
  const std::string& base = session_.workspace.base();
  if (std::ranges::find(kDriveRoots, base) != kDriveRoots.end()) {
    End(
        {" il programma non può essere eseguito da questa posizione. crea una "
         "directory e posta il programma"_a});
  }
  if (std::ranges::find(kFloppyRoots, base) != kFloppyRoots.end()) {
    End({" il programma non può essere eseguito da questo Drive"_a});
  }
}

void StartUp::SetDefaults() {
  session_.current_year = YearOf(ports_.clock.ShortDate());
  session_.contest_label = " Velmar  ";
  main_.CLA_mese_excel.enabled = false;
}

void StartUp::CreateTree() {
  const Workspace& workspace = session_.workspace;
  for (const std::string& folder :
       {workspace.store(), workspace.category(), workspace.wrong_logs(), workspace.repeated_logs(),
        workspace.to_check_again(), workspace.to_recalculate(), workspace.recalculated(),
        workspace.to_insert()}) {
    trap_.Statement(10, [&] { ports_.files.MakeFolder(folder); });
  }
}

void StartUp::ListInsertDir() {
  trap_.Statement(11, [&] {
    main_.ListFiles(ports_.files, session_.workspace.to_insert());
    session_.files_in_insert_dir = main_.File1.items.rows().size();
  });
}

void StartUp::RequireSettings() {
  bool missing = false;
  trap_.Statement(12, [&] { missing = !ReadIfThere(ports_.files, session_.workspace.settings()); });
  if (!missing || session_.tree_existed) {
    return;
  }
  screen_.Hide(main_);
  Show({" ATTENZIONE,  questa sembra essere la prima esecuzione del programma. ",
        " Se cosi fosse, esci dal programma e : ", "     ",
        " 1) metti i log degli italiani senza rinominarli nella cartella: ",
        "                 01 Log da RICALCOLARE", "   ", " 2) esegui nuovamente il programma.",
        "   ", " se non è la prima volta, allora sono mancanti alcuni file."_a});
  End({" PROGRAMMA TERMINATO"});
}

void StartUp::ReadMonths() {
  trap_.Statement(14, [&] {
    if (const auto text = ReadIfThere(ports_.files, session_.workspace.month_to_check())) {
      session_.month_to_check = LastLine(*text);
    }
  });
  trap_.Statement(15, [&] {
    const auto text = ReadIfThere(ports_.files, session_.workspace.category_month());
    LineReader reader(text ? *text : std::string_view());
    std::string_view line;
    while (!session_.month_mismatch && reader.Next(line)) {
      session_.category_month = line;
      session_.month_mismatch = session_.category_month != session_.month_to_check;
    }
  });
  if (session_.month_mismatch) {
    Show({" il mese della categoria 2IT non coincide con il mese da controllare"});
    return;
  }
  session_.month_assigned = true;
  main_.title = MainTitle(session_);
}

void StartUp::ReadStore() {
  trap_.Statement(17, [&] {
    if (const auto text =
            ReadIfThere(ports_.files, session_.workspace.store_file(StoreFile::kPartecipanti))) {
      FillWithLines(session_.participants, *text);
    }
  });
  trap_.Statement(17, [&] {
    if (const auto text =
            ReadIfThere(ports_.files, session_.workspace.store_file(StoreFile::kLibreriaTotale))) {
      FillWithLines(session_.total_library, *text);
    }
  });
}

void StartUp::TestCallBook() {
  trap_.Statement(18, [&] {
    const auto book = ReadIfThere(ports_.files, session_.workspace.call_book());
    if (!book) {
      session_.archive_missing = true;
      Show({" L' archivio del programma è assente,"_a,
            " i controlli risulteranno lunghi e imprecisi"});
      return;
    }
    const auto lines = SplitLines(*book);
    if (std::ranges::count_if(
            lines, [](std::string_view line) { return line.size() > kShortBookLine; }) != 1) {
      Show({"Attenzione il file Varto_book.bin non è un file valido"_a});
    }
  });
}

void StartUp::ReadClassification() {
  trap_.Statement(19, [&] {
    const auto text =
        ReadIfThere(ports_.files, session_.workspace.classification(session_.category_month));
    if (text) {
      FillWithLines(session_.classifica_rows, *text);
      main_.controlla_locatori.enabled = true;
      main_.CLA_mese_excel.enabled = true;
    }
  });
}

void StartUp::TestRefusedLogs() {
  bool refused = false;
  trap_.Statement(20,
                  [&] { refused = HoldsFiles(ports_.files, session_.workspace.to_check_again()); });
  if (refused) {
    End({" La cartella ' Log da ricontrolalre ', contiene file. Verifica.",
         " Eliminali se non sono file dello Velmar, se sono log errati correggili ",
         " e posizionali nella direcoty di competenza.", " ",
         " se sono file da ricalcolare vanno in '01 Log da RICALCOLARE'",
         " Se sono file spostati durante l' inserimento log, vanno in '03 Log da inserire'"});
  }
}

void StartUp::TestWrongLogs() {
  trap_.Statement(21, [&] {
    if (HoldsFiles(ports_.files, session_.workspace.wrong_logs())) {
      Show({"La cartella 'Log errati', contiene file. Verifica"});
    }
  });
}

void StartUp::TestSteps() {
  const auto pending = [&](const std::string& folder) {
    bool holds_files = false;
    trap_.Statement(22, [&] { holds_files = HoldsFiles(ports_.files, folder); });
    return holds_files;
  };
  session_.step1_pending = pending(session_.workspace.to_recalculate());
  session_.step2_pending = pending(session_.workspace.recalculated());
  session_.step3_pending = pending(session_.workspace.to_insert());
  if (session_.step1_pending) {
    main_.ShowHeaderPanel();
  } else {
    main_.restore_1KM.checked = true;
    main_.restore_1KM.enabled = false;
    main_.HideHeaderPanel();
  }
  if (session_.step2_pending) {
    main_.HideHeaderPanel();
  } else {
    main_.Rinomina_ita.enabled = false;
  }
  if (session_.step1_pending && session_.step2_pending) {
    Show({"            Attenzione ci sono dei file nella cartella :",
          "'01 Log da RICALCOLARE' e, nella cartella '02 Log ricalcolati'",
          "            Questa condizione non è normale. "_a,
          "            una delle directory deve essere vuota."});
  }
  ShowInsertStep(session_.step3_pending);
  if (!session_.step1_pending && !session_.step2_pending && !session_.step3_pending) {
    main_.Rinomina_ita.checked = true;
  }
}

void StartUp::ShowInsertStep(bool pending) {
  main_.ShowInsertStep(pending);
  main_.File1.visible = pending;
  main_.info_turbo.visible = false;
  main_.Inserimento_OK.visible = false;
  if (pending) {
    main_.StopTurbo();
  } else {
    main_.Inserire_log.enabled = false;
    main_.Inserire_log.checked = true;
  }
}

void StartUp::EndOnMismatch() {
  Show({Join(" ATTENZIONE hai selezionato il mese di (", session_.month_to_check, ")"),
        "                             ",
        Join(" Ma nelle directory il mese è "_a, session_.category_month), "  ",
        " Il programma è terminato. Verifica le date dello Velmar."_a},
       Icon::kStop);
  Show({" Correggi la data e riavia"});
  months_.RepairMonth();
  throw ProgramEnd();
}

void StartUp::CheckVersion() {
  info_.Label2.caption.clear();
  info_.lblVersion.caption.clear();
  if (!session_.online || !session_.host_reachable) {
    return;
  }
  std::string fetched;
  const bool answered =
      trap_.Tolerate([&] { fetched = ports_.web.Fetch(std::string(hosts::kVersionText)); });
  if (!answered) {
    session_.online = false;
    return;
  }
  const auto lines = SplitLines(fetched);
  const std::string version(lines.empty() ? std::string_view() : lines.front());
  if (kVersionShort < version) {
    ShowNewVersion(DottedVersion(version));
  }
}

void StartUp::ShowNewVersion(const std::string& version) {
  Show({" ATTENZIONE , una nuova versione è disponibile. "_a,
        Join(" versione in uso  ", VersionDotted()), Join("     Nuova versione  ", version),
        " LA nuova versione è on line perchè sono stati riscontrati e corretti degli "
        "errori "_a,
        " E' consigliato utilizzare sempre l' ultima versione disponibile."_a});
  info_.Label2.caption = " NUOVA VERSIONE DISPONIBILE";
  info_.Label2.colour = colour::kYellow;
  info_.lblVersion.caption = Join("Vers. in uso ", VersionDotted(), " New version ", version);
}

}  // namespace velmar
