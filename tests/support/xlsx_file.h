#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/workbook.h"

namespace velmar::test {

/// A sheet of a workbook file, in the words of the workbook in memory. Texts are in code page 1252.
struct XlsxSheet {
  std::string name;
  std::map<CellPlace, Cell> cells;
  std::map<int, double> column_widths;  ///< characters; 0 for a hidden column
  std::map<int, CellFormat> column_formats;
  std::map<int, double> row_heights;
  std::vector<std::string> merged;  ///< addresses
  std::vector<int> page_breaks;     ///< rows above which a page begins
  std::string header;               ///< with its codes: "&L", "&C", "&R"
  std::string footer;
  std::map<std::string, double> margins;  ///< inches, by their names in the file
  bool landscape = false;
  bool gridlines = true;
  bool active = false;
  std::string selected = "A1";      ///< address
  std::string ignored;              ///< cells whose texts may look like numbers
  std::vector<CellBlock> drawings;  ///< the blocks that pictures and charts cover

  /// A cell by its address; one without a value where there is none.
  Cell At(std::string_view address) const;
  /// Its value as text, numbers as they are usually written; empty for none.
  std::string Text(std::string_view address) const;
};

/// A workbook file (.xlsx), read back. A file that is none fails the test.
class XlsxFile {
 public:
  explicit XlsxFile(const std::string& path);

  const std::vector<XlsxSheet>& sheets() const { return sheets_; }
  std::vector<std::string> SheetNames() const;
  /// A sheet by its name; an empty one, and a failure, where there is none.
  XlsxSheet Sheet(std::string_view name) const;

  /// A part of the file as it stands; empty where it is missing.
  std::string Part(const std::string& name) const;

 private:
  std::map<std::string, std::string> parts_;
  std::vector<XlsxSheet> sheets_;
};

}  // namespace velmar::test
