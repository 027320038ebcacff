#include "utility/absent_log.h"

#include "model/columns.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/form.h"

namespace velmar {

namespace {

constexpr std::size_t kLocatorWidth = 8;

// Wider and narrower than the fields of the classification, and meant so.
constexpr Column kFinalScore{105, 8};
constexpr Column kUnchecked{89, 14};

constexpr std::size_t kGoodPlaces = 5;
constexpr std::size_t kBestPlaces = 3;

std::string Line(const SommaQso& qso) {
  return Join("001", " ", " 144 ita  ", Right(qso.row, kCallWidth), Pad(qso.call, kCallWidth),
              Pad(qso.locator, kLocatorWidth), "     ", Trim(qso.points));
}

}  // namespace

RebuiltLog RebuildLog(const std::vector<SommaQso>& rows, std::string_view call) {
  RebuiltLog log;
  for (const SommaQso& qso : rows) {
    if (qso.call == call) {
      log.lines.push_back(Line(qso));
      log.points += Val(qso.points);
    }
  }
  return log;
}

std::string TheoreticalPlace::Text() const {
  return unchecked ? "no applic." : Join(place.value_or(logs), " su ", logs);
}

std::optional<int> TheoreticalPlace::Colour() const {
  const std::size_t rank = place.value_or(logs + 1);
  if (unchecked || rank > kGoodPlaces) {
    return std::nullopt;
  }
  return rank > kBestPlaces ? colour::kYellow : colour::kGreen;
}

TheoreticalPlace FindPlace(std::string_view classification, double score) {
  TheoreticalPlace found;
  std::size_t unchecked = 0;
  LineReader reader(classification);
  std::string_view row;
  reader.Next(row);  // the header
  while (reader.Next(row)) {
    ++found.logs;
    if (Cut(row, kUnchecked) == std::string(kUnchecked.width, ' ')) {
      ++unchecked;
    }
    if (!found.place && Val(Cut(row, kFinalScore)) < score) {
      found.place = found.logs;
    }
  }
  found.unchecked = unchecked == found.logs;
  return found;
}

}  // namespace velmar
