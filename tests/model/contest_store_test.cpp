#include "model/contest_store.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <string>
#include <vector>

#include "model/lines.h"
#include "model/store_rows.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar {
namespace {

namespace fs = std::filesystem;

const std::string kStore = "Trofeo_Velmar/2IT/";
const std::string kLibrary = kStore + "2ITlibreria.qso";

std::string LibraryOf(std::string_view owner) {
  return Join(LibreriaRow(owner, "I0XYZ", "JN61FW", "418").value(), kLineEnd);
}

TEST(StoreFileNames, CharacterByCharacter) {
  const Workspace paths("base");
  const char* const names[] = {
      "2ITlibreria.qso",  "2ITlibreria_totale.tot",    "2ITsomma_qso.qso",
      "2ITsomma_qso.slx", "2IT partecipanti.par",      "2ITClassifica_modo.par",
      "2ITtempi.txt",     "2IT Statistica DX.cdx",     "2IT control_log.txt",
      "2IT Qso_in_CW.CW", "2IT Call_con_qso_in_CW.CW", "2IT-Contest Team.txt"};
  auto file = StoreFile::kLibreria;
  for (const char* name : names) {
    EXPECT_EQ(paths.store_file(file), Join("base/Trofeo_Velmar/2IT/", name));
    file = static_cast<StoreFile>(static_cast<int>(file) + 1);
  }
  const std::pair<std::string, const char*> others[] = {
      {paths.store_file(StoreFile::kCwCalls, "4IT"), "4IT/4IT Call_con_qso_in_CW.CW"},
      {paths.classification("GENNAIO 2024"), "2IT/2IT Classifica Mensile 144 gennaio 2024.cla"},
      {paths.error_list("2IT", "IV3/IK2QAA/P", "gennaio 2024"),
       "2IT/2IT-IV3_IK2QAA_P Lista errori GENNAIO 2024.err"},
      {paths.error_list("2IT", "I2A         ", "GENNAIO 2024"),
       "2IT/2IT-I2A Lista errori GENNAIO 2024.err"},
      {paths.contest_date("2IT"), "2IT/2IT data contest.dat"}};
  for (const auto& [path, name] : others) {
    EXPECT_EQ(path, Join("base/Trofeo_Velmar/", name));
  }
}

/// Counts how often a file is read.
class CountingFileSystem : public test::FailingFileSystem {
 public:
  using FailingFileSystem::FailingFileSystem;

  std::string ReadAll(const std::string& path) override {
    ++reads;
    return FailingFileSystem::ReadAll(path);
  }

  int reads = 0;
};

class ContestStoreTest : public testing::Test {
 protected:
  ContestStoreTest() { workspace.WithTree(); }

  std::string At(const std::string& path) const { return workspace.paths().base() + "/" + path; }

  std::vector<std::string> InLibrary() {
    return store.Lines(StoreFile::kLibreria, kCategory).value_or(std::vector<std::string>());
  }

  /// What a look through the file itself finds.
  bool InFile(std::string_view call) {
    const auto lines = InLibrary();
    return std::ranges::any_of(
        lines, [&](const std::string& line) { return Left(line, kCallWidth) == Call12(call); });
  }

  test::TempWorkspace workspace;
  CountingFileSystem files{workspace.files()};
  ContestStore store{files, workspace.paths()};
};

TEST_F(ContestStoreTest, RowsAreAddedAndReadAgain) {
  EXPECT_EQ(store.Lines(StoreFile::kTempi, "2IT"), std::nullopt);
  store.Append(StoreFile::kTempi, "2IT", "");
  EXPECT_EQ(workspace.Read(kStore + "2ITtempi.txt"), "");
  store.Append(StoreFile::kPartecipanti, "2IT", "a\r\nb \r\n");
  store.Append(StoreFile::kPartecipanti, "2IT", "c\r\n");
  EXPECT_EQ(store.Lines(StoreFile::kPartecipanti, "2IT"),
            (std::vector<std::string>{"a", "b ", "c"}));
}

TEST_F(ContestStoreTest, AnOwnerIsComparedByTwelveCharacters) {
  EXPECT_FALSE(store.ContainsOwner("IK2QAA"));
  store.Append(StoreFile::kLibreria, "2IT", LibraryOf("IK2QAA/P") + LibraryOf("IV3/IK2QAA/QRP"));
  store.Append(StoreFile::kLibreria, "2IT", "I2SHORT\r\n");
  for (const char* call : {"IK2QAA/P", "ik2qaa/p    ", "IV3/IK2QAA/QRP", "IV3/IK2QAA/QRO"}) {
    EXPECT_TRUE(store.ContainsOwner(call)) << call;
  }
  for (const char* call : {"IK2QAA", "IK2QAA/P2", "IK2QAA-P", "I0XYZ", "", "I2SHORT"}) {
    EXPECT_FALSE(store.ContainsOwner(call)) << call;
  }
  EXPECT_FALSE(store.ContainsOwner("IK2QAA/P", "3IT"));
  EXPECT_EQ(store.LibraryLines(), 3U);
}

TEST_F(ContestStoreTest, OwnRowsAreKnownWithoutAnotherLookAtTheFile) {
  EXPECT_EQ(store.LibraryLines(), 0U);
  store.Append(StoreFile::kLibreria, "2IT", LibraryOf("I2AAA"));
  const int before = files.reads;
  for (int i = 0; i < 5; ++i) {
    const std::string call = Join("I2AA", i);
    store.Append(StoreFile::kLibreria, "2IT", LibraryOf(call) + LibraryOf(call));
    EXPECT_TRUE(store.ContainsOwner(call));
  }
  EXPECT_EQ(store.LibraryLines(), 11U);
  EXPECT_EQ(files.reads, before);
}

TEST_F(ContestStoreTest, WhatSomebodyElseDidToTheLibraryIsSeen) {
  const std::string path = At(kLibrary);
  const auto write_in_place = [&](const std::string& text) {
    const auto time = fs::last_write_time(path);
    std::ofstream(path, std::ios::binary) << text;
    fs::last_write_time(path, time + std::chrono::milliseconds(1));
  };
  const std::pair<const char*, std::function<void()>> cases[] = {
      {"one more", [&] { files.Append(path, LibraryOf("I2BBB")); }},
      {"other rows, same size", [&] { write_in_place(LibraryOf("I2BBB")); }},
      {"another file of the same size and time",
       [&] {
         const auto time = fs::last_write_time(path);
         workspace.With("other", LibraryOf("I2BBB"));
         fs::rename(At("other"), path);
         fs::last_write_time(path, time);
       }},
      {"removed", [&] { fs::remove(path); }},
      {"removed and made again by an own append",
       [&] {
         fs::remove(path);
         store.Append(StoreFile::kLibreria, "2IT", LibraryOf("I2BBB"));
       }},
      {"an own append behind another's",
       [&] {
         files.Append(path, LibraryOf("I2CCC"));
         store.Append(StoreFile::kLibreria, "2IT", LibraryOf("I2BBB"));
       }},
      {"a last line without an end",
       [&] {
         write_in_place("I2CCC       x");
         store.Append(StoreFile::kLibreria, "2IT", LibraryOf("I2BBB") + LibraryOf("I2DDD"));
         store.Append(StoreFile::kLibreria, "2IT", LibraryOf("I2EEE"));
       }},
      {"an own append that fails", [&] {
         files.break_at_change = files.changes + 1;
         EXPECT_THROW(store.Append(StoreFile::kLibreria, "2IT", LibraryOf("I2BBB")), RunTimeError);
       }}};
  for (const auto& [name, change] : cases) {
    SCOPED_TRACE(name);
    workspace.With(kLibrary, LibraryOf("I2AAA"));
    ASSERT_TRUE(store.ContainsOwner("I2AAA"));
    change();
    for (const char* call : {"I2AAA", "I2BBB", "I2CCC", "I2DDD", "I2EEE"}) {
      EXPECT_EQ(store.ContainsOwner(call), InFile(call)) << call;
    }
    EXPECT_EQ(store.LibraryLines(), InLibrary().size());
  }
}

std::string ManyLines(std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) {
    text += "x\r\n";
  }
  return text;
}

TEST_F(ContestStoreTest, PastItsBoundsItFails) {
  workspace.With(kLibrary, ManyLines(247'999) + LibraryOf("I2AAA"));
  EXPECT_TRUE(store.ContainsOwner("I2AAA"));
  store.Append(StoreFile::kLibreria, "2IT", LibraryOf("I2BBB"));
  EXPECT_THROW(store.ContainsOwner("I2BBB"), RunTimeError);
  for (const std::size_t lines : {250'000U, 250'001U}) {
    workspace.With(kStore + "2IT_IK2QAA.edi", "log")
        .With(kStore + "2ITsomma_qso.slx", ManyLines(lines));
    const auto remove = [&] { store.RemoveOwner("IK2QAA", "2IT", "GENNAIO 2025"); };
    if (lines == 250'000U) {
      EXPECT_NO_THROW(remove());
    } else {
      EXPECT_THROW(remove(), RunTimeError);
    }
    EXPECT_EQ(workspace.Read(kStore + "2ITsomma_qso.slx"), ManyLines(lines));
  }
}

}  // namespace
}  // namespace velmar
