#pragma once

#include <optional>
#include <string>

#include "check/check_form.h"
#include "check/check_state.h"
#include "check/check_steps.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// The queue of the desk: loads a classification, finds the logs that wait for their check, and
/// shows the classification alone.
class QueuePanel {
 public:
  QueuePanel(ContestSession& session, FileSystem& files, Manager& manager, CheckSteps& steps,
             CheckForm& form, CheckState& state)
      : session_(session),
        files_(files),
        manager_(manager),
        steps_(steps),
        form_(form),
        state_(state) {}

  /// Tells whether the month's classification has logs that wait for their check.
  void ScanCategories();

  /// Loads the month's classification.
  void LeggiclassificA();

  /// Loads the classification that the manager picks.
  void primo_carico_Click();

  /// Chooses the first log that waits for its check; false where there is none, which is told.
  bool ChooseFirstUnchecked();
  void primo_dacontrollare_Click();

  /// Chooses the first log whose call holds the text that was typed.
  void vai_a_un_call_Click();

  /// Chooses the first log that waits for its check, or the header.
  void ChooseToGoOn();

  // The wide view.
  void Visualizza_solo_classifica_Click();
  void LeaveWideView();

  /// Reads the classification again into the wide view; false where it is none.
  bool ShowWideRows();

  /// Reads the file again after it was written, with its positions behind `separator`. No row is
  /// chosen then.
  void Reload(std::string separator);

  /// Another text of a row of the queue, counted from 0.
  void SetRow(std::size_t row, const std::string& text);

  /// Shows the rows of the queue as they are now; the choice stays.
  void ShowRows();

  /// Forgets the classification and the check that may run, but not how far the desk is.
  void Clear();

 private:
  bool Load(const std::string& path, const std::string& name);
  void Choose(std::size_t row);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  CheckSteps& steps_;
  CheckForm& form_;
  CheckState& state_;
  std::vector<Control*> hidden_;  ///< by the wide view
};

/// That there is nothing to work on yet.
Box LoadClassificationFirst();

/// That a classification, or a row of it, is not what it should be.
Box BrokenClassification();

}  // namespace velmar
