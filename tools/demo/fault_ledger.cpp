#include "demo/fault_ledger.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

#include "model/text.h"

namespace velmar {

namespace {

constexpr std::size_t kKindWidth = 20;

/// Whether the list can be expected to show a fault of the kind.
bool LookedFor(FaultKind kind, DeskList list) {
  switch (kind) {
    case FaultKind::kTimeOff:
      return list == DeskList::kTimes;
    case FaultKind::kMissingQso:
      return list == DeskList::kNotInLog;
    case FaultKind::kUnique:
      return list == DeskList::kUnique;
    case FaultKind::kBustedCall:
    case FaultKind::kBustedLocator:
    case FaultKind::kPortableMark:
      return list == DeskList::kDoubts || list == DeskList::kUnique;
    default:
      return false;
  }
}

/// Whether the proposal is about the very QSO that holds the fault.
bool Meets(const Proposal& proposal, const PlantedFault& fault) {
  switch (fault.kind) {
    case FaultKind::kBustedLocator:
      return proposal.call == fault.other && proposal.locator == fault.logged;
    case FaultKind::kTimeOff:
      return proposal.call == fault.other && proposal.time == fault.time;
    case FaultKind::kMissingQso:
      return proposal.call == fault.other;
    default:
      return proposal.call == fault.logged;
  }
}

bool LookedFor(FaultKind kind) {
  static constexpr std::array kLists = {DeskList::kDoubts, DeskList::kTimes, DeskList::kUnique,
                                        DeskList::kNotInLog};
  return std::ranges::any_of(kLists, [kind](DeskList list) { return LookedFor(kind, list); });
}

std::string_view WhyUnseen(FaultKind kind) {
  return std::ranges::find(kRefusals, kind) == kRefusals.end()
             ? "planted: without points since the log was inserted, no check looks for them"
             : "planted: the log was refused ahead of the desk";
}

std::string RowOf(FaultKind kind, std::size_t planted, std::size_t proposed) {
  const std::string name = Pad(FaultName(kind), kKindWidth);
  return LookedFor(kind) ? Join(name, proposed, " of ", planted, " proposed")
                         : Join(name, planted, " ", WhyUnseen(kind));
}

}  // namespace

FaultLedger::FaultLedger(const std::vector<PlantedFault>& faults) {
  for (const PlantedFault& fault : faults) {
    entries_.push_back({.fault = fault});
  }
}

const PlantedFault* FaultLedger::Find(const Proposal& proposal) {
  const auto entry = std::ranges::find_if(entries_, [&proposal](const Entry& candidate) {
    return candidate.fault.log == proposal.log && LookedFor(candidate.fault.kind, proposal.list) &&
           Meets(proposal, candidate.fault);
  });
  if (entry == entries_.end()) {
    return nullptr;
  }
  entry->proposed = true;
  return &entry->fault;
}

std::vector<std::string> FaultLedger::Rows() const {
  std::vector<std::string> rows;
  const auto add = [&](FaultKind kind) {
    const auto count = [&](bool proposed_alone) {
      return static_cast<std::size_t>(std::ranges::count_if(entries_, [&](const Entry& entry) {
        return entry.fault.kind == kind && (entry.proposed || !proposed_alone);
      }));
    };
    rows.push_back(RowOf(kind, count(false), count(true)));
  };
  std::ranges::for_each(kCommonFaults, add);
  std::ranges::for_each(kRefusals, add);
  return rows;
}

std::vector<PlantedFault> FaultLedger::Missed() const {
  std::vector<PlantedFault> missed;
  for (const Entry& entry : entries_) {
    if (!entry.proposed && LookedFor(entry.fault.kind)) {
      missed.push_back(entry.fault);
    }
  }
  return missed;
}

}  // namespace velmar
