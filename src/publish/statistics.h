#pragma once

#include <cstddef>
#include <functional>

#include "platform/ports.h"
#include "publish/area_counters.h"
#include "publish/area_qsos.h"
#include "publish/calls_worked.h"
#include "publish/contest_totals.h"
#include "publish/squares_map.h"
#include "publish/statistics_form.h"
#include "publish/statistics_trap.h"
#include "session/contest_session.h"

namespace velmar {

/// The screen of the statistics: joins its controls to the runs and to the map, and looks things up
/// in what they counted.
class Statistics {
 public:
  /// `open_absent` opens the screen of the absent stations in this one's place.
  Statistics(ContestSession& session, const Ports& ports, Screen& screen, Form& main,
             StatisticsForm& form, std::function<void()> open_absent);

  void Open();

  void dx_144_tot_Click();
  void loc_onair_144_tot_Click();
  void sqr_onair_144_tot_Click();
  void field_onair_144_tot_Click();
  void Testo_Click();
  void Grafica_Click();
  void Assenti_Click();
  void usci_Click();

 private:
  void JoinControls();
  void TellDx();
  void ShowOrHideList(Label& caption, std::size_t width);
  void ShowPage(bool map);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Screen& screen_;
  Form& main_;
  StatisticsForm& form_;
  std::function<void()> open_absent_;
  StatisticsTrap trap_;
  AreaCounters on_air_;
  ContestTotals totals_;
  AreaQsos area_qsos_;
  CallsWorked calls_worked_;
  SquaresMap map_;
};

}  // namespace velmar
