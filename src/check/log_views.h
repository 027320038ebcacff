#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check/check_form.h"
#include "check/check_state.h"
#include "model/somma_qso.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// The log under examination and that of another station side by side, and the search for a QSO
/// that may have been written under a similar call.
class LogViews {
 public:
  LogViews(ContestSession& session, FileSystem& files, Manager& manager, CheckForm& form,
           CheckState& state)
      : session_(session), files_(files), manager_(manager), form_(form), state_(state) {}

  /// The valid QSOs of the category, as they lie in the store now. They stay good until the next
  /// call. A missing file raises error 53.
  const std::vector<SommaQso>& ReadStore();

  /// Shows the QSOs of both logs with each other.
  void ShowBoth(std::string_view other);

  /// Shows the whole log of another station beside the one under examination, under a heading if
  /// there is one. Without a log of it in this category, that is told.
  void ShowLogOf(std::string_view other, std::string_view heading = "");

  /// Shows both logs whole, each at the QSO with the other station.
  void ShowForTimes(std::string_view other);

  /// The other call of the item that is selected among the times, or among the reports in their
  /// place; empty without one.
  std::string SelectedByTime() const;

  void log_callda_cercare_Click();
  void vis_log_Click();
  void List_log_call_esame_Click();
  void vedi_log2_Click();
  void cerca_qso_Click();
  void cerca_qso2_Click();
  void cerca_primo_qso_Click();
  void cerca_qso_rst_Click();
  void chiudi_Click();

 private:
  /// What the search for similar calls has graded.
  struct Grades {
    bool one_error = false;
    bool two_errors = false;
    bool anagram = false;
  };

  void Open();
  void ListOwnLog(std::string_view holding);
  std::string WorkedCallOfChosenRow() const;
  std::string SelectedOther() const;
  static void SelectRow(List& list, std::string_view call);
  Grades SearchSimilar(std::string_view other);
  void ShowMissingRow();
  void Remark(const Grades& grades, std::string_view other);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  CheckForm& form_;
  CheckState& state_;
  std::string text_;  ///< that the rows point into
  std::vector<SommaQso> rows_;
  bool row_missing_ = false;  ///< the log under examination lacks the QSO that was looked for
};

}  // namespace velmar
