#include "utility/absent_calls.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/lines.h"
#include "platform/error.h"
#include "platform/form.h"
#include "utility/absent_log.h"
#include "utility/absent_pages.h"

namespace velmar {
namespace {

using Rows = std::vector<std::string>;

TEST(AbsentCalls, TheCallThatWasLookedForEndsTheParticipants) {
  const std::string rows = "IK2QAA      JN45AA\r\nIZ9QBC/P\r\nIK2QAA\r\n\r\nI1QXX\r\n";
  const ParticipantCalls all = ReadParticipantCalls(rows, "");
  EXPECT_EQ(Rows(all.begin(), all.end()), (Rows{"IK2QAA", "IZ9QBC/P", "IK2QAA", "", "I1QXX"}));
  EXPECT_EQ(DistinctCalls(all), 4U);
  EXPECT_EQ(ReadParticipantCalls(rows, "IZ9QBC").size(), 5U) << "a part of a call stops nothing";
  EXPECT_EQ(ReadParticipantCalls(rows, "IZ9QBC/P").size(), 1U);
}

TEST(AbsentCalls, TenThousandParticipantsAreTheMost) {
  std::string rows;
  for (int row = 0; row < 10'000; ++row) {
    AddLine(rows, "IK2QAA");
  }
  EXPECT_EQ(ReadParticipantCalls(rows, "").size(), 10'000U);
  EXPECT_THROW(ReadParticipantCalls(rows + "IK2QAB", ""), RunTimeError);
}

TEST(AbsentCalls, CountsFollowTheCallAtFullWidthAndSortAsText) {
  std::vector<WorkedCall> worked(12, WorkedCallOf("IK2QAA      IZ9QBC      JM67AA 950"));
  worked.push_back(WorkedCallOf("IK2QAA      IZ9ABCDEFGHIJM67AA 950"));
  worked.push_back(WorkedCallOf("IK2QAA      I1QX"));
  worked.push_back(WorkedCallOf("IK2QAA      DL1QA       JO30AA 576"));
  worked.push_back(WorkedCallOf("IK2QAA      iz9qbc      JM67AA 950"));
  const Rows counted = CountCalls(worked);
  EXPECT_EQ(counted, (Rows{"I1QX        1", "IZ9ABCDEFGHI1", "IZ9QBC      12"}));
  EXPECT_EQ(LinesByCount(counted),
            (Rows{"  1    I1QX        ", " 12    IZ9QBC      ", "HI1    IZ9ABCDEFGHI"}));
}

TEST(AbsentCalls, APercentageHasOneDecimal) {
  EXPECT_EQ(PercentageText(1, 3), "33.3%");
  EXPECT_EQ(PercentageText(1, 16), "6.3%");
  EXPECT_EQ(PercentageText(0, 7), "0.0%");
  EXPECT_EQ(PercentageText(9, 3), "300.0%");
  EXPECT_EQ(PercentageText(1, 0), "");
}

/// A row of the classification as far as it is read.
std::string LogRow(std::string_view score, bool checked = true) {
  return Join(Pad("IK2QAA", 91), Pad(checked ? " 2" : "", 13), " ", Pad(score, 9));
}

TEST(AbsentLog, AnEqualScoreDoesNotEndTheSearchForThePlace) {
  struct Case {
    double score;
    std::string place;
    std::optional<int> colour;
  };
  std::string classification = "header";
  for (const char* score : {"900", "800", "700", "600", "500", "400"}) {
    classification += Join(kLineEnd, LogRow(score, score[0] != '9'));
  }
  const Case cases[] = {{901, "1 su 6", colour::kGreen},  {900, "2 su 6", colour::kGreen},
                        {750, "3 su 6", colour::kGreen},  {650, "4 su 6", colour::kYellow},
                        {501, "5 su 6", colour::kYellow}, {401, "6 su 6", std::nullopt},
                        {400, "6 su 6", std::nullopt}};
  for (const Case& one : cases) {
    const TheoreticalPlace place = FindPlace(classification, one.score);
    EXPECT_EQ(place.Text(), one.place) << one.score;
    EXPECT_EQ(place.Colour(), one.colour) << one.score;
  }
  const std::string short_one = Join("header\n", LogRow("900"), "\n", LogRow("800"));
  EXPECT_EQ(FindPlace(short_one, 1).Text(), "2 su 2");
  EXPECT_EQ(FindPlace(short_one, 1).Colour(), colour::kGreen) << "the place behind the last";
  EXPECT_EQ(FindPlace(Join("header\n", LogRow("900", false)), 1).Text(), "no applic.");
}

TEST(AbsentPages, TheSecondHalfOfTheListStandsBesideTheFirst) {
  const auto lines_of = [](const Rows& list) {
    const PrintJob job = AbsentListPages(list, "GENNAIO 2025");
    EXPECT_EQ(job.at(0).points, 10);
    return Rows(job.at(0).lines.begin() + 2, job.at(0).lines.end());
  };
  const std::string gap(19, ' ');
  EXPECT_EQ(lines_of({"a", "b", "c", "d"}), (Rows{"a" + gap + "d", "b", "c"}));
  EXPECT_EQ(lines_of({"a", "b", "c"}), (Rows{"a" + gap + "c", "b"}));
  EXPECT_EQ(lines_of({"a"}), Rows{"a"});
  EXPECT_EQ(lines_of({}), Rows{});
}

}  // namespace
}  // namespace velmar
