#include "sample/pairing.h"

#include <algorithm>
#include <iterator>
#include <numeric>
#include <optional>
#include <string>

#include "sample/contacts.h"

namespace velmar::sample {

namespace {

constexpr int kGreatestWeight = 8;
constexpr int kBlindDraws = 32;

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
  return within(50) ? 4 : within(300) ? kGreatestWeight : within(500) ? 4 : within(750) ? 2 : 1;
}

class Pairing {
 public:
  Pairing(Random& random, const std::vector<Station>& stations, std::size_t qsos)
      : random_(random),
        stations_(stations),
        everyone_(stations.size()),
        degrees_(stations.size()),
        worked_(stations.size(), std::vector<bool>(stations.size())) {
    std::iota(everyone_.begin(), everyone_.end(), std::size_t{0});
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
        if (!Work(i, everyone_, wanted)) {
          Work(i, everyone_, accepted);
        }
      }
    }
  }

  // Who had its turn is full, or has met everyone who is not: nobody need look there again.
  void WorkToTargets() {
    std::vector<std::size_t> left = everyone_;
    random_.Shuffle(left);
    const auto wanted = [this](std::size_t i) { return BelowTarget(i); };
    while (!left.empty()) {
      const std::size_t i = left.back();
      left.pop_back();
      while (BelowTarget(i) && Work(i, left, wanted)) {
      }
    }
  }

  void WorkTheIdle() {
    for (std::size_t i = 0; i < stations_.size(); ++i) {
      if (degrees_[i] == 0) {
        Work(i, everyone_, [](std::size_t) { return true; });
      }
    }
  }

  // Pairs a station with a new one of those that are wanted; false when there is none.
  template <typename Wanted>
  bool Work(std::size_t i, const std::vector<std::size_t>& others, const Wanted& wanted) {
    const auto weight = [&](std::size_t j) { return wanted(j) ? WeightOfNew(i, j) : 0; };
    auto partner = DrawBlind(others, weight);
    if (!partner) {
      partner = DrawFromAll(others, weight);
    }
    if (partner) {
      Connect(i, *partner);
    }
    return partner.has_value();
  }

  // 0 for two stations that cannot work each other any more.
  int WeightOfNew(std::size_t i, std::size_t j) const {
    const bool logged = stations_[i].sends_log || stations_[j].sends_log;
    return j != i && logged && !worked_[i][j] ? WeightOf(cells_[i], cells_[j]) : 0;
  }

  // Draws of any station, each kept as often as its weight tells: most partners are found so, and
  // the weights of the others need not be added up.
  template <typename Weight>
  std::optional<std::size_t> DrawBlind(const std::vector<std::size_t>& others,
                                       const Weight& weight) {
    for (int draws = 0; draws < kBlindDraws && !others.empty(); ++draws) {
      const std::size_t j = random_.Pick(others);
      if (random_.Between(1, kGreatestWeight) <= weight(j)) {
        return j;
      }
    }
    return std::nullopt;
  }

  template <typename Weight>
  std::optional<std::size_t> DrawFromAll(const std::vector<std::size_t>& others,
                                         const Weight& weight) {
    weights_.clear();
    std::ranges::transform(others, std::back_inserter(weights_), weight);
    const int total = std::accumulate(weights_.begin(), weights_.end(), 0);
    if (total == 0) {
      return std::nullopt;
    }
    int drawn = random_.Between(1, total);
    std::size_t at = 0;
    while ((drawn -= weights_[at]) > 0) {
      ++at;
    }
    return others[at];
  }

  void Connect(std::size_t i, std::size_t j) {
    worked_[i][j] = worked_[j][i] = true;
    ++degrees_[i];
    ++degrees_[j];
    pairs_.emplace_back(i, j);
  }

  Random& random_;
  const std::vector<Station>& stations_;
  std::vector<std::size_t> everyone_;
  std::vector<Cell> cells_;
  std::vector<std::size_t> targets_;
  std::vector<std::size_t> degrees_;
  std::vector<std::vector<bool>> worked_;
  std::vector<int> weights_;  // those of the last draw from all
  std::vector<std::pair<std::size_t, std::size_t>> pairs_;
};

}  // namespace

std::vector<std::pair<std::size_t, std::size_t>> MakePairs(Random& random,
                                                           const std::vector<Station>& stations,
                                                           std::size_t qsos) {
  return Pairing(random, stations, qsos).Make();
}

}  // namespace velmar::sample
