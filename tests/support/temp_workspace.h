#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "model/workspace.h"
#include "platform/disk_file_system.h"

namespace velmar::test {

/// A workspace in a temporary folder, whose path has a blank, removed with the object. It reads
/// like a sentence: TempWorkspace().WithTree().WithMonth("GENNAIO 2025").WithLog("a.edi", text).
class TempWorkspace {
 public:
  TempWorkspace();
  ~TempWorkspace();
  TempWorkspace(const TempWorkspace&) = delete;
  TempWorkspace& operator=(const TempWorkspace&) = delete;

  /// The folder tree, as a start makes it.
  TempWorkspace& WithTree();
  /// Both month files.
  TempWorkspace& WithMonth(std::string_view month);
  TempWorkspace& WithSettings();
  /// A log among those to be recalculated.
  TempWorkspace& WithLog(const std::string& name, std::string_view text);
  /// Any file, by its path in the workspace.
  TempWorkspace& With(const std::string& path, std::string_view bytes);

  const Workspace& paths() const { return paths_; }
  FileSystem& files() { return files_; }

  /// The content of a file by its path in the workspace; "<missing>" without one.
  std::string Read(const std::string& path);

  /// The names of the files in a folder of the workspace.
  std::vector<std::string> Names(const std::string& folder);

  /// Every file of the workspace, by its path in it, with its content.
  std::map<std::string, std::string> Everything() const;

 private:
  std::string start_folder_;  ///< current before, and again afterwards
  DiskFileSystem files_;
  Workspace paths_;
};

/// A log of the usual form, with CR LF: the rows of the header, then the QSO rows, then the end.
std::string LogText(std::string_view call, std::string_view locator,
                    const std::vector<std::string>& qsos);

/// A QSO row with a call and a locator, and the fields that nobody looks at.
std::string QsoRow(std::string_view call, std::string_view locator, std::string_view points = "99");

}  // namespace velmar::test
