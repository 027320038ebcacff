#include "plain_absent.h"

#include <algorithm>
#include <numeric>

#include "model/sorted_list.h"
#include "model/text.h"

namespace velmar::bench {

namespace {

// The places of the fields are written out here, so that a wrong column is a disagreement.
std::string WorkedCall(std::string_view row) {
  return Pad(Mid(row, 13, 12), 12);
}

std::string_view FirstTwelve(std::string_view row) {
  return Mid(row, 1, 12);
}

std::vector<std::string> KeptParticipants(const std::vector<std::string_view>& rows,
                                          std::string_view last_search) {
  std::vector<std::string> kept;
  for (const std::string_view row : rows) {
    const std::string call(Trim(FirstTwelve(row)));
    if (!last_search.empty() && call == last_search) {
      break;
    }
    kept.push_back(call);
  }
  return kept;
}

std::size_t DistinctByFlags(const std::vector<std::string>& calls) {
  std::vector<int> flags(calls.size(), 1);
  for (std::size_t i = 0; i < calls.size(); ++i) {
    for (std::size_t j = i + 1; j < calls.size(); ++j) {
      if (calls[j] == calls[i]) {
        flags[j] = 0;
      }
    }
  }
  return std::accumulate(flags.begin(), flags.end(), std::size_t{0});
}

SortedList NumberedRows(const std::vector<std::string_view>& library, PlainAbsent& found) {
  SortedList numbered;
  for (std::size_t i = 0; i < library.size(); ++i) {
    const std::string call = WorkedCall(library[i]);
    if (!call.starts_with("I")) {
      ++found.foreign;
      continue;
    }
    std::size_t number = 1;
    for (std::size_t j = i + 1; j < library.size(); ++j) {
      if (WorkedCall(library[j]) == call) {
        ++number;
      }
    }
    numbered.Add(Join(call, "   ", number));
  }
  return numbered;
}

void Walk(const std::vector<std::string>& rows, PlainAbsent& found) {
  std::vector<std::string> met;
  std::size_t count = 0;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    ++count;
    const std::string call(FirstTwelve(rows[i]));
    if (i + 1 < rows.size() && FirstTwelve(rows[i + 1]) == call) {
      continue;
    }
    found.counted.push_back(Join(call, count));
    found.split += static_cast<std::size_t>(std::ranges::count(met, call) > 0);
    met.push_back(call);
    count = 0;
  }
}

}  // namespace

PlainAbsent FindAbsentByLoops(const std::vector<std::string_view>& library,
                              const std::vector<std::string_view>& participants,
                              std::string_view last_search) {
  PlainAbsent found;
  const std::vector<std::string> kept = KeptParticipants(participants, last_search);
  found.distinct = DistinctByFlags(kept);
  Walk(NumberedRows(library, found).rows(), found);
  for (const std::string& entry : found.counted) {
    const std::string call(Trim(FirstTwelve(entry)));
    if (std::ranges::count(kept, call) > 0 || call == last_search) {
      ++found.present;
    } else {
      found.absent.push_back(entry);
    }
  }
  return found;
}

}  // namespace velmar::bench
