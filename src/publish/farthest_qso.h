#pragma once

#include <optional>
#include <string_view>

#include "model/columns.h"

namespace velmar {

/// The points of a row of the library as the statistics take them: the blank ahead of them and the
/// first four digits.
inline constexpr Column kCountedPoints{31, 5};

inline double PointsOf(std::string_view row) {
  return Val(Cut(row, kCountedPoints));
}

/// The row with the most points, the first of equals; nothing where no row has any.
template <typename Rows>
std::optional<std::string_view> FarthestQso(const Rows& rows) {
  std::optional<std::string_view> farthest;
  double most = 0;
  for (const std::string_view row : rows) {
    if (const double points = PointsOf(row); points > most) {
      most = points;
      farthest = row;
    }
  }
  return farthest;
}

}  // namespace velmar
