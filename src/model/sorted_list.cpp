#include "model/sorted_list.h"

#include <algorithm>
#include <utility>

#include "model/text.h"

namespace velmar {

void SortedList::Add(std::string text) {
  rows_.push_back(std::move(text));
}

const std::vector<std::string>& SortedList::rows() const {
  if (sorted_ != rows_.size()) {
    std::vector<std::pair<std::string, std::string>> keyed;
    keyed.reserve(rows_.size());
    for (std::string& row : rows_) {
      keyed.emplace_back(Lower(row), std::move(row));
    }
    std::stable_sort(keyed.begin(), keyed.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::transform(keyed.begin(), keyed.end(), rows_.begin(),
                   [](auto& entry) { return std::move(entry.second); });
    sorted_ = rows_.size();
  }
  return rows_;
}

std::vector<std::string> Distinct(const std::vector<std::string>& sorted, std::size_t compared) {
  std::vector<std::string> distinct;
  for (const std::string& row : sorted) {
    if (distinct.empty() || Left(distinct.back(), compared) != Left(row, compared)) {
      distinct.push_back(row);
    }
  }
  return distinct;
}

}  // namespace velmar
