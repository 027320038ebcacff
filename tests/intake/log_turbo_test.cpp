#include <gtest/gtest.h>

#include "intake/insertion_desk.h"

namespace velmar::test {
namespace {

const std::string kA = InsertableLog().Text();
const std::string kB = InsertableLog().Of("IK2QAB").Text();
const std::string kC = InsertableLog().Of("IK2QAC").Text();
constexpr const char* kNoLogs = " Attenzione, nella cartella del programma,";

/// What lies in the category folder of a run over logs of three names.
Names Filed(InsertionDesk& desk) {
  Names names = desk.workspace.Names("Trofeo_Velmar/2IT");
  std::erase_if(names, [](const std::string& name) { return !name.ends_with(".edi"); });
  return names;
}

TEST(LogTurboTest, ARunGoesOnAfterALogThatWasMovedAndClosesThePanel) {
  for (const InsertableLog& refused :
       {InsertableLog().Row(2, "x"), InsertableLog().Row(28, "CQSOs=9;1"),
        InsertableLog().Qsos({ContestQso("DL1AA", "JO30AA", "0959")}),
        InsertableLog().End("[END;]"),
        InsertableLog().Qsos({ContestQso("DL1AA", "JO30AA", "1005", "")}),
        InsertableLog().Row(9, "PSect=3IT"), InsertableLog()}) {
    InsertionDesk desk;
    desk.Turbo().Waiting("2IT_IK2QAA.edi", kA).Waiting("2IT_IK2QAB.edi", refused.Text());
    desk.Waiting("2IT_IK2QAC.edi", kC);
    if (refused.Text() == InsertableLog().Row(9, "PSect=3IT").Text()) {
      desk.manager.replies = {Reply::kNo};
    }
    desk.Read();
    EXPECT_FALSE(desk.manager.TakeFirstLines().empty());
    EXPECT_EQ(Filed(desk), (Names{"2IT_IK2QAA.edi", "2IT_IK2QAC.edi"}));
    EXPECT_EQ(desk.SetAside().size() + desk.workspace.Names("Trofeo_Velmar/Log doppi").size(), 1U);
    EXPECT_TRUE(desk.Inbox().empty());
    EXPECT_EQ(desk.manager.progress,
              (std::vector<std::pair<std::size_t, std::size_t>>{{0, 3}, {1, 3}, {2, 3}}));
    const MainForm& main = desk.main;
    EXPECT_FALSE(main.turbo.checked || main.Ins_auto.checked || main.Check_AUT_entry.checked);
    EXPECT_FALSE(main.turbo.visible || main.Ins_auto.visible || main.Check_AUT_entry.visible ||
                 main.info_turbo.visible || main.File1.visible || main.Inserimento_OK.visible ||
                 main.caricaedi.visible || main.Callusato.visible || main.Bar1.visible);
    EXPECT_EQ(main.Callusato.value, "");
  }
}

TEST(LogTurboTest, ARunThatEndsWithARefusalFindsNoMoreLogs) {
  InsertionDesk desk;
  desk.Turbo().Waiting("2IT_IK2QAA.edi", kA).Waiting("2IT_IK2QAB.edi", "x");
  desk.Read();
  EXPECT_EQ(desk.manager.TakeFirstLines().back(), kNoLogs);
  EXPECT_EQ(Filed(desk), Names{"2IT_IK2QAA.edi"});
  EXPECT_FALSE(desk.main.Inserire_log.enabled);
  for (const Control* control : std::initializer_list<Control*>{
           &desk.main.caricaedi, &desk.main.turbo, &desk.main.File1, &desk.main.Callusato}) {
    EXPECT_FALSE(control->visible) << control->name << ": the panel closes";
  }
}

TEST(LogTurboTest, SomeRefusalsEndTheRun) {
  for (const InsertableLog& log : {InsertableLog().Row(9, "PSect=UNICA"),
                                   InsertableLog().Start("[QSORecords;2]").Row(28, "CQSOs=2;1")}) {
    InsertionDesk desk;
    desk.Turbo().Waiting("2IT_IK2QAA.edi", log.Text()).Waiting("2IT_IK2QAB.edi", kB);
    desk.Read();
    EXPECT_EQ(desk.SetAside().size(), 1U);
    EXPECT_EQ(desk.PlacesOf(kB), Names{"03 Log da inserire/2IT_IK2QAB.edi"});
    EXPECT_FALSE(desk.main.turbo.checked);
    EXPECT_TRUE(desk.main.Ins_auto.checked);
  }
}

TEST(LogTurboTest, EscEndsTheRunBehindTheLogThatIsChosen) {
  InsertionDesk desk;
  desk.Turbo().Waiting("2IT_IK2QAA.edi", kA).Waiting("2IT_IK2QAB.edi", kB);
  desk.main.info_turbo.visible = true;
  desk.manager.stop_wanted = true;
  desk.Read();
  EXPECT_EQ(Filed(desk), Names{"2IT_IK2QAA.edi"});
  EXPECT_FALSE(desk.main.turbo.checked || desk.main.info_turbo.visible);
  EXPECT_TRUE(desk.main.Ins_auto.checked && desk.main.caricaedi.visible);
  EXPECT_EQ(desk.main.Callusato.value, "IK2QAA") << "what was filed stays to be seen";
  desk.Read();
  EXPECT_EQ(Filed(desk), (Names{"2IT_IK2QAA.edi", "2IT_IK2QAB.edi"}));
}

TEST(LogTurboTest, AnotherFolderIsReadToItsEnd) {
  InsertionDesk desk;
  desk.Turbo().Waiting("2IT_IK2QAC.edi", kC).workspace.With("altri/2IT_IK2QAA.edi", "x");
  desk.workspace.With("altri/2IT_IK2QAB.edi",
                      InsertableLog().Qsos({ContestQso("DL1AA", "JO30AA", "0959")}).Text());
  desk.main.Dir1.Type(desk.workspace.paths().base() + "/altri");
  EXPECT_EQ(desk.main.num_file2.caption, "2");
  EXPECT_EQ(desk.main.File1.selection, 0);
  desk.Read();
  EXPECT_EQ(desk.SetAside(), (Names{"2IT_IK2QAA.edi -_- bad_Title_.edi",
                                    "2IT_IK2QAB.edi -_- fuori orario prima.edi"}))
      << "and no scratch copy is taken for a log";
  desk.main.Dir1.Type("nowhere");
  EXPECT_EQ(desk.main.num_file2.caption, "0");
  EXPECT_EQ(desk.main.File1.selection, -1);
}

}  // namespace
}  // namespace velmar::test
