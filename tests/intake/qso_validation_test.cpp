#include "intake/qso_validation.h"

#include <gtest/gtest.h>

#include "intake/insertion_desk.h"
#include "intake/log_lines.h"
#include "model/store_rows.h"
#include "model/text.h"

namespace velmar::test {
namespace {

/// Runs the pass over a log of a category with CW QSOs, and gives what it lists of them.
std::string CwQsosOf(const std::string& category, const std::string& section, IntakeState& log) {
  const std::string text =
      InsertableLog()
          .Qsos({ContestQso("DL1AA", "JO30AA"), ContestQso("DL2AA", "JO30", "1005", "2"),
                 ContestQso("DL3AA", "JO30AA", "1005", "4"),
                 ContestQso("ERROR", "JO30AA", "1005", "2"),
                 "250119;1005;DL4AA/P;1;599;001;59;012;;JO30AA;576;;N;;"})
          .Text();
  InsertionDesk desk;
  desk.Waiting(category + "_IK2QAA_P.edi", text).workspace.With("Trofeo_Velmar/4IT/x", "");
  TakeLines(text, "250119", false, log);
  log.log_path = desk.workspace.paths().to_insert() + "/" + category + "_IK2QAA_P.edi";
  log.own_call = "IK2QAA/P    ";
  log.own_locator = "JN45AA";
  log.category = log.code = category;
  log.section = section;
  IntakeFolder folder(desk.session, desk.files, desk.main);
  IntakePanel panel(desk.session, desk.main);
  QsoValidation(desk.session, desk.files, desk.manager, desk.store, folder, panel, desk.main)
      .ValidateQsos(log);
  EXPECT_FALSE(log.invalid || log.pass_failed);
  EXPECT_EQ(log.own_call, "IK2QAA/P    ");
  return desk.workspace.Read(Join("Trofeo_Velmar/", category, "/", category, " Qso_in_CW.CW"));
}

TEST(QsoValidationTest, TheCwQsosOfTheirCategoryAloneAreListed) {
  for (const auto& [section, shown] : std::initializer_list<std::pair<const char*, const char*>>{
           {"ABCDE", "ABCD"}, {"", "--- "}}) {
    IntakeState log;
    const std::string start = Join("IK2QAA_P    JN45AA          ", shown, " - ");
    EXPECT_EQ(CwQsosOf("4IT", section, log),
              Join(start, "DL2AAJO30    99\r\n", start, "DL3AAJO30AA  99\r\n", start,
                   "DL4AA/PJO30AA  576\r\n"));
    EXPECT_EQ(log.totals.cw_rows, 3);
    EXPECT_EQ(log.totals.cw_qsos, 3) << "modes as they stand, of a row taken back as well";
  }
  IntakeState log;
  EXPECT_EQ(CwQsosOf("2IT", "", log), "<missing>");
  EXPECT_EQ(log.totals.cw_rows, 0);
  EXPECT_EQ(CwCallRow("IK2QAA/P", "4IT", "ABCDE", 3), "IK2QAA/P    4IT ABCD 3");
}

}  // namespace
}  // namespace velmar::test
