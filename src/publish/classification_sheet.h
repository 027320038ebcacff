#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/workbook.h"

namespace velmar {

/// What the sheets of one workbook share.
struct SheetTexts {
  std::string month_title;   ///< such as "Gennaio ", with the blank behind it
  std::string year;          ///< of the contest, four digits
  std::string contest_date;  ///< "2025.01.19"
  std::string version;       ///< of the program, with dots
  bool no_printer = false;   ///< the page is not set up
};

/// Columns and rows as all sheets have them that show a classification: letters, widths, heights,
/// and the contact line in G3.
void SetUpClassificationSheet(Worksheet& sheet);

/// Fills such a sheet with the rows of a classification (a text with its header line), ahead of
/// that its title, banner and headers, behind it the formats, the blocks of 60 logs with the head
/// repeated, the legend, and the page set-up. Gives the number of logs. More than 5,000
/// logs raise error 9.
int FillClassificationSheet(Worksheet& sheet, std::string_view classification,
                            const std::string& title, const SheetTexts& texts);

/// How the pages are printed; `top` is the margin in inches.
PageSetup ClassificationPage(const SheetTexts& texts, double top = 0);

}  // namespace velmar
