#include "intake/log_header.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "intake/log_lines.h"
#include "model/text.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

std::optional<ValueFault> TakeDeclared(IntakeState& state) {
  const auto fault = TakeCounts(state);
  return fault ? fault : TakeTotals(state);
}

IntakeState Taken(const InsertableLog& log) {
  IntakeState state;
  TakeLines(log.Text(), "250119", false, state);
  return state;
}

/// A log with one other value in a header row.
IntakeState WithValue(std::size_t row, std::string_view value) {
  return Taken(InsertableLog().Row(row, Join("XXXXX=", value)));
}

TEST(LogHeaderTest, EachKeyIsLookedForInItsRow) {
  EXPECT_TRUE(MissingKeys(Taken(InsertableLog())).empty());
  std::size_t looked_for = 0;
  std::size_t ending = 0;
  for (std::size_t row = 2; row <= 37; ++row) {
    SCOPED_TRACE(row);
    InsertableLog log;
    const auto missing = MissingKeys(Taken(log.Row(row, "    x=y")));
    if (missing.empty()) {
      continue;
    }
    const HeaderKey& key = *missing.at(0);
    ++looked_for;
    ending += key.ends_checks ? 1 : 0;
    EXPECT_EQ(key.row, row);
    EXPECT_TRUE(key.message.starts_with(Join(" problemi : alla riga ", row, " ci deve essere ")));
    EXPECT_TRUE(Holds(key.message, Join("< ", key.key, " >  ")));
    EXPECT_TRUE(MissingKeys(Taken(log.Row(row, Lower(Join(key.key, "=x"))))).empty());
    if (row < 37) {
      EXPECT_EQ(MissingKeys(Taken(log.Row(row, "").Row(37, ""))).size(), key.ends_checks ? 1U : 2U);
    }
  }
  EXPECT_EQ(looked_for, 21U);
  EXPECT_EQ(ending, 11U);
  EXPECT_EQ(MissingKeys(Taken(InsertableLog().Row(11, "PClub"))).size(), 1U) << "with its =";
  EXPECT_EQ(MissingKeys(IntakeState()).size(), 3U) << "no row at all: up to the call";
}

TEST(LogHeaderTest, TheOwner) {
  struct Case {
    std::string_view declared;
    std::string_view call;  ///< empty: refused
  };
  for (const Case& c : std::initializer_list<Case>{{"IK2QAA", "IK2QAA      "},
                                                   {"ik2qaa/p", "IK2QAA/P    "},
                                                   {"IK2QAA-P", "IK2QAA/P    "},
                                                   {"IK2QAA_1-2", "IK2QAA/1/2  "},
                                                   {"IK2QAA/PORTABLE", "IK2QAA/PORTA"},
                                                   {"F/IK2QAA", ""},
                                                   {"IKQAA_2", ""},
                                                   {"ABCDEFGHIJKLM2", ""},
                                                   {"", ""}}) {
    IntakeState state = WithValue(4, c.declared);
    EXPECT_EQ(TakeOwner(state).has_value(), c.call.empty()) << c.declared;
    if (!c.call.empty()) {
      EXPECT_EQ(state.own_call, c.call);
    }
  }
  IntakeState state = WithValue(5, " jn45aa12 ");
  TakeOwner(state);
  EXPECT_EQ(state.own_locator, "JN45AA12") << "in capitals, as long as it is";
}

TEST(LogHeaderTest, TheStation) {
  struct Case {
    std::size_t row;
    std::string_view value;
    double number;
  };
  for (const Case& c : std::initializer_list<Case>{{24, "1,5", 1.5},
                                                   {24, "100 W", 100},
                                                   {24, "500", 500},
                                                   {24, "500,1", 500},
                                                   {24, "1000", 500},
                                                   {24, "0", 0},
                                                   {24, "", 0},
                                                   {24, "QRP", 0},
                                                   {10, "144.300", 144},
                                                   {10, "144,300", 144},
                                                   {10, "145", 145},
                                                   {10, "432 MHz", 432},
                                                   {10, "", 0},
                                                   {10, "VHF", 0}}) {
    IntakeState state = WithValue(c.row, c.value);
    TakeStation(state);
    EXPECT_EQ(c.row == 24 ? state.power : state.frequency, c.number) << c.row << " " << c.value;
  }
  IntakeState state = Taken(InsertableLog().Row(9, "PSect=2IT  ").Row(26, "SAnte=9 el yagi"));
  TakeStation(state);
  EXPECT_EQ(state.category, "2IT");
  EXPECT_EQ(state.antenna, "9 el yagi");
}

TEST(LogHeaderTest, TheHeightAboveSeaLevelIsDigitsOrZero) {
  struct Case {
    std::string_view value;
    std::string_view height;
    std::string_view shown;
    bool wrong;
  };
  for (const Case& c : std::initializer_list<Case>{{"10;250", "250", "10;250", false},
                                                   {";0", "0", ";0", false},
                                                   {"10;250 m", "0", "0  -  ", true},
                                                   {"10;-5", "0", "0  -  ", true},
                                                   {"10;2.5", "0", "0  -  ", true},
                                                   {"10;20;30", "0", "0  -  ", true},
                                                   {"10;", "0", "0  -  ", true},
                                                   {"250", "0", "0  -  ", true},
                                                   {"", "0", "0  -  ", true}}) {
    IntakeState state = WithValue(27, c.value);
    TakeStation(state);
    EXPECT_EQ(state.height, c.height) << c.value;
    EXPECT_EQ(state.height_wrong, c.wrong) << c.value;
    EXPECT_TRUE(state.shown_height.starts_with(c.shown)) << c.value << ": " << state.shown_height;
  }
}

TEST(LogHeaderTest, WhatTheLogDeclares) {
  struct Case {
    std::size_t row;
    std::string_view value;
    std::optional<ValueFault> fault;
    std::string_view taken;
  };
  const auto taken = [](const IntakeState& state, std::size_t row) {
    switch (row) {
      case 28:
        return state.declared_qsos;
      case 29:
        return state.declared_points;
      case 36:
        return std::string();
      default:
        return Join(state.dx_call, "|", state.dx_distance);
    }
  };
  using enum ValueFault;
  for (const Case& c :
       std::initializer_list<Case>{{28, "12;1", {}, "12"},
                                   {28, "12", {}, "12"},
                                   {28, "  12;1", {}, "12"},
                                   {28, "123456;1", {}, "12345"},
                                   {28, "0;1", kZeroQsos, ""},
                                   {28, ";12", kZeroQsos, ""},
                                   {28, "", kZeroQsos, ""},
                                   {28, "molti", kZeroQsos, ""},
                                   {29, "0", {}, "0"},
                                   {29, "1234567890", {}, "1234567890"},
                                   {29, "", kNoPoints, ""},
                                   {29, "1633 ", kBadPoints, ""},
                                   {29, "1.633", kBadPoints, ""},
                                   {29, "-1633", kBadPoints, ""},
                                   {36, "", kNoTotal, ""},
                                   {36, "mille", {}, ""},
                                   {37, "", {}, "|"},
                                   {37, ";;", {}, "|"},
                                   {37, "IT9XYZ;JM67AA; 812 ", {}, "IT9XYZ|812"},
                                   {37, "IT9XYZ/PORTABLE;;", {}, "IT9XYZ/PORTABLE|"},
                                   {37, "IT9XYZ", kBadDx, ""},
                                   {37, "IT9XYZ;JM67AA", kBadDx, ""},
                                   {37, "IT9XYZ;JM67AA;8;", kBadDx, ""}}) {
    IntakeState state = WithValue(c.row, c.value);
    EXPECT_EQ(TakeDeclared(state), c.fault) << c.row << " " << c.value;
    if (!c.fault) {
      EXPECT_EQ(taken(state, c.row), c.taken) << c.row;
    }
  }
}

TEST(LogHeaderTest, ValuesOfThreePartsAreFilledUp) {
  using Parts = std::vector<std::string>;
  for (const auto& [value, parts] :
       std::initializer_list<std::pair<const char*, Parts>>{{"", {"0", "0", "1"}},
                                                            {";;", {"0", "0", "1"}},
                                                            {"5", {"5", "", ""}},
                                                            {"5;6", {"5", "6", ""}},
                                                            {"5;6;7", {"5", "6", "7"}}}) {
    for (const std::size_t row : {30, 32, 34}) {
      EXPECT_EQ(ThreeParts(WithValue(row, value), row), parts) << row << " " << value;
    }
  }
}

TEST(LogHeaderTest, DatesPartAtTheirSemicolon) {
  for (const auto& [value, start, end] :
       std::initializer_list<std::tuple<const char*, const char*, const char*>>{
           {"20250119;20250120", "20250119", "20250120"},
           {"250119;250120", "250119", "250120    "},
           {"20250119 20250120", "20250119", "20250120"},
           {"", "        ", "        "}}) {
    const DeclaredDates dates = DatesOf(WithValue(3, value));
    EXPECT_EQ(dates.start, start) << value;
    EXPECT_EQ(dates.end, end) << value;
  }
}

TEST(LogHeaderTest, RemarksEndAtTheQsos) {
  IntakeState state = Taken(InsertableLog().Start("Ciao A TUTTI\r\n[QSORecords;3]"));
  EXPECT_TRUE(Holds(Upper(Remarks(state)), "[REMARKS]:"));
  EXPECT_TRUE(Holds(Remarks(state), "ciao a tutti"));
  EXPECT_FALSE(Holds(Remarks(state), "records;"));
  state = Taken(InsertableLog().Start("1\r\n2\r\n3\r\n4\r\n5\r\n[QSORecords;3]"));
  EXPECT_TRUE(Holds(Remarks(state), "3"));
  EXPECT_FALSE(Holds(Remarks(state), "4")) << "four rows at most";
}

}  // namespace
}  // namespace velmar::test
