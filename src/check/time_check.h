#pragma once

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "check/check_form.h"
#include "check/check_state.h"
#include "check/check_steps.h"
#include "check/error_report.h"
#include "check/log_views.h"
#include "check/time_differences.h"
#include "model/contest_store.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// The check of the times that a log gives for its QSOs, against those in the other logs, and of
/// the time that the station spent on the air.
class TimeCheck {
 public:
  TimeCheck(ContestSession& session, FileSystem& files, Manager& manager, ContestStore& store,
            ErrorReport& report, LogViews& views, CheckSteps& steps, CheckForm& form,
            CheckState& state)
      : session_(session),
        files_(files),
        manager_(manager),
        store_(store),
        report_(report),
        views_(views),
        steps_(steps),
        form_(form),
        state_(state) {}

  /// Lists the QSOs whose time differs. A time in the store that is no number ends the program.
  void Build();

  /// The same for the call whose check runs; without one nothing happens.
  void control_time_Click();
  void Lista_err_orario_Click();

  // The decisions. Without a selected QSO nothing happens.
  void conf_err_time_Click();
  void conf_err_RST_Click();
  void convalida_qso_time_Click();

 private:
  bool CheckRuns() const;
  std::optional<std::string> SelectedRow() const;
  void EndOnBrokenTime(const SommaQso& row, std::size_t character);
  void ShowOpen(std::size_t open);
  void ShowOutcome(const TimeDifferences& differences);
  void RecordTimeOnAir(const std::vector<SommaQso>& rows, std::string_view hint);
  void RemoveSelected();
  void GoOn();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  ContestStore& store_;
  ErrorReport& report_;
  LogViews& views_;
  CheckSteps& steps_;
  CheckForm& form_;
  CheckState& state_;
};

}  // namespace velmar
