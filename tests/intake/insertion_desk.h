#pragma once

#include <string>
#include <utility>
#include <vector>

#include "intake/insertion.h"
#include "model/contest_store.h"
#include "session/main_form.h"
#include "session/main_menu.h"
#include "session/menu_trap.h"
#include "session/month_assignment.h"
#include "support/boxes.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {

/// What the manager reads of a log that the pass over its rows does not let through.
inline const Box kPassFailed{
    .lines = {" ATTENZIONE !!!   Il log ha dei problemi , inserimento annullato. "}};

/// The third step on a workspace of its own, ready to read the first log of the intake folder.
struct InsertionDesk {
  InsertionDesk() {
    workspace.WithTree().With(kDateFile, "2IT 250119\r\n");
    session.month_assigned = true;
    session.category_month = "GENNAIO 2025";
    session.contest_label = " Velmar  ";
    screen.Add(main);
    screen.Show(main);
    main.Check_AUT_entry.checked = true;
    main.File1.visible = true;
  }

  InsertionDesk& Waiting(const std::string& name, const std::string& log) {
    workspace.With("03 Log da inserire/" + name, log);
    return *this;
  }
  InsertionDesk& Turbo() {
    main.turbo.checked = true;
    main.Ins_auto.checked = true;
    return *this;
  }
  void Read() { main.caricaedi.Click(); }

  Names Inbox() { return workspace.Names("03 Log da inserire"); }
  Names SetAside() { return workspace.Names("Trofeo_Velmar/Log da ricontrollare"); }
  std::string Store(const std::string& tail) {
    return workspace.Read("Trofeo_Velmar/2IT/2IT" + tail);
  }

  /// Where a log lies, byte by byte as it is here.
  Names PlacesOf(const std::string& log) {
    Names places;
    for (const auto& [path, bytes] : workspace.Everything()) {
      if (bytes == log) {
        places.push_back(path);
      }
    }
    return places;
  }

  static constexpr const char* kDateFile = "Trofeo_Velmar/2IT/2IT data contest.dat";

  TempWorkspace workspace;
  FailingFileSystem files{workspace.files()};
  ScriptedManager manager;
  FixedClock clock;
  ContestSession session{workspace.paths().base()};
  Screen screen;
  MainForm main;
  ContestStore store{files, session.workspace};
  MenuTrap trap{manager};
  MonthAssignment months{session, files, manager, trap, clock};
  MainMenu menu{session, files, manager, trap, screen, main, months, {}};
  Insertion step{session, files, manager, store, months, main};
};

}  // namespace velmar::test
