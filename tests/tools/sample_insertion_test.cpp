#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "intake/log_check.h"
#include "intake/rescoring.h"
#include "model/edi_log.h"
#include "model/locator.h"
#include "model/text.h"
#include "sample/sample_contest.h"

namespace velmar {
namespace {

// How many rows hold "ERROR", and how many are doubles: a call that comes back later counts where
// it was ahead, a row marked ";D" for itself.
std::size_t ErrorsAndDoubles(const std::vector<std::string_view>& rows) {
  std::vector<std::string> calls;
  std::size_t count = 0;
  for (const std::string_view row : rows) {
    const std::string upper = Upper(row);
    calls.emplace_back(SplitQso(upper).call());
    count += Holds(upper, "ERROR") ? 1 : 0;
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    bool twice = calls[i].empty() || MarkedDuplicate(rows[i]);
    for (std::size_t j = i + 1; j < rows.size(); ++j) {
      const bool counts = !MarkedDuplicate(rows[j]) && !Holds(calls[j], "ERROR");
      twice = twice || (counts && calls[j] == calls[i]);
    }
    count += twice ? 1 : 0;
  }
  return count;
}

// A recalculated log has nothing that the insertion refuses, and no call of which the renaming
// would take an end for a prefix.
void ExpectInsertable(std::string_view text) {
  const EdiLog log = ParseEdiLog(text);
  const auto value = [&log](std::size_t row) {
    return ParseHeaderRow(log.lines.at(row - 1)).value;
  };
  EXPECT_TRUE(log.recalculated);
  EXPECT_FALSE(Holds(log.own_call, "I/") || Holds(log.own_call, "IK/"));
  EXPECT_GT(Val(value(28)), 0);
  EXPECT_EQ(ErrorsAndDoubles(log.qsos) + static_cast<std::size_t>(Val(value(28))), log.qsos.size());
  EXPECT_EQ(value(29).find_first_not_of("0123456789"), std::string_view::npos);
  EXPECT_FALSE(value(29).empty() || value(36).empty());
  EXPECT_EQ(std::ranges::count(value(37), ';'), 2);
  for (const std::string_view row : log.qsos) {
    const std::string upper = Upper(row);
    const QsoRecord qso = SplitQso(upper);
    EXPECT_NE(qso.call(), log.own_call);
    EXPECT_FALSE(qso.field(4).empty()) << upper;
    EXPECT_TRUE(qso.call() == "ERROR" || LocatorValid(qso.locator())) << upper;
  }
}

void ExpectInTheHour(const EdiLog& log) {
  for (const std::string_view row : log.qsos) {
    const std::string_view time = QsoField(row, edi::kTimeField);
    EXPECT_TRUE(time.size() == 4 && time >= "1000" && time <= "1101") << row;
  }
}

// The calls of the logs that the recalculation has to refuse.
std::set<std::string> Refused(const SampleContest& contest) {
  std::set<std::string> calls;
  for (const PlantedFault& fault : contest.faults) {
    if (std::ranges::find(kRefusals, fault.kind) != kRefusals.end()) {
      calls.insert(fault.log);
    }
  }
  return calls;
}

void ExpectAllButTheRefusedInsertable(const SampleOptions& options) {
  const SampleContest contest = MakeSampleContest(options);
  const std::set<std::string> refused = Refused(contest);
  for (const ReceivedLog& received : contest.logs) {
    const EdiLog log = ParseEdiLog(received.content);
    const std::string call(log.own_call);
    SCOPED_TRACE(Join("seed ", options.seed, " ", call));
    ExpectInTheHour(log);
    EXPECT_EQ(FindLogFault(received.content).has_value(), refused.contains(call));
    if (!refused.contains(call)) {
      ExpectInsertable(Rescore(received.content, [](const RowRepair&) {}).text);
    }
  }
}

TEST(SampleInsertion, TakesEveryLogThatTheRecalculationTakes) {
  for (std::uint64_t seed = 0; seed < 40; ++seed) {
    ExpectAllButTheRefusedInsertable({.seed = seed, .stations = 20, .qsos = 5});
  }
  ExpectAllButTheRefusedInsertable({.seed = 3, .stations = 3, .qsos = 2});
  ExpectAllButTheRefusedInsertable({.seed = 144, .stations = 60, .qsos = 40});
  ExpectAllButTheRefusedInsertable({.seed = 5, .stations = 600, .qsos = 100});
}

}  // namespace
}  // namespace velmar
