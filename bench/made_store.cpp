#include "made_store.h"

#include <numeric>
#include <random>
#include <utility>

#include "made_logs.h"
#include "model/classification_row.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "model/workspace.h"

namespace velmar::bench {

namespace {

// How many QSOs in a hundred have a fault.
constexpr std::size_t kBustedLocators = 2;
constexpr std::size_t kBustedCalls = 5;
constexpr std::size_t kTimesOff = 5;

constexpr std::size_t kPoints = 99;     ///< km, of each QSO
constexpr std::size_t kBegin = 840;     ///< minute of the day
constexpr std::size_t kDuration = 540;  ///< minutes
constexpr std::size_t kLate = 15;       ///< minutes, of a time that is off

/// What all logs of a contest share.
struct Contest {
  std::size_t stations;  ///< on the air
  std::size_t step;      ///< from one station of a log to the next
};

Contest ContestOf(std::size_t logs, std::size_t qsos) {
  const std::size_t stations = logs + logs / 2 + qsos;
  // Near the golden section, so that the stations of a log lie all over the contest; without a
  // common divisor, so that it meets none twice.
  std::size_t step = stations * 618 / 1000;
  while (std::gcd(step, stations) != 1) {
    ++step;
  }
  return {stations, step};
}

/// The station of a log's QSO, counted from 1: in turns so many steps ahead and behind, so that it
/// works the log in its turn.
std::size_t Worked(const Contest& contest, std::size_t log, std::size_t number) {
  const std::size_t distance = contest.step * ((number + 1) / 2) % contest.stations;
  return (log + (number % 2 == 1 ? distance : contest.stations - distance)) % contest.stations;
}

/// The minute of the day in which two stations work each other.
std::size_t MinuteOf(std::size_t station, std::size_t other) {
  return kBegin + (station * other + station + other) % kDuration;
}

/// A locator with another letter at its end.
std::string Busted(std::string locator, std::size_t letters_on) {
  constexpr std::size_t kLetters = 24;
  const auto letter = static_cast<std::size_t>(locator.back() - 'A');
  locator.back() = static_cast<char>('A' + (letter + 1 + letters_on % (kLetters - 1)) % kLetters);
  return locator;
}

/// A call with another letter in place of the one that all stations have there.
std::string BustedCall(std::string call, std::size_t letters_on) {
  constexpr std::size_t kLetters = 26;
  constexpr std::size_t kAt = 3;
  const auto letter = static_cast<std::size_t>(call[kAt] - 'A');
  call[kAt] = static_cast<char>('A' + (letter + 1 + letters_on % (kLetters - 1)) % kLetters);
  return call;
}

std::string Hhmm(std::size_t minute) {
  return std::to_string(minute / 60 * 100 + minute % 60);
}

/// A QSO as a log has it.
struct MadeQso {
  std::string call;
  std::string locator;
  std::size_t minute;
};

MadeQso QsoOf(const Contest& contest, std::size_t log, std::size_t number, std::mt19937& chance) {
  const std::size_t worked = Worked(contest, log, number);
  MadeQso qso{MadeCall(worked), MadeLocator(worked), MinuteOf(log, worked)};
  const std::size_t drawn = chance() % 100;
  if (drawn < kBustedLocators) {
    qso.locator = Busted(std::move(qso.locator), chance());
  } else if (drawn < kBustedLocators + kBustedCalls) {
    qso.call = BustedCall(std::move(qso.call), chance());
  } else if (drawn < kBustedLocators + kBustedCalls + kTimesOff) {
    qso.minute += kLate;
  }
  return qso;
}

void AddLog(MadeStore& store, std::size_t log, std::size_t qsos, const Contest& contest) {
  const std::string owner = MadeCall(log);
  const std::string points = std::to_string(kPoints);
  std::mt19937 chance(static_cast<unsigned>(log));
  for (std::size_t number = 1; number <= qsos; ++number) {
    const MadeQso qso = QsoOf(contest, log, number, chance);
    AddLine(store.library, LibreriaRow(owner, qso.call, qso.locator, points).value());
    AddLine(store.total_library,
            LibreriaTotaleRow(owner, qso.call, qso.locator, kCategory, points).value());
    AddLine(store.somma_qso,
            SommaQsoRow(Join("250119;", Hhmm(qso.minute), ";", qso.call, ";1;59;", number, ";59;",
                             number, ";;", qso.locator, ";", points, ";;;;"),
                        kCategory, MadeLocator(log), owner));
  }
}

std::string QueueRow(std::size_t log, std::size_t qsos) {
  const std::size_t points = kPoints * qsos;
  return ClassificationRow({.call = MadeCall(log),
                            .locator = MadeLocator(log),
                            .height = "350",
                            .antenna = "9 el",
                            .power = 50,
                            .qsos = std::to_string(qsos),
                            .declared = std::to_string(points),
                            .dx_call = MadeCall(log + 1),
                            .dx_distance = std::to_string(kPoints),
                            .points = static_cast<long long>(points)});
}

}  // namespace

MadeStore MakeStore(std::size_t rows, std::size_t logs) {
  const std::size_t most_qsos = rows / logs + 1;
  const Contest contest = ContestOf(logs, most_qsos);
  MadeStore store;
  AddLine(store.classification, classification_row::kHeader);
  for (std::size_t log = 0; log < logs; ++log) {
    const std::size_t qsos = log < rows % logs ? most_qsos : rows / logs;
    AddLog(store, log, qsos, contest);
    AddLine(store.participants, PartecipanteRow(MadeCall(log), MadeLocator(log), kCategory));
    AddLine(store.classification, QueueRow(log, qsos));
  }
  return store;
}

}  // namespace velmar::bench
