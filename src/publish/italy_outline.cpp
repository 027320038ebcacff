#include "publish/italy_outline.h"

#include <cmath>
#include <utility>
#include <vector>

#include "platform/form.h"
#include "publish/map_outlines.h"
#include "publish/square_grid.h"

namespace velmar {

namespace {

/// Of a square, in units of the picture: as wide and high as its cell is in half points.
constexpr double kSquareWidth = 72;
constexpr double kSquareHeight = 34;

constexpr double kLineWidth = 1.8;
constexpr int kLineColour = colour::Rgb(0, 84, 166);
constexpr int kClear = -1;

Point OnPicture(const GeoPoint& place) {
  namespace grid = square_grid;
  const double column = (place.longitude - grid::kNorthWest.longitude) / grid::kDegreesWide;
  const double row = (grid::kNorthWest.latitude - place.latitude) / grid::kDegreesHigh;
  return {(column - (grid::kItaly.first.column - grid::kCells.first.column)) * kSquareWidth,
          (row - (grid::kItaly.first.row - grid::kCells.first.row)) * kSquareHeight};
}

}  // namespace

Picture ItalyOutline() {
  constexpr double kNear = 0.5;
  const auto [first, last] = square_grid::kItaly;
  Picture picture((last.column - first.column + 1) * kSquareWidth,
                  (last.row - first.row + 1) * kSquareHeight, kClear);
  for (const GeoLine& ring : Outlines().italy) {
    std::vector<Point> points;
    for (const GeoPoint& place : ring) {
      const Point point = OnPicture(place);
      if (points.empty() || std::abs(point.x - points.back().x) >= kNear ||
          std::abs(point.y - points.back().y) >= kNear) {
        points.push_back(point);
      }
    }
    points.push_back(points.front());
    picture.Add(Stroke{std::move(points), kLineColour, kLineWidth});
  }
  return picture;
}

}  // namespace velmar
