#include "check/unique_calls.h"

#include <cstddef>
#include <map>
#include <optional>
#include <unordered_map>
#include <unordered_set>

#include "check/qso_line.h"
#include "model/call_book.h"
#include "model/store_rows.h"
#include "model/text.h"

namespace velmar {

namespace {

constexpr std::string_view kPortable = "  / forse portatile ? ";
constexpr std::string_view kRare = "  < 3 questo call ha meno di 3 presenze";
constexpr Column kCallAndLocator{libreria_row::kCall.start,
                                 kCallWidth + libreria_row::kLocator.width};
constexpr Column kBookCallAndLocator{book_record::kCall.start,
                                     kCallWidth + book_record::kLocator.width};

std::string_view CallOf(std::string_view row) {
  return Cut(row, libreria_row::kCall);
}

/// The other logs' QSOs, so that nobody walks through them for each QSO of the log. Places count
/// from 0.
struct OthersIndex {
  explicit OthersIndex(const std::vector<std::string_view>& others) {
    for (std::size_t place = 0; place < others.size(); ++place) {
      const std::string_view call = CallOf(others[place]);
      const bool is_new = first_place.try_emplace(call, place).second;
      if (is_new && Holds(call, "/")) {
        portables.emplace(place, RTrim(call));
      }
      ++sightings[Cut(others[place], kCallAndLocator)];
    }
  }

  /// The first place of a longer call with a "/" that holds `call`.
  std::optional<std::size_t> PortableOf(std::string_view call) const {
    for (const auto& [place, portable] : portables) {
      if (portable.size() != call.size() && Holds(portable, call)) {
        return place;
      }
    }
    return std::nullopt;
  }

  std::unordered_map<std::string_view, std::size_t> first_place;  ///< by call of 12 characters
  std::map<std::size_t, std::string_view> portables;              ///< each once, by first place
  std::unordered_map<std::string_view, int> sightings;            ///< by call and locator
};

/// Which calls are left out, whoever else has them.
struct Known {
  explicit Known(const UniqueSources& sources) {
    if (sources.hide_with_log) {
      for (const std::string_view row : sources.participants) {
        with_log.insert(RTrim(Cut(row, partecipante_row::kCall)));
      }
    }
    if (sources.hide_in_book) {
      for (const std::string& record : sources.call_book) {
        in_book.insert(Cut(record, kBookCallAndLocator));
      }
    }
  }

  bool Has(std::string_view row) const {
    return with_log.contains(Trim(CallOf(row))) || in_book.contains(Cut(row, kCallAndLocator));
  }

  std::unordered_set<std::string_view> with_log;
  std::unordered_set<std::string_view> in_book;
};

/// The remark of a call that no other log has: nothing where one has it. What comes first in the
/// store decides.
std::optional<std::string_view> RemarkOfUnique(const OthersIndex& others, std::string_view row) {
  const auto same = others.first_place.find(CallOf(row));
  const auto portable = others.PortableOf(RTrim(CallOf(row)));
  if (same != others.first_place.end() && (!portable || same->second < *portable)) {
    return std::nullopt;
  }
  return portable ? kPortable : std::string_view();
}

}  // namespace

std::vector<std::string> FindUniqueCalls(const UniqueSources& sources) {
  const OthersIndex others(sources.others);
  const Known known(sources);
  std::vector<std::string> unique;
  for (std::size_t i = 0; i < sources.log.size(); ++i) {
    const std::string_view row = sources.log[i];
    const auto remark = RemarkOfUnique(others, row);
    if (remark && !known.Has(row)) {
      unique.push_back(Join(QsoLine(row, i + 1), *remark));
    }
  }
  const int limit = sources.hide_over_two ? 1 : 2;
  for (std::size_t i = 0; i < sources.log.size(); ++i) {
    const std::string_view row = sources.log[i];
    const auto sightings = others.sightings.find(Cut(row, kCallAndLocator));
    const bool rare = sightings != others.sightings.end() && sightings->second < limit;
    if (rare && !known.Has(row)) {
      unique.push_back(Join(QsoLine(row, i + 1), kRare));
    }
  }
  return unique;
}

std::string ForcedRow(const std::vector<std::string_view>& log, std::string_view call) {
  for (std::size_t i = 0; i < log.size(); ++i) {
    if (Trim(CallOf(log[i])) == call) {
      return QsoLine(log[i], i + 1);
    }
  }
  return {};
}

}  // namespace velmar
