#include "ui/tab_stops.h"

#include <algorithm>

namespace velmar {

namespace {

constexpr std::size_t kGap = 3;
constexpr std::size_t kWidest = 20;

/// Takes the next cell that a tab follows off `row`.
bool NextCell(std::string_view& row, std::string_view& cell) {
  const std::size_t tab = row.find('\t');
  if (tab == std::string_view::npos) {
    return false;
  }
  cell = row.substr(0, tab);
  row.remove_prefix(tab + 1);
  return true;
}

}  // namespace

void TabStops::Widen(std::string_view row) {
  std::size_t column = 0;
  for (std::string_view cell; NextCell(row, cell); ++column) {
    widths_.resize(std::max(widths_.size(), column + 1));
    widths_[column] = std::max(widths_[column], std::min(cell.size(), kWidest));
  }
}

std::string TabStops::Spread(std::string_view row) const {
  std::string spread;
  std::size_t column = 0;
  for (std::string_view cell; NextCell(row, cell); ++column) {
    spread += cell;
    spread.append(ColumnFor(column, cell) - cell.size(), ' ');
  }
  return spread.append(row);
}

std::size_t TabStops::WidthOf(std::string_view row) const {
  std::size_t width = 0;
  std::size_t column = 0;
  for (std::string_view cell; NextCell(row, cell); ++column) {
    width += ColumnFor(column, cell);
  }
  return width + row.size();
}

std::size_t TabStops::ColumnFor(std::size_t column, std::string_view cell) const {
  const std::size_t width = column < widths_.size() ? widths_[column] : 0;
  return std::max(width, cell.size()) + kGap;
}

}  // namespace velmar
