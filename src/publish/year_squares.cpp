#include "publish/year_squares.h"

#include "model/lines.h"
#include "model/sorted_list.h"
#include "platform/ansi.h"
#include "publish/month_files.h"

namespace velmar {

/// Keeps the year as it stood before this month, if that was not done in an earlier run.
void YearSquares::PutAside(std::string_view band_label) {
  const PublishedFiles published = MonthFiles(session_);
  const std::string earlier = published.earlier_squares(band_label);
  const std::string year = published.year_squares(band_label);
  if (files_.StampOf(earlier)) {
    return;
  }
  if (files_.StampOf(year)) {
    files_.Copy(year, earlier);
    return;
  }
  manager_.Show(
      {.lines = {" la lista degli squares dei mesi precedenti non esiste. verrà creata una "
                 "lista a partire dal mese in corso "_a,
                 " oppure trasporta la lista annuale del mese scorso nella directory di questo "
                 "mese.   XA-B-C....   Squares_anno.ann)"}});
}

std::size_t YearSquares::Keep(std::string_view band_label,
                              const std::vector<std::string>& squares) {
  const PublishedFiles published = MonthFiles(session_);
  const std::string year = published.year_squares(band_label);
  PutAside(band_label);
  files_.Append(year, TextOfLines(squares));
  files_.WriteAll(published.month_squares(band_label), TextOfLines(squares));
  SortedList list;
  const std::string text = files_.ReadAll(year);
  for (const std::string_view square : SplitLines(text)) {
    list.Add(std::string(square));
  }
  const std::vector<std::string> distinct = Distinct(list.rows(), std::string::npos);
  files_.WriteAll(year, TextOfLines(distinct));
  return distinct.size();
}

std::string YearSquares::Earlier(std::string_view band_label) {
  return files_.ReadAll(MonthFiles(session_).earlier_squares(band_label));
}

std::string YearSquares::OfMonth(std::string_view band_label) {
  return files_.ReadAll(MonthFiles(session_).month_squares(band_label));
}

}  // namespace velmar
