#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check/check_form.h"
#include "check/check_state.h"
#include "check/check_steps.h"
#include "check/error_report.h"
#include "check/not_in_log_check.h"
#include "check/store_reading.h"
#include "check/unique_evidence.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// The check of the calls that stand alone, or nearly so, among all other logs.
class UniqueCheck {
 public:
  UniqueCheck(ContestSession& session, FileSystem& files, Manager& manager, StoreReading& store,
              ErrorReport& report, NotInLogCheck& not_in_log, CheckSteps& steps, CheckForm& form,
              CheckState& state)
      : session_(session),
        files_(files),
        manager_(manager),
        store_(store),
        report_(report),
        not_in_log_(not_in_log),
        steps_(steps),
        form_(form),
        state_(state) {}

  /// Builds the list of unique calls; with none, what is not in a log is looked for.
  void unici_Click();

  /// Shows what helps to judge the selected call.
  void Call_unici_Click();

  // The decisions. Without a selected call the first beeps, and the others do nothing.
  void error_call_unici_Click();
  void Errore_locatore_Click();
  void marca_unico_Click();
  void ok_call_unici_Click();
  void nasondi_Click();

  /// A row of one of the lists beside was clicked: its call is the one to look for.
  void ChooseListed(const List& list);

  void cerca_probabile_Click();
  void Unici_in_attesa_conf_Click();

 private:
  /// What the evidence of the selected call has found, for the advice.
  struct Findings {
    bool in_book = false;
    bool alone_in_locator = false;
    std::size_t presences = 0;
  };

  std::optional<UniqueItem> Selected() const;
  void AskForcedCall();
  void TurnForcingOff();
  std::vector<std::string> FindUnique();
  void AddForced(std::vector<std::string>& unique);
  std::string_view DeclarationOf(const UniqueItem& item) const;
  void ShowDeclared(const UniqueItem& item);
  void ClearHints();
  void ShowCaptions(const UniqueItem& item);
  void HintParticipants(const UniqueItem& item);
  bool ShowSimilar(const UniqueItem& item);
  void HintOwnLog(const UniqueItem& item);
  void ShowLocator(const UniqueItem& item, Findings& findings);
  void SearchTotalLibrary(const UniqueItem& item);
  void ShowPresences(const UniqueItem& item, Findings& findings);
  void Advise(const Findings& findings);
  bool Forced(const UniqueItem& item) const;
  std::optional<std::string> CorrectCall(const UniqueItem& item);
  void RemoveSelected();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  StoreReading& store_;
  ErrorReport& report_;
  NotInLogCheck& not_in_log_;
  CheckSteps& steps_;
  CheckForm& form_;
  CheckState& state_;
};

}  // namespace velmar
