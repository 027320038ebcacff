#include "sample/stations.h"

#include <algorithm>
#include <array>

#include "model/text.h"

namespace velmar::sample {

namespace {

constexpr std::size_t kForeignEvery = 8;    // of as many stations one is foreign,
constexpr std::size_t kPortableEvery = 12;  // and of as many one is portable
constexpr int kMostClockError = 4;          // so two logs differ by 8 minutes at most

struct Region {
  std::vector<std::string_view> prefixes;
  std::vector<std::string_view> squares;
  int weight;
};

const std::vector<Region>& ItalianRegions() {
  static const std::vector<Region> regions = {
      {{"IK0", "IZ0", "IW0"}, {"JN61", "JN62"}, 8},
      {{"IS0"}, {"JM49", "JN40", "JN41"}, 2},
      {{"IX1"}, {"JN35"}, 1},
      {{"I1", "IK1", "IZ1", "IW1"}, {"JN34", "JN35", "JN44", "JN45"}, 10},
      {{"I2", "IK2", "IZ2", "IW2", "IU2"}, {"JN45", "JN55", "JN46"}, 12},
      {{"I3", "IK3", "IZ3", "IW3"}, {"JN55", "JN65", "JN56"}, 10},
      {{"IN3"}, {"JN56"}, 2},
      {{"IV3"}, {"JN65", "JN66"}, 4},
      {{"I4", "IK4", "IZ4", "IW4", "IU4"}, {"JN54", "JN64", "JN44"}, 10},
      {{"I5", "IK5", "IZ5", "IW5"}, {"JN53", "JN52", "JN54"}, 9},
      {{"I6", "IK6", "IZ6"}, {"JN63", "JN62", "JN72"}, 6},
      {{"IK7", "IZ7", "IU7"}, {"JN80", "JN81", "JN90"}, 5},
      {{"I8", "IK8", "IZ8", "IW8"}, {"JN70", "JN71", "JM78", "JM88"}, 7},
      {{"IT9", "IZ9", "IW9"}, {"JM67", "JM68", "JM77", "JM78"}, 5}};
  return regions;
}

const std::vector<Region>& ForeignRegions() {
  static const std::vector<Region> regions = {{{"9A1", "9A2"}, {"JN65", "JN75", "JN86"}, 3},
                                              {{"S51", "S57"}, {"JN65", "JN75", "JN76"}, 4},
                                              {{"HB9"}, {"JN36", "JN46", "JN47"}, 2},
                                              {{"F1", "F4"}, {"JN23", "JN25", "JN33"}, 3},
                                              {{"OE5", "OE8"}, {"JN67", "JN68", "JN78"}, 2},
                                              {{"DL1", "DK2"}, {"JN48", "JN58", "JN59"}, 2},
                                              {{"HA1"}, {"JN86", "JN87"}, 1}};
  return regions;
}

const Region& PickWeighted(Random& random, const std::vector<Region>& regions) {
  int total = 0;
  for (const Region& region : regions) {
    total += region.weight;
  }
  int drawn = random.Between(1, total);
  return *std::ranges::find_if(
      regions, [&drawn](const Region& region) { return (drawn -= region.weight) <= 0; });
}

char Letter(Random& random, char low, char high) {
  return static_cast<char>(random.Between(low, high));
}

// The renaming takes "I/" and "IK/" for prefixes wherever they stand: a portable call that ends so
// would lose its end, and might come out as the call of another station.
bool EndsAsPrefix(std::string_view call) {
  return call.ends_with("I") || call.ends_with("IK");
}

// A call whose last part begins with Q: such calls are given to nobody.
std::string MakeCall(Random& random, const Region& region, CallPool& calls) {
  std::string call;
  do {
    call = Join(random.Pick(region.prefixes), "Q");
    call += Letter(random, 'A', 'Z');
    call += Letter(random, 'A', 'Z');
  } while (EndsAsPrefix(call) || !calls.Add(call));
  return call;
}

Station MakeStation(Random& random, const Region& region, CallPool& calls) {
  Station station;
  station.call = MakeCall(random, region, calls);
  station.locator = random.Pick(region.squares);
  station.locator += Letter(random, 'C', 'V');
  station.locator += Letter(random, 'C', 'V');
  return station;
}

// Every Italian region has its turn before the weights come into play.
class RegionDeck {
 public:
  explicit RegionDeck(Random& random) : random_(random) {
    for (const Region& region : ItalianRegions()) {
      first_turns_.push_back(&region);
    }
    random.Shuffle(first_turns_);
  }

  const Region& Next(std::size_t station) {
    if (station % kForeignEvery == kForeignEvery - 1) {
      return PickWeighted(random_, ForeignRegions());
    }
    if (first_turns_.empty()) {
      return PickWeighted(random_, ItalianRegions());
    }
    const Region* const region = first_turns_.back();
    first_turns_.pop_back();
    return *region;
  }

 private:
  Random& random_;
  std::vector<const Region*> first_turns_;
};

void AssignRefusals(Random& random, std::vector<Station>& stations) {
  std::vector<Station*> candidates;
  for (Station& station : stations) {
    if (station.sends_log && station.italian() && !station.portable()) {
      candidates.push_back(&station);
    }
  }
  random.Shuffle(candidates);
  for (const FaultKind kind : kRefusals) {
    candidates.back()->refusal = kind;
    candidates.pop_back();
  }
}

}  // namespace

bool CallPool::Add(const std::string& base) {
  for (const std::string& used : bases_) {
    if (Holds(used, base) || Holds(base, used)) {
      return false;
    }
  }
  bases_.push_back(base);
  return true;
}

Station InventStation(Random& random, CallPool& calls) {
  const Region& region = PickWeighted(random, ItalianRegions());
  return MakeStation(random, region, calls);
}

std::vector<Station> MakeStations(Random& random, std::size_t logs, CallPool& calls) {
  const std::size_t silent = logs * 15 / 85;
  RegionDeck deck(random);
  std::vector<Station> stations;
  for (std::size_t i = 0; i < logs + silent; ++i) {
    const Region& region = deck.Next(i);
    Station station = MakeStation(random, region, calls);
    station.call += i % kPortableEvery == kPortableEvery / 2 - 1 ? "/P" : "";
    station.sends_log = i < logs;
    if (random.Chance(40)) {
      station.clock_error = random.Between(-kMostClockError, kMostClockError);
    }
    stations.push_back(station);
  }
  if (logs >= kLogsForEveryFault) {
    AssignRefusals(random, stations);
  }
  return stations;
}

}  // namespace velmar::sample
