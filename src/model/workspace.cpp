#include "model/workspace.h"

#include <array>

#include "model/text.h"

namespace velmar {

std::string Workspace::contest_date(std::string_view category_code) const {
  const std::string code(CategoryCode(category_code));
  return category(code) + "/" + code + " data contest.dat";
}

std::string Workspace::classification(std::string_view month, std::string_view code) const {
  return Join(category(code), "/", code, kClassificationTitle, Lower(month), ".cla");
}

std::string Workspace::store_file(StoreFile file, std::string_view code) const {
  constexpr std::array<std::string_view, 12> kTails = {
      "libreria.qso",  "libreria_totale.tot",    "somma_qso.qso",
      "somma_qso.slx", " partecipanti.par",      "Classifica_modo.par",
      "tempi.txt",     " Statistica DX.cdx",     " control_log.txt",
      " Qso_in_CW.CW", " Call_con_qso_in_CW.CW", "-Contest Team.txt"};
  return Join(category(code), "/", code, kTails.at(static_cast<std::size_t>(file)));
}

std::string Workspace::error_list(std::string_view code, std::string_view call,
                                  std::string_view month) const {
  return Join(category(code), "/", code, "-", NameOfCall(call), " Lista errori ", Upper(month),
              ".err");
}

std::string LogName(std::string_view category, std::string_view call) {
  return Join(category, "_", call, ".edi");
}

std::string NameOfCall(std::string_view call) {
  return Replaced(Trim(call), '/', '_');
}

}  // namespace velmar
