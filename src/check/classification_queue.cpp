#include "check/classification_queue.h"

#include <algorithm>
#include <utility>

#include "model/classification_row.h"
#include "model/lines.h"
#include "model/text.h"

namespace velmar {

namespace {

constexpr std::string_view kHeaderMark = " Pwr  Qso Declared";
constexpr Column kHeaderMarkAt{47, kHeaderMark.size()};
static_assert(Cut(classification_row::kHeader, kHeaderMarkAt) == kHeaderMark);

/// What only a header has where the result of a check stands.
constexpr std::string_view kHeaderResult = "ErrQRB";
static_assert(Holds(Cut(classification_row::kHeader, classification_row::kErrArea), kHeaderResult));

constexpr std::size_t kWholeRow = classification_row::kPercentage.end() - 1;

}  // namespace

bool ToBeChecked(std::string_view row) {
  constexpr Column kBlank = classification_row::kToBeChecked;
  return Cut(row, kBlank) == std::string(kBlank.width, ' ');
}

bool ClassificationQueue::Read(std::string_view text) {
  Clear();
  Rows rows;
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    if (line.empty()) {
      continue;
    }
    if (rows.empty() && Cut(line, kHeaderMarkAt) != kHeaderMark) {
      return false;
    }
    rows.Add(std::string(line));
  }
  rows_ = std::move(rows);
  return !empty();
}

std::string ClassificationQueue::FileText(std::size_t width) const {
  std::string text;
  for (std::size_t row = 0; row < size(); ++row) {
    // The header is longer than the rows.
    AddLine(text, row == 0 ? std::string_view(Row(row)) : Left(Row(row), width));
  }
  return text;
}

std::string ClassificationQueue::RowWithPosition(std::size_t row) const {
  const std::string& text = Row(row);
  return Join(Pad(text, std::max(text.size(), kWholeRow)), separator_, row);
}

std::vector<std::string> ClassificationQueue::Shown() const {
  std::vector<std::string> shown;
  shown.reserve(size());
  for (std::size_t row = 0; row < size(); ++row) {
    shown.push_back(row == 0 ? Row(row) : Join(Row(row), separator_, row));
  }
  return shown;
}

bool ClassificationQueue::LooksLikeHeader(std::size_t row) const {
  return Holds(ClassificaRow(Row(row)).ErrArea(), kHeaderResult);
}

bool ClassificationQueue::TooShort(std::size_t row) const {
  return Row(row).size() < classification_row::kBeforeCheck.width;
}

std::optional<std::size_t> ClassificationQueue::FirstUnchecked() const {
  for (std::size_t row = 1; row < size(); ++row) {
    if (ToBeChecked(Row(row))) {
      return row;
    }
  }
  return std::nullopt;
}

std::optional<std::size_t> ClassificationQueue::FindCall(std::string_view part) const {
  for (std::size_t row = 1; row < size(); ++row) {
    if (Holds(ClassificaRow(Row(row)).Call(), part)) {
      return row;
    }
  }
  return std::nullopt;
}

}  // namespace velmar
