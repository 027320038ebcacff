#include "platform/file_system.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "platform/disk_file_system.h"
#include "platform/error.h"
#include "support/temp_workspace.h"

namespace velmar {
namespace {

namespace fs = std::filesystem;
using Contents = std::map<std::string, std::string>;
using Names = std::vector<std::string>;
using Step = std::function<void()>;

void ExpectError(ErrorNumber number, const Step& step) {
  try {
    step();
    ADD_FAILURE() << "no error";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(static_cast<int>(error.number()), static_cast<int>(number)) << error.what();
  }
}

/// Narrows a limit of the process while `step` runs.
void WithLimit(__rlimit_resource which, rlim_t limit, const Step& step) {
  rlimit former{};
  getrlimit(which, &former);
  const rlimit narrow{limit, former.rlim_max};
  setrlimit(which, &narrow);
  step();
  setrlimit(which, &former);
}

/// Runs a step that is to fail as soon as a file has 4096 bytes.
void WithFullFiles(const Step& step) {
  auto* const former = std::signal(SIGXFSZ, SIG_IGN);
  WithLimit(RLIMIT_FSIZE, 4096, [&] { ExpectError(ErrorNumber::kDeviceError, step); });
  std::signal(SIGXFSZ, former);
}

/// A workspace with a file, a folder and a file in that folder.
class DiskFileSystemTest : public testing::Test {
 protected:
  DiskFileSystemTest() {
    files.MakeFolder(At("folder"));
    workspace.With("file", "old").With("folder/inner", "inner");
  }

  std::string At(const std::string& path) const { return workspace.paths().base() + "/" + path; }

  test::TempWorkspace workspace;
  FileSystem& files = workspace.files();
  const Contents before = {{"file", "old"}, {"folder/inner", "inner"}};
};

TEST(MatchesPattern, StarsAndQuestionMarksWithoutRegardToCase) {
  const struct {
    const char* name;
    const char* pattern;
    bool fits;
  } cases[] = {{"IK2QAA.EDI", "*.edi", true},
               {"ik2qaa.edi", "*.EDI", true},
               {"PERCH\xC9.edi", "*\xE9.*", true},
               {"a.edi.bak", "*.edi", false},
               {"a.bak.edi", "*.edi", true},
               {"aedi", "*.edi", false},
               {".edi", "*.edi", true},
               {"readme", "*.*", true},
               {"readme", "*", true},
               {"", "*", true},
               {"", "*.*", true},
               {"a", "", false},
               {"", "", true},
               {"a.cla", "?.cla", true},
               {".cla", "?.cla", false},
               {"ab.cla", "?.cla", false},
               {"2IT x.cla", "2IT*.c?a", true},
               {"aXbXc", "*X*c", true},
               {"aXbXcd", "*X*c", false},
               {"aaab", "*aab", true},
               {"axb", "a.b", false},
               {"a", "a?", false}};
  for (const auto& [name, pattern, fits] : cases) {
    EXPECT_EQ(MatchesPattern(name, pattern), fits) << name << " against " << pattern;
  }
}

TEST(NameLess, OrdersBySmallLettersThenByLengthThenByCase) {
  const Names ordered = {"",   " a", "1", "_",  "A",    "a",    "A.edi", "Ab",   "ab.e",
                         "AC", "b",  "Z", "z_", "\xD7", "\xC0", "\xE0",  "\xFFz"};
  for (std::size_t left = 0; left < ordered.size(); ++left) {
    for (std::size_t right = 0; right < ordered.size(); ++right) {
      EXPECT_EQ(NameLess(ordered[left], ordered[right]), left < right) << left << " " << right;
    }
  }
}

TEST_F(DiskFileSystemTest, EachFailureHasItsNumberAndChangesNothing) {
  const std::pair<ErrorNumber, std::vector<Step>> cases[] = {
      {ErrorNumber::kFileNotFound,
       {[&] { files.ReadAll(At("no")); }, [&] { files.Remove(At("no")); },
        [&] { files.Move(At("no"), At("b")); }, [&] { files.Copy(At("no"), At("b")); }}},
      {ErrorNumber::kPathNotFound,
       {[&] { files.ReadAll(At("no/a")); }, [&] { files.WriteAll(At("no/a"), ""); },
        [&] { files.Append(At("no/a"), ""); }, [&] { files.Remove(At("no/a")); },
        [&] { files.Copy(At("file"), At("no/a")); }, [&] { files.Move(At("no/a"), At("b")); },
        [&] { files.List(At("no"), "*.*"); }, [&] { files.ChangeFolder(At("no")); },
        [&] { files.MakeFolder(At("no/a")); }, [&] { files.ReadAll(At("file/a")); }}},
      {ErrorNumber::kPathFileAccess,
       {[&] { files.ReadAll(At("folder")); }, [&] { files.WriteAll(At("folder"), ""); },
        [&] { files.Append(At("folder"), ""); }, [&] { files.Remove(At("folder")); },
        [&] { files.Copy(At("folder"), At("b")); }, [&] { files.Copy(At("file"), At("folder")); },
        [&] { files.Move(At("file"), At("folder")); }, [&] { files.MakeFolder(At("folder")); },
        [&] { files.MakeFolder(At("file")); }}},
      {ErrorNumber::kBadFileName, {[&] { files.WriteAll(At(std::string(300, 'x')), ""); }}}};
  for (const auto& [number, steps] : cases) {
    for (std::size_t i = 0; i < steps.size(); ++i) {
      SCOPED_TRACE(i);
      ExpectError(number, steps[i]);
      EXPECT_EQ(workspace.Everything(), before);
    }
  }
}

TEST_F(DiskFileSystemTest, AMoveIntoAMissingFolderMissesThePath) {
  ExpectError(ErrorNumber::kPathNotFound, [&] { files.Move(At("file"), At("no/a")); });
}

TEST_F(DiskFileSystemTest, AFullDiskAndTooManyOpenFilesAreTold) {
  fs::create_symlink("/dev/full", At("full"));
  ExpectError(ErrorNumber::kDiskFull, [&] { files.Append(At("full"), "x"); });
  WithLimit(RLIMIT_NOFILE, 0, [&] {
    ExpectError(ErrorNumber::kTooManyFiles, [&] { files.ReadAll(At("file")); });
    ExpectError(ErrorNumber::kTooManyFiles, [&] { files.List(At(""), "*.*"); });
  });
}

TEST_F(DiskFileSystemTest, ARewriteThatBreaksOffLeavesTheOldFileAndNoOther) {
  for (const char* name : {"file", "new"}) {
    WithFullFiles([&] { files.WriteAll(At(name), std::string(10000, 'x')); });
  }
  EXPECT_EQ(workspace.Everything(), before);
}

TEST_F(DiskFileSystemTest, AnAppendThatBreaksOffTakesBackWhatItWrote) {
  WithFullFiles([&] { files.Append(At("file"), std::string(10000, 'x')); });
  EXPECT_EQ(workspace.Everything(), before);
}

TEST_F(DiskFileSystemTest, AnAppendThatBreaksOffMakesNoFile) {
  WithFullFiles([&] { files.Append(At("new"), std::string(10000, 'x')); });
  EXPECT_EQ(workspace.Everything(), before);
}

TEST_F(DiskFileSystemTest, AStampTellsEachStateOfAFileFromTheOthers) {
  EXPECT_EQ(files.StampOf(At("no")), std::nullopt);
  EXPECT_EQ(files.StampOf(At("no/a")), std::nullopt);
  EXPECT_THROW(files.StampOf(At("folder")), RunTimeError);
  const auto first = files.StampOf(At("file"));
  ASSERT_TRUE(first);
  EXPECT_EQ(first->size, 3U);
  EXPECT_EQ(files.StampOf(At("file")), first);
  const auto time = fs::last_write_time(At("file"));
  const std::vector<Step> changes = {[&] { files.Append(At("file"), "er"); },
                                     [&] {
                                       std::ofstream(At("file")) << "new";
                                       fs::last_write_time(At("file"),
                                                           time + std::chrono::nanoseconds(1));
                                     },
                                     [&] {
                                       workspace.With("file", "new");
                                       fs::last_write_time(At("file"), time);
                                     }};
  for (std::size_t i = 0; i < changes.size(); ++i) {
    changes[i]();
    EXPECT_NE(files.StampOf(At("file")), first) << i;
  }
}

TEST_F(DiskFileSystemTest, AFreeNameIsOneThatHidesNoOtherContent) {
  const auto free_name = [&] { return FreeName(files, At("file"), At("folder"), "a.b", ".edi"); };
  const std::pair<const char*, const char*> cases[] = {
      {"a.b.edi", "a.b (2).edi"}, {"a.b (2).edi", "a.b (3).edi"}, {"a.b (3).edi", "a.b (4).edi"}};
  EXPECT_EQ(free_name(), "a.b.edi");
  for (const auto& [taken, next] : cases) {
    workspace.With(std::string("folder/") + taken, "new");
    EXPECT_EQ(free_name(), next);
  }
  workspace.With("folder/a.b (2).edi", "old");
  EXPECT_EQ(free_name(), "a.b (2).edi");
  ExpectError(ErrorNumber::kPathNotFound,
              [&] { FreeName(files, At("file"), At("no"), "a", ".edi"); });
}

TEST_F(DiskFileSystemTest, BytesComeBackAsTheyWent) {
  std::string large(5'000'000, '\0');
  for (std::size_t i = 0; i < large.size(); ++i) {
    large[i] = static_cast<char>(i * 7 + i / 251);
  }
  for (const std::string& bytes : {large, std::string(), std::string("\0\r\n\x1A\xFF", 5)}) {
    files.WriteAll(At("bytes"), bytes);
    EXPECT_TRUE(files.ReadAll(At("bytes")) == bytes) << bytes.size();
    files.Append(At("bytes"), "end");
    EXPECT_TRUE(files.ReadAll(At("bytes")) == bytes + "end") << bytes.size();
  }
  files.Append(At("new"), "made");
  EXPECT_EQ(workspace.Read("new"), "made");
  EXPECT_TRUE(files.ReadAll("/proc/version").ends_with('\n'));  // a file that tells no size
}

TEST_F(DiskFileSystemTest, CopyAndMoveGoOverAFileThatIsThere) {
  files.Copy(At("file"), At("folder/inner"));
  EXPECT_EQ(workspace.Everything(), (Contents{{"file", "old"}, {"folder/inner", "old"}}));
  files.Copy(At("file"), At("file"));
  files.WriteAll(At("folder/inner"), "longer");
  files.Move(At("folder/inner"), At("file"));
  EXPECT_EQ(workspace.Everything(), (Contents{{"file", "longer"}}));
}

TEST_F(DiskFileSystemTest, AListHasTheFilesAndNothingElseInNameOrder) {
  workspace.With("b.EDI", "").With("A.edi", "").With("c.txt", "").With(".hidden.edi", "");
  files.MakeFolder(At("d.edi"));
  ASSERT_EQ(mkfifo(At("e.edi").c_str(), 0600), 0);
  fs::create_symlink(At("c.txt"), At("f.edi"));
  fs::create_symlink(At("folder"), At("g.edi"));
  fs::create_symlink(At("gone"), At("h.edi"));
  EXPECT_EQ(workspace.Names(""), (Names{"A.edi", "b.EDI", "c.txt", "f.edi", "file"}));
  EXPECT_EQ(files.List(At(""), "*.edi"), (Names{"A.edi", "b.EDI", "f.edi"}));
}

TEST_F(DiskFileSystemTest, AFileOfAnyDiskNameCanBeListedMovedReadAndRemoved) {
  const Names disk_names = {"perché.edi", "Ж.edi", "\xFF.edi", "\xC2\x81.edi"};
  for (const std::string& disk_name : disk_names) {
    std::ofstream(At("folder/" + disk_name)) << disk_name;
  }
  for (const std::string& name : files.List(At("folder"), "*.edi")) {
    files.Move(At("folder/" + name), At(name));
  }
  for (const std::string& disk_name : disk_names) {
    EXPECT_TRUE(fs::exists(At(disk_name))) << disk_name;
  }
  for (const std::string& name : files.List(At(""), "*.edi")) {
    EXPECT_NE(std::find(disk_names.begin(), disk_names.end(), files.ReadAll(At(name))),
              disk_names.end());
  }
  RemoveMatching(files, At(""), "*.EDI");
  EXPECT_EQ(workspace.Everything(), before);
}

TEST_F(DiskFileSystemTest, RelativePathsCountFromTheFirstFolder) {
  const fs::path former = fs::current_path();
  fs::current_path(At(""));
  DiskFileSystem relative;
  relative.ChangeFolder("folder");
  EXPECT_TRUE(fs::equivalent(fs::current_path(), At("folder")));
  relative.Append("folder/inner", " more");
  EXPECT_EQ(relative.List("", "*.*"), Names{"file"});
  fs::current_path(former);
  EXPECT_EQ(workspace.Read("folder/inner"), "inner more");
}

TEST_F(DiskFileSystemTest, TheHelpersForgiveAMissingFileAndNothingElse) {
  EXPECT_EQ(ReadIfThere(files, At("file")), "old");
  EXPECT_EQ(ReadIfThere(files, At("no")), std::nullopt);
  ExpectError(ErrorNumber::kPathNotFound, [&] { ReadIfThere(files, At("no/a")); });
  EXPECT_TRUE(HoldsFiles(files, At("folder")));
  EXPECT_FALSE(HoldsFiles(files, At("folder"), "*.edi"));
  EXPECT_FALSE(HoldsFiles(files, At("no")));
  RemoveMatching(files, At("folder"), "*.edi");
  RemoveIfThere(files, At("no"));
  ExpectError(ErrorNumber::kPathFileAccess, [&] { RemoveIfThere(files, At("folder")); });
  EXPECT_EQ(workspace.Everything(), before);
  RemoveIfThere(files, At("file"));
  EXPECT_EQ(workspace.Everything(), (Contents{{"folder/inner", "inner"}}));
}

}  // namespace
}  // namespace velmar
