#include "publish/area_counters.h"

#include <gtest/gtest.h>

#include <string>

#include "model/text.h"

namespace velmar {
namespace {

std::string NameOf(std::optional<CallArea> area) {
  return area ? std::string(velmar::NameOf(*area)) : "-";
}

TEST(AreaCounters, TheFirstRuleThatFitsDecides) {
  const struct {
    const char *call, *active, *on_air;
  } cases[] = {
      {"IK2QAA", "I 2", "I 2"},
      {"IW3HHH", "I 3", "I 3"},
      {"IW3AAA", "IN3", "IN3"},
      {"IW3ZZZ", "IV3", "IV3"},
      {"IQ3DD", "IV3", "IV3"},  // a club of the Veneto, but counted
                                // there
      {"IQ3TN", "IN3", "IN3"},
      {"IQ0SS", "IS0", "IS0"},
      {"IM0QAA", "IS0", "IS0"},
      {"IX1QAA", "IX1", "IX1"},
      {"IT9QAA", "I 9", "I 9"},
      {"IK3QAA", "I 3", "I 3"},
      {"IY3QAA", "I 3", "-"},  // no district 3 without a known prefix on the air
      {"II13QA", "I 1", "I 1"},
      {"IK5QAA/IS0", "IS0", "IS0"},
      {"IS0/IK5QAA", "IS0", "IS0"},
      {"IK3QAA/4", "I 4", "I 4"},
      {"IK3QA/P4", "I 4", "I 4"},
      {"IW3AAA/P", "IN3", "IN3"},
      {"I4QAA/IT9", "I 9", "I 9"},
      {"9A1QQ", "I 1", "-"},  // a foreign one falls on a digit behind
                              // its first place
      {"9A9QQ", "-", "-"},    // whose first place is not the first of the call
      {"DL3QQ", "I 3", "-"},
      {"F/IK2QAA", "I 2", "-"},
      {"IQAA", "-", "-"},
      {"ERROR", "-", "-"},
  };
  for (const auto& tested : cases) {
    const std::string call = Pad(tested.call, 12);
    EXPECT_EQ(NameOf(ActiveArea(call)), tested.active) << tested.call;
    EXPECT_EQ(NameOf(OnAirArea(call)), tested.on_air) << tested.call;
  }
}

TEST(AreaCounters, ALoggingStationMayCountInTwoAreas) {
  const struct {
    const char *call, *areas;
  } cases[] = {
      {"IK2QAA", "I 2"},     {"I24QA", "I 2,I 4"}, {"IS0QAA", "IS0"}, {"IS0QAA/3", "I 3"},
      {"IK2QAA/IX1", "IX1"}, {"IK2QAA/P", "I 2"},  {"IT9QAA", "I 9"}, {"DL3QQ", ""},
      {"9A1QQ/3", ""},       {"IN3QAA/P", "IN3"},  {"IQAA3", ""},     {"I1Q/2", "I 2"},
  };
  for (const auto& tested : cases) {
    std::string areas;
    for (const CallArea area : LoggingAreas(Pad(tested.call, 12) + "IK2QBB/9    JN45AA")) {
      areas += Join(areas.empty() ? "" : ",", velmar::NameOf(area));
    }
    EXPECT_EQ(areas, tested.areas) << tested.call;
  }
}

}  // namespace
}  // namespace velmar
