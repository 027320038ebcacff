#include "player/player.h"

#include <gtest/gtest.h>

#include <sstream>

#include "model/lines.h"
#include "model/text.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

class PlayerTest : public testing::Test {
 protected:
  PlayResult Play(const std::string& script) {
    std::ostringstream out;
    std::ostringstream err;
    Player player(workspace.paths().base(), out, err);
    std::istringstream commands(script);
    const PlayResult result = player.Play(commands);
    const std::string text = out.str();
    records.clear();
    for (const std::string_view line : SplitLines(text)) {
      records.emplace_back(line);
    }
    complaint = err.str();
    return result;
  }

  /// The workspace of a manager who has started the program before.
  void Configured() {
    workspace.WithTree().WithMonth("GENNAIO 2025").WithSettings();
    workspace.With("Varto_book.bin", "a book of one line");
  }

  static constexpr const char* kToMainScreen = "start\nclick OK_mese\nclick Command2\n";

  TempWorkspace workspace;
  std::vector<std::string> records;
  std::string complaint;
};

using Records = std::vector<std::string>;

TEST_F(PlayerTest, AStoryFromTheFirstStartToTheRecalculatedLog) {
  EXPECT_EQ(Play("start\n"), PlayResult::kPlayed);
  EXPECT_EQ(records.back(), R"({"end":"program"})");

  workspace.WithLog("a.edi", LogText("IK2QAA", "JN45AA", {QsoRow("IZ9QBC", "JN45AA")}));
  EXPECT_EQ(
      Play("\xEF\xBB\xBF# a comment\n\nstart\nclick ok_MESE\r\nclick VLM2M_00_Config.Command2\n"
           "click restore_1KM\nforms\nclick rinomina\nshow List1\nclick torna_menu\n"
           "show restore_1KM\nclick Exit\nunknown"),
      PlayResult::kPlayed);
  EXPECT_EQ(
      records,
      (Records{
          R"({"form":"VLM2M_01_input","visible":true})",
          R"({"box":"info","title":"","lines":[" L' archivio del programma è assente,"," i controlli risulteranno lunghi e imprecisi"],"buttons":"ok","reply":"ok"})",
          R"({"form":"VLM2M_00_Mese","visible":true})",
          R"({"form":"VLM2M_01_input","visible":false})",
          R"({"form":"VLM2M_00_Mese","visible":false})",
          R"({"form":"VLM2M_00_Config","visible":true})",
          R"({"form":"VLM2M_00_Config","visible":false})",
          R"({"form":"VLM2M_01_input","visible":true})",
          R"({"form":"VLM2M_01_input","visible":false})",
          R"({"form":"VLM2M_14_restore_1km","visible":true})",
          R"({"form":"VLM2M_14_restore_1km","visible":true})",
          R"({"box":"info","title":"","lines":[" finito"],"buttons":"ok","reply":"ok"})",
          R"({"control":"List1","form":"VLM2M_14_restore_1km","kind":"list","caption":"Esito","value":"","items":["a.edi                             qso 1  error 0  doppi 0  punti 1"],"selected":-1,"visible":true,"enabled":true,"checked":false,"colour":null})",
          R"({"form":"VLM2M_14_restore_1km","visible":false})",
          R"({"form":"VLM2M_01_input","visible":true})",
          R"({"control":"restore_1KM","form":"VLM2M_01_input","kind":"menu","caption":"1) Ricalcola log a 1 punto a KM","value":"","items":[],"selected":-1,"visible":true,"enabled":false,"checked":true,"colour":null})",
          R"({"end":"program"})"}));
  EXPECT_EQ(workspace.Names("01 Log da RICALCOLARE"), Records{});
  EXPECT_TRUE(workspace.Read("02 Log ricalcolati/a.edi")
                  .ends_with("[END; recalculated for VLM][END;a writer]\r\n"));
}

TEST_F(PlayerTest, TheFactsOfTheMachineReachTheProgram) {
  Configured();
  Play("date 21/01/2026\nstart\n");
  EXPECT_TRUE(Holds(records.at(0), "21/01/2026"));
  Play("system Windows XP\nstart\n");
  EXPECT_TRUE(Holds(records.at(0), " Rilevato Microsoft XP"));
  Play(
      "online yes\nping 12\nversion 25-001\nexcel 0\nexcel-running yes\nprinter no\nstart\n"
      "show ExcelOpen\n");
  EXPECT_TRUE(Holds(records.at(0), "il numero di versione di excel."));
  EXPECT_TRUE(Holds(records.at(2), "     Nuova versione  0.0.1"));
  EXPECT_TRUE(Holds(records.at(5), R"("colour":255})"));
  Play("ping 12\nversion 25-001\nstart\n");
  EXPECT_TRUE(Holds(records.at(1), "VLM2M_00_Mese")) << "a machine that is not connected";
}

TEST_F(PlayerTest, AnswersAreTakenInTheirOrderAndByTheirKind) {
  Configured();
  const std::string abroad = LogText("IK2QAA", "JO20AA", {});
  workspace.WithLog("a.edi", abroad).WithLog("b.edi", abroad);
  const std::string run = std::string(kToMainScreen) + "click restore_1KM\nanswer no\n";
  EXPECT_EQ(Play(run + "click rinomina\n"), PlayResult::kNoAnswer);
  EXPECT_TRUE(Holds(complaint, "A T T E N Z I O N E"));
  EXPECT_TRUE(Holds(records.back(), "File spostato")) << "what happened before stands";

  workspace.files().Remove(workspace.paths().to_check_again() +
                           "/a.edi - locatore fuori italia.edi");
  EXPECT_EQ(Play(std::string(kToMainScreen) + "click restore_1KM\ninput x\nclick rinomina\n"),
            PlayResult::kNoAnswer)
      << "an answer of another kind";
  EXPECT_EQ(Play(std::string(kToMainScreen) + "click restore_1KM\nanswer cancel\nclick rinomina\n"),
            PlayResult::kNoAnswer)
      << "a button that the box has not";
}

TEST_F(PlayerTest, InputBoxesTakeTextDefaultAndCancel) {
  workspace.WithTree().WithSettings().With("Trofeo_Velmar/mese_verifica.dat", "GENNAIO 2024\r\n");
  workspace.With("Trofeo_Velmar/2IT/mese.dat", "GENNAIO 2025\r\n");
  const auto replies = [&](const std::string& answer) {
    Play(answer + "\nstart\n");
    std::string found;
    for (const std::string& record : records) {
      if (record.starts_with("{\"input\"")) {
        found += record.substr(record.find("\"default\""));
      }
    }
    return found;
  };
  EXPECT_EQ(replies("input-cancel"), R"("default":"GENNAIO 2025","reply":null})");
  EXPECT_EQ(replies("input x\ninput-default"),
            R"("default":"GENNAIO 2025","reply":"x"})"
            R"("default":"GENNAIO 2025","reply":"GENNAIO 2025"})");
  EXPECT_EQ(workspace.Read("Trofeo_Velmar/mese_verifica.dat"), "GENNAIO 2025\r\n");
}

TEST_F(PlayerTest, ControlsAreUsedAsAPersonWould) {
  Configured();
  workspace.With("03 Log da inserire/a.edi", "x");
  EXPECT_EQ(Play("start\nselect Combo_mese ~Mar\nshow Combo_mese\ntype Combo_mese à\n"
                 "show VLM2M_00_MESE.combo_mese\nselect Combo_mese 0\nclick OK_mese\n"
                 "click Command2\ntick turbo\ntick turbo\nshow Ins_auto\nuntick turbo\n"
                 "show info_turbo\npick-cancel\nkey caricaedi F5\nselect File1 0\n"),
            PlayResult::kPlayed)
      << complaint;
  EXPECT_TRUE(Holds(records.at(3), R"("value":"Marzo ")"));
  EXPECT_TRUE(Holds(records.at(4), R"("value":"Gennaio ")"));
  EXPECT_TRUE(Holds(records.at(9), R"("control":"Ins_auto")"));
  EXPECT_TRUE(Holds(records.at(9), R"("checked":true)"));
  EXPECT_TRUE(Holds(records.at(10), R"("visible":false)"));
}

TEST_F(PlayerTest, WhatAPersonCannotDoIsAScriptError) {
  Configured();
  const std::string main = kToMainScreen;
  for (const char* command :
       {"click nowhere", "click VLM2M_01_input.nowhere", "click restore_1KM", "click Marcafile",
        "click OK_mese", "tick esci", "select esci 0", "type esci x", "key esci", "key esci F6",
        "sing", "answer maybe", "online perhaps", "excel x"}) {
    EXPECT_EQ(Play(main + command + "\n"), PlayResult::kScriptError) << command;
    EXPECT_TRUE(complaint.starts_with("line 4: ")) << complaint;
  }
  EXPECT_EQ(Play("start\nselect Combo_mese 12\n"), PlayResult::kScriptError);
  EXPECT_EQ(Play("start\nselect Combo_mese ~zzz\n"), PlayResult::kScriptError);
  EXPECT_EQ(Play("show esci\n"), PlayResult::kScriptError) << "nothing was started";
  EXPECT_EQ(Play(main + "!click restore_1KM\n"), PlayResult::kPlayed) << "as by a hot key";
}

TEST(JsonRecordTest, EscapesWhatJsonCannotHold) {
  EXPECT_EQ(JsonRecord()
                .Texts("a", {"\"\\\n", std::string("\0\x1F", 2), "\xE8\x80"})
                .NumberOrNull("b", std::nullopt)
                .Line(),
            R"({"a":["\"\\\u000a","\u0000\u001f","è€"],"b":null})");
}

}  // namespace
}  // namespace velmar::test
