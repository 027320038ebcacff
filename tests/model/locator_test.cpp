#include "model/locator.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <set>
#include <string>
#include <vector>

#include "platform/error.h"

namespace velmar {
namespace {

TEST(LocatorValid, LettersAndDigitsInTheirRanges) {
  for (const char* valid : {"AA00AA", "RR99XX", "JN45AX", "IO91WM"}) {
    EXPECT_TRUE(LocatorValid(valid)) << valid;
  }
  for (const char* invalid :
       {"", "JN45A", "JN45AAA", " JN45A", "JN45A ", "JS45AA", "SN45AA", "JN4AAA", "JNA5AA",
        "JN45AY", "JN45YA", "jn45aa", "JN45aa", "@N45AA", "JN:5AA", "JN4/AA",
        "J\xD1"
        "45AA"}) {
    EXPECT_FALSE(LocatorValid(invalid)) << invalid;
  }
}

// A subsquare counted from the south-west corner of the earth, in steps of 5' and 2.5'.
struct Subsquare {
  int east;
  int north;
};
constexpr int kAllEast = 18 * 240;
constexpr int kAllNorth = 18 * 240;

std::string LocatorOf(Subsquare at) {
  const auto letter = [](int number) { return static_cast<char>('A' + number); };
  const auto digit = [](int number) { return static_cast<char>('0' + number); };
  return {letter(at.east / 240),     letter(at.north / 240), digit(at.east / 24 % 10),
          digit(at.north / 24 % 10), letter(at.east % 24),   letter(at.north % 24)};
}

double Radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

// Half the chord between two subsquares, squared: the haversine of their angle.
double Haversine(Subsquare a, Subsquare b) {
  const auto north = [](Subsquare at) { return Radians((at.north + 0.5) / 24 - 90); };
  const double across = std::sin(Radians((b.east - a.east) / 12.0) / 2);
  const double along = std::sin(Radians((b.north - a.north) / 24.0) / 2);
  return along * along + std::cos(north(a)) * std::cos(north(b)) * across * across;
}

// The distance agrees with the haversine formula, in both directions, wherever the fraction isn't
// so near to the border of rounding that the last digits of either formula decide.
TEST(QsoPoints, AgreeWithTheHaversineFormula) {
  int compared = 0;
  for (int own = 0; own < 60; ++own) {
    const Subsquare a{own * 1237 % kAllEast, own * 733 % kAllNorth};
    const std::string own_locator = LocatorOf(a);
    const Position position = LocatorPosition(own_locator);
    // Some near ones, then some all over the earth.
    for (int other = 0; other < 500; ++other) {
      const Subsquare b = other < 100
                              ? Subsquare{(a.east + other % 10 * 7) % kAllEast,
                                          (a.north + other / 10 * 5) % kAllNorth}
                              : Subsquare{other * 2741 % kAllEast, other * 1999 % kAllNorth};
      const double haversine = Haversine(a, b);
      const double km = 40009 / std::numbers::pi * std::asin(std::sqrt(haversine));
      const std::string locator = LocatorOf(b);
      if (other == 0 || haversine > 0.999999 || std::abs(km - std::floor(km) - 0.4) < 1e-5) {
        continue;
      }
      const int expected = static_cast<int>(km - std::floor(km) < 0.4 ? km : std::ceil(km));
      EXPECT_EQ(QsoPoints(own_locator, position, locator), expected)
          << own_locator << " " << locator << " " << km;
      EXPECT_EQ(QsoPoints(locator, own_locator), expected) << locator << " " << own_locator;
      ++compared;
    }
  }
  EXPECT_GT(compared, 29000);
}

TEST(QsoPoints, KnownPairs) {
  const struct {
    const char* own;
    const char* dx;
    int points;
  } cases[] = {
      {"JN45AA", "JN45AA", 1},     {"JN45AA", "JN45AB", 5},
      {"JN45AA", "JN45BA", 7},     {"JN45OL", "JN33KR", 268},
      {"JN66OA", "JM68QE", 871},   {"JN45OL", "JM77BP", 961},
      {"JN61FV", "IO91WM", 1433},  {"JN61FV", "FN20XR", 6886},
      {"JN45OL", "QF56OD", 16546},  // 16545.47
      {"JN45AA", "", 0},           {"JN45AA", "JN45A", 0},
      {"JN45AA", "JN45AY", 0},     {"JN45AA", "JN45AAA", 0},
      {"JN45AA", "jn45ab", 0},     {"AJ05AM", "RJ95XM", 9},  // over the date line
  };
  for (const auto& [own, dx, points] : cases) {
    EXPECT_EQ(QsoPoints(own, dx), points) << own << " " << dx;
  }
}

TEST(Distance, AFractionOfFourTenthsGoesUp) {
  const Position a{0.3, 0};
  const Position b{1.3, 0};  // an angle of 1, so that the radius is the distance
  const struct {
    double radius;
    int km;
  } cases[] = {{0.39, 0},       {0.41, 1},     {100, 100},       {100.3999, 100},
               {100.4001, 101}, {100.99, 101}, {30000.41, 30001}};
  for (const auto& [radius, km] : cases) {
    EXPECT_EQ(Distance(a, b, radius), km) << radius;
    EXPECT_EQ(Distance(b, a, radius), km) << radius;
  }
}

// The last digits decide which of the three it is; there is no fourth, as a number out of range
// would be.
TEST(QsoPoints, OppositePlacesRaiseAnErrorOrAreHalfACircumferenceApart) {
  const int half_circumference = 20005;
  std::set<int> errors;
  for (int east = 5; east < kAllEast; east += 37) {
    for (int north = 3; north < kAllNorth; north += 41) {
      const std::string own = LocatorOf({east, north});
      const std::string dx = LocatorOf({(east + kAllEast / 2) % kAllEast, kAllNorth - 1 - north});
      ASSERT_TRUE(LocatorValid(own) && LocatorValid(dx));
      try {
        EXPECT_EQ(QsoPoints(own, dx), half_circumference) << own << " " << dx;
      } catch (const RunTimeError& error) {
        EXPECT_TRUE(error.number() == ErrorNumber::kDivisionByZero ||
                    error.number() == ErrorNumber::kInvalidCall)
            << own << " " << dx;
        errors.insert(static_cast<int>(error.number()));
      }
    }
  }
  EXPECT_TRUE(errors.contains(static_cast<int>(ErrorNumber::kDivisionByZero)));
}

}  // namespace
}  // namespace velmar
