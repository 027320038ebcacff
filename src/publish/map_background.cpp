#include "publish/map_background.h"

#include <cmath>
#include <utility>

#include "publish/map_colours.h"

namespace velmar {

namespace {

using Ring = std::vector<Point>;

/// Beyond which edges of the map a point lies, a bit each, far enough for the widest line.
unsigned Beyond(const Point& point) {
  constexpr double kMargin = 2;
  return (point.x < -kMargin ? 1U : 0U) | (point.x > kMapWidth + kMargin ? 2U : 0U) |
         (point.y < -kMargin ? 4U : 0U) | (point.y > kMapHeight + kMargin ? 8U : 0U);
}

/// A line on the map without what cannot be seen: points too near to the one before, and those
/// between two others beyond the same edge. Nothing where all of it lies beyond one edge.
Ring OnMap(const MapView& view, const GeoLine& line) {
  constexpr double kNear = 0.3;
  Ring points;
  unsigned common = ~0U;
  for (const GeoPoint& geo : line) {
    const Point point = ToMap(view, geo);
    const bool last = &geo == &line.back();
    if (!last && !points.empty() && std::abs(point.x - points.back().x) < kNear &&
        std::abs(point.y - points.back().y) < kNear) {
      continue;
    }
    common &= Beyond(point);
    const std::size_t count = points.size();
    if (count >= 2 &&
        (Beyond(points[count - 2]) & Beyond(points[count - 1]) & Beyond(point)) != 0) {
      points.back() = point;
    } else {
      points.push_back(point);
    }
  }
  return common == 0 ? points : Ring();
}

std::vector<Ring> OnMap(const MapView& view, const std::vector<GeoLine>& lines) {
  std::vector<Ring> rings;
  for (const GeoLine& line : lines) {
    if (Ring ring = OnMap(view, line); !ring.empty()) {
      rings.push_back(std::move(ring));
    }
  }
  return rings;
}

/// Lines along all borders of squares, those of fields a little darker.
void AddSquares(Picture& picture, const MapView& view) {
  constexpr double kWidth = 0.6;
  const double first = std::ceil(view.west / 2) * 2;
  for (double longitude = first;; longitude += 2) {
    const double x = ToMap(view, {longitude, 0}).x;
    if (x > kMapWidth) {
      break;
    }
    const bool field = std::fmod(longitude, 20) == 0;
    picture.Add(Stroke{{{x, 0}, {x, kMapHeight}},
                       field ? map_colour::kFieldLine : map_colour::kSquareLine,
                       kWidth});
  }
  for (double latitude = std::floor(view.north);; latitude -= 1) {
    const double y = ToMap(view, {0, latitude}).y;
    if (y > kMapHeight) {
      break;
    }
    const bool field = std::fmod(latitude, 10) == 0;
    picture.Add(Stroke{{{0, y}, {kMapWidth, y}},
                       field ? map_colour::kFieldLine : map_colour::kSquareLine,
                       kWidth});
  }
}

}  // namespace

Picture MapBackground(const MapView& view) {
  constexpr double kCoastWidth = 0.8;
  constexpr double kBorderWidth = 0.9;
  Picture picture(kMapWidth, kMapHeight, map_colour::kSea);
  std::vector<Ring> land = OnMap(view, Outlines().land);
  picture.Add(Area{land, map_colour::kLand});
  picture.Add(Area{OnMap(view, Outlines().italy), map_colour::kItaly});
  AddSquares(picture, view);
  for (Ring& border : OnMap(view, Outlines().borders)) {
    picture.Add(Stroke{std::move(border), map_colour::kBorder, kBorderWidth});
  }
  for (Ring& coast : land) {
    coast.push_back(coast.front());
    picture.Add(Stroke{std::move(coast), map_colour::kCoast, kCoastWidth});
  }
  return picture;
}

}  // namespace velmar
