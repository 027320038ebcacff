#include "intake/renaming.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <utility>

#include "model/lines.h"
#include "model/text.h"
#include "platform/error.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

using Names = std::vector<std::string>;

constexpr const char* kNoFirstLine = " - prima riga non corretta o riga vuota.txt";

/// A manager beside whom something happens while a run is under way.
class BusyManager : public ScriptedManager {
 public:
  void Progress(std::size_t done, std::size_t total) override {
    ScriptedManager::Progress(done, total);
    if (done == at) {
      std::exchange(then, [] {})();
    }
  }

  std::size_t at = 0;  ///< the progress at which `then` happens, once
  std::function<void()> then = [] {};
};

/// A log of a call, as a recalculation leaves it. No two calls have the same log.
std::string Log(const std::string& call) {
  return LogText(call, "JN45AA", {QsoRow(call + "X", "JM67AA")});
}

/// A log of a call with a part of its text changed.
std::string Log(const std::string& call, std::string_view from, std::string_view to) {
  std::string log = Log(call);
  return log.replace(log.find(from), from.size(), to);
}

std::string WithLineEnd(const std::string& log, const std::string& end) {
  std::string changed;
  for (const std::string_view line : SplitLines(log)) {
    changed += Join(line, end);
  }
  return changed;
}

/// The second step on a temporary workspace.
struct Story {
  Story() {
    workspace.WithTree();
    main.Inserire_log.enabled = false;
    main.Inserire_log.checked = true;
  }

  Story& With(const std::string& name, const std::string& log) {
    workspace.With("02 Log ricalcolati/" + name, log);
    return *this;
  }
  Story& Run() {
    step.Open();
    step.form().rinomina.Click();
    return *this;
  }

  Names Source() { return workspace.Names("02 Log ricalcolati"); }
  Names ToInsert() { return workspace.Names("03 Log da inserire"); }
  Names SetAside() { return workspace.Names(kAside); }
  std::string Inserted(const std::string& name) {
    return workspace.Read("03 Log da inserire/" + name);
  }
  std::string Aside(const std::string& name) { return workspace.Read(Join(kAside, "/", name)); }

  /// The counters on the screen: read, repeated, changed calls, not valid, renamed.
  std::string Counts() {
    const RenamingForm& f = step.form();
    return Join(f.file_letti.caption, " ", f.file_doppi.caption, " ", f.call_cambiati.caption, " ",
                f.file_nonvalidi.caption, " ", f.file_rinominati.caption);
  }
  bool Told(const std::string& text) {
    return std::ranges::any_of(step.form().List1.items.rows(),
                               [&](const std::string& row) { return Holds(row, text); });
  }
  /// Whether a log is whole in some folder, with its own line ends or the usual ones.
  bool Whole(const std::string& log) {
    return std::ranges::any_of(workspace.Everything(), [&](const auto& file) {
      return file.second == log || file.second == WithLineEnd(log, "\r\n");
    });
  }

  static constexpr const char* kAside = "Trofeo_Velmar/Log da ricontrollare";

  TempWorkspace workspace;
  FailingFileSystem files{workspace.files()};
  BusyManager manager;
  Screen screen;
  ContestSession session{workspace.paths().base()};
  MainForm main;
  Renaming step{session, files, manager, screen, main};
};

TEST(Renaming, AGoodRunAndLeaving) {
  Story s;
  s.With("b.EDI", Log("IV3/AB1CD")).With("a.edi", Log("IZ9QBC/P")).With("c.edi", Log("IK2QAA"));
  s.With("note.txt", "x").Run();
  EXPECT_EQ(s.ToInsert(), (Names{"2IT_AB1CD.edi", "2IT_IK2QAA.edi", "2IT_IZ9QBC.edi"}));
  EXPECT_EQ(s.Inserted("2IT_AB1CD.edi"), Log("IV3/AB1CD"));
  EXPECT_EQ(s.Source().size(), 4U) << "the logs stay until the step is left";
  EXPECT_EQ(s.Counts(), "3 0 2 0 3");
  EXPECT_EQ(s.step.form().Text1.value, "3");
  EXPECT_EQ(s.step.form().source.items.rows(), (Names{"a.edi", "b.EDI", "c.edi"}));
  EXPECT_EQ(s.step.form().destination.items.rows(), s.ToInsert());
  EXPECT_TRUE(s.Told("2IT_IZ9QBC.edi"));

  s.step.form().torna_menu.Click();
  EXPECT_EQ(s.Source(), Names{"note.txt"});
  EXPECT_FALSE(s.step.form().visible());
  EXPECT_TRUE(s.main.visible());
  EXPECT_TRUE(s.main.Rinomina_ita.checked && !s.main.Rinomina_ita.enabled);
  EXPECT_TRUE(s.main.Inserire_log.enabled && s.main.caricaedi.visible && s.main.File1.visible);
  EXPECT_EQ(s.main.File1.items.rows(), s.ToInsert());
  EXPECT_EQ(s.main.num_file2.caption, "3");
  EXPECT_TRUE(s.manager.boxes.empty());
}

TEST(Renaming, OpensOnWhatThereIsAndLeavesItWithoutARun) {
  Story s;
  s.With("a.txt", Log("IK2QAA")).step.Open();
  EXPECT_FALSE(s.step.form().rinomina.enabled) << "no log";
  s.With("a.edi", Log("IK2QAA")).step.Open();
  EXPECT_TRUE(s.step.form().rinomina.enabled);
  s.step.form().esci.Click();
  EXPECT_EQ(s.Source(), (Names{"a.edi", "a.txt"}));
  EXPECT_TRUE(s.main.visible() && !s.step.form().visible());
}

TEST(Renaming, ForeignLineEndsBecomeTheUsualOnes) {
  const std::string log = Log("IK2QAA");
  const std::string mixed = Log("IK2QAA", "\r\n", "\n");
  for (const std::string& text :
       {WithLineEnd(log, "\n"), WithLineEnd(log, "\r"), mixed, log.substr(0, log.size() - 2)}) {
    Story s;
    s.With("a.edi", text).Run();
    EXPECT_EQ(s.workspace.Read("02 Log ricalcolati/a.edi"), log);
    EXPECT_EQ(s.Inserted("2IT_IK2QAA.edi"), log);
  }
}

TEST(Renaming, AFileWithAnotherFirstLineIsNoLog) {
  const std::string log = Log("IK2QAA");
  const std::vector<std::string> faults = {
      "",         "\r\n" + log, "\xEF\xBB\xBF" + log,   " " + log, "[REGITEST;1]" + log.substr(12),
      "[REG1TES", "<br>" + log, std::string(1000, '\0')};
  const Names renamed{Join("a.edi", kNoFirstLine)};
  for (const std::string& fault : faults) {
    Story s;
    s.With("a.edi", fault).Run();
    EXPECT_EQ(s.Source(), renamed);
    EXPECT_EQ(s.Counts(), "0 0 0 1 0") << fault.substr(0, 20);
    s.step.form().torna_menu.Click();
    EXPECT_EQ(s.Source(), renamed);
    EXPECT_TRUE(s.Whole(fault));
    EXPECT_TRUE(s.ToInsert().empty() && s.SetAside().empty());
  }
}

TEST(Renaming, ALogThatIsNotValidIsSetAsideAndTheRunGoesOn) {
  const std::string no_section = Log("IK2QAB", "PSect", "XSect");
  const std::string no_band = Log("IK2QAC", "PBand", "XBand");
  const std::string page = Log("IK2QAD", "\r\n", "<br>\r\n");
  const std::string far = Log("IK2QAE", "144 MHz", "432 MHz");
  Story s;
  s.With("a.edi", Log("I/AB1CD/P")).With("b.edi", no_section).With("c.edi", no_band);
  s.With("d.edi", page).With("e.edi", far).With("f.edi", Log("IK2QAF")).Run();
  const std::vector<std::pair<std::string, std::string>> aside = {
      {"00__00_IK2QAE Problem  Cat=2IT Freq=432 MHz 4.edi", far},
      {"00__call non valido.edi", Log("I/AB1CD/P")},
      {"00__IK2QAB manca PSect _ 1.edi", no_section},
      {"00__IK2QAC manca PBand _ 2 no frequenza.edi", no_band},
      {"00__Log non valido 3.edi", page}};
  Names names;
  for (const auto& [name, log] : aside) {
    names.push_back(name);
    EXPECT_EQ(s.Aside(name), log) << name;
    EXPECT_TRUE(s.Told(name)) << name;
  }
  EXPECT_EQ(s.SetAside(), names);
  EXPECT_EQ(s.ToInsert(), Names{"2IT_IK2QAF.edi"});
  EXPECT_EQ(s.Counts(), "6 0 0 5 1");
  ASSERT_EQ(s.manager.boxes.size(), 2U);
  EXPECT_EQ(s.manager.boxes[0], Box{.lines = {" Manca 'PSect' - Log errato  b.edi"}});
  EXPECT_EQ(s.manager.boxes[1], Box{.lines = {" Manca 'PBand' - Log errato  c.edi"}});
  s.step.form().torna_menu.Click();
  EXPECT_TRUE(s.Source().empty());
}

TEST(Renaming, TheFirstLogOfACallKeepsItsNameAndTheOthersAreSetAside) {
  Story s;
  s.With("a.edi", Log("IK2QAA")).With("b.edi", Log("IK2QAA/P")).With("c.edi", Log("IK2QAB"));
  s.With("d.edi", Log("F/IK2QAA")).Run();
  EXPECT_EQ(s.ToInsert(), (Names{"2IT_IK2QAA.edi", "2IT_IK2QAB.edi"}));
  EXPECT_EQ(s.Inserted("2IT_IK2QAA.edi"), Log("IK2QAA"));
  EXPECT_EQ(s.Aside("00__IK2QAA  1.edi"), Log("IK2QAA/P"));
  EXPECT_EQ(s.Aside("00__IK2QAA  2.edi"), Log("F/IK2QAA"));
  EXPECT_EQ(s.Counts(), "4 2 1 2 2");
}

TEST(Renaming, LogsWithoutACallAreRepeatsOfOneAnother) {
  Story s;
  s.With("a.edi", Log("A/B/C")).With("b.edi", Log("D/E/F")).Run();
  EXPECT_EQ(s.Aside("00__call non valido.edi"), Log("A/B/C"));
  EXPECT_EQ(s.Aside("00__call non valido  1.edi"), Log("D/E/F"));
  EXPECT_EQ(s.Counts(), "2 1 0 2 0");
}

TEST(Renaming, ANameThatIsTakenInTheDestinationMarksASecondLog) {
  Story s;
  s.workspace.With("03 Log da inserire/2IT_IK2QAA.edi", "earlier");
  // A name cannot have "*" or "+"; with blanks in their place the two are the same.
  s.With("a.edi", Log("IK2QAA")).With("b.edi", Log("IK2QAB*")).With("c.edi", Log("IK2QAB+")).Run();
  EXPECT_EQ(s.ToInsert(), (Names{"00_a.edi Call doppio 1", "00_c.edi Call doppio 2",
                                 "2IT_IK2QAA.edi", "2IT_IK2QAB .edi"}));
  EXPECT_EQ(s.Inserted("2IT_IK2QAA.edi"), "earlier");
  EXPECT_EQ(s.Inserted("00_a.edi Call doppio 1"), Log("IK2QAA"));
  EXPECT_EQ(s.Inserted("00_c.edi Call doppio 2"), Log("IK2QAB+"));
  EXPECT_TRUE(s.Told("00_c.edi Call doppio 2"));
  EXPECT_EQ(s.Counts(), "3 2 0 0 1");
}

TEST(Renaming, AFileSetAsideEarlierIsNotOverwritten) {
  Story s;
  s.workspace.With(Join(Story::kAside, "/00__call non valido.edi"), "earlier");
  s.With("a.edi", Log("A/B/C")).With("b.edi", "x").With(Join("b.edi", kNoFirstLine), "earlier");
  s.Run();
  EXPECT_EQ(s.SetAside(), (Names{"00__call non valido (2).edi", "00__call non valido.edi"}));
  EXPECT_EQ(s.Aside("00__call non valido.edi"), "earlier");
  EXPECT_EQ(s.Source(),
            (Names{"a.edi", Join("b.edi (2)", kNoFirstLine), Join("b.edi", kNoFirstLine)}));
  EXPECT_EQ(s.Counts(), "1 0 0 2 0");
}

TEST(Renaming, TheSectionGetsItsUsualForm) {
  Story s;
  s.With("a.edi", Log("IK2QAA", "PSect=2IT", "pSECT=2it"));
  s.With("b.edi", Log("IK2QAB", "PSect=2IT", "PSect=unica")).Run();
  EXPECT_EQ(s.Inserted("2IT_IK2QAA.edi"), Log("IK2QAA"));
  EXPECT_TRUE(Holds(s.Inserted("2IT_IK2QAB.edi"), "\r\nPSect=UNICA\r\n"));
}

TEST(Renaming, ALogThatComesInDuringTheRunIsNotLost) {
  for (std::size_t at = 1; at <= 4; ++at) {
    Story s;
    s.manager.at = at;
    s.manager.then = [&] { s.With("late.edi", Log("IK2QAC")); };
    s.With("a.edi", Log("IK2QAA")).With("b.edi", Log("IK2QAB")).Run();
    s.step.form().torna_menu.Click();
    EXPECT_TRUE(s.Whole(Log("IK2QAC"))) << at;
    if (at > 2) {
      EXPECT_EQ(s.Source(), Names{"late.edi"}) << at;
    }
  }
}

TEST(Renaming, AFileThatCannotBeReadIsToldAndStays) {
  Story s;
  s.files.broken_path = "ricalcolati/a.edi";
  s.files.number = ErrorNumber::kPathFileAccess;
  s.With("a.edi", Log("IK2QAA")).Run();
  EXPECT_TRUE(
      s.manager.TakeFirstLines().at(0).starts_with(" errore imprevisto numero: 75 nella linea : "));
  s.step.form().torna_menu.Click();
  EXPECT_EQ(s.Source(), Names{"a.edi"});
}

// A declared text can be longer than a file name, and hold bytes that no file name can.
TEST(Renaming, AnOddHeaderIsSetAsideAndStopsNoOtherLog) {
  const std::string wide = Log("IK2QAB", "144 MHz", "432" + std::string(400, 'x'));
  const std::string nul("IK2\0QAC", 7);
  Story s;
  s.With("a.edi", wide).With("b.edi", Log(nul)).With("c.edi", Log("IK2QAA")).Run();
  EXPECT_TRUE(s.manager.boxes.empty());
  EXPECT_EQ(s.SetAside().size(), 1U);
  EXPECT_EQ(s.ToInsert(), (Names{"2IT_IK2 QAC.edi", "2IT_IK2QAA.edi"}));
}

// Whatever write breaks, each log is whole in one of the folders: after the run, after another try,
// and after leaving.
TEST(Renaming, NoLogIsLostWhereverTheDiskFails) {
  const std::vector<std::string> logs = {Log("IK2QAA"),    WithLineEnd(Log("IK2QAB"), "\n"),
                                         "no log\r\n",     Log("IK2QAA/P"),
                                         Log("I/AB1CD/P"), Log("A/B/C")};
  for (const bool again : {false, true}) {
    for (int broken = 1;; ++broken) {
      Story s;
      for (std::size_t i = 0; i < logs.size(); ++i) {
        s.With(Join(i, ".edi"), logs[i]);
      }
      s.files.break_at_change = broken;
      const auto expect_all = [&](const char* when) {
        for (const std::string& log : logs) {
          EXPECT_TRUE(s.Whole(log)) << when << " of " << broken << ": " << log;
        }
      };
      s.Run();
      expect_all("run");
      if (again && s.step.form().rinomina.enabled) {
        s.step.form().rinomina.Click();
        expect_all("second run");
      }
      s.step.form().torna_menu.Click();
      expect_all("leaving");
      if (s.files.changes < broken) {
        EXPECT_TRUE(s.manager.boxes.empty());
        break;
      }
      EXPECT_EQ(s.manager.boxes.size(), 1U) << broken;
    }
  }
}

}  // namespace
}  // namespace velmar::test
