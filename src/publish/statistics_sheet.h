#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/workbook.h"
#include "publish/classification_sheet.h"

namespace velmar {

/// Adds the sheet "2IT-STAT" behind the last: the contest on one page, out of the text of the
/// statistics, which is read once its head stands. `italy_png` is laid over the map of squares;
/// `status` is told what is being done.
void CreateStatisticsSheet(Workbook& book, const std::function<std::string()>& read,
                           const SheetTexts& texts, const std::string& italy_png,
                           const std::function<void(std::string_view status)>& status);

}  // namespace velmar
