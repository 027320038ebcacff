#include "model/call_book.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "model/lines.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {
namespace {

const BookEntry kEntry{.call = "ik2qaa/p",
                       .locator = "jn45aa",
                       .mark = BookMark::kDeduced,
                       .last_date = "250119",
                       .logs = 12};

std::vector<std::string> ThreeRecords() {
  return {BookRecord(kEntry), "I1QAB       JN34AAP 240121   0 144",
          "S57QZZ      JN75XXL 250119 999 144"};
}

TEST(CallBook, ARecordStandsAsItsColumnsSay) {
  const std::string record = BookRecord(kEntry);
  EXPECT_EQ(record, "IK2QAA/P    JN45AAL 250119  12 144");
  using namespace book_record;
  EXPECT_EQ(Cut(record, kCall), "IK2QAA/P    ");
  EXPECT_EQ(Cut(record, kLocator), "JN45AA");
  EXPECT_EQ(Cut(record, kNotes), "L 250119  12 144");
  EXPECT_EQ(Join(Cut(record, kMark), "|", Cut(record, kLastDate), "|", Cut(record, kLogs), "|",
                 Cut(record, kBand)),
            "L|250119| 12|144");
}

TEST(CallBook, ARecordKeepsItsWidthWhateverItTells) {
  EXPECT_EQ(BookRecord({.call = "IK2QAA/QRP/LONG",
                        .locator = "JN45AA77",
                        .last_date = "25011999",
                        .logs = 1000}),
            "IK2QAA/QRP/LJN45AAP 250119 999 144");
  EXPECT_EQ(BookRecord({.call = "I1QAB", .locator = "JN45", .last_date = "25", .logs = 0}),
            "I1QAB       JN45  P 25       0 144");
}

TEST(CallBook, AFileHasALengthAndShiftedCharactersForEachRecord) {
  const std::string record = "I1QAB       JN34AAP 240121   0 144";
  EXPECT_EQ(EncodeCallBook({record}),
            Join(std::string_view("\x22\0", 2), "lTtdeCCCCCCCmqVWddsCUWSTUTCCCSCTWW"));
}

TEST(CallBook, GoesToTheFileAndBack) {
  std::string every_byte;
  for (int code = 0; code < 256; ++code) {
    every_byte += static_cast<char>(code);
  }
  auto records = ThreeRecords();
  for (std::size_t at = 0; at + book_record::kWidth <= every_byte.size(); at += 24) {
    records.push_back(every_byte.substr(at, book_record::kWidth));
  }
  EXPECT_EQ(DecodeCallBook(EncodeCallBook(records)), records);
  EXPECT_EQ(DecodeCallBook(EncodeCallBook({"SHORT", std::string(50, 'X')})),
            (std::vector{Pad("SHORT", 34), std::string(34, 'X')}));
  EXPECT_EQ(DecodeCallBook(""), std::vector<std::string>());
}

TEST(CallBook, ATruncatedFileIsNoArchive) {
  const auto records = ThreeRecords();
  const std::string whole = EncodeCallBook(records);
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const auto found = DecodeCallBook(std::string_view(whole).substr(0, length));
    if (length % 36 == 0) {
      EXPECT_EQ(found, std::vector(records.begin(), records.begin() + length / 36)) << length;
    } else {
      EXPECT_EQ(found, std::nullopt) << length;
    }
  }
}

TEST(CallBook, ARecordOfAnotherLengthMakesTheFileNoArchive) {
  const std::string good = EncodeCallBook(ThreeRecords());
  const std::string one_of_33 = Join(std::string_view("\x21\0", 2), std::string(33, 'l'));
  const std::string one_of_35 = Join(std::string_view("\x23\0", 2), std::string(35, 'l'));
  const std::string empty_one = std::string(2, '\0');
  const std::string high_byte = Join("\x22\x01", std::string(0x122, 'l'));
  for (const std::string& bad : {one_of_33, one_of_35, empty_one, high_byte}) {
    EXPECT_EQ(DecodeCallBook(bad), std::nullopt);
    EXPECT_EQ(DecodeCallBook(good + bad), std::nullopt);
    EXPECT_EQ(DecodeCallBook(good + bad + good), std::nullopt);
  }
  EXPECT_EQ(DecodeCallBook("any text, as long as two records of an archive would be or longer than "
                           "that, with its line end\r\n"),
            std::nullopt);
}

TEST(CallBook, HoldsThirtyThousandRecords) {
  std::vector<std::string> records(30'000, BookRecord(kEntry));
  const std::string full = EncodeCallBook(records);
  EXPECT_EQ(DecodeCallBook(full).value().size(), 30'000U);
  try {
    DecodeCallBook(full + EncodeCallBook({BookRecord(kEntry)}));
    FAIL() << "one record too many";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kSubscript);
  }
}

// The start of the program knows an archive by this.
TEST(CallBook, AFileIsOneLongLine) {
  std::vector<std::string> records;
  for (int code = 0; code < 256; ++code) {
    const std::string text(3, static_cast<char>(code));
    records.push_back(
        BookRecord({.call = text, .locator = text, .last_date = "250119", .logs = code}));
  }
  EXPECT_EQ(SplitLines(EncodeCallBook(records)).size(), 1U);
  EXPECT_GT(EncodeCallBook({records.front()}).size(), 12U);
}

}  // namespace
}  // namespace velmar
