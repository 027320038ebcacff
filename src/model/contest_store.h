#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "model/workspace.h"
#include "platform/file_system.h"

namespace velmar {

/// What a removal did.
struct Removal {
  bool rewritten = false;  ///< no: the category has no classification of its own
  bool classification_missing = false;
  std::vector<StoreFile> missing;  ///< files that should have been there
};

/// The store files of the contest. Each append opens a file, writes and closes it; each rewrite
/// leaves the old file or the new one. Errors of the disk pass through as RunTimeError.
class ContestStore {
 public:
  /// The most lines that a library may have where it is searched, and a file where it is rewritten.
  static constexpr std::size_t kMostLibraryLines = 248'000;
  static constexpr std::size_t kMostRewrittenLines = 250'000;

  ContestStore(FileSystem& files, const Workspace& workspace)
      : files_(files), workspace_(workspace) {}

  /// Adds rows, each with its line end, to a file; makes the file if need be.
  void Append(StoreFile file, std::string_view category, std::string_view rows);

  /// Adds a row to the classification of a month, under its header.
  void AppendToClassification(std::string_view row, std::string_view category,
                              std::string_view month);

  /// Adds lines, with their line ends, to the error list of a log.
  void AppendToErrorList(std::string_view call, std::string_view category, std::string_view month,
                         std::string_view lines);

  /// The lines of a file; nothing where it is missing.
  std::optional<std::vector<std::string>> Lines(StoreFile file, std::string_view category);

  /// Whether the library holds a row of this owner. A missing library holds none; one of more lines
  /// than it may have raises error 9.
  bool ContainsOwner(std::string_view call, std::string_view category = kCategory);

  /// The lines of the library.
  std::size_t LibraryLines(std::string_view category = kCategory);

  /// Takes a log out of the contest: it goes back among those to be inserted, and its rows go out
  /// of every file, each rewritten in its turn; its error list goes behind the sums. The call is
  /// that of a classification row. The rows of the DX statistics, of the control logs and of the CW
  /// lists stay. A removal that broke off can be done again: a log that waits already is not looked
  /// for.
  Removal RemoveOwner(std::string_view call, std::string_view category, std::string_view month);

 private:
  /// What the library of a category holds, as long as its file stays the same: a change that leaves
  /// size, time and identity as they were is not seen.
  struct LibraryIndex {
    std::optional<FileStamp> stamp;
    std::size_t lines = 0;
    bool ends_its_last_line = true;
    std::unordered_set<std::string> owners;

    void Add(std::string_view rows);
  };

  LibraryIndex& Library(std::string_view category);
  void MoveBack(const std::string& name, std::string_view category);
  bool RewriteWithout(const std::string& path,
                      const std::function<bool(std::string_view line)>& leave_out);
  void RemoveRows(std::string_view call, std::string_view category, std::string_view month,
                  Removal& removal);

  FileSystem& files_;
  const Workspace& workspace_;
  std::map<std::string, LibraryIndex, std::less<>> libraries_;
};

/// The name, without its category, of the log that was filed for a call of the classification. A
/// "/" in the call parts the prefix or suffix that the name lacks.
std::string FiledName(std::string_view call);

}  // namespace velmar
