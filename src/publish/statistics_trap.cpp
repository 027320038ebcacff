#include "publish/statistics_trap.h"

#include "platform/error.h"
#include "session/failure.h"

namespace velmar {

void StatisticsTrap::Procedure(const std::function<void()>& procedure,
                               const std::string& overflow) {
  step_ = 0;
  try {
    procedure();
  } catch (const RunTimeError& error) {
    if (error.number() == ErrorNumber::kOverflow && !overflow.empty()) {
      manager_.Show({.lines = {overflow}});
      return;
    }
    manager_.Show(FailureBox(error, step_, "     Contatta il fornitore del software"));
  }
}

}  // namespace velmar
