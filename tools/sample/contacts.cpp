#include "sample/contacts.h"

#include <algorithm>
#include <numeric>
#include <utility>

#include "sample/pairing.h"

namespace velmar::sample {

namespace {

constexpr int kTriesForMinute = 12;

Entry TrueEntry(const Station& own, const Station& other, int minute) {
  Entry entry;
  entry.minute = LoggedMinute(own, minute);
  entry.call = other.call;
  entry.locator = other.locator;
  return entry;
}

// How many QSOs each station has in each minute.
class Timetable {
 public:
  explicit Timetable(std::size_t stations) : qsos_(stations) {}

  // Of several minutes the one in which both have the fewest.
  int Draw(Random& random, std::size_t a, std::size_t b) {
    const auto load = [&](int minute) { return At(a, minute) + At(b, minute); };
    int least = random.Between(kFirstMinute, kLastMinute);
    for (int tries = 1; tries < kTriesForMinute && load(least) > 0; ++tries) {
      const int minute = random.Between(kFirstMinute, kLastMinute);
      least = load(minute) < load(least) ? minute : least;
    }
    ++At(a, least);
    ++At(b, least);
    return least;
  }

 private:
  int& At(std::size_t station, int minute) {
    return qsos_[station].at(static_cast<std::size_t>(minute - kFirstMinute));
  }

  std::vector<std::array<int, kLastMinute - kFirstMinute + 1>> qsos_;
};

}  // namespace

std::string Hhmm(int minute) {
  const int number = 10000 + minute / 60 * 100 + minute % 60;
  return std::to_string(number).substr(1);
}

int LoggedMinute(const Station& station, int minute) {
  return std::clamp(minute + station.clock_error, kFirstLogged, kLastLogged);
}

void DrawReports(Random& random, Contact& contact) {
  contact.mode = random.Chance(15) ? 2 : 1;
  for (int& report : contact.reports) {
    const int strength = random.Chance(60) ? 9 : random.Between(5, 8);
    report = contact.mode == 2 ? 500 + strength * 10 + 9 : 50 + strength;
  }
}

std::vector<Contact> MakeContacts(Random& random, const std::vector<Station>& stations,
                                  std::size_t qsos) {
  Timetable timetable(stations.size());
  std::vector<Contact> contacts;
  for (const auto& [a, b] : MakePairs(random, stations, qsos)) {
    Contact contact;
    contact.stations = {a, b};
    contact.minute = timetable.Draw(random, a, b);
    DrawReports(random, contact);
    contact.entries = {TrueEntry(stations[a], stations[b], contact.minute),
                       TrueEntry(stations[b], stations[a], contact.minute)};
    contacts.push_back(std::move(contact));
  }
  return contacts;
}

std::vector<std::size_t> NumberContacts(std::vector<Contact>& contacts, std::size_t stations) {
  std::vector<std::size_t> order(contacts.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::ranges::stable_sort(order, {}, [&](std::size_t i) { return contacts[i].minute; });
  std::vector<int> last(stations);
  for (const std::size_t i : order) {
    Contact& contact = contacts[i];
    for (std::size_t side = 0; side < 2; ++side) {
      if (contact.stations[side] != kNobody) {
        contact.numbers[side] = ++last[contact.stations[side]];
      }
    }
    if (contact.repeats != kNobody) {
      const Contact& first = contacts[contact.repeats];
      const bool same_side = first.stations[0] == contact.stations[0];
      contact.numbers[1] = first.numbers[same_side ? 1 : 0];
    }
  }
  return order;
}

}  // namespace velmar::sample
