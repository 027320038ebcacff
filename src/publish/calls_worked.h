#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/manager.h"
#include "publish/area_counters.h"
#include "publish/counted_rows.h"
#include "publish/statistics_form.h"
#include "publish/statistics_trap.h"
#include "session/contest_session.h"

namespace velmar {

/// The different calls that the stations of each zone worked, and the calls on the air. It goes on
/// with the counters of the totals, which must have run before.
class CallsWorked {
 public:
  CallsWorked(ContestSession& session, FileSystem& files, Manager& manager, StatisticsTrap& trap,
              StatisticsForm& form, AreaCounters& on_air)
      : session_(session),
        files_(files),
        manager_(manager),
        trap_(trap),
        form_(form),
        on_air_(on_air) {}

  void qso_est_Click();

 private:
  /// The calls that were worked, in two kinds.
  struct Counts {
    AreaCounters italian;
    AreaCounters foreign;
  };

  void Run(const std::string& category);
  std::string LibraryPath(const std::string& category);
  Counts WriteZones(const std::string& category, const CountedRows& library);
  std::string CountsText(const Counts& counts) const;
  void TakeOnAir(const std::string& category);
  std::string OnAirText() const;
  void WriteItalianCalls(const std::string& category, const CountedRows& library);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  StatisticsTrap& trap_;
  StatisticsForm& form_;
  AreaCounters& on_air_;
};

}  // namespace velmar
