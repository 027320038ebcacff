#include "demo/desk_manager.h"

#include <array>
#include <stdexcept>
#include <string_view>

#include "check/check_steps.h"
#include "check/qso_line.h"
#include "check/time_differences.h"
#include "check/unique_evidence.h"
#include "model/columns.h"
#include "model/text.h"

namespace velmar {

namespace {

std::string_view NameOf(DeskList list) {
  static constexpr std::array<std::string_view, 4> kNames = {"Lista_dubbi", "Lista_err_orario",
                                                             "Call_unici", "Lista_simili"};
  return kNames.at(static_cast<std::size_t>(list));
}

/// The commands that judge a fault where a list proposes it.
std::string Judgement(DeskList list, const PlantedFault& fault) {
  const std::string truth = Join("input ", fault.sent, "\n");
  const bool doubt = list == DeskList::kDoubts;
  switch (fault.kind) {
    case FaultKind::kTimeOff:
      return "click conf_err_time\n";
    case FaultKind::kMissingQso:
      return "click NO_in_log\n";
    case FaultKind::kUnique:
      return "click marca_unico\n";
    case FaultKind::kBustedLocator:
      return truth + (doubt ? "click conferma_errore\n" : "click Errore_locatore\n");
    default:
      return truth + (doubt ? "click errore_call\n" : "click error_call_unici\n");
  }
}

}  // namespace

CheckedCall DeskManager::CheckNext() {
  program_.Do("click prossimo\n");
  call_ = program_.See("call_in_esame").caption;
  penalised_.clear();
  CheckedCall checked{.call = call_};
  checked.doubts = Settle(DeskList::kDoubts);
  checked.times = Settle(DeskList::kTimes);
  program_.Do("click unici\n");
  checked.unique = Settle(DeskList::kUnique);
  checked.not_in_log = Settle(DeskList::kNotInLog);
  checked.errors = static_cast<int>(Val(program_.See("err_count").caption));
  checked.points_lost = Trim(program_.See("err_qrb").caption);
  program_.Do(
      "click aggiorna_punt_class\n"
      "click ordina\n");
  return checked;
}

/// The open proposals of a list.
std::vector<std::string> DeskManager::Rows(DeskList list) {
  const auto& rows = program_.See(std::string(NameOf(list))).items.rows();
  const bool other_use =
      list == DeskList::kTimes
          ? !rows.empty() && Holds(rows.front(), kTimeOnAirMark)
          : list == DeskList::kNotInLog && program_.See("lista_notlog").items.rows().empty();
  return other_use ? std::vector<std::string>() : rows;
}

/// Decides every proposal of a list, and tells how many there were.
std::size_t DeskManager::Settle(DeskList list) {
  const std::size_t proposals = Rows(list).size();
  for (std::size_t left = proposals; left > 0; --left) {
    program_.Do(Join("select ", NameOf(list), " 0\n"));
    Decide(list, Rows(list).front());
    if (Rows(list).size() != left - 1) {
      throw std::runtime_error(Join("a decision on ", call_, " does not end in ", NameOf(list)));
    }
  }
  return proposals;
}

void DeskManager::Decide(DeskList list, const std::string& row) {
  const Proposal proposal = Read(list, row);
  const PlantedFault* fault = ledger_.Find(proposal);
  const bool judged = fault != nullptr && penalised_.insert(proposal.call).second;
  program_.Do(judged ? Judgement(list, *fault) : Acceptance(list));
}

Proposal DeskManager::Read(DeskList list, const std::string& row) const {
  constexpr Column kCallNotInLog{1, kCallWidth};
  Proposal proposal{.list = list, .log = call_};
  if (list == DeskList::kTimes) {
    const TimeItem item = ReadTimeItem(row, call_);
    proposal.call = item.other_call;
    proposal.time = item.own_time;
  } else if (list == DeskList::kUnique) {
    const UniqueItem item = ReadUniqueItem(row);
    proposal.call = item.call;
    proposal.locator = item.locator;
  } else if (list == DeskList::kDoubts) {
    proposal.call = Cut(row, qso_line::kCall);
    proposal.locator = Cut(row, qso_line::kLocator);
  } else {
    proposal.call = Cut(row, kCallNotInLog);
  }
  proposal.call = std::string(Trim(proposal.call));
  return proposal;
}

/// The commands that accept the selected proposal.
std::string DeskManager::Acceptance(DeskList list) {
  switch (list) {
    case DeskList::kDoubts: {
      // The desk asks once more where the evidence speaks against the locator.
      const bool asked = program_.See("conferma_errore").colour == colour::kRed;
      return Join(asked ? "answer yes\n" : "", "click QSO_ok\n");
    }
    case DeskList::kTimes:
      return "click convalida_qso_time\n";
    case DeskList::kUnique:
      return "click ok_call_unici\n";
    default:
      return "click no_errore\n";
  }
}

}  // namespace velmar
