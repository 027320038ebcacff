#include "model/classification_row.h"

#include <cmath>

#include "platform/error.h"

namespace velmar {

namespace {

constexpr int kSingleDigits = 7;
constexpr std::size_t kQuotientCharacters = 6;

/// Puts `text` over what stands in `block` from a column (counted from 1) on.
void Overwrite(std::string& block, Column column, std::string_view text) {
  block.replace(column.start - 1, column.width, Pad(text, column.width));
}

}  // namespace

std::string ClassificationRow(const ClassificationEntry& entry) {
  namespace columns = classification_row;
  const std::string points = Pad(Str(entry.points), columns::kRecalculated.width);
  return Join(
      Pad(entry.call, columns::kCall.width), " ", entry.locator, "  ",
      Pad(entry.height, columns::kHeight.width), Pad(entry.antenna, columns::kAntenna.width),
      Pad(StrReal(entry.power), columns::kPower.width), " ", Pad(entry.qsos, columns::kQsos.width),
      Pad(entry.declared, columns::kDeclared.width), Pad(entry.dx_call, columns::kDxCall.width),
      " ", Pad(entry.dx_distance, columns::kDxDistance.width), points,
      Pad("", columns::kErrors.width), Pad("", columns::kErrorPoints.width), points,
      PercentageBlock(0, entry.operator_mark));
}

std::string CheckedRow(std::string_view row, const CheckTotals& totals) {
  namespace columns = classification_row;
  const ClassificaRow old(row);
  const float percentage = ErrorPercentage(totals.errors, static_cast<int>(old.QsoCount()));
  return Join(Pad(Cut(row, columns::kBeforeCheck), columns::kBeforeCheck.width),
              Pad(Str(totals.errors), columns::kErrors.width),
              Pad(StrReal(totals.lost), columns::kErrorPoints.width),
              Pad(StrReal(totals.final), columns::kPoints.width),
              PercentageBlock(percentage, old.Mark().empty() ? ' ' : old.Mark().front()),
              old.Position());
}

std::string WithoutResult(std::string_view row) {
  constexpr Column kBlank = classification_row::kTakenBack;
  std::string blanked(row);
  blanked.replace(kBlank.start - 1, kBlank.width, std::string(kBlank.width, ' '));
  return blanked;
}

std::string WithDxMark(std::string_view row, char mark) {
  std::string marked(row);
  marked.at(classification_row::kDxMark.start - 1) = mark;
  return marked;
}

float ErrorPercentage(int errors, int qsos) {
  if (qsos == 0) {
    throw RunTimeError(ErrorNumber::kDivisionByZero, "a percentage of no QSOs");
  }
  const std::string text = StrReal(100.0 * (100.0 * errors / qsos));
  return static_cast<float>(std::abs(Val(Left(text, kQuotientCharacters)) / 100));
}

std::string PercentageBlock(float percentage, char operator_mark) {
  std::string text(Trim(StrReal(percentage, kSingleDigits)));
  if (!Holds(text, ".")) {
    text += ".0";
  }
  std::string block(classification_row::kPercentage.width, ' ');
  if (percentage >= 99.999999F) {
    Overwrite(block, {2, 3}, text);
  } else {
    Overwrite(block, percentage > 9.999999F ? Column{1, 4} : Column{2, 4}, text);
  }
  Overwrite(block, {5, 2}, "% ");
  block.back() = operator_mark;
  return block;
}

}  // namespace velmar
