#include "plain_doubts.h"

#include <algorithm>
#include <string_view>

#include "model/store_rows.h"

namespace velmar::bench {

namespace {

constexpr int kFewWitnesses = 3;

bool SameCall(std::string_view left, std::string_view right) {
  return Cut(left, libreria_row::kCall) == Cut(right, libreria_row::kCall);
}

bool SameLocator(std::string_view left, std::string_view right) {
  return Cut(left, libreria_row::kLocator) == Cut(right, libreria_row::kLocator);
}

bool Declared(std::string_view qso, const LocatorWitnesses& witnesses) {
  return std::ranges::any_of(witnesses.participants, [&](std::string_view participant) {
    return Cut(participant, partecipante_row::kCall) == Cut(qso, libreria_row::kCall) &&
           Cut(participant, partecipante_row::kCategory) == witnesses.category &&
           Cut(participant, partecipante_row::kLocator) == Cut(qso, libreria_row::kLocator);
  });
}

int CountAgreeing(std::string_view qso, const LocatorWitnesses& witnesses) {
  return static_cast<int>(std::ranges::count_if(witnesses.others, [&](std::string_view other) {
    return SameCall(other, qso) && SameLocator(other, qso);
  }));
}

/// Whether a QSO is a doubt.
bool Doubtful(std::string_view qso, const LocatorWitnesses& witnesses, PlainDoubts& met) {
  int agreeing = 0;
  bool heard = false;
  for (const std::string_view other : witnesses.others) {
    if (!SameCall(other, qso)) {
      continue;
    }
    heard = true;
    if (SameLocator(other, qso)) {
      continue;
    }
    if (Declared(qso, witnesses)) {
      ++met.declared;
      return false;
    }
    agreeing += CountAgreeing(qso, witnesses);
    ++met.counts[agreeing];
    if (agreeing <= kFewWitnesses) {
      return true;
    }
  }
  if (!heard) {
    ++met.unheard;
  }
  return false;
}

}  // namespace

PlainDoubts FindDoubtsByLoops(const LocatorWitnesses& witnesses) {
  PlainDoubts found;
  for (std::size_t i = 0; i < witnesses.log.size(); ++i) {
    if (Doubtful(witnesses.log[i], witnesses, found)) {
      found.places.push_back(i);
    }
  }
  return found;
}

}  // namespace velmar::bench
