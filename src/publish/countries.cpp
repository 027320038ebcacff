#include "publish/countries.h"

namespace velmar {

namespace {

using C = Country;

// clang-format off
constexpr std::array<CountryTest, 229> kTests = {{
    {"HB0", C::kHB0}, {"HE0", C::kHB0},
    {"EA8", C::kEA8}, {"EB8", C::kEA8}, {"EC8", C::kEA8}, {"ED8", C::kEA8}, {"EE8", C::kEA8},
    {"EF8", C::kEA8}, {"EG8", C::kEA8}, {"EH8", C::kEA8},
    {"EA9", C::kEA9}, {"EB9", C::kEA9}, {"EC9", C::kEA9}, {"ED9", C::kEA9}, {"EE9", C::kEA9},
    {"EF9", C::kEA9}, {"EG9", C::kEA9}, {"EH9", C::kEA9},
    {"EA", C::kEA}, {"EB", C::kEA}, {"EC", C::kEA}, {"ED", C::kEA}, {"EE", C::kEA},
    {"EF", C::kEA}, {"EG", C::kEA}, {"EH", C::kEA},
    {"TK", C::kF}, {"TM", C::kF},
    {"HB", C::kHB}, {"HE", C::kHB},
    {"OE", C::kOE},
    {"SP", C::kSP}, {"SQ", C::kSP}, {"SN", C::kSP}, {"3Z", C::kSP}, {"SO", C::kSP},
    {"OK", C::kOK}, {"OL", C::kOK},
    {"OM", C::kOM},
    {"HG", C::kHG}, {"HA", C::kHG},
    {"S5", C::kS5},
    {"9A", C::k9A},
    {"T9", C::kT9},
    {"Z3", C::kZ3},
    {"4N", C::kYU}, {"4O", C::kYU}, {"YT", C::kYU}, {"YZ", C::kYU}, {"YU", C::kYU},
    {"LX", C::kLX},
    {"PA", C::kPA}, {"PB", C::kPA}, {"PC", C::kPA}, {"PD", C::kPA}, {"PE", C::kPA},
    {"PF", C::kPA}, {"PG", C::kPA}, {"PH", C::kPA}, {"PI", C::kPA},
    {"ON", C::kON}, {"OO", C::kON}, {"OP", C::kON}, {"OQ", C::kON}, {"OR", C::kON},
    {"OS", C::kON}, {"OT", C::kON},
    {"YO", C::kYO}, {"YP", C::kYO}, {"YQ", C::kYO}, {"YR", C::kYO},
    {"LZ", C::kLZ},
    {"SV", C::kSV}, {"SZ", C::kSV},
    {"UR", C::kUT}, {"US", C::kUT}, {"UT", C::kUT}, {"UU", C::kUT}, {"UV", C::kUT},
    {"UW", C::kUT}, {"UX", C::kUT}, {"UY", C::kUT}, {"UZ", C::kUT},
    {"UA", C::kUA},
    {"LY", C::kLY},
    {"YL", C::kYL},
    {"ER", C::kER},
    {"SM", C::kSM}, {"7S", C::kSM}, {"SA", C::kSM}, {"SB", C::kSM}, {"SC", C::kSM},
    {"SD", C::kSM}, {"SE", C::kSM}, {"SF", C::kSM}, {"SG", C::kSM}, {"SH", C::kSM},
    {"SI", C::kSM}, {"SL", C::kSM}, {"SJ", C::kSM}, {"SM", C::kSM}, {"SK", C::kSM},
    {"EU", C::kEU},
    {"OZ", C::kOZ}, {"OU", C::kOZ}, {"OV", C::kOZ}, {"OW", C::kOZ}, {"5P", C::kOZ},
    {"5Q", C::kOZ},
    {"E7", C::kE7},
    {"HV", C::kHV},
    {"ZA", C::kZA},
    {"1A", C::k1A},
    {"3A", C::k3A},
    {"9H", C::k9H},
    {"TA", C::kTA},
    {"5B", C::k5B},
    {"CT", C::kCT}, {"CU", C::kCT}, {"CQ", C::kCT}, {"CR", C::kCT}, {"CS", C::kCT},
    {"EI", C::kEI}, {"EJ", C::kEI},
    {"ES", C::kES},
    {"LA", C::kLA}, {"LB", C::kLA}, {"LC", C::kLA}, {"LD", C::kLA}, {"LE", C::kLA},
    {"LF", C::kLA}, {"LG", C::kLA}, {"LH", C::kLA}, {"LI", C::kLA}, {"LJ", C::kLA},
    {"LK", C::kLA}, {"LL", C::kLA}, {"LM", C::kLA}, {"LN", C::kLA},
    {"OH", C::kOH}, {"OF", C::kOH}, {"OG", C::kOH}, {"OI", C::kOH}, {"OF", C::kOH},
    {"OG", C::kOH}, {"OI", C::kOH}, {"OJ", C::kOH},
    {"DA", C::kDL}, {"DB", C::kDL}, {"DC", C::kDL}, {"DD", C::kDL}, {"DE", C::kDL},
    {"DF", C::kDL}, {"DG", C::kDL}, {"DH", C::kDL}, {"DI", C::kDL}, {"DJ", C::kDL},
    {"DK", C::kDL}, {"DL", C::kDL}, {"DM", C::kDL}, {"DN", C::kDL}, {"DO", C::kDL},
    {"DP", C::kDL}, {"DQ", C::kDL}, {"DR", C::kDL},
    {"2A", C::kG}, {"2B", C::kG}, {"2E", C::kG}, {"2F", C::kG}, {"2G", C::kG}, {"2H", C::kG},
    {"2K", C::kG}, {"2L", C::kG}, {"2N", C::kG}, {"2O", C::kG}, {"2P", C::kG}, {"2Q", C::kG},
    {"2R", C::kG}, {"2T", C::kG}, {"2V", C::kG}, {"2X", C::kG}, {"2Y", C::kG}, {"2Z", C::kG},
    {"GA", C::kG}, {"GB", C::kG}, {"GE", C::kG}, {"GF", C::kG}, {"GG", C::kG}, {"GK", C::kG},
    {"GL", C::kG}, {"GO", C::kG}, {"GQ", C::kG}, {"GR", C::kG}, {"GV", C::kG}, {"GX", C::kG},
    {"GY", C::kG}, {"ZE", C::kG}, {"ZH", C::kG}, {"ZI", C::kG}, {"ZJ", C::kG}, {"ZN", C::kG},
    {"ZO", C::kG}, {"ZQ", C::kG}, {"MX", C::kG},
    {"2I", C::kGI}, {"GI", C::kGI}, {"GN", C::kGI}, {"MI", C::kGI},
    {"2M", C::kGM}, {"2S", C::kGM}, {"GM", C::kGM}, {"GS", C::kGM}, {"GZ", C::kGM},
    {"MS", C::kGM}, {"MZ", C::kGM},
    {"2C", C::kGW}, {"2W", C::kGW}, {"GC", C::kGW}, {"GW", C::kGW}, {"MC", C::kGW},
    {"MW", C::kGW},
    {"ZB", C::kZB}, {"ZG", C::kZB},
    {"T7", C::kT7},
    {"M", C::kG},
    {"F", C::kF},
    {"G", C::kG},
    {"R", C::kUA},
    {"I", C::kItaly},
}};
// clang-format on

}  // namespace

std::span<const CountryTest> CountryTests() {
  return kTests;
}

}  // namespace velmar
