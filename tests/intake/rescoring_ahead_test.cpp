#include "intake/rescoring_ahead.h"

#include <gtest/gtest.h>

#include "platform/error.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

TEST(RescoringAhead, GivesEachLogInItsTurnOverManyBatches) {
  std::vector<WaitingLog> logs;
  for (int i = 0; i < 200; ++i) {
    const std::string call = "I4Q" + std::to_string(i);
    const bool kept = i % 7 != 3;
    logs.push_back({call, kept ? std::optional(LogText(call, "JN45AA", {})) : std::nullopt});
  }
  RescoringAhead ahead(logs);
  for (int i = 0; i < 200; ++i) {
    const auto rescoring = ahead.Next();
    ASSERT_EQ(rescoring.has_value(), i % 7 != 3) << i;
    if (rescoring) {
      EXPECT_EQ(rescoring->log.owner.call(), "I4Q" + std::to_string(i));
      EXPECT_EQ(rescoring->error, nullptr);
    }
  }
}

TEST(RescoringAhead, KeepsTheRepairsAheadOfAnErrorAndTheErrorForItsTurn) {
  std::vector<std::string> rows(1001, QsoRow("IZ9QBC", "JN45AA"));
  rows[0] += ":";
  std::vector<WaitingLog> logs = {{"long", LogText("IK2QAA", "JN45AA", rows)},
                                  {"good", LogText("IK2QAA", "JN45AA", {})}};
  RescoringAhead ahead(logs);
  const auto broken = ahead.Next();
  ASSERT_TRUE(broken);
  EXPECT_EQ(broken->repairs.size(), 1U);
  EXPECT_THROW(std::rethrow_exception(broken->error), RunTimeError);
  EXPECT_TRUE(ahead.Next()->log.complete);
}

}  // namespace
}  // namespace velmar::test
