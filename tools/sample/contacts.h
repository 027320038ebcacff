#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "sample/planted_fault.h"
#include "sample/random.h"
#include "sample/stations.h"

namespace velmar::sample {

inline constexpr std::size_t kNobody = static_cast<std::size_t>(-1);

/// The hour of the contest, in minutes of the day.
inline constexpr int kFirstMinute = 10 * 60;
inline constexpr int kLastMinute = 11 * 60;

/// The times that a log may hold, whatever its clock says: a minute late is still admitted.
inline constexpr int kFirstLogged = kFirstMinute;
inline constexpr int kLastLogged = kLastMinute + 1;

/// Minutes of the day as HHMM.
std::string Hhmm(int minute);

/// Form of a QSO row.
enum class RowForm { kWhole, kMarkedDuplicate, kShortOfSemicolons };

/// What the header of a log claims for a row.
enum class Claim {
  kScored,   ///< a valid QSO with its points
  kCounted,  ///< one of the valid QSOs, without points
  kNothing
};

/// What one log holds of a contact.
struct Entry {
  bool present = true;  ///< the log has the row
  Claim claim = Claim::kScored;
  int minute = 0;  ///< of the day
  std::string call;
  std::string exchange;
  std::string locator;
  RowForm form = RowForm::kWhole;
};

/// A fault in the row of one side.
struct ContactFault {
  FaultKind kind;
  std::size_t side;
  std::string other;  ///< true call of the other station
  std::string sent;
  std::string logged;
  std::string note;
};

/// Two stations on the air, or a row that stands in one log alone: then the second station is
/// kNobody. What belongs to a side (0 or 1) stands at its index.
struct Contact {
  std::array<std::size_t, 2> stations = {kNobody, kNobody};
  int minute = 0;                       ///< the true one
  int mode = 1;                         ///< 1 SSB, 2 CW, 0 for a row without a QSO
  std::array<int, 2> reports = {0, 0};  ///< that the side sends
  std::array<int, 2> numbers = {0, 0};  ///< that the side sends, from 1 on
  std::array<Entry, 2> entries = {};    ///< in the side's own log
  std::size_t repeats = kNobody;        ///< the contact that this one is a duplicate of
  std::optional<ContactFault> fault = std::nullopt;
};

/// The time that a station logs for a QSO at a true time.
int LoggedMinute(const Station& station, int minute);

/// The contacts of a contest, without faults or numbers. Each log has about `qsos` of them and at
/// least one; a station without an accepted log is worked by two accepted ones at least.
std::vector<Contact> MakeContacts(Random& random, const std::vector<Station>& stations,
                                  std::size_t qsos);

/// Draws mode and reports of a contact.
void DrawReports(Random& random, Contact& contact);

/// Numbers all contacts by time within each log and gives their indices in order of time.
std::vector<std::size_t> NumberContacts(std::vector<Contact>& contacts, std::size_t stations);

}  // namespace velmar::sample
