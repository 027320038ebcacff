#include "publish/map_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <map>
#include <span>

#include "publish/map_background.h"

namespace velmar::test {
namespace {

TEST(MapView, TheGeneralMapPlacesByItsTables) {
  const MapView& general = MapViews()[0];
  EXPECT_EQ(PlaceOf(general, "JN45"), (Point{370, 295}));
  EXPECT_EQ(PlaceOf(general, "JN45  "), (Point{370, 295}));
  EXPECT_EQ(PlaceOf(general, "IO91"), (Point{175, 181}));
  EXPECT_EQ(PlaceOf(general, "KF00"), (Point{604, 1870}));
  EXPECT_EQ(PlaceOf(general, "JN45NL"), (Point{375, 296}));
  EXPECT_EQ(PlaceOf(general, "JN45AA"), (Point{352, 303}));
  EXPECT_EQ(PlaceOf(general, "JN45XX"), (Point{389, 286}));
  EXPECT_EQ(PlaceOf(general, "JH00")->y, 1530);
  EXPECT_EQ(PlaceOf(general, "JG09")->y, 1549 - 40) << "the row below it, 40 units too high";
}

TEST(MapView, TheOtherMapsPlaceInProportion) {
  const MapView& north = MapViews()[1];
  EXPECT_EQ(PlaceOf(north, "JN45"), (Point{367.5, 262.5}));
  const Point milan = PlaceOf(north, "JN45NL").value();
  EXPECT_NEAR(milan.x, 376.6875, 1e-6);
  EXPECT_NEAR(milan.y, 264.6875, 1e-6);
  EXPECT_LT(PlaceOf(north, "IO91")->x, 0) << "beyond the edge";
}

TEST(MapView, ATextThatIsNoLocatorOfTheMapsHasNoPlace) {
  for (const MapView& view : MapViews()) {
    for (const char* text : {"", "JN", "JN4", "JN45N", "JN45NLA", "jn45", "JN45nl", "JN4A",
                             "JN45NY", "HN45", "LN45", "JE45", "JQ45"}) {
      EXPECT_FALSE(PlaceOf(view, text)) << view.title << ": " << text;
    }
    EXPECT_EQ(PlaceOf(view, "JN45 9"), PlaceOf(view, "JN45")) << "the points of the row follow";
  }
}

/// Whether a place is in an area by the rule of even and odd.
bool Within(const Area& area, const Point& place) {
  bool within = false;
  for (const std::vector<Point>& ring : area.rings) {
    for (std::size_t i = 0; i < ring.size(); ++i) {
      const Point& a = ring[i];
      const Point& b = ring[(i + 1) % ring.size()];
      if ((a.y > place.y) != (b.y > place.y) &&
          place.x < a.x + (place.y - a.y) / (b.y - a.y) * (b.x - a.x)) {
        within = !within;
      }
    }
  }
  return within;
}

TEST(MapView, MarksAndBackgroundAgree) {
  // In Italy; abroad (Saar, Bern, Corsica, Dublin, Madrid, Sofia, Peloponnese); at sea.
  const std::map<char, std::vector<std::string>> places = {
      {'I', {"JN45OL", "JN55LK", "JN53FR", "JN61FV", "JM77AN", "JN40PC"}},
      {'A', {"JN39FI", "JN37QG", "JN42MH", "IO63QI", "IN80DK", "KN12PQ", "KM17BM"}},
      {'S', {"JM69", "JN43LX", "JN73", "IN65", "KM24"}}};
  for (const MapView& view : MapViews()) {
    const Picture background = MapBackground(view);
    const Area& land = std::get<Area>(background.shapes()[0]);
    const Area& italy = std::get<Area>(background.shapes()[1]);
    int seen = 0;
    for (const auto& [ground, locators] : places) {
      for (const std::string& locator : locators) {
        const Point place = PlaceOf(view, locator).value();
        if (place.x > 0 && place.x < kMapWidth && place.y > 0 && place.y < kMapHeight) {
          ++seen;
          EXPECT_EQ(Within(land, place), ground != 'S') << view.title << ": " << locator;
          EXPECT_EQ(Within(italy, place), ground == 'I') << view.title << ": " << locator;
        }
      }
    }
    EXPECT_GE(seen, 4) << view.title;
  }
}

/// The widths of the upright and of the level lines, by their place.
using Lines = std::map<double, double>;

std::pair<Lines, Lines> LinesOf(const MapView& view) {
  std::pair<Lines, Lines> lines;
  const Picture drawn = FieldLines(view);
  for (const Shape& shape : drawn.shapes()) {
    const auto& stroke = std::get<Stroke>(shape);
    const Point& from = stroke.points[0];
    EXPECT_EQ(stroke.colour, view.kind == MapKind::kGeneral ? 255 : 65280);
    (from.x == stroke.points[1].x ? lines.first[from.x] : lines.second[from.y]) = stroke.width;
  }
  return lines;
}

TEST(MapView, LinesRunAlongTheBordersOfSquaresOrFields) {
  const auto [uprights, levels] = LinesOf(MapViews()[0]);
  EXPECT_EQ(uprights, (Lines{{194, 1}, {195, 1}, {584, 1}, {585, 1}}));
  EXPECT_EQ(levels, (Lines{{19, 1}, {20, 1}, {209, 1}, {210, 1}, {399, 1}, {400, 1}}));
  for (const MapView& view : std::span(MapViews()).subspan(1)) {
    const auto [columns, rows] = LinesOf(view);
    EXPECT_EQ(columns.size(), 40U);
    EXPECT_EQ(rows.size(), 25U);
    for (int step = 0; step < 40; step += view.kind == MapKind::kCloser ? 1 : 10) {
      const Point border = ToMap(view, {-20.0 + 2 * step, 30.0 + step});
      if (border.x >= 0 && border.x < kMapWidth) {
        EXPECT_GT(columns.lower_bound(border.x - 0.01)->second, 1) << view.title << border.x;
      }
      if (border.y >= 0 && border.y < kMapHeight) {
        EXPECT_GT(rows.lower_bound(border.y - 0.01)->second, 1) << view.title << border.y;
      }
    }
  }
}

TEST(MapView, NamesStandWithinTheSquaresThatTheyName) {
  const MapView& balkans = MapViews()[5];
  const Picture names = GridLabels(balkans);
  EXPECT_EQ(names.shapes().size(), 13U * 12U);
  for (const Shape& shape : names.shapes()) {
    const auto& name = std::get<Lettering>(shape);
    const Point middle = PlaceOf(balkans, name.text).value();
    EXPECT_LT(std::abs(name.centre.x - middle.x), 63 / 2) << name.text;
    EXPECT_LT(std::abs(name.centre.y - middle.y), 42 / 2) << name.text;
  }
  EXPECT_EQ(GridLabels(MapViews()[0]).shapes().size(), 12U) << "all fields";
}

}  // namespace
}  // namespace velmar::test
