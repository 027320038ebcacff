#include "publish/map_view.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "model/text.h"
#include "publish/map_colours.h"

namespace velmar {

namespace {

constexpr double kFieldDegrees = 20;  // of longitude; of latitude it is half of that
constexpr double kWestOfI = -20;
constexpr double kSouthOfF = -40;
constexpr int kSquaresOfField = 10;
constexpr int kLineStep = 21;

/// The edges of the closer maps are borders of squares, and their squares are whole steps of the
/// lines, so that the lines run along all borders; the squares come near their true shape. On the
/// map of all squares one is a step wide and half a step high. Western Europe goes from Ireland to
/// Calabria, at the price that its level lines run along the borders of fields only.
constexpr std::array<MapView, 7> kMapViews = {
    {{.title = "Europa",
      .kind = MapKind::kGeneral,
      .west = -10,
      .north = 61,
      .square_width = 39,
      .square_height = 19,
      .square = {colour::kYellow, colour::kRed, 7},
      .keeps_year = true},
     {.title = "Italia nord", .west = 4, .north = 48, .square_width = 147, .square_height = 105},
     {.title = "Italia centro", .west = 6, .north = 45, .square_width = 147, .square_height = 105},
     {.title = "Italia sud e isole",
      .west = 6,
      .north = 42,
      .square_width = 126,
      .square_height = 84},
     {.title = "Europa occidentale",
      .kind = MapKind::kFieldLevel,
      .west = -14,
      .north = 55,
      .square_width = 42,
      .square_height = 29.4,
      .locator = {colour::kGreen, colour::kBlack, 3}},
     {.title = "Balcani", .west = 8, .north = 47, .square_width = 63, .square_height = 42},
     {.title = "Tutti gli squares",
      .kind = MapKind::kFieldLevel,
      .west = -28,
      .north = 74,
      .square_width = 21,
      .square_height = 10.5,
      .locator = {colour::kGreen, colour::kBlack, 2},
      .keeps_year = true}}};

/// The grid of the general map, which is drawn to these numbers: the left edges of the fields I, J
/// and K, the lower edges of the fields F to P, and what a subsquare's letter adds.
constexpr std::array<double, 3> kFieldLeft = {-195, 195, 585};
/// From G to H it is 150 and not 190: squares of the fields further south lie 40 units higher than
/// on an even grid. That is meant so.
constexpr std::array<double, 11> kFieldBottom = {1879, 1689, 1539, 1349, 1159, 969,
                                                 779,  589,  399,  209,  19};
constexpr std::array<double, 24> kSubsquareRight = {1,  2,  4,  6,  8,  9,  10, 12, 14, 16, 18, 20,
                                                    22, 24, 26, 28, 30, 32, 34, 35, 36, 37, 38, 38};
constexpr std::array<double, 24> kSubsquareUp = {1, 2, 3, 3,  4,  4,  5,  5,  6,  6,  7,  8,
                                                 8, 9, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};

/// A locator as numbers, each counted from 0: of the letters I to K and F to P, the digits, and the
/// letters of the subsquare where it has them.
struct GridPlace {
  int field_column = 0;
  int field_row = 0;
  int column = 0;
  int row = 0;
  bool has_subsquare = false;
  int sub_column = 0;
  int sub_row = 0;
};

std::optional<GridPlace> Parse(std::string_view locator) {
  constexpr std::string_view kLowest = "IF00AA";
  constexpr std::string_view kHighest = "KP99XX";
  constexpr std::size_t kSquare = 4;
  // Behind a locator of four characters a row goes on with a blank and the points.
  if (locator.size() > kSquare && locator[kSquare] < 'A') {
    locator = Left(locator, kSquare);
  }
  if (locator.size() != kSquare && locator.size() != kLowest.size()) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < locator.size(); ++i) {
    if (locator[i] < kLowest[i] || locator[i] > kHighest[i]) {
      return std::nullopt;
    }
  }
  GridPlace place{locator[0] - 'I', locator[1] - 'F', locator[2] - '0', locator[3] - '0'};
  if (locator.size() == kLowest.size()) {
    place.has_subsquare = true;
    place.sub_column = locator[4] - 'A';
    place.sub_row = locator[5] - 'A';
  }
  return place;
}

Point GeneralPlace(const MapView& view, const GridPlace& place) {
  constexpr double kMiddleRight = 19;
  constexpr double kMiddleUp = 9;
  const double right = place.has_subsquare ? kSubsquareRight[place.sub_column] : kMiddleRight;
  const double up = place.has_subsquare ? kSubsquareUp[place.sub_row] : kMiddleUp;
  return {kFieldLeft[place.field_column] + place.column * view.square_width + right,
          kFieldBottom[place.field_row] - place.row * view.square_height - up};
}

GeoPoint Centre(const GridPlace& place) {
  constexpr double kSubsquares = 24;
  const double right = place.has_subsquare ? (place.sub_column + 0.5) / kSubsquares : 0.5;
  const double up = place.has_subsquare ? (place.sub_row + 0.5) / kSubsquares : 0.5;
  return {kWestOfI + place.field_column * kFieldDegrees + (place.column + right) * 2,
          kSouthOfF + place.field_row * kFieldDegrees / 2 + place.row + up};
}

void AddUpright(Picture& picture, double x, int colour, double width) {
  picture.Add(Stroke{{{x, 0}, {x, kMapHeight}}, colour, width});
}

void AddLevel(Picture& picture, double y, int colour, double width) {
  picture.Add(Stroke{{{0, y}, {kMapWidth, y}}, colour, width});
}

/// Whether a distance is a whole number of steps.
bool OnStep(double distance, double step) {
  return std::abs(std::remainder(distance, step)) < 0.01;
}

/// Lines over all of a map, those a little wider that are borders of what the map names: squares,
/// or fields on a field-level one.
void AddGrid(Picture& picture, const MapView& view) {
  constexpr double kThin = 0.5;
  constexpr double kWide = 1.2;
  const double cells = view.kind == MapKind::kFieldLevel ? kSquaresOfField : 1;
  const Point origin = ToMap(view, {0, 0});
  for (int x = 0; x <= kMapWidth; x += kLineStep) {
    const bool border = OnStep(x - origin.x, view.square_width * cells);
    AddUpright(picture, x, colour::kGreen, border ? kWide : kThin);
  }
  for (int y = 0; y <= kMapHeight; y += kLineStep) {
    const bool border = OnStep(y - origin.y, view.square_height * cells);
    AddLevel(picture, y, colour::kGreen, border ? kWide : kThin);
  }
}

/// Adds a name in the upper left of what is to be seen of a square or field, away from the mark in
/// the middle, and only where there is room. `corner` is the one in the south-west.
void AddName(Picture& picture, const MapView& view, const std::string& name,
             const GeoPoint& corner) {
  constexpr double kIndent = 2;
  const bool field = name.size() == 2;
  const double degrees = field ? kFieldDegrees : 2;
  const double height = field ? 15 : std::min(9.0, std::round(view.square_height / 5));
  const Point room = {height * (field ? 2 : 3), height * 1.2};
  const Point upper = ToMap(view, {corner.longitude, corner.latitude + degrees / 2});
  const Point lower = ToMap(view, {corner.longitude + degrees, corner.latitude});
  const Point from = {std::max(upper.x, 0.0) + kIndent, std::max(upper.y, 0.0)};
  if (std::min(lower.x, kMapWidth) - from.x < room.x ||
      std::min(lower.y, kMapHeight) - from.y < room.y) {
    return;
  }
  const Point centre = {from.x + room.x / 2, from.y + room.y / 2};
  picture.Add(Lettering{centre, name, field ? map_colour::kFieldName : map_colour::kSquareName,
                        height, field});
}

/// The names of all squares of a field.
void AddSquareNames(Picture& picture, const MapView& view, const std::string& field,
                    const GeoPoint& corner) {
  for (int column = 0; column < kSquaresOfField; ++column) {
    for (int row = 0; row < kSquaresOfField; ++row) {
      AddName(picture, view, Join(field, column, row),
              {corner.longitude + column * 2, corner.latitude + row});
    }
  }
}

}  // namespace

const std::array<MapView, 7>& MapViews() {
  return kMapViews;
}

Point ToMap(const MapView& view, const GeoPoint& geo) {
  return {(geo.longitude - view.west) / 2 * view.square_width,
          (view.north - geo.latitude) * view.square_height};
}

std::optional<Point> PlaceOf(const MapView& view, std::string_view locator) {
  const std::optional<GridPlace> place = Parse(locator);
  if (!place) {
    return std::nullopt;
  }
  return view.kind == MapKind::kGeneral ? GeneralPlace(view, *place) : ToMap(view, Centre(*place));
}

Picture FieldLines(const MapView& view) {
  Picture picture(kMapWidth, kMapHeight, map_colour::kSea);
  if (view.kind != MapKind::kGeneral) {
    AddGrid(picture, view);
    return picture;
  }
  for (const double x : {194, 195, 584, 585}) {
    AddUpright(picture, x, colour::kRed, 1);
  }
  for (const double y : {19, 20, 209, 210, 399, 400}) {
    AddLevel(picture, y, colour::kRed, 1);
  }
  return picture;
}

Picture GridLabels(const MapView& view) {
  Picture picture(kMapWidth, kMapHeight, map_colour::kSea);
  for (const char column : {'I', 'J', 'K'}) {
    for (const char row : {'M', 'N', 'O', 'P'}) {
      const std::string field = {column, row};
      const GeoPoint corner = {kWestOfI + (column - 'I') * kFieldDegrees,
                               kSouthOfF + (row - 'F') * kFieldDegrees / 2};
      if (view.kind == MapKind::kCloser) {
        AddSquareNames(picture, view, field, corner);
      } else {
        AddName(picture, view, field, corner);
      }
    }
  }
  return picture;
}

}  // namespace velmar
