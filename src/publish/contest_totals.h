#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/manager.h"
#include "publish/area_counters.h"
#include "publish/counted_rows.h"
#include "publish/on_air_calls.h"
#include "publish/statistics_form.h"
#include "publish/statistics_trap.h"
#include "session/contest_session.h"

namespace velmar {

/// The totals of the contest: logs, QSOs, points and the DX, calls on the air by area and country,
/// squares and fields. The text file that it leaves is the source of the workbook's statistics.
class ContestTotals {
 public:
  /// `on_air` is where the calls on the air are counted by area; a later run needs them.
  ContestTotals(ContestSession& session, FileSystem& files, Manager& manager, StatisticsTrap& trap,
                StatisticsForm& form, AreaCounters& on_air)
      : session_(session),
        files_(files),
        manager_(manager),
        trap_(trap),
        form_(form),
        on_air_(on_air) {}

  void calcola_qso_Click();

 private:
  struct Found;

  void Run();
  void CountLogs(const CountedRows& classification);
  Found ReadLibrary(const CountedRows& library);
  void WriteOnAir(const std::vector<std::string>& calls);
  void ShowCountries(const OnAirCounts& counts);
  void WriteCountries(const std::vector<std::string>& calls);
  bool WriteSquares(const CountedRows& library);
  void WriteAreas(const CountedRows& classification);
  void WriteActivity(const CountedRows& library);
  void ShowClasses(const CountedRows& library);
  void WriteForeignCalls(const CountedRows& library);

  std::string StorePath(StoreFile file) const;
  void AddToStatistics(std::string_view lines);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  StatisticsTrap& trap_;
  StatisticsForm& form_;
  AreaCounters& on_air_;
};

}  // namespace velmar
