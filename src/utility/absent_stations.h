#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/ports.h"
#include "session/contest_session.h"
#include "session/main_form.h"
#include "utility/absent_calls.h"
#include "utility/absent_form.h"
#include "utility/absent_log.h"

namespace velmar {

/// Who made QSOs in the contest and sent no log, and the log that each of them would have sent. It
/// only reads the store.
class AbsentStations {
 public:
  /// `open_statistics` opens the screen of the statistics in this one's place.
  AbsentStations(ContestSession& session, const Ports& ports, Screen& screen, MainForm& main,
                 std::function<void()> open_statistics);

  AbsentForm& form() { return form_; }

  void Open();

  /// Builds the lists.
  void Verifica_assenti_Click();

  /// Rebuilds the log of the chosen call.
  void Lista_Click();

  void inverti_ordine_lista_Click();
  void stampa_assenti_Click();
  void stampa_log_assente_Click();

  /// Leaves for the main screen.
  void usci_Click();

  /// Leaves for the statistics.
  void Es_sci_Click();

 private:
  bool Trap(std::string_view module, const std::function<void()>& procedure);
  void PrintTrap(const std::function<void()>& procedure);

  void Verify();
  void Stage(int stage);
  ParticipantCalls ReadParticipants();
  WorkedCalls ReadLibrary();
  void ListCalls(const ParticipantCalls& participants, const WorkedCalls& worked);
  void ListByCount(const std::vector<std::string>& absent);
  void ShowAbsentList(std::vector<std::string> rows);
  void WriteScratch(std::string_view name, const std::vector<std::string>& rows);

  void Rebuild(const std::string& call);
  bool rintraccia_progressivo(const std::string& call);
  void ShowLog();
  void ShowPlace();

  ContestSession& session_;
  Ports ports_;
  Screen& screen_;
  MainForm& main_;
  AbsentForm form_;
  std::function<void()> open_statistics_;
  std::vector<std::string> inverse_;  ///< `Lista_inversa`: the list as a run left it
  RebuiltLog log_;                    ///< of the chosen call
  int step_ = 0;                      ///< of the procedure that runs, for its failure
};

}  // namespace velmar
