#include "model/error_list.h"

#include "model/lines.h"
#include "model/print_line.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

std::string ErrorListHeadText(const ErrorListHead& head) {
  constexpr std::size_t kRuleWidth = 77;
  const auto rule = [](char c) { return Join(std::string(kRuleWidth, c), kLineEnd); };
  const std::string log = PrintLine()
                              .Text(Join(" Call: ", head.call))
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

}  // namespace velmar
