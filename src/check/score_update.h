#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "check/check_form.h"
#include "check/check_state.h"
#include "check/check_steps.h"
#include "check/error_report.h"
#include "check/queue_panel.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "platform/printer.h"
#include "session/contest_session.h"

namespace velmar {

/// The end of a check: the result goes into the error list and the classification, which is written
/// in the order of the final scores.
class ScoreUpdate {
 public:
  ScoreUpdate(ContestSession& session, FileSystem& files, Manager& manager, Printer& printer,
              QueuePanel& queue, ErrorReport& report, CheckSteps& steps, CheckForm& form,
              CheckState& state)
      : session_(session),
        files_(files),
        manager_(manager),
        printer_(printer),
        queue_(queue),
        report_(report),
        steps_(steps),
        form_(form),
        state_(state) {}

  /// Closes the error list and puts the new row into the queue.
  void aggiorna_punt_class_Click();

  /// Writes the classification, by final score.
  void ordina_Click();

  /// The same by percentage of errors.
  void riordina_Click();

  /// Writes the state that the row has at this moment, right after a start the declared score.
  void Azzera_punteggio_Click();

  /// Marks the logs that wait for their check as checked, or takes those marks back.
  void Reset_cla_2IT_Click();
  void Svuota_Click();

  void Visualizza_pulsante_aggiorna_Click();
  void stampa_classifica_di_banda_Click();

 private:
  void WriteSorted(std::size_t most, const std::function<double(std::string_view row)>& key);
  void FollowRow();
  void PutRow();
  void Swap(std::string_view from, std::string_view to);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Printer& printer_;
  QueuePanel& queue_;
  ErrorReport& report_;
  CheckSteps& steps_;
  CheckForm& form_;
  CheckState& state_;
};

/// The order of keys by exchanges: place i is exchanged with each place behind it whose key is
/// larger. Equal keys stay as the exchanges leave them, which is not always as they came.
std::vector<std::size_t> ExchangeOrder(const std::vector<double>& keys);

}  // namespace velmar
