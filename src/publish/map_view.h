#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "platform/form.h"
#include "platform/picture.h"
#include "publish/map_outlines.h"

namespace velmar {

/// All maps are pictures of this size, in units.
inline constexpr double kMapWidth = 820;
inline constexpr double kMapHeight = 513;

enum class MapKind {
  kGeneral,     ///< Europe, on the grid that its tables of places are made for
  kCloser,      ///< a region, by its squares
  kFieldLevel,  ///< so wide that its names are those of the fields
};

/// What a mark looks like; the colours as in `colour`.
struct MarkStyle {
  int fill = 0;
  int border = 0;
  double radius = 1;

  Disc At(Point place) const { return {place, radius, fill, border}; }
};

/// One of the maps: what it shows, how large, and how its marks look.
struct MapView {
  std::string_view title;
  MapKind kind = MapKind::kCloser;
  double west = 0;   ///< longitude of its left edge, in degrees
  double north = 0;  ///< latitude of its upper edge, in degrees
  double square_width = 0;
  double square_height = 0;  ///< of a square of the locator grid, in units
  MarkStyle locator = {colour::kYellow, colour::kRed, 2};
  MarkStyle square = {colour::kYellow, colour::kRed, 5};
  MarkStyle participant = {colour::kRed, colour::kBlue, 2};
  MarkStyle earlier_square = {colour::kBlue, colour::kBlue, 2};  ///< of months before
  bool keeps_year = false;  ///< squares drawn on it go to the lists of the year
};

/// The maps in the order in which the window offers them, the general one first.
const std::array<MapView, 7>& MapViews();

/// Where a place on the earth lies on a map.
Point ToMap(const MapView& view, const GeoPoint& geo);

/// Where a locator lies on a map: the centre of a square by four characters (what is no letter
/// behind them does no harm), of a subsquare by six, all in capitals. Nothing for a text that is no
/// locator or lies in a field that the maps don't know: they know I to K, and F to P. The place may
/// be beyond the edges. South of the equator the general map has no even grid: see map_view.cpp.
std::optional<Point> PlaceOf(const MapView& view, std::string_view locator);

/// The lines between fields on the general map, the lines of the grid on the others.
Picture FieldLines(const MapView& view);

/// The names of the twelve fields that are counted, or on a closer map of their squares, as far as
/// they are to be seen.
Picture GridLabels(const MapView& view);

}  // namespace velmar
