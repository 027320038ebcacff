#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "sample/contacts.h"
#include "sample/random.h"
#include "sample/stations.h"

namespace velmar::sample {

/// One log's side of a contact.
struct Spot {
  std::size_t contact;
  std::size_t side;
};

/// The places that are left for faults. Holds on to what it is made from.
class SpotPool {
 public:
  SpotPool(Random& random, const std::vector<Station>& stations,
           const std::vector<Contact>& contacts);

  /// Takes any contact between two accepted logs, with one of its sides, out of those left. Only
  /// spots that fit come into question; empty when there is none.
  template <typename Fits>
  std::optional<Spot> Take(const Fits& fits) {
    const std::size_t first_side = random_.Below(2);
    for (std::size_t i = free_.size(); i-- > 0;) {
      for (const std::size_t side : {first_side, 1 - first_side}) {
        const Spot spot = {free_[i], side};
        if (fits(spot)) {
          free_.erase(free_.begin() + static_cast<std::ptrdiff_t>(i));
          return spot;
        }
      }
    }
    return std::nullopt;
  }
  std::optional<Spot> Take() {
    return Take([](const Spot&) { return true; });
  }

  /// Any contact of a station without a fault, with the side of that station.
  Spot AnyOf(std::size_t station);

  /// A station with an accepted log. Each has its turn before one has its next.
  std::size_t NextLog();

 private:
  Random& random_;
  const std::vector<Station>& stations_;
  const std::vector<Contact>& contacts_;
  std::vector<std::size_t> free_;   // contacts that may get a fault
  std::vector<std::size_t> turns_;  // logs whose turn is still to come
};

}  // namespace velmar::sample
