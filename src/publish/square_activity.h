#pragma once

#include <string_view>

#include "platform/workbook.h"

namespace velmar {

/// Writes the activity of the Italian squares, in three blocks from row 39 on: how many logs came
/// from each, and how many QSOs were made with it, out of the lines of the statistics. What these
/// don't tell stays empty: they count logs from squares of JN only.
void WriteSquareActivity(Worksheet& sheet, std::string_view statistics);

}  // namespace velmar
