#include "publish/on_air_calls.h"

#include <gtest/gtest.h>

#include "model/text.h"
#include "support/boxes.h"

namespace velmar::test {
namespace {

TEST(OnAirCalls, TheFirstCountryThatFitsTakesACall) {
  const struct {
    const char* call;
    Country country;
  } cases[] = {{"EA8QA", Country::kEA8}, {"EB9QA", Country::kEA9}, {"EC1QA", Country::kEA},
               {"HB0QA", Country::kHB0}, {"HE0QA", Country::kHB0}, {"HB9QA", Country::kHB},
               {"GM3QA", Country::kGM},  {"G3QA", Country::kG},    {"MX0QA", Country::kG},
               {"M0QA", Country::kG},    {"MW0QA", Country::kGW},  {"GI4QA", Country::kGI},
               {"TM5QA", Country::kF},   {"F5QA", Country::kF},    {"R3QA", Country::kUA},
               {"UA3QA", Country::kUA},  {"UT3QA", Country::kUT},  {"OG1QA", Country::kOH},
               {"SJ9QA", Country::kSM},  {"DR1QA", Country::kDL},  {"T77QA", Country::kT7},
               {"HV3QA", Country::kHV},  {"1A0QA", Country::k1A},  {"ZG2QA", Country::kZB}};
  for (const auto& tested : cases) {
    const OnAirCounts counts = CountOnAir({Pad(tested.call, 12)});
    EXPECT_EQ(counts.countries[tested.country], 1) << tested.call;
    EXPECT_TRUE(counts.unknown.empty() && counts.italy() == 0) << tested.call;
  }
}

TEST(OnAirCalls, CountsAndTheirLines) {
  const OnAirCounts counts =
      CountOnAir({"IK2QAA      ", "IK2QBB/P    ", "IT9QAA      ", "S51QA       ", "F6QA/P      ",
                  "HV1QA       ", "XX1QA       ", "IY3QA       ", "EA9QA       "});
  EXPECT_EQ(counts.italy(), 3);
  EXPECT_EQ(counts.portables, 2);
  EXPECT_EQ(counts.unknown, (Names{"XX1QA       ", "IY3QA       "}));
  EXPECT_EQ(counts.abroad(), 3 + 2) << "HV is in no total";
  EXPECT_EQ(CountryLines(counts), (Names{"Country  144   F ", "Country  144   S5",
                                         "Country  144   EA9", "Country  144   altri"}));
  EXPECT_EQ(CountriesText(counts),
            "I 0   0 \r\nI 1   0 \r\nIX1   0 \r\nI 2   2 \r\nI 3   0 \r\nIN3   0 \r\nIV3   0 \r\n"
            "I 4   0 \r\nI 5   0 \r\nI 6   0 \r\nI 7   0 \r\nI 8   0 \r\nIT9   1 \r\nIS0   0 \r\n"
            "TOT ITALIA   3              TOT ESTERO     5            PORTATILI      2             "
            "\r\n \r\n \r\n"
            "3A  : 0       5B  : 0       9A  : 0       9H  : 0 \r\n  \r\n"
            "CT  : 0       ct9 : 0       DL  : 0       EA  : 0       EA8  : 0 \r\n  \r\n"
            "EI  : 0       ES  : 0       ER  : 0       E7  : 0       EU  : 0 \r\n  \r\n"
            "F  : 1        G  : 0        GM  : 0       GW  : 0 \r\n  \r\n"
            "HB  : 0       HB0  : 0      HG  : 0       LA  : 0       LY  : 0 \r\n  \r\n"
            "LZ  : 0       LX  : 0       OE  : 0       OK  : 0       OM  : 0 \r\n  \r\n"
            "OH  : 0       ON  : 0       OZ  : 0       PA  : 0       S5  : 1 \r\n  \r\n"
            "SV  : 0       SP  : 0       SM  : 0       T7  : 0       TA  : 0 \r\n  \r\n"
            "UA  : 0       UR  : 0       YL  : 0       YO  : 0       YU  : 0 \r\n  \r\n"
            "Z3  : 0       ZA  : 0       ZB  : 0       GI  : 0       EA9  : 1 \r\n  \r\n"
            "Altri 2 \r\n");
}

TEST(OnAirCalls, ThereAreTwoHundredAndTwentyNineTests) {
  EXPECT_EQ(CountryTests().size(), 229U);
}

}  // namespace
}  // namespace velmar::test
