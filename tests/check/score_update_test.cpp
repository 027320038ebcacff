// The end of a check: the totals of the error list, and the classification in its new order.

#include "check/score_update.h"

#include <gtest/gtest.h>

#include <random>

#include "classification_rows.h"
#include "three_logs.h"
#include "times_desk.h"

namespace velmar::test {
namespace {

const std::string kBackup = Join(kClassificationFile, "_scorta");
const Box kLoadFirst = Told(" è necessario caricare una classifica"_a);
const Box kSkipped =
    Told(Join(" IL punteggio è stato azzerato perchè non è stato effettuato |"_a,
              " il controllo dei call unici / errori e il controllo dei not in log|",
              " Prima di eseguire altre attività sarà necessario completare il controllo"_a));

// The rows of the desk of times as they are filed, and that of IK2QAA behind a check that cost 100.
constexpr const char* kFiled[] = {
    "IK2QAA       JN45AA  250  9 el yagi            100  3    5000    IV3QYY     100   5000     "
    "              5000      0.0%   ",
    "IZ9QBC       JM67AA  250  9 el yagi            100  1    4000               100   4000     "
    "              4000      0.0%   ",
    "IV3QYY       JN66AA  250  9 el yagi            100  1    6000               100   6000     "
    "              6000      0.0%   ",
    "I1QXX        JN44BB  250  9 el yagi            100  1    700                100   700      "
    "              700       0.0%   "};
constexpr const char* kChecked =
    "IK2QAA       JN45AA  250  9 el yagi            100  3    5000    IV3QYY     100   5000      "
    "1    100     4900     33.3%   ";
constexpr const char* kHeader = classification_row::kHeader.data();

std::string Text(const Names& rows) {
  std::string text;
  for (const std::string& row : rows) {
    AddLine(text, row);
  }
  return text;
}

/// Clicks a button that a person can reach.
void Press(Control& control) {
  EXPECT_TRUE(control.Reachable()) << control.name;
  control.Click();
}

struct ScoreDesk : TimesDesk {
  /// Takes the check of IK2QAA to its end: one of its two times is penalised.
  ScoreDesk& Decided() {
    Checked();
    form.Lista_err_orario.Select(0);
    Press(form.conf_err_time);
    Press(form.convalida_qso_time);
    Press(form.unici);
    return *this;
  }

  ScoreDesk& Updated() {
    Decided();
    Press(form.aggiorna_punt_class);
    manager.boxes.clear();
    return *this;
  }

  std::string Classification() { return workspace.Read(kClassificationFile); }
};

TEST(ScoreUpdate, ClosesTheListAndLeavesTheFile) {
  ScoreDesk desk;
  desk.Decided();
  auto expected = desk.workspace.Everything();
  expected["Trofeo_Velmar/2IT/2IT-IK2QAA Lista errori GENNAIO 2025.err"] +=
      "                                            ---------------------------------\r\n"
      "                                                                  -    100 \r\n"
      "                                            Punti qrb validi           5000 \r\n"
      "                                            ---------------------------------\r\n"
      "                                            FINAL SCORE                4900 \r\n";
  expected[kBackup] = Text({kHeader, kChecked, kFiled[1], kFiled[2], kFiled[3]});
  desk.manager.boxes.clear();
  Press(desk.form.aggiorna_punt_class);
  EXPECT_EQ(desk.workspace.Everything(), expected);
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.form.listacall_banda.items.rows()[1], Join(kChecked, " 1"));
  EXPECT_EQ(desk.Items(), Names{});
  EXPECT_FALSE(desk.form.aggiorna_punt_class.enabled);
  EXPECT_EQ(desk.form.ordina.colour, colour::kGreen);
  Press(desk.form.torna_menu);
  EXPECT_EQ(desk.manager.TakeFirstLines(),
            Names{" DEVI SALVARE E ORDINARE LA CLASSIFICA PRIMA DI USCIRE"});
}

TEST(ScoreUpdate, SavesInTheOrderOfTheScores) {
  ScoreDesk desk;
  desk.Updated();
  auto expected = desk.workspace.Everything();
  expected[kClassificationFile] = Text({kHeader, kFiled[2], kChecked, kFiled[1], kFiled[3]});
  Press(desk.form.ordina);
  EXPECT_EQ(desk.workspace.Everything(), expected) << "no scratch file stays";
  EXPECT_TRUE(desk.manager.boxes.empty());
  EXPECT_EQ(desk.form.listacall_banda.items.rows(),
            (Names{kHeader, Join(kFiled[2], "          (1"), Join(kChecked, "          (2"),
                   Join(kFiled[1], "          (3"), Join(kFiled[3], "          (4")}));
  EXPECT_EQ(desk.form.listacall_banda.selection, 1) << "the first that waits";
  EXPECT_FALSE(desk.form.ordina.enabled);
  EXPECT_FALSE(desk.form.aggiorna_punt_class.enabled);
  EXPECT_TRUE(desk.form.La_info.visible) << "three logs wait";
  Press(desk.form.prossimo);
  EXPECT_EQ(desk.form.call_in_esame.caption, "IV3QYY");
  desk.form.Lista_err_orario.Select(0);
  Press(desk.form.convalida_qso_time);
  Press(desk.form.unici);
  Press(desk.form.aggiorna_punt_class);
  Press(desk.form.ordina);
  EXPECT_EQ(desk.form.listacall_banda.selection, 3);
  Press(desk.form.torna_menu);
  EXPECT_TRUE(desk.main.visible());
}

TEST(ScoreUpdate, RowsAreCutToTheirColumnsAndABackupOverwritten) {
  ScoreDesk desk;
  desk.workspace.With(kBackup, "an older one")
      .With(kClassificationFile,
            Text({kHeader, kFiled[0], Join(kFiled[1], " 22"), kFiled[2], kFiled[3]}));
  desk.Updated();
  EXPECT_EQ(desk.workspace.Read(kBackup),
            Text({kHeader, kChecked, kFiled[1], kFiled[2], kFiled[3]}));
  Press(desk.form.ordina);
  EXPECT_EQ(desk.Classification(), Text({kHeader, kFiled[2], kChecked, kFiled[1], kFiled[3]}));
}

TEST(ScoreUpdate, WantsTheCheckOfUniqueCalls) {
  ScoreDesk desk;
  desk.form.aggiorna_punt_class.Click();
  EXPECT_EQ(desk.manager.boxes, std::vector{kLoadFirst});
  desk.Checked();
  desk.manager.boxes.clear();
  const auto before = desk.workspace.Everything();
  desk.form.aggiorna_punt_class.Click();
  EXPECT_EQ(desk.manager.boxes,
            std::vector{Told(" devi controllare i qso UNICI prima di aggiornare i dati")});
  EXPECT_EQ(desk.workspace.Everything(), before);
  EXPECT_EQ(desk.Items().size(), 2U);
  Press(desk.form.Visualizza_pulsante_aggiorna);
  Press(desk.form.aggiorna_punt_class);
  EXPECT_EQ(desk.Decisions("IK2QAA").size(), 5U);
}

TEST(ScoreUpdate, AScoreBelowNothingStays) {
  TimesDesk desk;
  desk.Filed({.call = "IW9QQQ",
              .locator = "JM67AA",
              .qsos = {{"I1QXX", "JN44BB", "600", "1300"}},
              .points = 50})
      .Filed({.call = "I1QXX", .locator = "JN44BB", .qsos = {{"IW9QQQ", "JM67AA", "600"}}});
  desk.Checked("IW9QQQ");
  desk.form.Lista_err_orario.Select(0);
  Press(desk.form.conf_err_time);
  Press(desk.form.unici);
  Press(desk.form.aggiorna_punt_class);
  const Names lines = desk.Decisions("IW9QQQ");
  ASSERT_EQ(lines.size(), 6U);
  EXPECT_EQ(lines[2],
            "                                                                  -    600 ");
  EXPECT_EQ(lines[5],
            "                                            FINAL SCORE               -550 ");
}

// A check that leaves the unique calls out keeps no result, and the rows' other columns stay.
TEST(ScoreUpdate, ASkippedCheckReadsAsUnchecked) {
  ScoreDesk desk;
  desk.Checked();
  desk.form.Lista_err_orario.Select(0);
  Press(desk.form.conf_err_time);
  desk.form.nasondi.Click();
  Press(desk.form.aggiorna_punt_class);
  desk.manager.boxes.clear();
  Press(desk.form.ordina);
  EXPECT_EQ(desk.manager.boxes, std::vector{kSkipped});
  std::string row = kChecked;
  row.replace(89, 15, std::string(15, ' '));
  EXPECT_EQ(desk.Classification(), Text({kHeader, kFiled[2], row, kFiled[1], kFiled[3]}));
  EXPECT_TRUE(desk.form.prossimo.visible);
  desk.manager.boxes.clear();
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{}) << "checked anew";
  EXPECT_EQ(desk.manager.boxes.size(), 1U);
}

/// The order as the plain loops over two arrays make it.
std::vector<std::size_t> PlainOrder(std::vector<double> keys) {
  std::vector<std::size_t> index;
  for (std::size_t i = 0; i < keys.size(); ++i) {
    index.push_back(i);
  }
  for (std::size_t i = 0; i + 1 < keys.size(); ++i) {
    for (std::size_t j = i + 1; j < keys.size(); ++j) {
      if (keys[i] < keys[j]) {
        const double key = keys[i];
        keys[i] = keys[j];
        keys[j] = key;
        const std::size_t place = index[i];
        index[i] = index[j];
        index[j] = place;
      }
    }
  }
  return index;
}

TEST(ExchangeOrder, LeavesEqualKeysAsTheExchangesDo) {
  using Order = std::vector<std::size_t>;
  EXPECT_EQ(ExchangeOrder({}), Order{});
  EXPECT_EQ(ExchangeOrder({1}), Order{0});
  EXPECT_EQ(ExchangeOrder({2, 2}), (Order{0, 1}));
  EXPECT_EQ(ExchangeOrder({1, 1, 2}), (Order{2, 1, 0})) << "the two have changed their order";
  EXPECT_EQ(ExchangeOrder({1, 2, 1}), (Order{1, 0, 2}));
  std::mt19937 random(5);
  for (int round = 0; round < 300; ++round) {
    std::vector<double> keys(random() % 40);
    for (double& key : keys) {
      key = static_cast<double>(random() % 7) - 2;
    }
    EXPECT_EQ(ExchangeOrder(keys), PlainOrder(keys));
  }
}

/// The desk with a classification of these rows.
struct SortingDesk : DeskFixture {
  explicit SortingDesk(const Names& rows) {
    workspace.With(kClassificationFile, Join(kHeader, "\r\n", Text(rows)));
    workspace.With("Trofeo_Velmar/2IT/2IT partecipanti.par", "");
    Loaded();
  }

  std::string Calls() {
    std::string calls;
    const std::string text = workspace.Read(kClassificationFile);
    for (const std::string_view row : SplitLines(text)) {
      calls += Join(RTrim(Left(row, 12)), " ");
    }
    return calls;
  }
};

std::string Scored(std::string_view call, int errors, double final) {
  return CheckedRow(WaitingRow(call), {.errors = errors, .lost = 0, .final = final});
}

TEST(Sorting, ReadsItsKeysFromItsColumns) {
  // The sign of a score stands ahead of them, and so does the first digit of a percentage.
  const Names rows = {Scored("I1A", 0, 12), Scored("I1B", 2, -550), Scored("I1C", 1, 340),
                      Scored("I1D", 0, 340)};
  SortingDesk scores(rows);
  scores.form.ordina.Click();
  EXPECT_EQ(scores.Calls(), "  Call I1B I1C I1D I1A ");
  Names percent;
  for (const auto& [call, block] : {std::pair{"I1A", " 3.5%   "}, std::pair{"I1B", "12.0%  Y"},
                                    std::pair{"I1C", " 100%   "}, std::pair{"I1D", " 0.0%   "}}) {
    percent.push_back(Join(Left(DoneRow(call), 114), block, "behind"));
  }
  SortingDesk desk(percent);
  desk.form.riordina.Click();
  EXPECT_EQ(desk.Calls(), "  Call I1C I1A I1B I1D ");
  EXPECT_EQ(desk.form.listacall_banda.items.rows()[3],
            Join(Left(DoneRow("I1B"), 114), "12.0%  Y  3"))
      << "122 columns, and the position";
  EXPECT_EQ(desk.form.listacall_banda.selection, -1);
  EXPECT_EQ(desk.workspace.Read(kBackup), "<missing>");
}

TEST(Sorting, EmptyLinesAreNoRows) {
  SortingDesk desk({});
  desk.workspace.With(kClassificationFile,
                      Join("\r\n", kHeader, "\r\n\r\n", DoneRow("I1A"), "\r\n\r\n"));
  desk.form.Option3.Click();
  desk.form.riordina.Click();
  EXPECT_EQ(desk.workspace.Read(kClassificationFile), Text({kHeader, DoneRow("I1A")}));
}

TEST(Sorting, ACallUnderExaminationKeepsItsRow) {
  for (const bool updated : {false, true}) {
    ScoreDesk desk;
    desk.workspace.With(
        kClassificationFile,
        Text({kHeader, kFiled[0], kFiled[1],
              CheckedRow(kFiled[2], {.errors = 1, .lost = 600, .final = 5400}), kFiled[3]}));
    if (updated) {
      desk.Updated();
    } else {
      desk.Decided();
    }
    Press(desk.form.riordina);
    EXPECT_EQ(Left(desk.form.listacall_banda.items.rows()[1], 6), "IV3QYY");
    if (!updated) {
      Press(desk.form.aggiorna_punt_class);
    }
    Press(desk.form.ordina);
    EXPECT_EQ(desk.Classification(),
              Text({kHeader, CheckedRow(kFiled[2], {.errors = 1, .lost = 600, .final = 5400}),
                    kChecked, kFiled[1], kFiled[3]}));
  }
}

TEST(Sorting, HasItsBounds) {
  Names rows;
  for (int i = 1; i <= 2000; ++i) {
    rows.push_back(Scored(Join("I", i), 0, i));
    if (i == 1000) {
      SortingDesk desk(rows);
      desk.form.riordina.Click();
      EXPECT_TRUE(desk.manager.boxes.empty());
    }
    if (i == 1001) {
      SortingDesk desk(rows);
      const std::string before = desk.Calls();
      desk.form.riordina.Click();
      EXPECT_EQ(desk.manager.boxes, std::vector{DeskFailure(9, 122)});
      EXPECT_EQ(desk.Calls(), before);
      desk.form.ordina.Click();
      EXPECT_EQ(Left(desk.Calls(), 18), "  Call I1001 I1000");
    }
  }
  SortingDesk most(rows);
  most.form.ordina.Click();
  EXPECT_TRUE(most.manager.boxes.empty());
  EXPECT_EQ(Left(most.Calls(), 12), "  Call I2000");
  rows.push_back(DoneRow("I1QXX"));
  SortingDesk more(rows);
  const auto before = more.workspace.Everything();
  more.form.ordina.Click();
  EXPECT_EQ(more.manager.boxes, std::vector{DeskFailure(9, 121)});
  EXPECT_EQ(more.workspace.Everything(), before);
}

TEST(Sorting, ABreakingDiskLeavesAWholeClassification) {
  for (int broken = 1; broken <= 3; ++broken) {
    SCOPED_TRACE(broken);
    ScoreDesk desk;
    desk.Updated();
    const std::string old = desk.Classification();
    desk.files.break_at_change = desk.files.changes + broken;
    Press(desk.form.ordina);
    EXPECT_EQ(desk.manager.boxes, std::vector{DeskFailure(61, 121)});
    EXPECT_EQ(desk.Classification(),
              broken == 1 ? old : Text({kHeader, kChecked, kFiled[1], kFiled[2], kFiled[3]}));
    desk.manager.boxes.clear();
    Press(desk.form.torna_menu);
    EXPECT_EQ(desk.manager.boxes.size(), 1U) << "not saved yet";
    Press(desk.form.ordina);
    EXPECT_EQ(desk.Classification(), Text({kHeader, kFiled[2], kChecked, kFiled[1], kFiled[3]}));
  }
}

TEST(ScoreUpdate, ABreakingDiskLeavesTheUpdateToBeDoneAgain) {
  for (int broken = 1; broken <= 2; ++broken) {
    ScoreDesk desk;
    desk.Decided();
    desk.manager.boxes.clear();
    desk.files.break_at_change = desk.files.changes + broken;
    Press(desk.form.aggiorna_punt_class);
    EXPECT_EQ(desk.manager.boxes, std::vector{DeskFailure(61, 120)});
    EXPECT_EQ(desk.Decisions("IK2QAA").size(), 1U);
    EXPECT_FALSE(desk.form.ordina.enabled);
    Press(desk.form.aggiorna_punt_class);
    EXPECT_EQ(desk.Decisions("IK2QAA").size(), 6U);
    EXPECT_TRUE(desk.form.ordina.enabled);
  }
}

TEST(ScoreReset, WritesTheRowAsItStands) {
  const Box question{.lines = {" ATTENZIONE il punteggio verra azzerato al declared"},
                     .icon = Icon::kQuestion,
                     .title = "PUNTEGGIO al declared",
                     .buttons = Buttons::kYesNo};
  ScoreDesk desk;
  desk.form.Azzera_punteggio.Click();
  EXPECT_EQ(desk.manager.boxes,
            std::vector{Told(" bisogna caricare la classifica prima di azzerare un punteggio")});
  desk.Loaded();
  desk.manager.boxes.clear();
  Press(desk.form.Azzera_punteggio);
  EXPECT_EQ(desk.manager.boxes, (std::vector<Box>{{.lines = {" Devi selezionare un Call "},
                                                   .title = "PUNTEGGIO al declared"}}));
  desk.Started("IK2QAA");
  desk.manager.boxes.clear();
  const auto before = desk.workspace.Everything();
  desk.manager.replies = {Reply::kNo};
  Press(desk.form.Azzera_punteggio);
  EXPECT_EQ(desk.workspace.Everything(), before);
  desk.manager.replies = {Reply::kYes};
  Press(desk.form.Azzera_punteggio);
  EXPECT_EQ(desk.manager.boxes, (std::vector{question, question}));
  const Names lines = desk.Decisions("IK2QAA");
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[1], "                                                                  -    0 ");
  EXPECT_EQ(lines[4],
            "                                            FINAL SCORE                5000 ");
  Press(desk.form.ordina);
  EXPECT_EQ(
      desk.Classification(),
      Text({kHeader, kFiled[2], CheckedRow(kFiled[0], {.errors = 0, .lost = 0, .final = 5000}),
            kFiled[1], kFiled[3]}));
}

TEST(ScoreMarks, FillAndEmptyTheRowsThatWait) {
  const Names rows = {WaitingRow("I1A"), Scored("I1B", 1, 200), DoneRow("I1C"),
                      std::string(Left(WaitingRow("I1D"), 100))};
  SortingDesk desk(rows);
  Names filled = rows;
  filled[0].replace(91, 10, " 0    0   ");
  Press(desk.form.Reset_cla_2IT);
  EXPECT_EQ(desk.workspace.Read(kClassificationFile), Join(kHeader, "\r\n", Text(filled)));
  Names emptied = rows;
  emptied[2].replace(91, 10, "          ");
  Press(desk.form.Svuota);
  EXPECT_EQ(desk.workspace.Read(kClassificationFile), Join(kHeader, "\r\n", Text(emptied)));
}

TEST(Queue, IsPrinted) {
  ScoreDesk desk;
  desk.form.stampa_classifica_di_banda.Click();
  desk.form.riordina.Click();
  EXPECT_EQ(desk.manager.boxes, (std::vector{kLoadFirst, kLoadFirst}));
  EXPECT_TRUE(desk.printer.printed.empty());
  desk.Loaded();
  Press(desk.form.stampa_classifica_di_banda);
  ASSERT_EQ(desk.printer.printed.size(), 1U);
  EXPECT_EQ(desk.printer.printed[0].at(0).lines,
            (Names{kHeader, Join(kFiled[0], " 1"), Join(kFiled[1], " 2"), Join(kFiled[2], " 3"),
                   Join(kFiled[3], " 4")}));
}

}  // namespace
}  // namespace velmar::test
