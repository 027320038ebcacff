#include "sample/fault_planter.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

#include "model/edi_log.h"
#include "model/text.h"
#include "sample/fault_spots.h"

namespace velmar::sample {

namespace {

constexpr std::size_t kContactsPerFault = 20;
constexpr std::size_t kLeastOfEachKind = 2;
constexpr int kLeastTimeOff = 11;
constexpr int kMostTimeOff = 45;
static_assert(kLastLogged - kFirstLogged >= 2 * kLeastTimeOff, "a time can be off either way");
constexpr int kLeastRepeatGap = 5;
constexpr std::string_view kPortable = "/P";

class Planter {
 public:
  Planter(Random& random, const std::vector<Station>& stations, CallPool& calls,
          std::vector<Contact>& contacts)
      : random_(random),
        stations_(stations),
        calls_(calls),
        contacts_(contacts),
        spots_(random, stations, contacts) {}

  void PlantRefusals() {
    for (std::size_t i = 0; i < stations_.size(); ++i) {
      if (stations_[i].refusal == FaultKind::kBadQsoLocator) {
        BreakLocator(spots_.AnyOf(i));
      } else if (stations_[i].refusal == FaultKind::kShortOfSemicolons) {
        const Spot spot = spots_.AnyOf(i);
        EntryAt(spot).form = RowForm::kShortOfSemicolons;
        Note(spot, FaultKind::kShortOfSemicolons, "14 of ;", "12 of ;", "log refused");
      }
    }
  }

  void PlantCommon(std::size_t count) {
    using Method = void (Planter::*)();
    static constexpr std::array<Method, kCommonFaults.size()> kMethods = {
        &Planter::BustCall,      &Planter::BustLocator, &Planter::ShiftTime,
        &Planter::DropFromOther, &Planter::AddUnique,   &Planter::TurnPortableMark,
        &Planter::AddSelf,       &Planter::Repeat,      &Planter::AddError,
        &Planter::Delete};
    for (std::size_t i = 0; i < count; ++i) {
      round_ = i / kMethods.size();
      (this->*kMethods[i % kMethods.size()])();
    }
  }

 private:
  Entry& EntryAt(const Spot& spot) { return contacts_[spot.contact].entries[spot.side]; }
  const Entry& EntryAcross(const Spot& spot) const {
    return contacts_[spot.contact].entries[1 - spot.side];
  }
  const Station& StationAcross(const Spot& spot) const {
    return stations_[contacts_[spot.contact].stations[1 - spot.side]];
  }

  void Note(const Spot& spot, FaultKind kind, std::string_view sent, std::string_view logged,
            std::string_view note) {
    Contact& contact = contacts_[spot.contact];
    const std::size_t other = contact.stations[1 - spot.side];
    contact.fault = {kind,
                     spot.side,
                     other == kNobody ? std::string() : stations_[other].call,
                     std::string(sent),
                     std::string(logged),
                     std::string(note)};
  }

  // A row that stands in one log alone.
  Contact LoneContact(std::size_t log, int minute) {
    Contact contact;
    contact.stations = {log, kNobody};
    contact.minute = minute;
    DrawReports(random_, contact);
    contact.numbers[1] = random_.Between(1, 60);
    contact.entries[0].minute = LoggedMinute(stations_[log], minute);
    contact.entries[1].present = false;
    return contact;
  }

  // Such a row at any time, in the log whose turn it is.
  Contact LoneContact() {
    const std::size_t log = spots_.NextLog();
    const int minute = random_.Between(kFirstMinute, kLastMinute);
    return LoneContact(log, minute);
  }

  Spot AddContact(Contact contact) {
    contacts_.push_back(std::move(contact));
    return {contacts_.size() - 1, 0};
  }

  // Another digit or letter in place of one.
  char Mistaken(char c) {
    const char low = c <= '9' ? '0' : 'A';
    const char high = c <= '9' ? '9' : 'X';
    char other = c;
    while (other == c) {
      other = static_cast<char>(random_.Between(low, high));
    }
    return other;
  }

  void BustCall() {
    if (const auto spot = spots_.Take()) {
      const std::string& sent = StationAcross(*spot).call;
      const std::string base(OwnCallBase(sent));
      std::string busted;
      do {
        // The digit ahead of the Q, or one of the letters behind it.
        static constexpr std::array<std::size_t, 3> kPlaces = {0, 2, 3};
        const std::size_t at = base.find('Q') - 1 + random_.Pick(kPlaces);
        busted = base;
        busted[at] = Mistaken(base[at]);
      } while (!calls_.Add(busted));
      busted += sent.substr(base.size());
      EntryAt(*spot).call = busted;
      Note(*spot, FaultKind::kBustedCall, sent, busted, "one character of the call");
    }
  }

  void BustLocator() {
    if (const auto spot = spots_.Take()) {
      std::string& locator = EntryAt(*spot).locator;
      const std::string sent = locator;
      const std::size_t at = 2 + random_.Below(4);
      locator[at] = Mistaken(sent[at]);
      Note(*spot, FaultKind::kBustedLocator, sent, locator, "one character of the locator");
    }
  }

  void ShiftTime() {
    if (const auto spot = spots_.Take()) {
      const int across = EntryAcross(*spot).minute;
      const auto room = [&](bool late) {
        return late ? kLastLogged - across : across - kFirstLogged;
      };
      const bool drawn_late = random_.Chance(50);
      const bool late = room(drawn_late) < kLeastTimeOff ? !drawn_late : drawn_late;
      const int amount = random_.Between(kLeastTimeOff, std::min(kMostTimeOff, room(late)));
      const int shift = late ? amount : -amount;
      EntryAt(*spot).minute = across + shift;
      Note(*spot, FaultKind::kTimeOff, Hhmm(across), Hhmm(across + shift),
           Join(late ? "+" : "", shift, " minutes from the other log"));
    }
  }

  void DropFromOther() {
    if (const auto spot = spots_.Take()) {
      contacts_[spot->contact].entries[1 - spot->side].present = false;
      Note(*spot, FaultKind::kMissingQso, "", "",
           Join("not in the log of ", StationAcross(*spot).call));
    }
  }

  void AddUnique() {
    Contact contact = LoneContact();
    const Station invented = InventStation(random_, calls_);
    contact.entries[0].call = invented.call;
    contact.entries[0].locator = invented.locator;
    Note(AddContact(std::move(contact)), FaultKind::kUnique, "", invented.call,
         "worked by nobody else, no log");
  }

  // In turns "/P" is left out and added.
  void TurnPortableMark() {
    const bool leave_out = round_ % 2 == 0;
    const auto fits = [&](const Spot& spot) { return StationAcross(spot).portable() == leave_out; };
    if (const auto spot = spots_.Take(fits)) {
      const std::string& sent = StationAcross(*spot).call;
      const std::string logged = leave_out ? std::string(OwnCallBase(sent)) : Join(sent, kPortable);
      EntryAt(*spot).call = logged;
      Note(*spot, FaultKind::kPortableMark, sent, logged, leave_out ? "/P left out" : "/P added");
    }
  }

  void AddSelf() {
    Contact contact = LoneContact();
    const Station& own = stations_[contact.stations[0]];
    contact.entries[0].claim = Claim::kNothing;
    contact.entries[0].call = own.call;
    contact.entries[0].locator = own.locator;
    Note(AddContact(std::move(contact)), FaultKind::kSelfQso, "", own.call,
         "a row with the own call");
  }

  // In turns the second row is marked as a duplicate and not.
  void Repeat() {
    const auto fits = [this](const Spot& spot) {
      return contacts_[spot.contact].minute + kLeastRepeatGap <= kLastMinute;
    };
    if (const auto spot = spots_.Take(fits)) {
      const bool marked = round_ % 2 == 0;
      const Contact& first = contacts_[spot->contact];
      const int minute = random_.Between(first.minute + kLeastRepeatGap, kLastMinute);
      Contact contact = LoneContact(first.stations[spot->side], minute);
      contact.repeats = spot->contact;
      contact.entries[0].claim = Claim::kNothing;
      contact.entries[0].call = StationAcross(*spot).call;
      contact.entries[0].locator = StationAcross(*spot).locator;
      contact.entries[0].form = marked ? RowForm::kMarkedDuplicate : RowForm::kWhole;
      const std::string at = Hhmm(EntryAt(*spot).minute);
      const Spot added = AddContact(std::move(contact));
      Note(added, FaultKind::kDuplicate, at, Hhmm(EntryAt(added).minute),
           marked ? "marked ;D" : "not marked");
      contacts_[added.contact].fault->other = StationAcross(*spot).call;
    }
  }

  void AddError() {
    Contact contact = LoneContact();
    contact.mode = 0;
    contact.entries[0].claim = Claim::kNothing;
    contact.entries[0].call = "ERROR";
    Note(AddContact(std::move(contact)), FaultKind::kErrorRow, "", "ERROR", "a number used up");
  }

  // Such a row is neither an error nor a double on insertion: the header has to count it.
  void Delete() {
    if (const auto spot = spots_.Take()) {
      EntryAt(*spot).exchange = "DELETED";
      EntryAt(*spot).claim = Claim::kCounted;
      Note(*spot, FaultKind::kDeletedRow, "", "DELETED", "the other log has the QSO");
    }
  }

  void BreakLocator(const Spot& spot) {
    std::string& locator = EntryAt(spot).locator;
    const std::string sent = locator;
    locator[3] = 'A';
    Note(spot, FaultKind::kBadQsoLocator, sent, locator, "log refused");
  }

  Random& random_;
  const std::vector<Station>& stations_;
  CallPool& calls_;
  std::vector<Contact>& contacts_;
  SpotPool spots_;
  std::size_t round_ = 0;  // how many faults the kind has had its turn for
};

}  // namespace

void PlantFaults(Random& random, const std::vector<Station>& stations, CallPool& calls,
                 std::vector<Contact>& contacts) {
  const auto logs = std::ranges::count_if(stations, &Station::sends_log);
  const bool every = logs >= static_cast<std::ptrdiff_t>(kLogsForEveryFault);
  const std::size_t least = every ? kLeastOfEachKind * kCommonFaults.size() : 0;
  const std::size_t count = std::max(least, contacts.size() / kContactsPerFault);
  Planter planter(random, stations, calls, contacts);
  planter.PlantRefusals();
  planter.PlantCommon(count);
}

}  // namespace velmar::sample
