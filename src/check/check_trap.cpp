#include "check/check_trap.h"

#include "model/text.h"
#include "platform/error.h"
#include "session/failure.h"
#include "session/version.h"

namespace velmar {

bool CheckTrap::Procedure(int step, const std::function<void()>& procedure) {
  try {
    procedure();
    return true;
  } catch (const RunTimeError& error) {
    manager_.Show(
        FailureBox(error, step,
                   Join(" Modulo controlli   Contatta l' autore del software_", VersionDotted())));
    return false;
  }
}

}  // namespace velmar
