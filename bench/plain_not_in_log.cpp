#include "plain_not_in_log.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar::bench {

namespace {

// The places of the fields are written out here, so that a wrong column is a disagreement.

bool SentLog(std::string_view qso, const NotInLogSources& sources) {
  return std::ranges::any_of(sources.participants, [&](std::string_view row) {
    return Holds(row, Mid(qso, 13, 12)) && Mid(row, 20, 3) == sources.category;
  });
}

bool Confirmed(std::string_view qso, const NotInLogSources& sources) {
  return std::ranges::any_of(sources.total_library, [&](std::string_view row) {
    return Mid(row, 1, 12) == Mid(qso, 13, 12) && Mid(row, 32, 3) == sources.category &&
           Trim(Mid(row, 13, 12)) == sources.call;
  });
}

/// Whether a text matches a pattern in which "*" stands for any run of characters.
bool Matches(std::string_view text, std::string_view pattern) {
  if (pattern.empty()) {
    return text.empty();
  }
  if (pattern.front() == '*') {
    for (std::size_t skipped = 0; skipped <= text.size(); ++skipped) {
      if (Matches(text.substr(skipped), pattern.substr(1))) {
        return true;
      }
    }
    return false;
  }
  return !text.empty() && text.front() == pattern.front() &&
         Matches(text.substr(1), pattern.substr(1));
}

bool FitsAPattern(std::string_view call, std::string_view written) {
  for (std::size_t k = 1; k <= std::min<std::size_t>(written.size(), 9); ++k) {
    if (Matches(call, Join(Left(written, k - 1), "*", Mid(written, k + 1)))) {
      return true;
    }
  }
  return false;
}

bool SameLetters(std::string_view call, std::string_view written) {
  std::size_t held = 0;
  for (std::size_t k = 1; k <= std::min<std::size_t>(call.size(), 10); ++k) {
    if (Holds(written, Mid(call, k, 1))) {
      ++held;
    }
  }
  return held == call.size();
}

/// The message of the first row of the other station that tells something; empty without one.
std::string Explain(std::string_view qso, const NotInLogSources& sources, PlainNotInLog& met) {
  for (const std::string_view row : sources.others) {
    if (Mid(row, 1, 12) != Mid(qso, 13, 12) || Mid(row, 25, 6) != sources.locator) {
      continue;
    }
    const std::string_view written = Trim(Mid(row, 13, 12));
    const std::string rest =
        Join(written, "  al posto di  ", sources.call, "   L' errore è di  "_a, Mid(qso, 13, 12));
    if (FitsAPattern(sources.call, written)) {
      ++met.one_gap;
      return Join("Ha scritto  ", rest);
    }
    if (SameLetters(sources.call, written)) {
      ++met.swapped;
      return Join("ha scritto  ", rest);
    }
  }
  return {};
}

}  // namespace

PlainNotInLog FindNotInLogByLoops(const NotInLogSources& sources, bool hide_others_errors) {
  PlainNotInLog found;
  for (const std::string_view qso : sources.log) {
    if (!SentLog(qso, sources)) {
      ++found.no_log;
      continue;
    }
    if (Confirmed(qso, sources)) {
      ++found.confirmed;
      continue;
    }
    const std::string item = Join(Mid(qso, 13, 12), Left(Join(Mid(qso, 32), "    "), 4));
    const std::string message = Explain(qso, sources, found);
    if (message.empty()) {
      ++found.unexplained;
      found.hits.push_back({Join(item, "  NOT in log"),
                            Join("Nel log di ", Mid(qso, 13, 8), "non risulta il qso con ",
                                 sources.call, ".  Visualizza il log e confronta con l' orario.")});
    } else if (hide_others_errors) {
      ++found.hidden;
    } else {
      found.hits.push_back(
          {Join(item, "  NO errore di questo log."), Join(Mid(qso, 13, 10), message)});
    }
  }
  return found;
}

}  // namespace velmar::bench
