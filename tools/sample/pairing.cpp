#include "sample/pairing.h"

#include <algorithm>
#include <string>

#include "sample/contacts.h"

namespace velmar::sample {

namespace {

// Subsquares to the east and to the north.
struct Cell {
  int east;
  int north;
};

Cell CellOf(const std::string& locator) {
  const auto axis = [&](std::size_t at) {
    return ((locator[at] - 'A') * 10 + (locator[at + 2] - '0')) * 24 + (locator[at + 4] - 'A');
  };
  return {axis(0), axis(1)};
}

// How likely two stations work each other. Whole numbers alone, by the size of a subsquare at
// 43 degrees north in units of 10 m: the pairs are the same on every machine.
int WeightOf(const Cell& a, const Cell& b) {
  const long long east = (a.east - b.east) * 677LL;
  const long long north = (a.north - b.north) * 463LL;
  const long long square = east * east + north * north;
  const auto within = [square](long long km) { return square < km * km * 10000; };
  return within(50) ? 4 : within(300) ? 8 : within(500) ? 4 : within(750) ? 2 : 1;
}

class Pairing {
 public:
  Pairing(Random& random, const std::vector<Station>& stations, std::size_t qsos)
      : random_(random),
        stations_(stations),
        degrees_(stations.size()),
        worked_(stations.size(), std::vector<bool>(stations.size())),
        weights_(stations.size()) {
    const int mean = static_cast<int>(qsos);
    const std::size_t most = std::min(kMostPairs, stations.size() - 1);
    for (const Station& station : stations) {
      cells_.push_back(CellOf(station.locator));
      const int percent = station.sends_log ? random.Between(80, 125) : random.Between(20, 60);
      targets_.push_back(std::min(static_cast<std::size_t>((mean * percent + 50) / 100), most));
    }
  }

  std::vector<std::pair<std::size_t, std::size_t>> Make() {
    WorkTheUnheard();
    WorkToTargets();
    WorkTheIdle();
    return pairs_;
  }

 private:
  bool BelowTarget(std::size_t i) const { return degrees_[i] < targets_[i]; }

  // Nobody takes note of stations without an accepted log unless others that have one do.
  void WorkTheUnheard() {
    const auto wanted = [this](std::size_t i) { return stations_[i].accepted() && BelowTarget(i); };
    const auto accepted = [this](std::size_t i) { return stations_[i].accepted(); };
    for (std::size_t i = 0; i < stations_.size(); ++i) {
      for (int times = stations_[i].accepted() ? 0 : 2; times > 0; --times) {
        if (!Work(i, wanted)) {
          Work(i, accepted);
        }
      }
    }
  }

  void WorkToTargets() {
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < stations_.size(); ++i) {
      order.push_back(i);
    }
    random_.Shuffle(order);
    const auto wanted = [this](std::size_t i) { return BelowTarget(i); };
    for (const std::size_t i : order) {
      while (BelowTarget(i) && Work(i, wanted)) {
      }
    }
  }

  void WorkTheIdle() {
    for (std::size_t i = 0; i < stations_.size(); ++i) {
      if (degrees_[i] == 0) {
        Work(i, [](std::size_t) { return true; });
      }
    }
  }

  // Pairs a station with a new one of those wanted; false when there is none.
  template <typename Wanted>
  bool Work(std::size_t i, const Wanted& wanted) {
    int total = 0;
    for (std::size_t j = 0; j < stations_.size(); ++j) {
      const bool logged = stations_[i].sends_log || stations_[j].sends_log;
      const bool possible = j != i && logged && !worked_[i][j] && wanted(j);
      weights_[j] = possible ? WeightOf(cells_[i], cells_[j]) : 0;
      total += weights_[j];
    }
    if (total == 0) {
      return false;
    }
    int drawn = random_.Between(1, total);
    std::size_t partner = 0;
    while ((drawn -= weights_[partner]) > 0) {
      ++partner;
    }
    Connect(i, partner);
    return true;
  }

  void Connect(std::size_t i, std::size_t j) {
    worked_[i][j] = worked_[j][i] = true;
    ++degrees_[i];
    ++degrees_[j];
    pairs_.emplace_back(i, j);
  }

  Random& random_;
  const std::vector<Station>& stations_;
  std::vector<Cell> cells_;
  std::vector<std::size_t> targets_;
  std::vector<std::size_t> degrees_;
  std::vector<std::vector<bool>> worked_;
  std::vector<int> weights_;
  std::vector<std::pair<std::size_t, std::size_t>> pairs_;
};

}  // namespace

std::vector<std::pair<std::size_t, std::size_t>> MakePairs(Random& random,
                                                           const std::vector<Station>& stations,
                                                           std::size_t qsos) {
  return Pairing(random, stations, qsos).Make();
}

}  // namespace velmar::sample
