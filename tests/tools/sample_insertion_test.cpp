#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <sstream>
#include <string>

#include "model/edi_log.h"
#include "model/text.h"
#include "player/player.h"
#include "sample/sample_contest.h"
#include "support/temp_workspace.h"

namespace velmar {
namespace {

/// What a manager does with the received logs, up to the first classification.
constexpr const char* kFromReceivedToFiled =
    "start\nclick OK_mese\nclick Command2\nclick restore_1KM\nanswer no\nclick rinomina\n"
    "click torna_menu\nclick Rinomina_ita\nclick rinomina\nclick VLM2M_05_rin_ITA.torna_menu\n"
    "tick Check_AUT_entry\ntick turbo\ninput-default\nclick caricaedi\n";

/// The calls of the logs that are not planted to be refused.
std::set<std::string> Expected(const SampleContest& contest) {
  std::set<std::string> calls;
  for (const ReceivedLog& log : contest.logs) {
    calls.insert(Upper(ParseEdiLog(log.content).own_call));
  }
  for (const PlantedFault& fault : contest.faults) {
    if (std::ranges::find(kRefusals, fault.kind) != kRefusals.end()) {
      calls.erase(fault.log);
    }
  }
  return calls;
}

// The whole way through the program: every log but those planted to be refused enters the contest,
// without a box that the script does not answer.
TEST(SampleInsertion, EveryLogButTheRefusedIsFiled) {
  for (const SampleOptions& options : {SampleOptions{.seed = 3, .stations = 20, .qsos = 5},
                                       SampleOptions{.seed = 144, .stations = 60, .qsos = 40},
                                       SampleOptions{.seed = 5, .stations = 300, .qsos = 90}}) {
    SCOPED_TRACE(options.seed);
    const SampleContest contest = MakeSampleContest(options);
    test::TempWorkspace workspace;
    workspace.WithTree().WithSettings();
    for (const ReceivedLog& log : contest.logs) {
      workspace.WithLog(log.file_name, log.content);
    }
    std::ostringstream records;
    std::ostringstream complaints;
    std::istringstream script(kFromReceivedToFiled);
    Player player(workspace.paths().base(), records, complaints);
    ASSERT_EQ(player.Play(script), PlayResult::kPlayed) << complaints.str();
    std::set<std::string> filed;
    std::istringstream participants(workspace.Read("Trofeo_Velmar/2IT/2IT partecipanti.par"));
    for (std::string row; std::getline(participants, row);) {
      filed.emplace(RTrim(Left(row, kCallWidth)));
    }
    EXPECT_EQ(filed, Expected(contest));
    EXPECT_TRUE(workspace.Names("03 Log da inserire").empty());
  }
}

}  // namespace
}  // namespace velmar
