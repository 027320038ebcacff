#pragma once

#include <string>
#include <utility>
#include <vector>

#include "classification_rows.h"
#include "platform/ansi.h"
#include "three_logs.h"

namespace velmar::test {

inline const Box kBrokenFile = Told(" file clssifica corrotto o non valido ");
inline const Box kLoadFirst = Told(" è necessario caricare una classifica"_a);
inline const Box kInserted =
    Told(" è stato inserito un log, è necessario ricaricare la classifica"_a);
inline const Box kMustReload = Told(" E' obbligatorio ricaricare la classifica ");
inline const Box kCheckRuns = Told(" Devi finire il controllo in atto prima di uscire ");
inline const Box kAllChecked =
    Told(Join(" Il controllo di questa categoria è completato. | |"_a,
              " Se vuoi comunque effettuare il controllo di un call, fai doppio click sul call "
              "desiderato"));

inline std::string Classification(const Names& rows) {
  std::string text = Join(classification_row::kHeader, kLineEnd);
  for (const std::string& row : rows) {
    AddLine(text, row);
  }
  return text;
}

struct OpenDesk : DeskFixture {
  explicit OpenDesk(const std::string& classification = Classification({WaitingRow("IK2QAA")})) {
    workspace.With(kClassificationFile, classification).With(kParticipants, "");
    desk.Open();
  }

  const Names& Queue() const { return form.listacall_banda.items.rows(); }
  std::vector<Box> TakeBoxes() { return std::exchange(manager.boxes, {}); }

  static constexpr const char* kParticipants = "Trofeo_Velmar/2IT/2IT partecipanti.par";
};

}  // namespace velmar::test
