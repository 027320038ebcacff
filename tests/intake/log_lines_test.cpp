#include "intake/log_lines.h"

#include <gtest/gtest.h>

#include "model/text.h"
#include "platform/error.h"

namespace velmar {
namespace {

constexpr std::string_view kDate = "250119";

/// The lines of a log: "|" stands for a line end.
IntakeState Taken(std::string_view lines, LineCheck& check, bool test_run = false) {
  IntakeState state;
  check = TakeLines(Replaced(lines, '|', '\n'), kDate, test_run, state);
  return state;
}

TEST(LogLinesTest, TheFirstFaultEndsTheReading) {
  struct Case {
    std::string_view lines;
    LineFault fault;
    std::string_view row;
  };
  constexpr std::string_view kGood = "[REG1TEST;1]|";
  for (const Case& c : std::initializer_list<Case>{
           {"a|[QSORecords;2]|250118;", LineFault::kFirstRow, "a"},
           {"[REG1TEST;1] |[QSORecords;0]", LineFault::kFirstRow, "[REG1TEST;1] "},
           {"[reg1test;1]|", LineFault::kFirstRow, "[reg1test;1]"},
           {"\xEF\xBB\xBF[REG1TEST;1]|", LineFault::kFirstRow, "\xEF\xBB\xBF[REG1TEST;1]"},
           {"|[REG1TEST;1]|", LineFault::kFirstRow, ""},
           {"G[QSORecords;0]|", LineFault::kNoQsos, "[QSORecords;0]"},
           {"G[QSORecords;]|", LineFault::kNoQsos, "[QSORecords;]"},
           {"G[QSORecords|", LineFault::kNoQsos, "[QSORecords"},
           {"G[QSORecords;x]|", LineFault::kNoQsos, "[QSORecords;x]"},
           {"G[QSORecords;2]|250119;a|250118;b", LineFault::kDate, "250118;b"},
           {"G[QSORecords;2]|250119;a||250119;b", LineFault::kDate, ""},
           {"G[QSORecords;1]|250119;a|||[END;", LineFault::kDate, ""},
           {"G[QSORecords;1]|250119;a| |[END;", LineFault::kDate, " "},
           {"G[QSORecords;1]|250119;a||[END;|250118;b|", LineFault::kNone, ""},
           {"G250118;a|x[QSORecords;1]|250118;b|", LineFault::kNone, ""},
           {"G[QSORecords;1]|2501|", LineFault::kDate, "2501"},
           {"", LineFault::kNone, ""}}) {
    const bool good = c.lines.starts_with('G');
    const std::string lines = Join(good ? kGood : "", c.lines.substr(good ? 1 : 0));
    LineCheck check;
    const IntakeState state = Taken(lines, check);
    EXPECT_EQ(check.fault, c.fault) << lines;
    EXPECT_EQ(check.row, c.row) << lines;
    Taken(lines, check, true);
    EXPECT_EQ(check.fault, c.fault == LineFault::kDate ? LineFault::kNone : c.fault)
        << "in a test run: " << lines;
  }
}

TEST(LogLinesTest, LinesAreCutAtTheirFirstTabAndTheBandAtItsPoint) {
  LineCheck check;
  const IntakeState state = Taken("[REG1TEST;1]\tx|2.a\t\ty|\t3|4|5|6|7|8|9|144.3.0|1.1", check);
  EXPECT_EQ(check.fault, LineFault::kNone);
  EXPECT_EQ(state.rows, (std::vector<std::string>{"[REG1TEST;1]", "2.a", "", "4", "5", "6", "7",
                                                  "8", "9", "144,3,0", "1.1"}));
}

TEST(LogLinesTest, TheBoundsOfTheQsoSection) {
  struct Case {
    std::string_view lines;
    std::size_t first;
    std::size_t last;
    int declared;
    bool seen;
    std::string_view date;
  };
  for (const Case& c : std::initializer_list<Case>{
           {"[REG1TEST;1]|[QSORecords;2]|250119;a|250119;b|[END;x]|", 3, 4, 2, true, kDate},
           {"[REG1TEST;1]|[QSORecords;2]|250119;a|250119;b", 3, 4, 2, true, kDate},
           {"[REG1TEST;1]|[QSORecords;1]|250119;a||[END;x]|", 3, 4, 1, true, kDate},
           {"[REG1TEST;1]|[QSORecords; 1 ]|250119;a|[END]", 3, 3, 1, true, kDate},
           {"[REG1TEST;1]|[QSORecords;12345]|[END;x]", 3, 2, 12345, true, ""},
           {"[REG1TEST;1]|QSORecords  1234567|[END;x]", 0, 2, 1234, true, ""},
           {"[REG1TEST;1]|[qsorecords;7]|x|[END;x]", 0, 3, 0, false, ""}}) {
    LineCheck check;
    const IntakeState state = Taken(c.lines, check);
    EXPECT_EQ(check.fault, LineFault::kNone) << c.lines;
    EXPECT_EQ(state.first_qso_row, c.first) << c.lines;
    EXPECT_EQ(state.last_qso_row, c.last) << c.lines;
    EXPECT_EQ(state.declared_rows, c.declared) << c.lines;
    EXPECT_EQ(state.qso_records_seen, c.seen) << c.lines;
    EXPECT_EQ(state.last_row_date, c.date) << c.lines;
  }
}

TEST(LogLinesTest, InATestRunTheDateOfTheLastRowStays) {
  LineCheck check;
  const IntakeState state =
      Taken("[REG1TEST;1]|[QSORecords;2]|250118;a|250120;b||[END;x]|250121;c|", check, true);
  EXPECT_EQ(check.fault, LineFault::kNone);
  EXPECT_EQ(state.last_row_date, "250120") << "neither the empty row nor one behind the end";
}

TEST(LogLinesTest, ALogOfTooManyLinesIsAnError) {
  constexpr std::size_t kMost = 370'000;
  std::string lines = "[REG1TEST;1]" + std::string(kMost, '|');
  LineCheck check;
  EXPECT_EQ(Taken(lines, check).rows.size(), kMost);
  EXPECT_THROW(Taken(lines + "x", check), RunTimeError);
}

TEST(LogLinesTest, ADigitAheadOfAnEnd) {
  for (const auto& [text, digit] :
       std::initializer_list<std::pair<const char*, bool>>{{"IK2QAA.edi", true},
                                                           {"ABC.ed1", false},
                                                           {"ABC-2.edi", false},
                                                           {"AB9", true},
                                                           {"ABC", false},
                                                           {"", false},
                                                           {"_9.edi", false}}) {
    EXPECT_EQ(HasDigitAhead(text, ".-_"), digit) << text;
  }
}

}  // namespace
}  // namespace velmar
