#include "sample/fault_spots.h"

namespace velmar::sample {

SpotPool::SpotPool(Random& random, const std::vector<Station>& stations,
                   const std::vector<Contact>& contacts)
    : random_(random), stations_(stations), contacts_(contacts) {
  for (std::size_t i = 0; i < contacts.size(); ++i) {
    const auto [a, b] = contacts[i].stations;
    if (stations[a].accepted() && stations[b].accepted()) {
      free_.push_back(i);
    }
  }
  random.Shuffle(free_);
}

Spot SpotPool::AnyOf(std::size_t station) {
  std::vector<Spot> spots;
  for (std::size_t i = 0; i < contacts_.size(); ++i) {
    for (std::size_t side = 0; side < 2; ++side) {
      if (contacts_[i].stations[side] == station && !contacts_[i].fault) {
        spots.push_back({i, side});
      }
    }
  }
  return random_.Pick(spots);
}

std::size_t SpotPool::NextLog() {
  if (turns_.empty()) {
    for (std::size_t i = 0; i < stations_.size(); ++i) {
      if (stations_[i].accepted()) {
        turns_.push_back(i);
      }
    }
    random_.Shuffle(turns_);
  }
  const std::size_t log = turns_.back();
  turns_.pop_back();
  return log;
}

}  // namespace velmar::sample
