#include "made_store.h"

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

constexpr std::size_t kBustedEvery = 50;  ///< QSOs
constexpr std::size_t kPoints = 99;       ///< km, of each QSO

/// What all logs of a contest share.
struct Contest {
  std::size_t stations;  ///< on the air
  std::size_t farthest;  ///< step from one station of a log to the next
};

Contest ContestOf(std::size_t logs, std::size_t qsos) {
  const std::size_t stations = logs + logs / 2 + 2 * qsos;
  // With this step a log comes not quite round, and meets neither itself nor a station twice.
  return {stations, (stations - 1) / qsos};
}

/// A locator with another letter at its end.
std::string Busted(std::string locator, std::size_t letters_on) {
  constexpr std::size_t kLetters = 24;
  const auto letter = static_cast<std::size_t>(locator.back() - 'A');
  locator.back() = static_cast<char>('A' + (letter + 1 + letters_on % (kLetters - 1)) % kLetters);
  return locator;
}

std::string LibraryRows(std::size_t log, std::size_t qsos, const Contest& contest) {
  const std::string owner = MadeCall(log);
  std::mt19937 chance(static_cast<unsigned>(log));
  const std::size_t step = 1 + chance() % contest.farthest;
  std::string rows;
  for (std::size_t number = 1; number <= qsos; ++number) {
    const std::size_t worked = (log + step * number) % contest.stations;
    std::string locator = MadeLocator(worked);
    if (chance() % kBustedEvery == 0) {
      locator = Busted(std::move(locator), chance());
    }
    AddLine(rows, LibreriaRow(owner, MadeCall(worked), locator, std::to_string(kPoints)).value());
  }
  return rows;
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
    store.library += LibraryRows(log, qsos, contest);
    AddLine(store.participants, PartecipanteRow(MadeCall(log), MadeLocator(log), kCategory));
    AddLine(store.classification, QueueRow(log, qsos));
  }
  return store;
}

}  // namespace velmar::bench
