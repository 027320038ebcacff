#include "publish/area_classifications.h"

#include <string>
#include <string_view>

#include "model/bounded_table.h"
#include "model/call_area.h"
#include "model/classification_row.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "publish/month_files.h"

namespace velmar {

namespace {

/// The classification of an area, out of that of the category.
std::string CutFor(CallArea area, std::string_view classification) {
  BoundedTable<std::string_view, AreaClassifications::kMostRows> rows;
  LineReader reader(classification);
  for (std::string_view row; reader.Next(row);) {
    if (BelongsTo(row, area)) {
      rows.Add(row);
    }
  }
  std::string text;
  AddLine(text, classification_row::kHeader);
  return text + TextOfLines(rows);
}

}  // namespace

void AreaClassifications::cla_x_callarea_Click() {
  trap_.Procedure([this] { WriteAll(); });
}

void AreaClassifications::WriteAll() {
  const auto classification =
      ReadIfThere(files_, session_.workspace.classification(session_.category_month));
  if (!classification) {
    manager_.Show({.lines = {Join(" Nessuna classifica  ", kCategory, " è presente"_a)}});
    return;
  }
  const PublishedFiles published = MonthFiles(session_);
  for (std::size_t i = 0; i < kCallAreaNames.size(); ++i) {
    const auto area = static_cast<CallArea>(i);
    files_.WriteAll(published.area_classification(area), CutFor(area, *classification));
  }
  manager_.Show({.lines = {" classifiche Velmar per call area eseguita"}});
}

}  // namespace velmar
