#pragma once

#include <string>

#include "platform/workbook.h"

namespace velmar {

/// The workbook application: it keeps workbooks as files.
class WorkbookApp {
 public:
  virtual ~WorkbookApp() = default;

  /// The major version that it stands for.
  virtual int Version() = 0;

  /// Writes a workbook as a file (.xlsx), which is then the old one or the whole new one. Raises
  /// RunTimeError: 70 where the file is locked or access to it is denied, 1004 where it can't be
  /// written for any other reason.
  virtual void SaveAs(const Workbook& book, const std::string& path) = 0;
};

}  // namespace velmar
