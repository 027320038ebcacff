#include "check/locator_evidence.h"

#include <algorithm>

#include "check/qso_line.h"
#include "model/text.h"

namespace velmar {

namespace {

constexpr Column kEvidence{1, 30};

}  // namespace

LocatorEvidence GatherEvidence(const std::vector<std::string_view>& others, std::string_view call,
                               std::string_view locator) {
  LocatorEvidence evidence;
  for (const std::string_view row : others) {
    if (Cut(row, qso_line::kCall) == call) {
      const bool same = Cut(row, qso_line::kLocator) == locator;
      ++(same ? evidence.same : evidence.other);
      evidence.rows.push_back(Join(Cut(row, kEvidence), same ? " <---" : " *"));
    }
  }
  return evidence;
}

LocatorVerdict JudgeLocator(int same, int other) {
  // In this order: the last one that applies stands.
  LocatorVerdict verdict{.text = "", .good = false, .believed_wrong = false, .doubt = false};
  if (same >= other) {
    verdict = {.text = "Locator OK", .good = true, .believed_wrong = false, .doubt = false};
  }
  if (same < other) {
    verdict = {.text = "          ", .good = false, .believed_wrong = true, .doubt = false};
  }
  if (other == 1 && same == 0) {
    verdict = {.text = " DUBBIO ", .good = false, .believed_wrong = false, .doubt = true};
  }
  if (same == other) {
    verdict = {.text = " ho un DUBBIO !! ", .good = false, .believed_wrong = false, .doubt = true};
  }
  return verdict;
}

std::string RepeatedLocator(const std::vector<std::string>& rows) {
  for (const std::string& row : rows) {
    const auto locator = Cut(row, qso_line::kLocator);
    const auto times = std::ranges::count_if(rows, [locator](const std::string& other) {
      return Cut(other, qso_line::kLocator) == locator;
    });
    if (times > 1) {
      return std::string(locator);
    }
  }
  return {};
}

}  // namespace velmar
