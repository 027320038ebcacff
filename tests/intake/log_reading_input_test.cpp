#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "intake/insertion_desk.h"
#include "model/text.h"

namespace velmar::test {
namespace {

const std::string kGood = InsertableLog().Text();
constexpr const char* kFiled = "Trofeo_Velmar/2IT";
constexpr const char* kRefused = "Trofeo_Velmar/Log da ricontrollare";
constexpr const char* kWaiting = "03 Log da inserire";

/// Reads and files a log, every question answered by No. It ends in a box or passes, and the log is
/// whole in exactly one folder. Gives that folder.
std::string FateOf(const std::string& log) {
  InsertionDesk desk;
  desk.Waiting("2IT_IK2QAA.edi", log);
  desk.main.Ins_auto.checked = true;
  desk.manager.replies.assign(2, Reply::kNo);
  try {
    desk.Read();
  } catch (const ProgramEnd&) {
    EXPECT_FALSE(desk.manager.boxes.empty());
  }
  desk.manager.replies.clear();
  const Names places = desk.PlacesOf(log);
  EXPECT_EQ(places.size(), 1U) << "log of " << log.size() << " bytes: " << log.substr(0, 2000);
  const std::string place = places.empty() ? "" : places[0].substr(0, places[0].rfind('/'));
  EXPECT_TRUE(place == kFiled || !desk.manager.boxes.empty()) << log.substr(0, 2000);
  return place;
}

TEST(LogInputTest, OddLogsThatPass) {
  const std::string row = ContestQso("DL1AA", "JO30AA");
  for (const InsertableLog& log :
       {InsertableLog().Row(14, "Radr1=x").Row(22, "Mope2=y").Row(12, "").Row(25, "\t"),
        InsertableLog().Row(8, "PAdr2=Forl\xEC").Row(26, "SAnte=\xC3\xA8\xFF"),
        InsertableLog()
            .Row(2, "tname=x")
            .Row(37, "codxc=;;")
            .Row(27, "SAntH=")
            .Row(10, "PBand=145.5"),
        InsertableLog().Row(10, "PBand=144 MHz\tx").Start("[QSORecords;3]\tx"),
        InsertableLog().Qsos({row + "\tnota", "250119;1005;DL2AA;1;59;1;59;1;;JO30AA;1;;"}),
        InsertableLog().Qsos(Names(1, "250119;1005;DL2AA;1;59;1;59;1;;JO30AA;1;;;")),
        InsertableLog().Start("a\r\n\r\nb\r\n\r\n[QSORecords;3]")}) {
    EXPECT_EQ(FateOf(log.Text()), kFiled) << log.Text();
  }
  std::string other_ends = kGood;
  std::erase(other_ends, '\r');
  EXPECT_EQ(FateOf(other_ends), kFiled);
  EXPECT_EQ(FateOf(Replaced(other_ends, '\n', '\r')), kFiled);
  FateOf(InsertableLog().Row(29, "CQSOP=" + std::string(400, '9')).Text());
  EXPECT_EQ(FateOf(kGood.substr(0, kGood.size() - 2)), kFiled) << "no line end behind the end";
}

TEST(LogInputTest, OddLogsThatDoNot) {
  const Names many(1499, ContestQso("DL1AA", "JO30AA"));
  const Names more(1500, ContestQso("DL1AA", "JO30AA"));
  struct Case {
    std::string log;
    const char* place;
  };
  for (const Case& c : std::initializer_list<Case>{
           {"", kRefused},
           {std::string(1000, '\0'), kRefused},
           {std::string(2'000'000, 'x'), kRefused},
           {"\xEF\xBB\xBF" + kGood, kRefused},
           {" " + kGood, kRefused},
           {"\r\n" + kGood, kRefused},
           {std::string("\xFF\xFE[\0R\0", 6), kRefused},
           {kGood + "\r\n", kRefused},
           {InsertableLog().End("").Text(), kRefused},
           {InsertableLog().End("\r\n[END; recalculated for VLM]").Text(), kRefused},
           {InsertableLog().Qsos(many).Text(), kWaiting},
           {InsertableLog().Qsos(more).Text(), kWaiting},
           {InsertableLog().Qsos({"250119;1005;DL2AA;1;59;1;59;1;;JO30AA;1"}).Text(), kWaiting},
           {InsertableLog().Row(28, "CQSOs=99999;1").Text(), kRefused},
           {InsertableLog().Start("[QSORecords;99999999999999999999]").Text(), kRefused},
           {InsertableLog().Start("[QSORecords;-3]").Text(), kRefused},
           {InsertableLog().Row(9, "PSect=../../x").Text(), kRefused},
           {InsertableLog().Row(9, "PSect=" + std::string(300, 'x')).Row(37, "CODXC=;").Text(),
            kRefused}}) {
    EXPECT_EQ(FateOf(c.log), c.place) << c.log.substr(0, 1200);
  }
}

TEST(LogInputTest, EveryTruncationAndDamagedLogsEndWell) {
  for (std::size_t size = 1; size < kGood.size(); size += 3) {
    FateOf(kGood.substr(0, size));
  }
  std::mt19937 random(144);
  constexpr std::string_view kDamage("\0;\t\r\n/[]A0 \xFF-D", 14);
  for (int round = 0; round < 400; ++round) {
    std::string damaged = kGood;
    for (int i = 0; i < 1 + round % 3; ++i) {
      damaged.at(random() % damaged.size()) = kDamage.at(random() % kDamage.size());
    }
    FateOf(damaged);
  }
}

// The next start has to see it.
TEST(LogInputTest, ADeclaredCategoryHidesNoRefusedLog) {
  for (const char* category : {".", "..", "../../x", "\\x", "a:b*c", "2IT\xC3\xA8"}) {
    InsertionDesk desk;
    desk.Waiting("2IT_IK2QAA.edi", InsertableLog().Row(9, Join("PSect=", category)).Text());
    desk.manager.replies = {Reply::kNo};
    desk.Read();
    EXPECT_EQ(desk.SetAside().size(), 1U) << category;
  }
}

TEST(LogInputTest, NamesOutsideTheCodePage) {
  for (const char* name : {"2IT_IK2QAA \xC3\xA8.edi", "2IT_IK2QAA \xD0\x96.edi",
                           "2IT_IK2QAA \xE8.edi", "2IT_IK2QAA \xF0\x9F\x93\xBB.edi"}) {
    InsertionDesk desk;
    desk.main.Ins_auto.checked = true;
    std::ofstream(desk.workspace.paths().to_insert() + "/" + name, std::ios::binary) << kGood;
    desk.Read();
    EXPECT_TRUE(desk.manager.boxes.empty());
    EXPECT_EQ(desk.PlacesOf(kGood), Names{Join(kFiled, "/", name)});
  }
}

// The manager may choose any file. A log never ends up nowhere.
TEST(LogInputTest, ALogChosenInAnotherFolderIsNeverLost) {
  struct Case {
    std::string place;
    std::string chosen;
    bool inserted;
  };
  for (const Case& c : std::initializer_list<Case>{
           {"Trofeo_Velmar/Log doppi/2IT_IK2QAA.edi", "", true},
           {"Trofeo_Velmar/2IT/2IT_IK2QAA.edi", "", false},
           {"Trofeo_Velmar/2IT/2IT_IK2QAA.edi", "Trofeo_Velmar/2IT/../2IT/2IT_IK2QAA.edi", false},
           {"Trofeo_Velmar/2IT/2IT_IK2QAA.edi", "Trofeo_Velmar/2IT//2IT_IK2QAA.edi", false},
           {"altri/2IT_IK2QAA.ED2", "", false},
           {"altri/2IT_IK2QAA.ED3", "", false}}) {
    InsertionDesk desk;
    desk.workspace.With(c.place, kGood);
    desk.Waiting("2IT_IK2QAB.edi", "another log");
    if (c.inserted) {
      desk.workspace.With("Trofeo_Velmar/2IT/2ITlibreria.qso", "IK2QAA      \r\n");
    }
    desk.main.Check_AUT_entry.checked = false;
    desk.main.Ins_auto.checked = true;
    desk.manager.picks = {desk.workspace.paths().base() + "/" +
                          (c.chosen.empty() ? c.place : c.chosen)};
    desk.Read();
    EXPECT_EQ(desk.PlacesOf(kGood).size(), 1U) << c.place << " as " << c.chosen;
  }
}

}  // namespace
}  // namespace velmar::test
