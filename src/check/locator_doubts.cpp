#include "check/locator_doubts.h"

#include <algorithm>
#include <map>
#include <unordered_map>
#include <unordered_set>

#include "check/qso_line.h"
#include "model/locator.h"
#include "model/store_rows.h"
#include "model/text.h"

namespace velmar {

namespace {

constexpr int kFewWitnesses = 3;

/// What the other logs say of one call.
struct Sightings {
  int all = 0;
  std::map<std::string_view, int> by_locator;
};

using SightingsByCall = std::unordered_map<std::string_view, Sightings>;

std::string_view CallOf(std::string_view row) {
  return Cut(row, libreria_row::kCall);
}

std::string_view LocatorOf(std::string_view row) {
  return Cut(row, libreria_row::kLocator);
}

/// Only the calls of the log are looked for, so that the pass over the store stays cheap.
SightingsByCall CountSightings(const LocatorWitnesses& witnesses) {
  SightingsByCall sightings;
  for (const std::string_view row : witnesses.log) {
    sightings.try_emplace(CallOf(row));
  }
  for (const std::string_view row : witnesses.others) {
    if (const auto found = sightings.find(CallOf(row)); found != sightings.end()) {
      ++found->second.all;
      ++found->second.by_locator[LocatorOf(row)];
    }
  }
  return sightings;
}

/// Calls with the locators that they declared in logs of the category.
std::unordered_set<std::string_view> Declarations(const LocatorWitnesses& witnesses) {
  constexpr Column kCallAndLocator{partecipante_row::kCall.start,
                                   kCallWidth + partecipante_row::kLocator.width};
  std::unordered_set<std::string_view> declarations;
  for (const std::string_view row : witnesses.participants) {
    if (Cut(row, partecipante_row::kCategory) == witnesses.category) {
      declarations.insert(Cut(row, kCallAndLocator));
    }
  }
  return declarations;
}

}  // namespace

bool LocatorBroken(std::string_view locator) {
  constexpr std::size_t kLength = 6;
  return locator.size() == kLength && !LocatorValid(locator);
}

bool ItalianPortable(std::string_view call) {
  return call.starts_with('I') && Holds(call, "/P");
}

std::vector<std::size_t> FindLocatorDoubts(const LocatorWitnesses& witnesses) {
  constexpr Column kCallAndLocator{libreria_row::kCall.start,
                                   kCallWidth + libreria_row::kLocator.width};
  const SightingsByCall sightings = CountSightings(witnesses);
  const auto declarations = Declarations(witnesses);
  std::vector<std::size_t> doubts;
  for (std::size_t i = 0; i < witnesses.log.size(); ++i) {
    const std::string_view row = witnesses.log[i];
    const Sightings& seen = sightings.at(CallOf(row));
    const auto same = seen.by_locator.find(LocatorOf(row));
    // Each differing QSO would add the agreeing ones to the count again: the first decides.
    const int agreeing = same == seen.by_locator.end() ? 0 : same->second;
    const bool contradicted = seen.all > agreeing;
    if (contradicted && agreeing <= kFewWitnesses &&
        !declarations.contains(Cut(row, kCallAndLocator))) {
      doubts.push_back(i);
    }
  }
  return doubts;
}

std::vector<std::size_t> FindOwnQsos(const std::vector<std::string_view>& log,
                                     std::string_view call) {
  std::vector<std::size_t> own;
  for (std::size_t i = 0; i < log.size(); ++i) {
    if (Trim(CallOf(log[i])) == call) {
      own.push_back(i);
    }
  }
  return own;
}

std::vector<std::size_t> FindDeclaredOtherwise(const std::vector<std::string_view>& log,
                                               const std::vector<std::string_view>& participants) {
  std::vector<std::size_t> found;
  for (std::size_t i = 0; i < log.size(); ++i) {
    const bool otherwise = std::ranges::any_of(participants, [&](std::string_view participant) {
      return Cut(participant, partecipante_row::kCall) == CallOf(log[i]) &&
             Cut(participant, partecipante_row::kLocator) != LocatorOf(log[i]);
    });
    if (otherwise) {
      found.push_back(i);
    }
  }
  return found;
}

}  // namespace velmar
