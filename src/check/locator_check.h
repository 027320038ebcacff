#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check/check_form.h"
#include "check/check_state.h"
#include "check/check_steps.h"
#include "check/error_report.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// The check of the locators that a log gives for its QSOs, by what the other logs and the stations
/// themselves say.
class LocatorCheck {
 public:
  LocatorCheck(ContestSession& session, FileSystem& files, Manager& manager, ErrorReport& report,
               CheckSteps& steps, CheckForm& form, CheckState& state)
      : session_(session),
        files_(files),
        manager_(manager),
        report_(report),
        steps_(steps),
        form_(form),
        state_(state) {}

  /// Builds the list of doubts of the log under examination.
  void Build();

  /// Shows what speaks for and against the selected doubt. Where the manager wants it so, a doubt
  /// that the evidence speaks for is accepted at once, and the next one is shown.
  void Lista_dubbi_Click();
  void Lista_locatori_Click();

  // The decisions. Without a selected doubt nothing happens.
  void conferma_errore_Click();
  void errore_call_Click();
  void not_inlog_Click();
  void QSO_ok_Click();

 private:
  /// The doubt that is selected, by its columns.
  struct Doubt {
    std::string call;  ///< 12 characters
    std::string locator;
    std::string points;
    std::string ordinal;
  };

  std::optional<Doubt> Selected() const;
  void ReadQsos(std::vector<std::string>& doubts);
  bool CompareWithDeclared(std::vector<std::string>& doubts);
  bool ShowEvidence();
  void ShowDeclared(const Doubt& doubt);
  void TellOwnCall(const Doubt& doubt);
  std::optional<std::string> AskLocator();
  std::optional<std::string> CorrectCall(const Doubt& doubt);
  void Penalise(const Doubt& doubt, std::string_view tag, const std::string& wrong,
                const std::string& right);
  void GoOn();
  void RemoveSelected();
  void Settle();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  ErrorReport& report_;
  CheckSteps& steps_;
  CheckForm& form_;
  CheckState& state_;
};

}  // namespace velmar
