#include "publish/field_counters.h"

#include <algorithm>
#include <numeric>

#include "model/text.h"

namespace velmar {

void FieldCounters::Count(std::string_view locator) {
  const auto* const field = std::ranges::find(kFields, Left(locator, 2));
  if (field != kFields.end()) {
    ++counts_.at(static_cast<std::size_t>(field - kFields.begin()));
  }
}

int FieldCounters::total() const {
  return std::accumulate(counts_.begin(), counts_.end(), 0);
}

std::vector<std::string> FieldCounters::Texts() const {
  std::vector<std::string> texts;
  for (const int count : counts_) {
    texts.push_back(std::to_string(count));
  }
  texts.push_back(std::to_string(total()));
  return texts;
}

}  // namespace velmar
