#pragma once

#include <string>

#include "check/check_form.h"
#include "check/check_state.h"
#include "model/error_list.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "platform/printer.h"
#include "session/contest_session.h"

namespace velmar {

/// The error list of the call under examination, and what a penalty does: to the list, to the
/// running score and to the row of the classification. All decisions go through here. A list
/// that is missing raises error 53, one that cannot be read or written its own.
class ErrorReport {
 public:
  ErrorReport(ContestSession& session, FileSystem& files, Manager& manager, Printer& printer,
              CheckForm& form, CheckState& state)
      : session_(session),
        files_(files),
        manager_(manager),
        printer_(printer),
        form_(form),
        state_(state) {}

  /// Reads the list, which has to be there.
  void Require();

  /// Cuts a list that holds decisions to its head. A list without any is left alone.
  void CutToHead();

  /// The running score at the start of a check, of a row of the queue.
  void BeginScore(const std::string& row);

  /// Whether a call is on the list already, which is then told: the decision on
  /// it is not to be taken.
  bool AlreadyListed(const std::string& call);

  /// Writes a decision that costs points: the line, then the running score. The entry gets its
  /// index here. An error of the disk leaves the score as it was.
  void Penalise(ErrorEntry entry);

  /// The same for a QSO that the other station's log lacks.
  void PenaliseNotInLog(const std::string& call, const std::string& points);

  /// Notes a unique call, which costs nothing.
  void NoteUnique(const std::string& call, const std::string& ordinal);

  /// Closes the list with its totals.
  void AppendTotals();

  /// Shows the list, or hides it again.
  void vis_err_Click();
  void List_errori_Click();
  void stampa_errori_Click();

 private:
  std::string Path() const;
  void AppendLine(const std::string& line);
  void Lower(const std::string& call, const std::string& points);
  void ShowList();
  void ShowScore();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Printer& printer_;
  CheckForm& form_;
  CheckState& state_;
};

}  // namespace velmar
