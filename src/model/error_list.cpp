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
  constexpr std::size_t kDigits = 3;
  std::string ordinal(Trim(entry.ordinal));
  ordinal.insert(0, kDigits - std::min(kDigits, ordinal.size()), '0');
  return Join(" ", Pad(Str(entry.index), error_row::kIndex.width),
              Pad(entry.call, error_row::kCall.width), Pad(ordinal, error_row::kQso.width),
              Pad(entry.tag, error_row::kTag.width), Pad(entry.wrong, error_row::kWrong.width),
              Pad(entry.right, error_row::kRight.width), "-",
              Pad(entry.points, error_row::kPoints.width));
}

bool ErrorListHolds(std::string_view list, std::string_view call) {
  constexpr Column kTagStart{error_row::kTag.start, error_tag::kUnique.size()};
  LineReader reader(list);
  for (std::string_view line; reader.Next(line);) {
    // The head has the log's own call in the same columns. A station that worked itself is not on
    // the list for that.
    if (!line.starts_with(kLogLine) && Cut(line, error_row::kCall) == call &&
        Cut(line, kTagStart) != error_tag::kUnique) {
      return true;
    }
  }
  return false;
}

}  // namespace velmar
