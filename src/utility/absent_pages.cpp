#include "utility/absent_pages.h"

#include <cstddef>

#include "model/text.h"
#include "utility/absent_calls.h"

namespace velmar {

namespace {

constexpr std::size_t kListRule = 37;
constexpr std::size_t kLogRule = 65;
constexpr std::size_t kListColumn = absent_line::kCall.end();  // and a blank behind it
constexpr int kRowPoints = 10;
constexpr int kHeadingPoints = 12;

}  // namespace

PrintJob AbsentListPages(const std::vector<std::string>& list, std::string_view month) {
  PrintedBlock page{.lines = {Join("Lista dei call assenti ", month), std::string(kListRule, '-')},
                    .points = kRowPoints};
  const std::size_t half = list.size() / 2 + 1;
  for (std::size_t row = 0; row < half && row < list.size(); ++row) {
    const std::size_t beside = row + half;
    page.lines.push_back(beside < list.size() ? Join(Pad(list[row], kListColumn), list[beside])
                                              : list[row]);
  }
  return {page};
}

PrintJob AbsentLogPages(const PrintedLog& log) {
  const std::string rule(kLogRule, '-');
  const PrintedBlock heading{.lines = {Join("Log ricostruito di ", log.call),
                                       Join(log.contest, "   Mese : ", log.month), rule},
                             .points = kHeadingPoints};
  PrintedBlock rows{.lines = log.lines, .points = kRowPoints};
  rows.lines.push_back(rule);
  if (!log.score.empty()) {
    rows.lines.push_back(Join(" punteggio teorico in 144 mhz = ", log.score));
    rows.lines.push_back(Join("   posizione teorica ", log.place));
  }
  return {heading, rows};
}

}  // namespace velmar
