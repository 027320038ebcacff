#pragma once

#include <xlsxwriter.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/workbook.h"

namespace velmar {

/// A text of the program as the file has it (UTF-8). Control characters, which the file cannot
/// hold, become blanks; the ends of lines stay.
std::string FileText(std::string_view text);

/// Raises error 1004 for an error that the library tells.
void MindWriter(lxw_error error);

/// The formats of a file, one for all cells that look alike.
class XlsxFormats {
 public:
  /// Makes the letters of CellFont those of the file as well, by which it measures its columns.
  explicit XlsxFormats(lxw_workbook* file);

  lxw_format* Of(const CellFormat& format);

 private:
  struct Hash {
    std::size_t operator()(const CellFormat& format) const;
  };

  lxw_workbook* file_;
  std::unordered_map<CellFormat, lxw_format*, Hash> made_;
};

}  // namespace velmar
