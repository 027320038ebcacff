#include "check/call_comparison.h"

#include <algorithm>

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

CallComparison CompareCalls(std::string_view wanted, std::string_view candidate) {
  CallComparison comparison;
  const std::size_t places = std::min(wanted.size(), kComparedPlaces);
  for (std::size_t i = 0; i < places; ++i) {
    const bool present = candidate.find(wanted[i]) != std::string_view::npos;
    const bool in_place = i < candidate.size() && candidate[i] == wanted[i];
    comparison.present += present ? 1 : 0;
    comparison.in_place += in_place ? 1 : 0;
    comparison.present_map += present ? wanted[i] : '_';
    comparison.in_place_map += in_place ? wanted[i] : '_';
  }
  return comparison;
}

bool IdenticalCall(std::string_view wanted, const CallComparison& comparison) {
  return comparison.present == wanted.size() && comparison.in_place == wanted.size();
}

std::vector<GradedCall> GradeCall(std::string_view wanted, std::string_view candidate,
                                  const CallComparison& comparison) {
  constexpr std::size_t kLongEnough = 5;  // for two errors to tell anything
  constexpr std::size_t kTail = 3;
  const std::size_t length = wanted.size();
  const std::size_t present = comparison.present;
  const std::size_t in_place = comparison.in_place;
  const std::string one = Join(" (1 err.) ", comparison.in_place_map);
  const std::string two = Join(" (2 err.) ", comparison.in_place_map);
  std::vector<GradedCall> hits;
  if (present == in_place && present + 1 == length) {
    hits.push_back({CallGrade::kOneError, one, "            Call più simile 2"_a});
  }
  if (present == length && in_place + 1 == length) {
    hits.push_back({CallGrade::kOneError, one, "            Call più simile 3"_a});
  }
  if (length >= kLongEnough && present == in_place && present + 2 == length) {
    hits.push_back({CallGrade::kTwoErrors, two, "            Call più simile 4"_a});
  }
  if (length >= kLongEnough && present == length && in_place + 2 == length) {
    hits.push_back({CallGrade::kAnagram, two, ""});
  }
  if (Right(wanted, kTail) == Right(candidate, kTail)) {
    hits.push_back({CallGrade::kOneError, Join(" (1 err.) ", comparison.present_map),
                    "            Call più simile 5"_a});
  }
  return hits;
}

bool FitsWithOneGap(std::string_view text, std::string_view word, std::size_t most) {
  const std::size_t gaps = std::min(word.size(), most);
  for (std::size_t gap = 0; gap < gaps; ++gap) {
    const std::string_view front = word.substr(0, gap);
    const std::string_view back = word.substr(gap + 1);
    if (text.size() >= front.size() + back.size() && text.starts_with(front) &&
        text.ends_with(back)) {
      return true;
    }
  }
  return false;
}

}  // namespace velmar
