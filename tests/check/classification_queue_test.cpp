// The queue: which rows of a file it takes, which of them wait for their check, how they are shown.

#include "check/classification_queue.h"

#include <gtest/gtest.h>

#include "classification_rows.h"
#include "model/text.h"
#include "platform/error.h"
#include "support/boxes.h"

namespace velmar::test {
namespace {

constexpr std::string_view kHeader = classification_row::kHeader;

ClassificationQueue QueueOf(std::string_view text) {
  ClassificationQueue queue;
  EXPECT_TRUE(queue.Read(text));
  return queue;
}

TEST(ClassificationQueue, TakesRowsWithAnyLineEndAndPassesEmptyOnesOver) {
  for (const std::string_view end : {"\r\n", "\n", "\r"}) {
    const ClassificationQueue queue = QueueOf(
        Join(end, kHeader, end, WaitingRow("IK2QAA"), end, end, WaitingRow("IZ9QBC"), end, end));
    ASSERT_EQ(queue.size(), 3U);
    EXPECT_EQ(queue.Row(0), kHeader);
    EXPECT_EQ(queue.Row(2), WaitingRow("IZ9QBC"));
  }
}

TEST(ClassificationQueue, TheHeaderIsKnownByTheTitlesOverPowerAndPoints) {
  ClassificationQueue queue;
  EXPECT_TRUE(queue.Read(Join(std::string(46, 'x'), " Pwr  Qso Declared")));
  EXPECT_EQ(queue.size(), 1U);
  for (const std::string& text :
       {std::string(), std::string("\r\n\r\n"), WaitingRow("IK2QAA"),
        Join(std::string(45, 'x'), " Pwr  Qso Declared\r\n", WaitingRow("IK2QAA")),
        Join(std::string(46, 'x'), " Pwr  Qso Declare")}) {
    EXPECT_FALSE(queue.Read(text)) << text;
    EXPECT_TRUE(queue.empty()) << "the rows of the file before it must not stay";
  }
}

TEST(ClassificationQueue, ARowWaitsWithTenBlanksWhereTheErrorsStand) {
  const std::string filed = WaitingRow("IK2QAA");
  EXPECT_TRUE(ToBeChecked(filed));
  EXPECT_FALSE(ToBeChecked(DoneRow("IK2QAA")));
  for (const std::size_t column : {92, 101}) {
    std::string row = filed;
    row.at(column - 1) = '0';
    EXPECT_FALSE(ToBeChecked(row)) << column;
  }
  for (const std::size_t column : {91, 102}) {
    std::string row = filed;
    row.at(column - 1) = '0';
    EXPECT_TRUE(ToBeChecked(row)) << column;
  }
  EXPECT_TRUE(ToBeChecked(Left(filed, 101)));
  EXPECT_FALSE(ToBeChecked(Left(filed, 100))) << "too short to have ten blanks";
  EXPECT_FALSE(ToBeChecked(""));
}

TEST(ClassificationQueue, FindsTheFirstRowThatWaits) {
  const ClassificationQueue queue = QueueOf(Join(kHeader, "\nshort\n", DoneRow("IK2QAA"), "\n",
                                                 WaitingRow("IZ9QBC"), "\n", WaitingRow("IV3QYY")));
  EXPECT_EQ(queue.FirstUnchecked(), 3U);
  EXPECT_EQ(QueueOf(Join(kHeader, "\n", DoneRow("IK2QAA"))).FirstUnchecked(), std::nullopt);
  EXPECT_EQ(
      QueueOf(std::string(46, ' ') + " Pwr  Qso Declared" + std::string(60, ' ')).FirstUnchecked(),
      std::nullopt)
      << "a header never waits";
}

TEST(ClassificationQueue, ShowsRowsWithTheirPositionBehind) {
  const std::string longer = Pad(WaitingRow("IZ9QBC"), 140) + "x";
  ClassificationQueue queue = QueueOf(Join(kHeader, "\nshort\n", longer));
  EXPECT_EQ(queue.Shown(), (Names{std::string(kHeader), "short 1", Join(longer, " 2")}));
  EXPECT_EQ(queue.RowWithPosition(1), Join(Pad("short", 122), " 1"));
  queue.SeparatePositions("          (");
  EXPECT_EQ(queue.Shown()[2], Join(longer, "          (2"));
  EXPECT_EQ(queue.RowWithPosition(2), Join(longer, "          (2"));
}

TEST(ClassificationQueue, TellsRowsThatNoCheckCanStartFrom) {
  const std::string row = WaitingRow("IK2QAA");
  const ClassificationQueue queue = QueueOf(
      Join(kHeader, "\n", Left(row, 90), "\n", Left(row, 91), "\n", kHeader, "\n", row, "\n"));
  EXPECT_TRUE(queue.TooShort(1));
  EXPECT_FALSE(queue.TooShort(2));
  EXPECT_TRUE(queue.LooksLikeHeader(3));
  EXPECT_FALSE(queue.LooksLikeHeader(4));
}

TEST(ClassificationQueue, OneRowTooManyIsRefusedWithAllOthers) {
  constexpr std::size_t kMost = 370'000;
  std::string text = Join(kHeader, "\n");
  for (std::size_t row = 1; row < kMost; ++row) {
    text += "x\n";
  }
  ClassificationQueue queue = QueueOf(text);
  EXPECT_EQ(queue.size(), kMost);
  try {
    queue.Read(text + "x");
    ADD_FAILURE() << "taken";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kSubscript);
  }
  EXPECT_TRUE(queue.empty());
}

}  // namespace
}  // namespace velmar::test
