#pragma once

#include <string>

#include "platform/file_system.h"
#include "platform/workbook_app.h"

namespace velmar {

/// Writes workbooks by itself, on machines without a workbook application. The same workbook gives
/// the same bytes.
class XlsxApp : public WorkbookApp {
 public:
  explicit XlsxApp(FileSystem& files) : files_(files) {}

  int Version() override { return 16; }
  void SaveAs(const Workbook& book, const std::string& path) override;

 private:
  FileSystem& files_;
};

}  // namespace velmar
