#include "publish/map_outlines.h"

#include <algorithm>
#include <charconv>

namespace velmar {

namespace {

constexpr std::string_view kStart = "from ";
constexpr int kUnitsOfDegree = 1000;

/// Takes a number, and the blank behind it, from the beginning of a row.
int TakeNumber(std::string_view& row) {
  int number = 0;
  const char* end = std::from_chars(row.data(), row.data() + row.size(), number).ptr;
  row.remove_prefix(std::min<std::size_t>(row.size(), end - row.data() + 1));
  return number;
}

std::vector<GeoLine> Decode(std::span<const std::string_view> rows) {
  std::vector<GeoLine> lines;
  int east = 0;  // whole numbers, so that steps add up without any error
  int north = 0;
  for (std::string_view row : rows) {
    if (row.starts_with(kStart)) {
      row.remove_prefix(kStart.size());
      lines.emplace_back();
      east = 0;
      north = 0;
    }
    while (!row.empty()) {
      east += TakeNumber(row);
      north += TakeNumber(row);
      lines.back().push_back({static_cast<double>(east) / kUnitsOfDegree,
                              static_cast<double>(north) / kUnitsOfDegree});
    }
  }
  return lines;
}

}  // namespace

const MapOutlines& Outlines() {
  static const MapOutlines outlines = [] {
    const OutlineRows rows = BuiltInOutlines();
    return MapOutlines{Decode(rows.land), Decode(rows.italy), Decode(rows.borders)};
  }();
  return outlines;
}

}  // namespace velmar
