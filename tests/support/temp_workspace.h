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
  /// Any file, by its path in the workspace; its folder is made.
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

/// A log as the recalculation leaves it, with all rows of the header, that may be inserted as it
/// stands: of IK2QAA in JN45AA, with three QSOs in the hour of the contest on 19 January 2025.
class InsertableLog {
 public:
  InsertableLog();

  /// Another call and locator of the owner.
  InsertableLog& Of(std::string_view call, std::string_view locator = "JN45AA");
  /// Another text of a header row, by its number from 1 to 37.
  InsertableLog& Row(std::size_t number, std::string_view text);
  /// Other QSO rows. The log declares them all, and all of them valid.
  InsertableLog& Qsos(std::vector<std::string> rows);
  /// Another row ahead of the QSOs, or behind them; none for an empty text.
  InsertableLog& Start(std::string_view row);
  InsertableLog& End(std::string_view row);

  std::string Text() const;

 private:
  std::vector<std::string> header_;
  std::vector<std::string> qsos_;
  std::string start_;
  std::string end_ = "[END; recalculated for VLM]";
};

/// A QSO row of the contest day.
std::string ContestQso(std::string_view call, std::string_view locator,
                       std::string_view time = "1005", std::string_view mode = "1");

}  // namespace velmar::test
