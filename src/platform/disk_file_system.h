#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"

namespace velmar {

/// The real disk, through the calls of the operating system.
class DiskFileSystem : public FileSystem {
 public:
  /// Relative paths count from the folder that is current now, also after ChangeFolder.
  DiskFileSystem();

  bool FolderExists(const std::string& path) override;
  std::optional<FileStamp> StampOf(const std::string& path) override;
  std::string ReadAll(const std::string& path) override;
  void WriteAll(const std::string& path, std::string_view bytes) override;
  void Append(const std::string& path, std::string_view bytes) override;
  std::vector<std::string> List(const std::string& folder, std::string_view pattern) override;
  void Copy(const std::string& from, const std::string& to) override;
  void Move(const std::string& from, const std::string& to) override;
  void Remove(const std::string& path) override;
  void MakeFolder(const std::string& path) override;
  void ChangeFolder(const std::string& path) override;

 private:
  /// The path as the operating system takes it.
  std::string OnDisk(const std::string& path) const;

  std::string origin_;
};

}  // namespace velmar
