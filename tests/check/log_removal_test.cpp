// The removal of a log from the wide view: its questions, what goes out of the store, and what a
// disk that breaks leaves.

#include <gtest/gtest.h>

#include <map>

#include "three_logs.h"

namespace velmar::test {
namespace {

using Contents = std::map<std::string, std::string>;

const Box kArmed =
    Told(" Cancellazione abilitata. Seleziona il log in classifica che vuoi cancellare");
const Box kReadAgain =
    Told(" è necessario rileggere la classifica aggiornata dopo una cancellazione"_a);
const Box kSure{.lines = {" ATTENZIONE sei sicuro di questa operazione ? "},
                .icon = Icon::kQuestion,
                .title = " Cancellazione LOG selezionato",
                .buttons = Buttons::kYesNoCancel};
const Box kGoOn{.lines = {" PROCEDO ? "},
                .icon = Icon::kQuestion,
                .title = " Il LOG sarà cancellato dalla classifica"_a,
                .buttons = Buttons::kYesNo};
const Box kDelete{.lines = {" Cancello il LOG ?"},
                  .icon = Icon::kQuestion,
                  .title = " V A R T O  Velmar",
                  .buttons = Buttons::kYesNo};

const std::vector<FiledLog>& Logs() {
  static const std::vector<FiledLog> logs = {
      {.call = "IK2QAA", .locator = "JN45AA", .qsos = {{"IZ9QBC/P", "JM67AA"}}},
      {.call = "IZ9QBC/P",
       .locator = "JM67AA",
       .qsos = {{"IK2QAA", "JN45AA"}, {"IV3/I1QXX", "JN66AA"}}},
      {.call = "IV3/I1QXX", .locator = "JN66AA", .qsos = {{"IZ9QBC/P", "JM67AA"}}}};
  return logs;
}

/// The wide view of a contest of three logs, whose checks are over.
struct WideDesk : DeskFixture {
  /// `without` is a log that was never filed.
  explicit WideDesk(std::string_view without = "") {
    for (const FiledLog& log : Logs()) {
      if (log.call != without) {
        Filed(log);
        store.Append(StoreFile::kTempi, kCategory,
                     Join(TempiRow(kCategory, log.call, 2, 1, 5), kLineEnd));
      }
    }
  }

  WideDesk& Shown() {
    Loaded();
    form.Visualizza_solo_classifica.Click();
    return *this;
  }

  WideDesk& Armed() {
    form.Cancella_log.Click();
    manager.boxes.clear();
    return *this;
  }

  /// Clicks a row with these answers.
  WideDesk& Click(int row, const std::vector<Reply>& answers) {
    manager.replies.assign(answers.begin(), answers.end());
    form.visualizza_classifica.Select(row);
    return *this;
  }

  /// What the workspace holds once the log has gone.
  static Contents WithoutLog(const FiledLog& log) {
    const WideDesk desk(log.call);
    Contents contents = desk.workspace.Everything();
    contents[Join("03 Log da inserire/", LogName(kCategory, FiledName(log.call)))] = TextOf(log);
    return contents;
  }

  static std::string TextOf(const FiledLog& log) {
    Names rows;
    for (const FiledQso& qso : log.qsos) {
      rows.push_back(QsoOf(qso));
    }
    return LogText(log.call, log.locator, rows);
  }
};

const std::vector<Reply> kThreeTimesYes(3, Reply::kYes);

TEST(LogRemoval, AsksThreeTimes) {
  using Answers = std::vector<Reply>;
  WideDesk desk;
  desk.Shown();
  desk.form.Cancella_log.Click();
  EXPECT_EQ(desk.manager.boxes, std::vector{kArmed});
  const auto before = desk.workspace.Everything();
  const auto boxes = [&](const Answers& answers) {
    desk.manager.boxes.clear();
    desk.Click(1, answers);
    EXPECT_EQ(desk.workspace.Everything(), before);
    return desk.manager.boxes;
  };
  EXPECT_EQ(boxes({Reply::kNo}), std::vector{kSure});
  EXPECT_EQ(boxes({Reply::kCancel}), std::vector{kSure});
  EXPECT_EQ(boxes({Reply::kYes, Reply::kNo}), (std::vector{kSure, kGoOn}));
  EXPECT_EQ(boxes({Reply::kYes, Reply::kCancel}), (std::vector{kSure, kGoOn}));
  EXPECT_EQ(boxes({Reply::kYes, Reply::kYes, Reply::kNo}), (std::vector{kSure, kGoOn, kDelete}));
  EXPECT_EQ(boxes({Reply::kYes, Reply::kYes, Reply::kCancel}),
            (std::vector{kSure, kGoOn, kDelete}));
  desk.manager.boxes.clear();
  desk.form.esci_da_cla.Click();
  EXPECT_TRUE(desk.manager.boxes.empty()) << "nothing was removed";
  EXPECT_EQ(desk.form.listacall_banda.items.rows().size(), 4U);
}

TEST(LogRemoval, WantsToBeArmedAndNoHeader) {
  WideDesk desk;
  desk.Shown();
  const auto before = desk.workspace.Everything();
  desk.Click(1, {});
  desk.Armed().Click(0, {}).Click(-1, {});
  desk.form.esci_da_cla.Click();
  desk.form.Visualizza_solo_classifica.Click();
  desk.Click(1, {});
  EXPECT_TRUE(desk.manager.boxes.empty()) << "armed for one look at the view";
  EXPECT_EQ(desk.workspace.Everything(), before);
}

TEST(LogRemoval, LeavesTheStoreAsIfTheLogHadNeverBeenFiled) {
  for (std::size_t i = 0; i < Logs().size(); ++i) {
    SCOPED_TRACE(Logs()[i].call);
    WideDesk desk;
    desk.Shown().Armed().Click(static_cast<int>(i) + 1, kThreeTimesYes);
    EXPECT_EQ(desk.workspace.Everything(), WideDesk::WithoutLog(Logs()[i]));
    EXPECT_EQ(desk.manager.boxes, (std::vector{kSure, kGoOn, kDelete}));
    EXPECT_EQ(desk.form.visualizza_classifica.items.rows().size(), 3U);
    desk.Click(1, {});
    EXPECT_EQ(desk.manager.boxes.size(), 3U) << "armed for one log";
  }
}

TEST(LogRemoval, TheClassificationIsToBeReadAgain) {
  for (const bool by_menu : {false, true}) {
    WideDesk desk;
    desk.Shown().Armed().Click(2, kThreeTimesYes);
    desk.manager.boxes.clear();
    by_menu ? desk.form.uscita2.Click() : desk.form.esci_da_cla.Click();
    EXPECT_EQ(desk.manager.boxes, std::vector{kReadAgain});
    EXPECT_TRUE(desk.form.listacall_banda.items.rows().empty());
    EXPECT_TRUE(desk.form.Frame_Classifica_gene_banda.visible);
    desk.form.Option3.Click();
    EXPECT_EQ(desk.form.n_cla.caption, "2");
    desk.manager.boxes.clear();
    desk.form.Visualizza_solo_classifica.Click();
    desk.form.esci_da_cla.Click();
    EXPECT_TRUE(desk.manager.boxes.empty());
    desk.Started("IK2QAA");
    EXPECT_EQ(desk.form.call_in_esame.caption, "IK2QAA");
  }
}

TEST(LogRemoval, AMissingFileIsToldAndHindersNothing) {
  const std::pair<StoreFile, std::string> files[] = {
      {StoreFile::kPartecipanti, " Il file dei partecipanti è assente. Attenzione "_a},
      {StoreFile::kLibreria, " Il file della libreria di categoria è assente. Attenzione "_a},
      {StoreFile::kLibreriaTotale,
       " il file 'libreria_totale.tot' di categoria è assente. Attenzione "_a},
      {StoreFile::kTempi, " il file dei tempi contest è assente. Attenzione "_a},
      {StoreFile::kModi, " il file del modo qso dei partecipanti è assente. Attenzione "_a}};
  for (const auto& [file, text] : files) {
    WideDesk desk;
    desk.Shown().Armed();
    Contents expected = WideDesk::WithoutLog(Logs()[0]);
    const std::string path = desk.session.workspace.store_file(file, kCategory);
    desk.workspace.files().Remove(path);
    expected.erase(path.substr(desk.session.workspace.base().size() + 1));
    desk.Click(1, kThreeTimesYes);
    EXPECT_EQ(desk.manager.boxes, (std::vector{kSure, kGoOn, kDelete, Told(text)}));
    EXPECT_EQ(desk.workspace.Everything(), expected);
  }
}

TEST(LogRemoval, WithoutTheFiledLogNothingIsTouched) {
  WideDesk desk;
  desk.Shown().Armed();
  desk.workspace.files().Remove(
      Join(desk.session.workspace.base(), "/", DeskFixture::FiledPath("IK2QAA")));
  const auto before = desk.workspace.Everything();
  desk.Click(1, kThreeTimesYes);
  EXPECT_EQ(desk.manager.boxes.back(), DeskFailure(53, 22));
  EXPECT_EQ(desk.workspace.Everything(), before);
}

// Wherever the disk breaks the log is whole somewhere, and doing it again ends the removal.
TEST(LogRemoval, ABreakingDiskLosesNothing) {
  const FiledLog& log = Logs()[1];
  const Contents after = WideDesk::WithoutLog(log);
  const std::string filed = DeskFixture::FiledPath(log.call);
  const std::string waiting = "03 Log da inserire/2IT_IZ9QBC.edi";
  ASSERT_TRUE(after.contains(waiting));
  const auto has = [](const Contents& contents, const std::string& path, const std::string& text) {
    const auto found = contents.find(path);
    return found != contents.end() && found->second == text;
  };
  int broken = 1;
  for (;; ++broken) {
    SCOPED_TRACE(broken);
    WideDesk desk;
    desk.Shown().Armed();
    const Contents before = desk.workspace.Everything();
    desk.files.break_at_change = desk.files.changes + broken;
    desk.Click(2, kThreeTimesYes);
    if (desk.files.changes < desk.files.break_at_change) {
      EXPECT_EQ(desk.workspace.Everything(), after);
      break;
    }
    EXPECT_EQ(desk.manager.boxes.back(), DeskFailure(61, 22));
    const Contents now = desk.workspace.Everything();
    EXPECT_TRUE(has(now, filed, WideDesk::TextOf(log)) || has(now, waiting, WideDesk::TextOf(log)));
    for (const auto& [path, text] : now) {
      EXPECT_TRUE(has(before, path, text) || has(after, path, text)) << path;
    }
    for (const auto& [path, text] : after) {
      EXPECT_TRUE(path == waiting || now.contains(path)) << path;
    }
    desk.Armed().Click(2, kThreeTimesYes);
    EXPECT_EQ(desk.workspace.Everything(), after);
    desk.manager.boxes.clear();
    desk.form.esci_da_cla.Click();
    EXPECT_EQ(desk.manager.boxes, std::vector{kReadAgain});
  }
  EXPECT_EQ(broken, 12) << "copy and removal of the log, eight files, the error list";
}

}  // namespace
}  // namespace velmar::test
