#include "model/call_area.h"

#include <gtest/gtest.h>

#include <string>

#include "model/classification_row.h"

namespace velmar {
namespace {

/// A row of the classification, whose antenna is named as a club of another area.
std::string RowOf(std::string_view call) {
  ClassificationEntry entry;
  entry.call = call;
  entry.locator = "JN45NK";
  entry.antenna = "IQ3TN IQ1VD";
  return ClassificationRow(entry);
}

/// The areas that a row belongs to, one behind another.
std::string AreasOf(std::string_view row) {
  std::string areas;
  for (std::size_t i = 0; i < kCallAreaNames.size(); ++i) {
    const auto area = static_cast<CallArea>(i);
    areas += BelongsTo(row, area) ? Join(areas.empty() ? "" : ",", NameOf(area)) : "";
  }
  return areas;
}

TEST(CallArea, TheRowOfEachCallIsInTheAreasThatTakeIt) {
  const struct {
    const char *call, *areas;
  } cases[] = {
      {"I0ABC", "I 0"},   {"IS0ABC", "IS0"},       {"IM0AAA", "IS0"},      {"IW0TZZ", "I 0"},
      {"IW0UAA", "IS0"},  {"IW0ZZZ", "IS0"},       {"IW0AAA", "I 0"},      {"I1AAA", "I 1"},
      {"IX1AAA", "IX1"},  {"IQ1VD", "IX1"},        {"IQ1VD/P", "IX1"},     {"IQ1VDX", "IX1"},
      {"IQ1VE", "I 1"},   {"IK2QAA", "I 2"},       {"I3ABC", "I 3"},       {"IK3ABC", "I 3"},
      {"IZ3AAA", "I 3"},  {"IU3AAA", "I 3"},       {"IW3AAA", "IN3"},      {"IW3DZZ", "IN3"},
      {"IW3EAA", "I 3"},  {"IW3HHH", "I 3"},       {"IW3PZZ", "I 3"},      {"IW3QAA", "IV3"},
      {"IW3ZZZ", "IV3"},  {"IN3AAA", "IN3"},       {"IV3AAA", "IV3"},      {"IQ3DD", "I 3"},
      {"IQ3FL", "I 3"},   {"IQ3TN", "IN3"},        {"II3STAY", "IN3"},     {"IQ3UD", "IV3"},
      {"IQ3UD/P", "IV3"}, {"IQ3MF", "IV3"},        {"I4AAA", "I 4"},       {"IK5AAA", "I 5"},
      {"IZ6AAA", "I 6"},  {"IW7AAA", "I 7"},       {"IU8AAA", "I 8"},      {"IT9AAA", "I 9"},
      {"IQ3ZZ", ""},      {"IY3AAA", ""},          {"IR3XX", ""},          {"ik3abc", ""},
      {"OE/HB9ABC", ""},  {"DL/I2ABC", ""},        {"9A1AAA", "I 1,I 9"},  {"S52AA", "I 2,I 5"},
      {"HB9ABC", "I 9"},  {"9A/IQ3TN", "IN3,I 9"}, {"4X/IQ1VD", "IX1,I 4"}};
  for (const auto& [call, areas] : cases) {
    EXPECT_EQ(AreasOf(RowOf(call)), areas) << call;
  }
}

// A row of the classification is longer than a call, so that these clubs are never told by name.
TEST(CallArea, SardinianClubsAreToldByTheWholeRowAlone) {
  for (const char* call :
       {"IQ0SS", "IQ0AK", "IQ0AH", "IQ0EH", "IQ0AG", "IQ0AM", "IQ0AI", "IQ0AL"}) {
    EXPECT_EQ(AreasOf(call), "IS0");
    EXPECT_EQ(AreasOf(Pad(call, 12)), "I 0");
    EXPECT_EQ(AreasOf(RowOf(call)), "I 0");
  }
}

TEST(CallArea, WhatIsNoRowIsInNone) {
  EXPECT_EQ(AreasOf(classification_row::kHeader), "");
  EXPECT_EQ(AreasOf(""), "");
  EXPECT_EQ(AreasOf("I"), "");
}

}  // namespace
}  // namespace velmar
