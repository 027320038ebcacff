#include "utility/absent_calls.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "model/lines.h"
#include "model/sorted_list.h"
#include "model/store_rows.h"

namespace velmar {

namespace {

constexpr std::size_t kCountWidth = 3;

std::string_view TextOf(const WorkedCall& call) {
  return {call.data(), call.size()};
}

struct CallHash {
  std::size_t operator()(const WorkedCall& call) const {
    return std::hash<std::string_view>()(TextOf(call));
  }
};

using Counts = std::unordered_map<WorkedCall, std::size_t, CallHash>;

/// A spelling of a call, in the order of the list that the counts come from.
struct Spelling {
  std::string key;  ///< in small letters
  const Counts::value_type* counted;
};

std::vector<Spelling> InOrder(const Counts& counts) {
  std::vector<Spelling> spellings;
  spellings.reserve(counts.size());
  for (const auto& counted : counts) {
    spellings.push_back({Lower(TextOf(counted.first)), &counted});
  }
  std::ranges::sort(spellings, {}, &Spelling::key);
  return spellings;
}

std::string_view CallOf(std::string_view entry) {
  return Cut(entry, call_count::kCall);
}

/// The entries of calls that have several spellings: their numbered rows as they interleave in one
/// sorted list. Each number tells how many such rows are left.
std::vector<std::string> MixedEntries(std::span<const WorkedCall> worked, Counts left) {
  SortedList numbered;
  for (const WorkedCall& call : worked) {
    if (const auto found = left.find(call); found != left.end()) {
      numbered.Add(Join(TextOf(call), "   ", found->second--));
    }
  }
  std::vector<std::string> entries;
  std::size_t run = 0;
  const auto& rows = numbered.rows();
  for (std::size_t row = 0; row < rows.size(); ++row) {
    ++run;
    if (row + 1 == rows.size() || CallOf(rows[row + 1]) != CallOf(rows[row])) {
      entries.push_back(Join(CallOf(rows[row]), std::exchange(run, 0)));
    }
  }
  return entries;
}

}  // namespace

ParticipantCalls ReadParticipantCalls(std::string_view rows, std::string_view last_search) {
  ParticipantCalls calls;
  LineReader reader(rows);
  for (std::string_view row; reader.Next(row);) {
    const std::string_view call = Trim(Cut(row, partecipante_row::kCall));
    if (!last_search.empty() && call == last_search) {
      break;
    }
    calls.Add(std::string(call));
  }
  return calls;
}

std::size_t DistinctCalls(const ParticipantCalls& calls) {
  return std::unordered_set<std::string_view>(calls.begin(), calls.end()).size();
}

WorkedCall WorkedCallOf(std::string_view row) {
  WorkedCall call;
  call.fill(' ');
  std::ranges::copy(Cut(row, libreria_row::kCall), call.begin());
  return call;
}

bool Italian(const WorkedCall& call) {
  return call.front() == 'I';
}

std::vector<std::string> CountCalls(std::span<const WorkedCall> worked) {
  Counts counts;
  for (const WorkedCall& call : worked) {
    if (Italian(call)) {
      ++counts[call];
    }
  }
  const std::vector<Spelling> spellings = InOrder(counts);
  std::vector<std::string> plain;
  plain.reserve(spellings.size());
  Counts mixed;
  for (auto first = spellings.begin(); first != spellings.end();) {
    const auto last = std::find_if(first, spellings.end(),
                                   [&](const Spelling& other) { return other.key != first->key; });
    if (last - first == 1) {
      plain.push_back(Join(TextOf(first->counted->first), first->counted->second));
    }
    for (auto one = first; last - first > 1 && one != last; ++one) {
      mixed.insert(*one->counted);
    }
    first = last;
  }
  if (mixed.empty()) {
    return plain;
  }
  // No call is in both, so that the order within each stays.
  const std::vector<std::string> pieces = MixedEntries(worked, std::move(mixed));
  std::vector<std::string> entries;
  entries.reserve(plain.size() + pieces.size());
  std::ranges::merge(
      plain, pieces, std::back_inserter(entries), {},
      [](const std::string& entry) { return Lower(CallOf(entry)); },
      [](const std::string& entry) { return Lower(CallOf(entry)); });
  return entries;
}

std::vector<std::string> AbsentEntries(std::span<const std::string> entries,
                                       const ParticipantCalls& participants,
                                       std::string_view last_search) {
  const std::unordered_set<std::string_view> present(participants.begin(), participants.end());
  std::vector<std::string> absent;
  for (const std::string& entry : entries) {
    const std::string_view call = Trim(CallOf(entry));
    if (!present.contains(call) && call != last_search) {
      absent.push_back(entry);
    }
  }
  return absent;
}

std::vector<std::string> LinesByCount(std::span<const std::string> absent) {
  SortedList lines;
  for (const std::string& entry : absent) {
    lines.Add(Join(Right(entry, kCountWidth), "    ", CallOf(entry)));
  }
  return lines.rows();
}

std::string PercentageText(std::size_t part, std::size_t whole) {
  if (whole == 0) {
    return {};
  }
  const std::size_t thousandths = (2'000 * part + whole) / (2 * whole);  // rounded
  return Join(thousandths / 10, ".", thousandths % 10, "%");
}

}  // namespace velmar
