#include "publish/map_outlines.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace velmar::test {
namespace {

/// The south-west and north-east corners of all lines, none of which is shorter than told.
std::pair<GeoPoint, GeoPoint> Corners(const std::vector<GeoLine>& lines, std::size_t shortest) {
  std::pair<GeoPoint, GeoPoint> corners = {{180, 90}, {-180, -90}};
  for (const GeoLine& line : lines) {
    EXPECT_GE(line.size(), shortest);
    for (const auto& [longitude, latitude] : line) {
      auto& [low, high] = corners;
      low = {std::min(low.longitude, longitude), std::min(low.latitude, latitude)};
      high = {std::max(high.longitude, longitude), std::max(high.latitude, latitude)};
    }
  }
  return corners;
}

// A step that is lost or misread carries all behind it away, and shows in the corners.
TEST(MapOutlines, EveryRowIsDecodedToWhereItBelongs) {
  const auto [south_west, north_east] = Corners(Outlines().land, 3);
  EXPECT_EQ(south_west.longitude, -34) << "Greenland is cut off there";
  EXPECT_EQ(south_west.latitude, 22);
  EXPECT_EQ(north_east.longitude, 54);
  EXPECT_EQ(north_east.latitude, 76);
  const auto [lampedusa, alps] = Corners(Outlines().italy, 3);
  EXPECT_NEAR(lampedusa.longitude, 6.62, 0.02);
  EXPECT_NEAR(lampedusa.latitude, 35.49, 0.02);
  EXPECT_NEAR(alps.longitude, 18.52, 0.02);
  EXPECT_NEAR(alps.latitude, 47.09, 0.02);
  Corners(Outlines().borders, 2);
}

}  // namespace
}  // namespace velmar::test
