#include "intake/log_check.h"

#include <gtest/gtest.h>

#include "model/lines.h"
#include "model/text.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

std::string WithoutRow(const std::string& log, std::string_view holding) {
  std::string kept;
  for (const std::string_view line : SplitLines(log)) {
    if (!Holds(line, holding)) {
      kept += Join(line, kLineEnd);
    }
  }
  return kept;
}

const std::string kGood = LogText("IK2QAA", "JN45AA", {QsoRow("IZ9QBC", "JM67AA")});

TEST(FindLogFault, PassesWhatCanBeComputed) {
  const std::vector<std::string> logs = {
      kGood,
      LogText("ik2qaa", "JO20AA", {}),    // the rule for Italian calls minds the case
      LogText("9A1QAA", "JN85AA", {}),    // a foreign call may be anywhere
      LogText("IK2QAA", " jn45aa ", {}),  // small letters and blanks
      LogText("IK2QAA", "JM99XX", {QsoRow("IZ9QBC", "JM67")}),  // a square scores 0, and passes
      LogText("IK2QAA", "JN45AA", {QsoRow("IZ9QBC", "JM67AA") + ";;"}),  // too many semicolons
      LogText("IK2QAA", "JN45AA", {"", "short", QsoRow("IZ9QBC", "JM67AA")}),
      // A row that does not count may have any locator.
      LogText("ik2 qaa", "JN45AA", {QsoRow("IK2QAA", "JN45YY")}),
      LogText("IK2QAA", "JN45AA", {QsoRow("ERROR", "JN45YY")}),
      LogText("IK2QAA", "JN45AA", {QsoRow("IZ9QBC", "JN45YY") + "D"}),
      LogText("IK2QAA", "JN45AA", {QsoRow("IK2QAA/P", "JN45YY")}),
      LogText("IK2QAA", "JN45AA", {QsoRow("IZ9QBC", "JM67AA"), QsoRow("IZ9QBC", "JN45YY")}),
  };
  for (const std::string& log : logs) {
    const auto fault = FindLogFault(log);
    EXPECT_FALSE(fault) << log << "refused for " << (fault ? fault->text : "");
  }
}

TEST(FindLogFault, FindsTheFirstReason) {
  struct Case {
    std::string log;
    LogFaultKind kind;
    std::size_t number;
    std::string text;
  };
  const std::string short_row = "250119;0812;IZ9QBC;1;59;001;59;012;;JM67AA;99;;N;";
  const std::string colon_row = "250119;0812;IZ9QBC;1;59;001;59;012;;JM67AA;99;;N:;";
  const std::vector<Case> cases = {
      {LogText("IK2QAA", "JN45AA", {QsoRow("IZ9QBC", "JM67AA"), short_row}),
       LogFaultKind::kSemicolons, 2, short_row},
      // The count comes ahead of the repair of ":".
      {LogText("IK2QAA", "JN45AA", {colon_row}), LogFaultKind::kSemicolons, 1, colon_row},
      {LogText("IK2QAA", "JN45A", {}), LogFaultKind::kOwnLocator, 0, ""},
      {LogText("IK2QAA", "JN45AY", {}), LogFaultKind::kOwnLocator, 0, ""},
      {WithoutRow(kGood, "PWWLo"), LogFaultKind::kOwnLocator, 0, ""},
      {LogText("IK2QAA", "JO20AA", {}), LogFaultKind::kForeignLocator, 0, ""},
      {LogText(" ik2 qaa", "JO20AA", {}), LogFaultKind::kForeignLocator, 0, ""},
      {LogText("IK2QAA", "JN45AA", {"short", QsoRow("IZ9QBC", "JM4AAA")}),
       LogFaultKind::kQsoLocator, 1, "JM4AAA"},
      {WithoutRow(kGood, "PCall="), LogFaultKind::kMissingKey, 4, "PCall="},
      {WithoutRow(WithoutRow(kGood, "PSect="), "PBand="), LogFaultKind::kMissingKey, 9, "PSect="},
      {"", LogFaultKind::kMissingKey, 4, "PCall="},
      {std::string("\0\xFF\x01 no log at all", 18), LogFaultKind::kMissingKey, 4, "PCall="},
  };
  for (const Case& c : cases) {
    const auto fault = FindLogFault(c.log);
    ASSERT_TRUE(fault) << c.log;
    EXPECT_EQ(fault->kind, c.kind) << c.log;
    EXPECT_EQ(fault->number, c.number) << c.log;
    EXPECT_EQ(fault->text, c.text) << c.log;
  }
}

TEST(FindLogFault, TellsTheCallAsTheLogDeclaresIt) {
  EXPECT_EQ(FindLogFault(LogText(" ik2 qaa", "JO20AA", {}))->own_call, " ik2 qaa");
}

TEST(FindLogFault, TellsTheObsoleteWriterByItsThirdRow) {
  const auto lines = SplitLines(kGood);
  std::string log;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    log += i == 2 ? "-SUP\r\n\r\n" : "";  // the empty line does not count as a row
    log += Join(lines[i], kLineEnd);
  }
  const auto fault = FindLogFault(log);
  ASSERT_TRUE(fault);
  EXPECT_EQ(fault->kind, LogFaultKind::kObsoleteWriter);
  EXPECT_EQ(fault->heading,
            (std::vector<std::string>{"[REG1TEST;1]", "TName=Contest Velmar", "-SUP",
                                      "TDate=20250119;20250119", "PCall=IK2QAA"}));
  const auto longer = FindLogFault(Replaced(log, 'U', 'O'));
  EXPECT_FALSE(longer) << "any other third row passes";
}

TEST(FindLogFault, SurvivesEveryTruncationAndChangedByte) {
  for (std::size_t size = 0; size < kGood.size(); ++size) {
    FindLogFault(kGood.substr(0, size));
    for (const char byte : {'\0', ';', '\n', '\xFF', '['}) {
      std::string changed = kGood;
      changed[size] = byte;
      FindLogFault(changed);
    }
  }
}

}  // namespace
}  // namespace velmar::test
