#include "sample/planted_fault.h"

#include "model/lines.h"
#include "model/text.h"

namespace velmar {

namespace {

std::string Row(std::string_view kind, std::string_view log, std::string_view qso,
                std::string_view time, std::string_view other, std::string_view sent,
                std::string_view logged, std::string_view note) {
  const std::string row = Join(Pad(kind, 20), Pad(log, 13), Pad(qso, 5), Pad(time, 6),
                               Pad(other, 13), Pad(sent, 13), Pad(logged, 13), note);
  return Join(RTrim(row), kLineEnd);
}

}  // namespace

std::string_view FaultName(FaultKind kind) {
  static constexpr std::array<std::string_view, 15> kNames = {
      "busted_call",     "busted_locator",  "time_off",
      "missing_qso",     "unique",          "portable_mark",
      "self_qso",        "duplicate",       "error_row",
      "deleted_row",     "sup_row",         "bad_own_locator",
      "foreign_locator", "bad_qso_locator", "short_of_semicolons"};
  return kNames.at(static_cast<std::size_t>(kind));
}

std::string FaultList(const std::vector<PlantedFault>& faults) {
  std::string list = Row("KIND", "LOG", "QSO", "TIME", "OTHER", "SENT", "LOGGED", "NOTE");
  for (const PlantedFault& fault : faults) {
    const std::string qso = fault.qso == 0 ? "-" : std::to_string(fault.qso);
    list += Row(FaultName(fault.kind), fault.log, qso, fault.time, fault.other, fault.sent,
                fault.logged, fault.note);
  }
  return list;
}

}  // namespace velmar
