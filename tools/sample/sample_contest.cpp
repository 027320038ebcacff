#include "sample/sample_contest.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "model/text.h"
#include "sample/contacts.h"
#include "sample/fault_planter.h"
#include "sample/log_style.h"
#include "sample/log_writer.h"
#include "sample/random.h"
#include "sample/stations.h"

namespace velmar {

namespace {

constexpr int kMostStations = 2000;
constexpr int kMostQsos = 800;
constexpr int kLeastQsosForEveryFault = 5;

void Demand(bool fulfilled, const char* message) {
  if (!fulfilled) {
    throw std::invalid_argument(message);
  }
}

bool IsDate(const std::string& date) {
  const bool digits = std::ranges::all_of(date, [](char c) { return c >= '0' && c <= '9'; });
  if (date.size() != 6 || !digits) {
    return false;
  }
  const int month = std::stoi(date.substr(2, 2));
  const int day = std::stoi(date.substr(4, 2));
  return month >= 1 && month <= 12 && day >= 1 && day <= 31;
}

void CheckOptions(const SampleOptions& options) {
  Demand(options.stations >= 2 && options.stations <= kMostStations,
         "the number of stations is not from 2 to 2000");
  Demand(options.qsos >= 1 && options.qsos <= kMostQsos, "the number of QSOs is not from 1 to 800");
  Demand(options.qsos < options.stations, "a log cannot have more QSOs than other stations");
  Demand(options.qsos >= kLeastQsosForEveryFault ||
             options.stations < static_cast<int>(sample::kLogsForEveryFault),
         "from 20 stations on the number of QSOs is 5 at least");
  Demand(IsDate(options.date), "the date is not of the form YYMMDD");
}

std::vector<std::vector<sample::LogRow>> RowsByStation(const std::vector<sample::Contact>& contacts,
                                                       const std::vector<std::size_t>& order,
                                                       std::size_t stations) {
  std::vector<std::vector<sample::LogRow>> rows(stations);
  for (const std::size_t i : order) {
    for (std::size_t side = 0; side < 2; ++side) {
      if (contacts[i].entries[side].present) {
        rows[contacts[i].stations[side]].push_back({&contacts[i], side});
      }
    }
  }
  return rows;
}

void ListHeaderFault(const sample::Station& station, std::vector<PlantedFault>& faults) {
  if (station.refusal == FaultKind::kSupRow) {
    faults.push_back({FaultKind::kSupRow, station.call, 0, "", "", "", "-SUP", "log refused"});
  } else if (station.refusal == FaultKind::kBadOwnLocator ||
             station.refusal == FaultKind::kForeignLocator) {
    faults.push_back({*station.refusal, station.call, 0, "", "", station.locator,
                      HeaderLocator(station), "log refused"});
  }
}

void ListFaults(const sample::LogPlan& plan, std::vector<PlantedFault>& faults) {
  ListHeaderFault(*plan.station, faults);
  for (std::size_t i = 0; i < plan.rows.size(); ++i) {
    if (plan.rows[i].faulty()) {
      const sample::ContactFault& fault = *plan.rows[i].contact->fault;
      faults.push_back({fault.kind, plan.station->call, i + 1,
                        sample::Hhmm(plan.rows[i].entry().minute), fault.other, fault.sent,
                        fault.logged, fault.note});
    }
  }
}

}  // namespace

SampleContest MakeSampleContest(const SampleOptions& options) {
  CheckOptions(options);
  sample::Random random(options.seed);
  sample::CallPool calls;
  const auto stations =
      sample::MakeStations(random, static_cast<std::size_t>(options.stations), calls);
  auto contacts = sample::MakeContacts(random, stations, static_cast<std::size_t>(options.qsos));
  sample::PlantFaults(random, stations, calls, contacts);
  const auto order = sample::NumberContacts(contacts, stations.size());
  auto rows = RowsByStation(contacts, order, stations.size());
  const std::size_t first_rank = random.Below(1000);
  const std::string year = Join("20", options.date.substr(0, 2));

  SampleContest contest;
  for (std::size_t i = 0; i < stations.size() && stations[i].sends_log; ++i) {
    const std::size_t rank = first_rank + i;
    const sample::LogPlan plan = {&stations[i],
                                  std::move(rows[i]),
                                  sample::MakeStyle(rank, stations[i].accepted()),
                                  sample::MakeOperator(random),
                                  rank,
                                  options.date};
    const std::string name = sample::FileName(random, stations[i].call, year);
    contest.logs.push_back({name, WriteLog(plan)});
    ListFaults(plan, contest.faults);
  }
  return contest;
}

}  // namespace velmar
