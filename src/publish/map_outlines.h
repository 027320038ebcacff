#pragma once

#include <span>
#include <string_view>
#include <vector>

namespace velmar {

/// A place on the earth in degrees; east and north are positive.
struct GeoPoint {
  double longitude = 0;
  double latitude = 0;
};

using GeoLine = std::vector<GeoPoint>;

/// What the backgrounds of the maps are drawn from. The rings of land and of Italy close by
/// themselves, and may lie within one another: what lies in an even number of them is not part of
/// the area.
struct MapOutlines {
  std::vector<GeoLine> land;
  std::vector<GeoLine> italy;
  std::vector<GeoLine> borders;  ///< lines between countries, without coasts
};

/// The outlines, decoded at the first call. data/map/ tells where they come from.
const MapOutlines& Outlines();

/// The rows of the outlines, as they stand in the program. The build has seen to their form.
struct OutlineRows {
  std::span<const std::string_view> land;
  std::span<const std::string_view> italy;
  std::span<const std::string_view> borders;
};

OutlineRows BuiltInOutlines();

}  // namespace velmar
