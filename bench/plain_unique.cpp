#include "plain_unique.h"

#include <string_view>

#include "model/text.h"

namespace velmar::bench {

namespace {

// The places of the fields are written out here, so that a wrong column is a disagreement.
constexpr std::size_t kCall = 13;
constexpr std::size_t kLocator = 25;

std::string_view CallOf(std::string_view row) {
  return Mid(row, kCall, 12);
}

std::string_view LocatorOf(std::string_view row) {
  return Mid(row, kLocator, 6);
}

bool SentLog(std::string_view qso, const UniqueSources& sources, PlainUnique& met) {
  if (!sources.hide_with_log) {
    return false;
  }
  for (const std::string_view participant : sources.participants) {
    if (Pad(Mid(participant, 1, 12), 12) == Pad(Trim(CallOf(qso)), 12)) {
      ++met.with_log;
      return true;
    }
  }
  return false;
}

bool InBook(std::string_view qso, const UniqueSources& sources, PlainUnique& met) {
  if (!sources.hide_in_book) {
    return false;
  }
  for (const std::string& record : sources.call_book) {
    if (Mid(record, 1, 12) == CallOf(qso) && Mid(record, 13, 6) == LocatorOf(qso)) {
      ++met.in_book;
      return true;
    }
  }
  return false;
}

std::string Line(std::string_view qso, std::size_t ordinal, std::string_view remark) {
  return Join(Pad(qso, 35), " ", ordinal, remark);
}

/// Whether the first pass lists a QSO.
bool FirstPass(std::string_view qso, std::size_t ordinal, const UniqueSources& sources,
               PlainUnique& met) {
  std::string_view remark;
  const std::string_view call = RTrim(CallOf(qso));
  for (const std::string_view other : sources.others) {
    const std::string_view heard = RTrim(CallOf(other));
    if (CallOf(other) == CallOf(qso) || (heard.size() == call.size() && Holds(heard, call))) {
      ++met.equal;
      return false;
    }
    if (Holds(heard, call) && Holds(heard, "/")) {
      remark = "  / forse portatile ? ";
      break;
    }
  }
  ++(remark.empty() ? met.alone : met.portable);
  if (SentLog(qso, sources, met) || InBook(qso, sources, met)) {
    return false;
  }
  met.rows.push_back(Line(qso, ordinal, remark));
  return true;
}

/// Whether the second pass lists a QSO.
bool SecondPass(std::string_view qso, std::size_t ordinal, const UniqueSources& sources,
                PlainUnique& met) {
  const auto same = [qso](std::string_view other) {
    return CallOf(other) == CallOf(qso) && LocatorOf(other) == LocatorOf(qso);
  };
  bool heard = false;
  for (const std::string_view other : sources.others) {
    if (same(other)) {
      heard = true;
      break;
    }
  }
  if (!heard) {
    ++met.other_place;
    return false;
  }
  if (InBook(qso, sources, met) || SentLog(qso, sources, met)) {
    return false;
  }
  const int limit = sources.hide_over_two ? 1 : 2;
  int count = 0;
  for (const std::string_view other : sources.others) {
    if (same(other)) {
      ++count;
      if (count == limit) {
        ++met.enough;
        return false;
      }
    }
  }
  ++met.rare;
  met.rows.push_back(Line(qso, ordinal, "  < 3 questo call ha meno di 3 presenze"));
  return true;
}

}  // namespace

PlainUnique FindUniqueByLoops(const UniqueSources& sources) {
  PlainUnique found;
  std::vector<bool> listed;
  for (std::size_t i = 0; i < sources.log.size(); ++i) {
    listed.push_back(FirstPass(sources.log[i], i + 1, sources, found));
  }
  for (std::size_t i = 0; i < sources.log.size(); ++i) {
    if (SecondPass(sources.log[i], i + 1, sources, found) && listed[i]) {
      ++found.listed_twice;
    }
  }
  return found;
}

}  // namespace velmar::bench
