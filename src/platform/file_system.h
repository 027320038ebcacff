#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// What tells one state of a file from another without reading it.
struct FileStamp {
  std::uint64_t size = 0;      ///< bytes
  std::int64_t modified = 0;   ///< ns since the epoch of the file system
  std::uint64_t identity = 0;  ///< another one for a file that took the place of the old one

  bool operator==(const FileStamp&) const = default;
};

/// The disk. All file access of the program goes through this port, so that a test can fill the
/// disk, lock a file or stop the machine between two steps.
///
/// Paths and names are text in code page 1252 with "/" between folders; contents are bytes as they
/// stand. Every call raises RunTimeError: 53 where a file is missing in a folder that exists, 76
/// where the folder itself is missing, 75 where access is refused or a path is of the other kind,
/// 70 where somebody else holds the file, 61 where the disk is full, 57 for any other failure.
class FileSystem {
 public:
  virtual ~FileSystem() = default;

  virtual bool FolderExists(const std::string& path) = 0;

  /// The stamp of a file; nothing when there is no such file.
  virtual std::optional<FileStamp> StampOf(const std::string& path) = 0;

  /// The whole content of a file.
  virtual std::string ReadAll(const std::string& path) = 0;

  /// Puts `bytes` in place of the file's content, or makes the file. Whatever happens on the way,
  /// the file is the old one or the new one, never a part of one.
  virtual void WriteAll(const std::string& path, std::string_view bytes) = 0;

  /// Adds `bytes` behind the file's content, or makes the file; opens, writes and closes. Where the
  /// disk fails on the way, the file keeps its old content.
  virtual void Append(const std::string& path, std::string_view bytes) = 0;

  /// The names of the files (no folders, no hidden ones) in `folder` that fit `pattern`, in name
  /// order without regard to case. See MatchesPattern.
  virtual std::vector<std::string> List(const std::string& folder, std::string_view pattern) = 0;

  /// Copies a file over `to`, which is then the old file or the whole copy.
  virtual void Copy(const std::string& from, const std::string& to) = 0;

  /// Gives a file another name, over a file of that name.
  virtual void Move(const std::string& from, const std::string& to) = 0;

  virtual void Remove(const std::string& path) = 0;

  /// Makes one folder; 75 when it is there already.
  virtual void MakeFolder(const std::string& path) = 0;

  /// Makes `path` the current folder of the process.
  virtual void ChangeFolder(const std::string& path) = 0;
};

/// Whether `name` fits `pattern`, without regard to case: "*" stands for any run of characters, "?"
/// for one. "*.*" fits every name, also one without a dot.
bool MatchesPattern(std::string_view name, std::string_view pattern);

/// Whether `left` comes before `right` in a folder listing: byte by byte in small letters, then as
/// they stand.
bool NameLess(std::string_view left, std::string_view right);

/// Whether two names differ in the case of their letters at most.
bool SameName(std::string_view left, std::string_view right);

/// Whether `folder` holds a file that fits `pattern`. A missing folder holds none.
bool HoldsFiles(FileSystem& files, const std::string& folder, std::string_view pattern = "*.*");

/// The content of a file, or nothing when the file is missing (53). Other errors pass through.
std::optional<std::string> ReadIfThere(FileSystem& files, const std::string& path);

/// The name under which a copy of `source` overwrites no other file in `folder`: `name` and
/// `ending`, or with " (2)", " (3)" and so on between the two while a file of that name with
/// another content is there.
std::string FreeName(FileSystem& files, const std::string& source, const std::string& folder,
                     const std::string& name, const std::string& ending);

/// The same for a name whose ending is what its last dot begins.
std::string FreeName(FileSystem& files, const std::string& source, const std::string& folder,
                     const std::string& name);

/// Whether two paths lead to one file.
bool SameFile(FileSystem& files, const std::string& left, const std::string& right);

/// Removes every file of `folder` that fits `pattern`; none at all is no error.
void RemoveMatching(FileSystem& files, const std::string& folder, std::string_view pattern);

/// Removes a file; a missing one (53) is no error.
void RemoveIfThere(FileSystem& files, const std::string& path);

}  // namespace velmar
