#include "intake/leaving.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/error.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

class LeavingTest : public testing::Test {
 protected:
  LeavingTest() {
    workspace.WithTree();
    for (const char* path :
         {"a.mnt", "a.tmp", "a.ed3", "keep.edi", "03 Log da inserire/a.ED3",
          "03 Log da inserire/keep.edi", "Trofeo_Velmar/a.tmp", "Trofeo_Velmar/a.ed3",
          "Trofeo_Velmar/a.cla_scorta", "Trofeo_Velmar/144nodoppi.txt", "Trofeo_Velmar/a.est",
          "Trofeo_Velmar/keep.mes", "Trofeo_Velmar/note.txt", "Trofeo_Velmar/2IT/a.cla_scorta",
          "Trofeo_Velmar/2IT/keep.cla", "Trofeo_Velmar/2IT/keep.txt"}) {
      workspace.With(path, "x");
    }
  }

  std::vector<std::string> Left() {
    std::vector<std::string> paths;
    for (const auto& [path, content] : workspace.Everything()) {
      paths.push_back(path);
    }
    return paths;
  }

  TempWorkspace workspace;
  FailingFileSystem files{workspace.files()};
  ScriptedManager manager;
  ContestSession session{workspace.paths().base()};
  MainForm main;
  Leaving leaving{session, files, manager, main};
};

using Paths = std::vector<std::string>;

TEST_F(LeavingTest, EsciAsksThenClearsAllScratchFiles) {
  const Paths before = Left();
  manager.replies = {Reply::kNo, Reply::kCancel, Reply::kYes};
  main.esci.Click();
  main.esci.Click();
  EXPECT_EQ(Left(), before);
  EXPECT_THROW(main.esci.Click(), ProgramEnd);
  EXPECT_EQ(Left(), (Paths{"03 Log da inserire/keep.edi", "Trofeo_Velmar/2IT/keep.cla",
                           "Trofeo_Velmar/2IT/keep.txt", "Trofeo_Velmar/a.ed3",
                           "Trofeo_Velmar/keep.mes", "a.ed3", "keep.edi"}));
}

TEST_F(LeavingTest, ExitClearsTheWorkingCopiesWithoutAQuestion) {
  EXPECT_THROW(main.Exit.Click(), ProgramEnd);
  EXPECT_EQ(Left(), (Paths{"03 Log da inserire/keep.edi", "Trofeo_Velmar/144nodoppi.txt",
                           "Trofeo_Velmar/2IT/a.cla_scorta", "Trofeo_Velmar/2IT/keep.cla",
                           "Trofeo_Velmar/2IT/keep.txt", "Trofeo_Velmar/a.cla_scorta",
                           "Trofeo_Velmar/a.est", "Trofeo_Velmar/keep.mes",
                           "Trofeo_Velmar/note.txt", "a.mnt", "keep.edi"}));
}

TEST_F(LeavingTest, WriteProtectionOnTheDiskIsMinded) {
  std::filesystem::permissions(workspace.paths().store() + "/note.txt",
                               std::filesystem::perms::owner_read);
  manager.replies = {Reply::kYes};
  EXPECT_THROW(main.esci.Click(), ProgramEnd);
  EXPECT_EQ(workspace.Read("Trofeo_Velmar/note.txt"), "x");
  EXPECT_EQ(manager.TakeFirstLines().size(), 2U);
}

TEST_F(LeavingTest, AProtectedTextStopsTheClearingAndTheProgramEnds) {
  workspace.files().MakeFolder(workspace.paths().sections());
  workspace.With("Trofeo_Velmar/Sezioni_ASZ/O-2-Classifica sezioni.sez", "x");
  files.broken_path = "note.txt";
  files.number = ErrorNumber::kPathFileAccess;
  manager.replies = {Reply::kYes};
  EXPECT_THROW(main.esci.Click(), ProgramEnd);
  EXPECT_EQ(manager.TakeFirstLines().back(),
            " Il programma sta tentando di cancellare un file temporaneo .txt, ");
  EXPECT_EQ(workspace.Read("Trofeo_Velmar/Sezioni_ASZ/O-2-Classifica sezioni.sez"), "x");

  files.broken_path = "";
  manager.replies = {Reply::kYes};
  EXPECT_THROW(main.esci.Click(), ProgramEnd);
  EXPECT_EQ(workspace.Read("Trofeo_Velmar/Sezioni_ASZ/O-2-Classifica sezioni.sez"), "<missing>");
}

}  // namespace
}  // namespace velmar::test
