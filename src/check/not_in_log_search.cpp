#include "check/not_in_log_search.h"

#include <algorithm>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "check/call_comparison.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

/// Calls at their full width, so that a portable call is another one.
using Calls = std::unordered_set<std::string_view>;
using RowsByOwner = std::unordered_map<std::string_view, std::vector<std::string_view>>;

std::string_view CallOf(std::string_view row) {
  return Cut(row, libreria_row::kCall);
}

/// The calls of the log that a row of a participant of the category holds.
Calls FindParticipants(const NotInLogSources& sources) {
  Calls wanted;
  for (const std::string_view row : sources.log) {
    wanted.insert(CallOf(row));
  }
  Calls found;
  for (const std::string_view row : sources.participants) {
    if (Cut(row, partecipante_row::kCategory) != sources.category) {
      continue;
    }
    for (std::size_t start = 1; start + kCallWidth <= row.size() + 1; ++start) {
      if (const auto call = wanted.find(Mid(row, start, kCallWidth)); call != wanted.end()) {
        found.insert(*call);
      }
    }
  }
  return found;
}

/// The owners of the category whose log has the call under examination.
Calls FindConfirming(const NotInLogSources& sources) {
  Calls confirming;
  for (const std::string_view row : sources.total_library) {
    if (Cut(row, libreria_totale_row::kCategory) == sources.category &&
        Trim(Cut(row, libreria_totale_row::kCall)) == sources.call) {
      confirming.insert(Cut(row, libreria_totale_row::kOwner));
    }
  }
  return confirming;
}

/// What the participants have logged in the locator of the log under examination.
RowsByOwner FindNearby(const NotInLogSources& sources, const Calls& participants) {
  RowsByOwner nearby;
  for (const std::string_view row : sources.others) {
    const std::string_view owner = Cut(row, libreria_row::kOwner);
    if (Cut(row, libreria_row::kLocator) == sources.locator && participants.contains(owner)) {
      nearby[owner].push_back(row);
    }
  }
  return nearby;
}

/// Whether the letters of the call under examination all stand in what was written.
bool LettersSwapped(std::string_view call, std::string_view written) {
  const auto held = std::ranges::count_if(Left(call, kComparedPlaces), [written](char c) {
    return written.find(c) != std::string_view::npos;
  });
  return static_cast<std::size_t>(held) == call.size();
}

/// How the other station seems to have written the call; nothing where it has nothing like it.
std::optional<std::string> ExplainByOther(const std::vector<std::string_view>& rows,
                                          std::string_view call, std::string_view other) {
  for (const std::string_view row : rows) {
    const std::string_view written = Trim(CallOf(row));
    const auto explain = [&](std::string_view start) {
      return Join(start, written, "  al posto di  ", call, "   L' errore è di  "_a, other);
    };
    if (FitsWithOneGap(call, written, kPatternsOfLogs)) {
      return explain("Ha scritto  ");
    }
    if (LettersSwapped(call, written)) {
      return explain("ha scritto  ");
    }
  }
  return std::nullopt;
}

}  // namespace

std::vector<NotInLogHit> FindNotInLog(const NotInLogSources& sources, bool hide_others_errors) {
  constexpr std::size_t kOtherShown = 8;
  constexpr std::size_t kOtherAtFault = 10;
  constexpr std::size_t kPointsShown = 4;
  const Calls participants = FindParticipants(sources);
  const Calls confirming = FindConfirming(sources);
  const RowsByOwner nearby = FindNearby(sources, participants);
  std::vector<NotInLogHit> hits;
  for (const std::string_view row : sources.log) {
    const std::string_view other = CallOf(row);
    if (!participants.contains(other) || confirming.contains(other)) {
      continue;
    }
    const std::string start = Join(other, Pad(Cut(row, libreria_row::kPoints), kPointsShown));
    const auto rows = nearby.find(other);
    const auto explanation =
        rows == nearby.end() ? std::nullopt : ExplainByOther(rows->second, sources.call, other);
    if (!explanation) {
      hits.push_back(
          {.item = start + "  NOT in log",
           .explanation = Join("Nel log di ", Left(other, kOtherShown), "non risulta il qso con ",
                               sources.call, ".  Visualizza il log e confronta con l' orario.")});
    } else if (!hide_others_errors) {
      hits.push_back({.item = start + "  NO errore di questo log.",
                      .explanation = Join(Left(other, kOtherAtFault), *explanation)});
    }
  }
  return hits;
}

}  // namespace velmar
