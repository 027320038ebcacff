// The start of a check: in which order the desk is put in order, and what it finds.

#include <gtest/gtest.h>

#include <filesystem>

#include "model/call_book.h"
#include "three_logs.h"

namespace velmar::test {
namespace {

const Box kQuestion{.lines = {" Inizio il controllo ?"},
                    .icon = Icon::kQuestion,
                    .title = " Controllo call",
                    .buttons = Buttons::kYesNoCancel};
const Box kRecheck{.lines = {"Questo call è gia stato verificato, vuoi azzerare e ricalcolare ? "_a,
                             " ( se vuoi vuoi ri-verificare il log,  premi SI)           "},
                   .icon = Icon::kQuestion,
                   .title = "Verifica errori",
                   .buttons = Buttons::kYesNo};
const Box kReportGone =
    Told(Join(" A T T E N Z I O N E  il report degli errori è stato cancellato e |"_a,
              " non verrà registrato se non si porta a termine il controllo.|"_a,
              "I dati in classifica saranno sovrascritti al termine del controllo"));
constexpr int kStep = 20;

constexpr const char* kDecision = "  1    I1QXX       002    errore locator    \r\n";

/// The desk with the classification of three logs. Changes of the disk are counted from here on.
struct LoadedDesk : DeskFixture {
  explicit LoadedDesk(const Names& checked = {}) {
    ThreeLogs(*this);
    MarkChecked(*this, checked);
    Loaded();
    Forget();
  }

  void Forget() {
    files.changes = 0;
    files.changed_paths.clear();
    manager.boxes.clear();
  }

  /// Starts a check with these answers to its questions.
  void Start(std::string_view call, const std::vector<Reply>& answers) {
    Choose(call);
    manager.replies.assign(answers.begin(), answers.end());
    form.listacall_banda.DoubleClick();
  }

  std::string ListPath(std::string_view call) {
    return session.workspace.error_list(kCategory, call, session.category_month);
  }
  std::string Path(std::string_view name) { return Join(session.workspace.base(), "/", name); }

  bool UpdateInReach() const { return form.unici.enabled || form.aggiorna_punt_class.enabled; }

  std::string DecisionButtons() const {
    std::string states;
    for (const Button* button :
         {&form.QSO_ok, &form.Tutti_call, &form.Tutti_loc, &form.conferma_errore, &form.errore_call,
          &form.convalida_qso_time, &form.vis_err, &form.not_inlog}) {
      states += button->enabled ? '+' : '-';
    }
    return states;
  }
};

TEST(CheckStart, NothingHappensWithoutAYes) {
  for (const Reply answer : {Reply::kNo, Reply::kCancel}) {
    LoadedDesk desk;
    desk.form.sigla_call.value = "QAA";
    desk.Start("IK2QAA", {answer});
    EXPECT_EQ(desk.manager.boxes, std::vector{kQuestion});
    EXPECT_EQ(desk.files.changes, 0);
    EXPECT_EQ(desk.form.sigla_call.value, "QAA");
    EXPECT_EQ(desk.form.evidenzia.caption, "");
    EXPECT_FALSE(desk.form.Frame_Controllo_locatori.visible);
    desk.form.torna_menu.Click();
    EXPECT_TRUE(desk.main.visible()) << "no check runs";
  }
}

TEST(CheckStart, ARowMustBeChosen) {
  LoadedDesk desk;
  desk.form.listacall_banda.selection = -1;
  desk.form.listacall_banda.DoubleClick();
  EXPECT_TRUE(desk.manager.boxes.empty());
}

TEST(CheckStart, TheCheckOfAnotherCallBeginsAnew) {
  LoadedDesk desk;
  desk.Started("IV3QYY");
  desk.form.Frame_unici.visible = true;
  desk.form.nasondi.Click();
  desk.form.Call_unici.Fill({"IV3QYY      I1QXX"});
  desk.form.Lista_err_orario.Fill({"IV3QYY      I1QXX"});
  desk.form.sigla_call.value = "QAA";
  desk.Started("IK2QAA");
  EXPECT_FALSE(desk.UpdateInReach()) << "the result of another call would be written";
  EXPECT_FALSE(desk.form.aggiorna_punt_class.colour.has_value());
  EXPECT_FALSE(desk.form.nasondi.Reachable()) << "the doubts can't be skipped";
  EXPECT_TRUE(desk.form.Call_unici.items.rows().empty());
  EXPECT_TRUE(desk.form.Lista_err_orario.items.rows().empty());
  EXPECT_EQ(desk.form.sigla_call.value, "");
  EXPECT_EQ(desk.form.conf_err_time.caption, " conf. errore Time a : IK2QAA");
  EXPECT_EQ(desk.form.conf_err_RST.caption, " Conf. errore RST a : IK2QAA");
  EXPECT_TRUE(desk.form.Frame_Controllo_locatori.visible);
}

TEST(CheckStart, AnErrorListOfABrokenCheckIsCutToItsHead) {
  const std::string head = LoadedDesk().ErrorListOf("IK2QAA");
  const auto list_after = [](const std::string& before) {
    LoadedDesk desk;
    desk.workspace.files().WriteAll(desk.ListPath("IK2QAA"), before);
    desk.Started("IK2QAA");
    EXPECT_EQ(desk.manager.boxes, std::vector{kQuestion}) << "the repair is not told";
    const bool rewritten =
        std::ranges::count(desk.files.changed_paths, desk.ListPath("IK2QAA")) != 0;
    return Join(rewritten ? "cut: " : "left: ", desk.ErrorListOf("IK2QAA"));
  };
  EXPECT_EQ(list_after(head + kDecision), "cut: " + head);
  EXPECT_EQ(list_after(head + kDecision + kDecision), "cut: " + head);
  EXPECT_EQ(list_after(head + "  1    I1QX"), "cut: " + head);
  EXPECT_EQ(list_after(head + "\r\n"), "cut: " + head) << "an empty line is one";
  const std::string whole_last_line = head.substr(0, head.size() - 2);
  for (const std::string& six_lines : {head, whole_last_line, head.substr(0, head.size() - 20)}) {
    EXPECT_EQ(list_after(six_lines), "left: " + six_lines);
  }
  EXPECT_EQ(list_after(""), "left: ");
}

TEST(CheckStart, ASlashIsTurnedInTheNameOfTheListAlone) {
  DeskFixture desk;
  desk.Filed({.call = "9A/IK2QAA/P", .locator = "JN45AA", .qsos = {{"I1QXX", "JN44BB"}}});
  const std::string list = "Trofeo_Velmar/2IT/2IT-9A_IK2QAA_P Lista errori GENNAIO 2025.err";
  const std::string head = desk.workspace.Read(list);
  desk.workspace.With(list, head + kDecision);
  desk.Loaded().Started("9A/IK2QAA/P");
  EXPECT_EQ(desk.workspace.Read(list), head);
  EXPECT_EQ(Left(desk.form.evidenzia.caption, 13), "9A/IK2QAA/P  ");
  EXPECT_EQ(desk.form.call_in_esame.caption, "9A/IK2QAA/P");
  EXPECT_EQ(desk.workspace.Read("2ITlog_da_verificare.tmp"),
            "9A/IK2QAA/P I1QXX       JN44BB 100\r\n");
}

TEST(CheckStart, ACheckedLogIsLookedAtWithoutDeciding) {
  LoadedDesk desk({"IK2QAA"});
  desk.workspace.files().Append(desk.ListPath("IK2QAA"), kDecision);
  desk.Start("IK2QAA", {Reply::kYes, Reply::kNo});
  EXPECT_EQ(desk.manager.boxes, (std::vector{kQuestion, kRecheck}));
  EXPECT_EQ(desk.files.changes, 0);
  EXPECT_EQ(desk.DecisionButtons(), "--------");
  EXPECT_FALSE(desk.UpdateInReach());
  EXPECT_TRUE(desk.form.Lista_dubbi.items.rows().empty());
  EXPECT_EQ(desk.form.call_in_esame.caption, "IK2QAA");
  EXPECT_EQ(desk.form.evidenzia.caption, "");
  EXPECT_TRUE(desk.form.prossimo.visible);
  desk.form.vis_err2.Click();
  EXPECT_EQ(desk.form.List_errori.items.rows().size(), 7U);
  desk.Started("IV3QYY");
  EXPECT_EQ(desk.DecisionButtons(), "++++++++");
  EXPECT_FALSE(desk.form.prossimo.visible) << "the next start would drop this check";
}

TEST(CheckStart, WhatIsLookedAtHidesTheCheckThatRan) {
  LoadedDesk desk({"IZ9QBC"});
  desk.Started("IV3QYY");
  desk.Start("IZ9QBC", {Reply::kYes, Reply::kNo});
  EXPECT_EQ(desk.form.evidenzia.caption, "") << "the row of one call, the place of another";
  EXPECT_FALSE(desk.UpdateInReach());
}

TEST(CheckStart, ACheckedLogIsCheckedAgain) {
  LoadedDesk desk({"IK2QAA"});
  const std::string head = desk.ErrorListOf("IK2QAA");
  desk.workspace.files().Append(desk.ListPath("IK2QAA"), kDecision);
  const std::string classification = desk.workspace.Read(kClassificationFile);
  desk.Start("IK2QAA", {Reply::kYes, Reply::kYes});
  EXPECT_EQ(desk.manager.boxes, (std::vector{kQuestion, kRecheck, kReportGone}));
  EXPECT_EQ(desk.ErrorListOf("IK2QAA"), head);
  EXPECT_EQ(desk.DecisionButtons(), "++++++++");
  EXPECT_EQ(desk.form.evidenzia.caption,
            "IK2QAA       JN45AA  250  9 el yagi            100  3    5000    I1QXX      100   "
            "5000      0    0       5000      0.0%    1")
      << "neither the mark of the DX QSO nor the old result stays";
  EXPECT_EQ(desk.form.qrb_ufficiale.caption, "5000");
  EXPECT_EQ(desk.form.err_count.caption, "0");
  EXPECT_EQ(desk.form.err_qrb.caption, "0");
  EXPECT_EQ(desk.form.qrb_finale.caption, "5000");
  EXPECT_EQ(desk.form.Lista_dubbi.items.rows().size(), 1U);
  EXPECT_EQ(desk.workspace.Read(kClassificationFile), classification);
}

TEST(CheckStart, AnyResultMeansChecked) {
  // Ten blanks in the first columns of the result, and something behind them.
  LoadedDesk desk;
  std::string text = desk.workspace.Read(kClassificationFile);
  const std::size_t row = text.find("IZ9QBC");
  text.at(row + 103) = '7';
  desk.workspace.With(kClassificationFile, text);
  desk.form.Option3.Click();
  desk.Start("IZ9QBC", {Reply::kYes, Reply::kNo});
  EXPECT_EQ(desk.manager.boxes.back(), kRecheck);
}

TEST(CheckStart, TheStoreIsPartedIntoScratchFiles) {
  LoadedDesk desk;
  desk.store.Append(StoreFile::kLibreria, kCategory,
                    "IK2QAA      I9QZZ       JM67A\r\n"
                    "IK2QAA      I9QZZ       JM67AA 100 ERROR\r\n"
                    "IZ9QBC      I9QZZ       JM67AA 100 DELETED\r\n"
                    "IK2QAA      I9QYY       JM67AB\r\n");
  desk.Forget();
  desk.store.AppendToErrorList("IK2QAA", kCategory, "GENNAIO 2025", kDecision);
  desk.Forget();
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.files.changed_paths,
            (Names{desk.ListPath("IK2QAA"), desk.Path("libreria.tmp"),
                   desk.Path("2ITlog_da_verificare.tmp"), desk.Path("2ITLibreria_temp.tmp")}));
  EXPECT_EQ(desk.workspace.Read("libreria.tmp"),
            desk.files.ReadAll(desk.session.workspace.store_file(StoreFile::kLibreria)));
  EXPECT_EQ(desk.workspace.Read("2ITlog_da_verificare.tmp"),
            "IK2QAA      IZ9QBC      JM67AA 100\r\n"
            "IK2QAA      I1QXX       JN44BC 107\r\n"
            "IK2QAA      DL1QAA      JO30AA 100\r\n"
            "IK2QAA      I9QYY       JM67AB\r\n");
  EXPECT_EQ(desk.workspace.Read("2ITLibreria_temp.tmp"),
            "IZ9QBC      I1QXX       JN44BB 100\r\n"
            "IV3QYY      IZ9QBC      JM67AA 100\r\n");
}

TEST(CheckStart, WithoutTheLibraryThereIsNoCheck) {
  LoadedDesk desk;
  desk.workspace.files().Remove(desk.session.workspace.store_file(StoreFile::kLibreria));
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.manager.boxes.back(),
            Told(" Il file della libreria di categoria è assente. Attenzione "_a));
  EXPECT_EQ(desk.files.changes, 0);
  EXPECT_FALSE(desk.UpdateInReach());
  desk.form.torna_menu.Click();
  EXPECT_TRUE(desk.main.visible());
}

TEST(CheckStart, AnErrorListOutOfReachEndsTheStart) {
  using std::filesystem::perms;
  LoadedDesk desk({"IZ9QBC"});
  const std::string list = desk.ListPath("IK2QAA");
  const std::string head = desk.ErrorListOf("IK2QAA");
  desk.Started("IV3QYY");
  desk.workspace.files().Remove(list);
  desk.workspace.files().Remove(desk.ListPath("IZ9QBC"));
  desk.Forget();
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.manager.boxes, (std::vector{kQuestion, DeskFailure(53, kStep)}));
  EXPECT_FALSE(desk.UpdateInReach()) << "the check that ran is over";
  EXPECT_EQ(desk.form.evidenzia.caption, "");
  desk.Forget();
  desk.Started("IZ9QBC");
  EXPECT_EQ(desk.manager.boxes, (std::vector{kQuestion, DeskFailure(53, kStep)}))
      << "ahead of the question whether to check again";

  const std::string text = head + kDecision;
  desk.workspace.files().WriteAll(list, text);
  std::filesystem::permissions(list, perms::owner_write);
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.manager.boxes.back(), DeskFailure(75, kStep)) << "not to be read";
  std::filesystem::permissions(list, perms::owner_read);
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.manager.boxes.back(), DeskFailure(75, kStep)) << "not to be written";
  EXPECT_EQ(desk.ErrorListOf("IK2QAA"), text);
  EXPECT_EQ(desk.files.changes, 1) << "no scratch file is made";
  std::filesystem::permissions(list, perms::owner_read | perms::owner_write);
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.Decisions("IK2QAA"), Names{});
  EXPECT_EQ(desk.form.Lista_dubbi.items.rows().size(), 1U);
}

/// Breaks the disk at every change of a start in turn: of a log whose check was broken off, or of
/// one that is checked again.
void BreakEachChange(bool checked) {
  const std::vector<Reply> answers(checked ? 2 : 1, Reply::kYes);
  for (int broken = 1;; ++broken) {
    SCOPED_TRACE(broken);
    LoadedDesk desk(checked ? Names{"IK2QAA"} : Names{});
    const std::string head = desk.ErrorListOf("IK2QAA");
    desk.workspace.files().Append(desk.ListPath("IK2QAA"), kDecision);
    const std::string classification = desk.workspace.Read(kClassificationFile);
    const std::string library = desk.session.workspace.store_file(StoreFile::kLibreria);
    const std::string stored = desk.files.ReadAll(library);
    desk.files.break_at_change = broken;
    desk.Start("IK2QAA", answers);
    if (desk.files.changes < broken) {
      EXPECT_EQ(broken, 5) << "the list and three scratch files";
      EXPECT_EQ(desk.form.Lista_dubbi.items.rows().size(), 1U);
      return;
    }
    EXPECT_EQ(desk.manager.boxes.back(), DeskFailure(61, kStep));
    EXPECT_EQ(desk.ErrorListOf("IK2QAA"), broken == 1 ? head + kDecision : head);
    EXPECT_EQ(desk.workspace.Read(kClassificationFile), classification);
    EXPECT_EQ(desk.files.ReadAll(library), stored);
    EXPECT_FALSE(desk.UpdateInReach());
    for (Button* button : {&desk.form.Tutti_call, &desk.form.Tutti_loc, &desk.form.QSO_ok,
                           &desk.form.conferma_errore, &desk.form.errore_call}) {
      button->Click();  // with nothing to decide on
    }
    desk.Start("IK2QAA", answers);
    EXPECT_EQ(desk.ErrorListOf("IK2QAA"), head);
    EXPECT_EQ(desk.form.Lista_dubbi.items.rows(), Names{"IK2QAA      I1QXX       JN44BC 107  2"});
    EXPECT_EQ(desk.workspace.Read("libreria.tmp"), stored);
  }
}

TEST(CheckStart, ABreakingDiskLeavesTheListWholeOrCutAndTheDeskUsable) {
  BreakEachChange(false);
  BreakEachChange(true);
}

TEST(CheckStart, ARowWithoutQsosHasNoPercentage) {
  LoadedDesk desk;
  std::string text = desk.workspace.Read(kClassificationFile);
  text.replace(text.find("IZ9QBC") + 52, 4, "0   ");
  desk.workspace.With(kClassificationFile, text);
  desk.form.Option3.Click();
  desk.Started("IZ9QBC");
  EXPECT_EQ(desk.manager.boxes.back(), DeskFailure(11, kStep));
  EXPECT_FALSE(desk.UpdateInReach());
  desk.Started("IK2QAA");
  EXPECT_EQ(desk.form.Lista_dubbi.items.rows().size(), 1U);
}

TEST(CheckStart, AHeaderClearsTheLabelsAndTouchesNoFile) {
  LoadedDesk desk;
  desk.workspace.With(kClassificationFile, Join(desk.workspace.Read(kClassificationFile),
                                                classification_row::kHeader, "\r\n"));
  desk.form.Option3.Click();
  desk.Started("IK2QAA");
  desk.form.Lista_dubbi.Select(0);
  ASSERT_NE(desk.form.infoloc.caption, "");
  const std::string row = desk.form.evidenzia.caption;
  const auto everything = desk.workspace.Everything();
  for (const int header : {0, 4}) {
    desk.Forget();
    desk.form.infoloc.caption = "x";
    desk.form.listacall_banda.selection = header;
    desk.manager.replies = {Reply::kYes};
    desk.form.listacall_banda.DoubleClick();
    EXPECT_EQ(desk.manager.boxes, std::vector{kQuestion});
    EXPECT_EQ(desk.form.infoloc.caption, "");
    EXPECT_EQ(desk.files.changes, 0);
    EXPECT_EQ(desk.form.evidenzia.caption, row) << "the check that runs goes on";
    EXPECT_EQ(desk.form.Lista_dubbi.items.rows().size(), 1U);
  }
  EXPECT_EQ(desk.workspace.Everything(), everything);
}

TEST(CheckStart, ARowTooShortToCheckIsTold) {
  LoadedDesk desk;
  desk.workspace.With(kClassificationFile,
                      Join(desk.workspace.Read(kClassificationFile), "I1QXX        JN44BB\r\n"));
  desk.form.Option3.Click();
  desk.Started("I1QXX");
  EXPECT_EQ(desk.manager.boxes.back(), Told(" file clssifica corrotto o non valido "));
  EXPECT_EQ(desk.files.changes, 0);
}

TEST(CheckStart, ALogOfMoreQsosThanTheDeskHoldsIsAFailure) {
  LoadedDesk desk;
  std::string rows;
  for (int qso = 0; qso < 1500; ++qso) {
    rows += "IV3QYY      I1QXX       JN44BB 100\r\n";
  }
  desk.store.Append(StoreFile::kLibreria, kCategory, rows);
  desk.Started("IV3QYY");
  EXPECT_EQ(desk.manager.boxes.back(), DeskFailure(9, kStep));
  EXPECT_FALSE(desk.UpdateInReach());
  desk.form.torna_menu.Click();
  EXPECT_TRUE(desk.main.visible()) << "no check runs";
}

}  // namespace
}  // namespace velmar::test
