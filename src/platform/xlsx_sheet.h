#pragma once

#include <xlsxwriter.h>

#include "platform/workbook.h"
#include "platform/xlsx_formats.h"

namespace velmar {

/// Puts a sheet into the file. Raises error 1004 for what the file cannot hold.
void WriteXlsxSheet(lxw_workbook* file, lxw_worksheet* to, const Worksheet& sheet,
                    XlsxFormats& formats);

}  // namespace velmar
