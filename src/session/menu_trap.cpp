#include "session/menu_trap.h"

#include "model/text.h"
#include "platform/ansi.h"
#include "session/failure.h"
#include "session/version.h"

namespace velmar {

void MenuTrap::Statement(int step, const std::function<void()>& statement) {
  step_ = step;
  try {
    statement();
  } catch (const RunTimeError& error) {
    switch (error.number()) {
      case ErrorNumber::kPathFileAccess:
      case ErrorNumber::kPathNotFound:
        return;
      case ErrorNumber::kPermissionDenied:
        manager_.Show({.lines = {Join(" errore numero: ", static_cast<int>(error.number()),
                                      " nella linea : ", step_,
                                      " menu principale. Un file su disco è inacessibile "_a),
                                 " L'errore è stato saltato e il programma prosegue "
                                 ", ma è consigliabile uscire e rilanciare il "
                                 "programma."_a}});
        return;
      default:
        throw;
    }
  }
}

bool MenuTrap::Tolerate(const std::function<void()>& statement) {
  try {
    statement();
    return true;
  } catch (const RunTimeError&) {
    return false;
  }
}

void MenuTrap::Procedure(const std::function<void()>& procedure) {
  try {
    procedure();
  } catch (const RunTimeError& error) {
    manager_.Show(FailureBox(
        error, step_,
        Join(" menu form principale Contatta l' autore del software_", VersionDotted())));
  }
}

}  // namespace velmar
