#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "model/classification_row.h"
#include "model/contest_store.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar {
namespace {

namespace fs = std::filesystem;
using Contents = std::map<std::string, std::string>;

constexpr std::string_view kCall = "IK2QAA/P";
constexpr std::string_view kMonth = "Gennaio 2025";
const std::string kStore = "Trofeo_Velmar/2IT/";
const std::string kLog = kStore + "2IT_IK2QAA.edi";
const std::string kErrorList = kStore + "2IT-IK2QAA_P Lista errori GENNAIO 2025.err";
const std::string kWaiting = "03 Log da inserire/2IT_IK2QAA.edi";

TEST(FiledName, IsTheCallWithoutItsPrefixAndSuffix) {
  const std::pair<const char*, const char*> cases[] = {
      {"IK2QAA", "IK2QAA"},     {"IW9QQQ/P", "IW9QQQ"},     {"IW9QQQ/P    ", "IW9QQQ"},
      {"IV3/IK2QAA", "IK2QAA"}, {"I/IK2QAA", "IK2QAA"},     {"I2AB/4", "I2AB"},
      {"I2A/QRP", "QRP"},       {"IV3/IK2QAA/P", "IK2QAA"}, {"OE4XX/I2A/P", "I2A"},
      {"/I2A", "I2A"},          {"IK2QAA/", "IK2QAA"}};
  for (const auto& [call, name] : cases) {
    EXPECT_EQ(FiledName(call), name) << call;
  }
}

/// Writes down what is done to the files, by their names.
class RecordingFileSystem : public test::FailingFileSystem {
 public:
  using FailingFileSystem::FailingFileSystem;

  void WriteAll(const std::string& path, std::string_view bytes) override {
    Note("write", path);
    FailingFileSystem::WriteAll(path, bytes);
  }
  void Copy(const std::string& from, const std::string& to) override {
    Note("copy", to);
    FailingFileSystem::Copy(from, to);
  }
  void Remove(const std::string& path) override {
    Note("remove", path);
    FailingFileSystem::Remove(path);
  }

  std::vector<std::string> done;

 private:
  void Note(std::string_view what, const std::string& path) {
    const fs::path file(path);
    done.push_back(
        Join(what, " ", file.parent_path().filename().string(), "/", file.filename().string()));
  }
};

/// A store with the log of a call whose rows are to go, and rows of others that are to stay.
class RemovalTest : public testing::Test {
 protected:
  RemovalTest() {
    workspace.WithTree();
    Fill();
  }

  std::string At(const std::string& path) const { return workspace.paths().base() + "/" + path; }

  void Fill() {
    constexpr std::string_view kQso = "250119;1003;I0XYZ;1;59;001;59;012;;JN61FW;418;;N;;";
    Put(" Classifica Mensile 144 gennaio 2025.cla", Join(classification_row::kHeader, kLineEnd),
        [](std::string_view call) {
          ClassificationEntry entry;
          entry.call = call;
          return ClassificationRow(entry);
        });
    Put(" partecipanti.par", Join(PartecipanteRow(kCall, "JN45NK", "3IT"), kLineEnd),
        [](std::string_view call) { return PartecipanteRow(call, "JN45NK", "2IT"); });
    Put("libreria.qso", Join(LibreriaRow("I0XYZ", kCall, "JN45NK", "418").value(), kLineEnd),
        [](std::string_view call) { return LibreriaRow(call, "I0ABC", "JN61FW", "418").value(); });
    Put("somma_qso.qso", Join(SommaQsoRow(";;IK2QAA/P;", "2IT", "JN61FW", "I0XYZ"), kLineEnd),
        [](std::string_view call) { return SommaQsoRow(kQso, "2IT", "JN45NK", call); });
    Put("somma_qso.slx", "", [](std::string_view call) { return SommaSlxRow(call, kQso); });
    Put("libreria_totale.tot",
        Join(LibreriaTotaleRow(kCall, "I0ABC", "JN61FW", "3IT", "418").value(), kLineEnd),
        [](std::string_view call) {
          return LibreriaTotaleRow(call, "I0ABC", "JN61FW", "2IT", "418").value();
        });
    Put("tempi.txt", Join(TempiRow("3IT", kCall, 85, 1, 1), kLineEnd),
        [](std::string_view call) { return TempiRow("2IT", call, 85, 1, 1); });
    Put("Classifica_modo.par", "",
        [](std::string_view call) { return ModoRow(call, "JN45NK", 85, 0); });
    for (const char* name :
         {" Statistica DX.cdx", " control_log.txt", " Qso_in_CW.CW", " Call_con_qso_in_CW.CW",
          "-Contest Team.txt", "-IK2QAA Lista errori GENNAIO 2025.err"}) {
      workspace.With(kStore + "2IT" + name, "IK2QAA/P    and without an end");
    }
    workspace.With(kErrorList, "errors").With(kLog, "the log");
    before = workspace.Everything();
    after = before;
    for (const auto& [path, text] : kept_) {
      after[path] = text;
    }
    after.erase(kErrorList);
    after.erase(kLog);
    after[kWaiting] = "the log";
  }

  test::TempWorkspace workspace;
  RecordingFileSystem files{workspace.files()};
  ContestStore store{files, workspace.paths()};
  Contents before, after;

 private:
  /// A file with a row that stays, then rows of others and of the call by turns.
  void Put(const std::string& tail, const std::string& first,
           const std::function<std::string(std::string_view call)>& row) {
    std::string all = first;
    std::string stays = first;
    for (const std::string_view call :
         {"IK2QAA", "IK2QAA/P", "IK2QAA/P2", "I0XYZ", "IK2QAA/P", "IV3/IK2QAA/P"}) {
      const std::string line = Join(row(call), kLineEnd);
      all += line;
      stays += call == kCall ? "" : line;
    }
    workspace.With(kStore + "2IT" + tail, all);
    kept_[kStore + "2IT" + tail] = stays;
  }

  Contents kept_;
};

TEST_F(RemovalTest, TakesTheRowsOfTheCallOutOfEveryFileInOrder) {
  ASSERT_TRUE(store.ContainsOwner(kCall));
  const Removal removal = store.RemoveOwner(Pad(kCall, 12), "2IT", kMonth);
  EXPECT_TRUE(removal.rewritten);
  EXPECT_TRUE(removal.missing.empty());
  EXPECT_EQ(workspace.Everything(), after);
  EXPECT_FALSE(store.ContainsOwner(kCall));
  EXPECT_TRUE(store.ContainsOwner("IK2QAA"));
  EXPECT_EQ(files.done, (std::vector<std::string>{
                            "copy 03 Log da inserire/2IT_IK2QAA.edi", "remove 2IT/2IT_IK2QAA.edi",
                            "write 2IT/2IT Classifica Mensile 144 gennaio 2025.cla",
                            "write 2IT/2IT partecipanti.par", "write 2IT/2ITlibreria.qso",
                            "write 2IT/2ITsomma_qso.qso", "write 2IT/2ITsomma_qso.slx",
                            "remove 2IT/2IT-IK2QAA_P Lista errori GENNAIO 2025.err",
                            "write 2IT/2ITlibreria_totale.tot", "write 2IT/2ITtempi.txt",
                            "write 2IT/2ITClassifica_modo.par"}));
}

TEST_F(RemovalTest, BrokenOffAnywhereItLeavesWholeFilesAndTheLog) {
  const auto has = [](const Contents& files, const std::string& path, const std::string& text) {
    const auto found = files.find(path);
    return found != files.end() && found->second == text;
  };
  for (files.break_at_change = 1;; ++files.break_at_change) {
    SCOPED_TRACE(files.break_at_change);
    Fill();
    files.changes = 0;
    try {
      store.RemoveOwner(kCall, "2IT", kMonth);
      break;
    } catch (const RunTimeError&) {
    }
    const Contents now = workspace.Everything();
    EXPECT_TRUE(has(now, kLog, "the log") || has(now, kWaiting, "the log"));
    for (const auto& [path, text] : now) {
      EXPECT_TRUE(has(before, path, text) || has(after, path, text)) << path;
    }
    for (const auto& [path, text] : after) {
      EXPECT_TRUE(path == kWaiting || now.contains(path)) << path;
    }
    RemoveIfThere(workspace.files(), At(kWaiting));
  }
  EXPECT_EQ(files.break_at_change, 12);
  EXPECT_EQ(workspace.Everything(), after);
}

TEST_F(RemovalTest, MissingFilesAreToldAndTheOthersRewritten) {
  for (const std::string& path : {kStore + "2ITsomma_qso.qso", kStore + "2ITtempi.txt",
                                  kStore + "2IT partecipanti.par", kErrorList}) {
    fs::remove(At(path));
    after.erase(path);
  }
  const Removal removal = store.RemoveOwner(kCall, "2IT", kMonth);
  EXPECT_EQ(removal.missing,
            (std::vector{StoreFile::kPartecipanti, StoreFile::kSommaQso, StoreFile::kTempi}));
  EXPECT_EQ(workspace.Everything(), after);
}

TEST_F(RemovalTest, AnotherCategoryGivesItsLogBackAndNothingMore) {
  fs::create_directories(At("Trofeo_Velmar/3IT"));
  workspace.With("Trofeo_Velmar/3IT/3IT_IK2QAA.edi", "third")
      .With("Trofeo_Velmar/3IT/3ITlibreria.qso", "IK2QAA/P    row\r\n");
  after = workspace.Everything();
  after.erase("Trofeo_Velmar/3IT/3IT_IK2QAA.edi");
  after["03 Log da inserire/3IT_IK2QAA.edi"] = "third";
  EXPECT_FALSE(store.RemoveOwner(kCall, "3IT", kMonth).rewritten);
  EXPECT_EQ(workspace.Everything(), after);
}

TEST_F(RemovalTest, ALogThatWasFiledInSmallLettersIsFound) {
  fs::rename(At(kLog), At(kStore + "2IT_ik2qaa.edi"));
  EXPECT_TRUE(store.RemoveOwner(kCall, "2IT", kMonth).rewritten);
  EXPECT_EQ(workspace.Read(kWaiting), before[kLog]);
  EXPECT_EQ(workspace.Read(kStore + "2IT_ik2qaa.edi"), "<missing>");
}

TEST_F(RemovalTest, WithoutItsLogNothingIsTouched) {
  EXPECT_THROW(store.RemoveOwner("IZ9ZZZ", "2IT", kMonth), RunTimeError);
  EXPECT_EQ(workspace.Everything(), before);
}

TEST_F(RemovalTest, ALogThatWaitsUnderTheSameNameIsNotLost) {
  for (const char* waiting : {"another log", "the log"}) {
    workspace.With(kWaiting, waiting).With(kLog, "the log");
    store.RemoveOwner(kCall, "2IT", kMonth);
    EXPECT_EQ(workspace.Read(kWaiting), waiting);
    std::vector<std::string> texts;
    for (const std::string& name : workspace.Names("03 Log da inserire")) {
      texts.push_back(workspace.Read("03 Log da inserire/" + name));
    }
    EXPECT_NE(std::ranges::find(texts, "the log"), texts.end());
  }
}

}  // namespace
}  // namespace velmar
