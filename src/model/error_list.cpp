#include "model/error_list.h"

#include <algorithm>

#include "model/lines.h"
#include "model/print_line.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

/// What the head's line about the log begins with. No decision does: its index stands there.
constexpr std::string_view kLogLine = " Call: ";

std::string IndexAndCall(int index, std::string_view call) {
  return Join(" ", Pad(Str(index), error_row::kIndex.width), Pad(call, error_row::kCall.width));
}

/// A line up to the points.
std::string LineStart(const ErrorEntry& entry) {
  constexpr std::size_t kDigits = 3;
  std::string ordinal(Trim(entry.ordinal));
  ordinal.insert(0, kDigits - std::min(kDigits, ordinal.size()), '0');
  return Join(IndexAndCall(entry.index, entry.call), Pad(ordinal, error_row::kQso.width),
              Pad(entry.tag, error_row::kTag.width), Pad(entry.wrong, error_row::kWrong.width),
              Pad(entry.right, error_row::kRight.width), "-");
}

}  // namespace

std::string ErrorListHeadText(const ErrorListHead& head) {
  constexpr std::size_t kRuleWidth = 77;
  const auto rule = [](char c) { return Join(std::string(kRuleWidth, c), kLineEnd); };
  const std::string log = PrintLine()
                              .Text(Join(kLogLine, head.call))
                              .Zone()
                              .Text(Join("Loc. ", head.locator))
                              .Zone()
                              .Text(Join("     Declared:", head.declared))
                              .Zone()
                              .Text(Join("  Banda", head.band))
                              .Zone()
                              .Text(Join("  Cat.", head.category))
                              .End();
  return Join(rule('='), "         Lista errori  ", head.title, "   ", head.month, kLineEnd,
              kLineEnd, log, rule('-'),
              "  n     Call     n° qso   Tipo errore       errore     corretto   err qrb"_a,
              kLineEnd);
}

std::string ErrorListHeadOf(std::string_view list) {
  std::string head;
  LineReader reader(list);
  std::string_view line;
  for (std::size_t i = 0; i < kErrorListHeadLines && reader.Next(line); ++i) {
    AddLine(head, line);
  }
  return head;
}

std::string ErrorListLine(const ErrorEntry& entry) {
  return Join(LineStart(entry), Pad(entry.points, error_row::kPoints.width));
}

std::string UniqueCallLine(int index, std::string_view call, std::string_view ordinal) {
  return LineStart({.index = index,
                    .call = std::string(call),
                    .ordinal = std::string(ordinal),
                    .tag = error_tag::kUnique,
                    .wrong = std::string(call)});
}

std::string NotInLogLine(int index, std::string_view call, std::string_view points) {
  return Join(IndexAndCall(index, call), "       NOT in LOG                          ", points);
}

std::string ErrorListTotals(double official, double final) {
  constexpr std::size_t kIndent = 44;
  constexpr std::size_t kRule = 33;
  constexpr std::size_t kAheadOfSign = 66;
  const std::string rule = Join(std::string(kIndent, ' '), std::string(kRule, '-'), kLineEnd);
  const auto sum = [](std::string_view text, double points) {
    return PrintLine().Text(text).Zone().Number(static_cast<long long>(points)).End();
  };
  return Join(rule, sum(Join(std::string(kAheadOfSign, ' '), "-"), official - final),
              sum("                                            Punti qrb validi       ", official),
              rule,
              sum("                                            FINAL SCORE            ", final));
}

bool ErrorListHolds(std::string_view list, std::string_view call) {
  constexpr std::string_view kUnique = RTrim(error_tag::kUnique);
  constexpr Column kTagStart{error_row::kTag.start, kUnique.size()};
  LineReader reader(list);
  for (std::string_view line; reader.Next(line);) {
    // The head has the log's own call in the same columns. A station that worked itself is not on
    // the list for that.
    if (!line.starts_with(kLogLine) && RTrim(Cut(line, error_row::kCall)) == RTrim(call) &&
        Cut(line, kTagStart) != kUnique) {
      return true;
    }
  }
  return false;
}

}  // namespace velmar
