#include "platform/disk_file_system.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>

#include "platform/ansi.h"
#include "platform/error.h"

namespace velmar {

namespace {

std::string ParentOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
}

bool IsFolder(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

bool IsPlainFile(const std::string& path) {
  struct stat status {};
  return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

/// Raises the run-time error for `code`, an errno that a call on `path` left.
[[noreturn]] void Fail(int code, const std::string& path) {
  const auto number = [&] {
    switch (code) {
      case ENOENT:
        return IsFolder(ParentOf(path)) ? ErrorNumber::kFileNotFound : ErrorNumber::kPathNotFound;
      case ENOTDIR:
        return ErrorNumber::kPathNotFound;
      case ENAMETOOLONG:
      case EINVAL:
        return ErrorNumber::kBadFileName;
      case ENOSPC:
      case EDQUOT:
        return ErrorNumber::kDiskFull;
      case EMFILE:
      case ENFILE:
        return ErrorNumber::kTooManyFiles;
      case EBUSY:
      case ETXTBSY:
      case EAGAIN:
        return ErrorNumber::kPermissionDenied;
      case EACCES:
      case EPERM:
      case EROFS:
      case EISDIR:
      case EEXIST:
        return ErrorNumber::kPathFileAccess;
      default:
        return ErrorNumber::kDeviceError;
    }
  }();
  throw RunTimeError(number, AnsiFromDiskName(path));
}

/// Raises error 75 for a write-protected file: its protection holds against rewriting and removing
/// as well, and whoever the user is.
void MindProtection(const struct stat& status, const std::string& path) {
  if (S_ISREG(status.st_mode) && (status.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) == 0) {
    Fail(EACCES, path);
  }
}

/// What stands at a path that is to be written: nothing, or a file that may be.
std::optional<struct stat> WritableStatus(const std::string& path) {
  struct stat status {};
  if (stat(path.c_str(), &status) != 0) {
    return std::nullopt;
  }
  if (S_ISDIR(status.st_mode)) {
    Fail(EISDIR, path);
  }
  MindProtection(status, path);
  return status;
}

/// An open file of the operating system.
class OpenFile {
 public:
  OpenFile(const std::string& path, int flags)
      : path_(path), descriptor_(open(path.c_str(), flags | O_CLOEXEC, 0666)) {
    if (descriptor_ < 0) {
      Fail(errno, path);
    }
  }
  ~OpenFile() {
    if (descriptor_ >= 0) {
      close(descriptor_);
    }
  }
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;

  std::string Read() {
    const struct stat status = Status();
    if ((status.st_mode & (S_IRUSR | S_IRGRP | S_IROTH)) == 0) {
      Fail(EACCES, path_);
    }
    std::string bytes(static_cast<std::size_t>(status.st_size) + 1, '\0');
    std::size_t size = 0;
    for (;;) {
      const ssize_t got = read(descriptor_, bytes.data() + size, bytes.size() - size);
      if (got < 0 && errno == EINTR) {
        continue;
      }
      if (got < 0) {
        Fail(errno, path_);
      }
      size += static_cast<std::size_t>(got);
      // A plain file gives less than was asked for at its end alone; others say so by nothing.
      if (got == 0 || (S_ISREG(status.st_mode) && status.st_size > 0 && size < bytes.size())) {
        bytes.resize(size);
        return bytes;
      }
      if (size == bytes.size()) {
        bytes.resize(bytes.size() * 2);
      }
    }
  }

  void Write(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t put = write(descriptor_, bytes.data(), bytes.size());
      if (put < 0 && errno == EINTR) {
        continue;
      }
      if (put < 0) {
        Fail(errno, path_);
      }
      bytes.remove_prefix(static_cast<std::size_t>(put));
    }
  }

  /// Closes the file; some disks tell only now that they were full.
  void Close() {
    const int descriptor = descriptor_;
    descriptor_ = -1;
    if (close(descriptor) != 0) {
      Fail(errno, path_);
    }
  }

 private:
  struct stat Status() {
    struct stat status {};
    if (fstat(descriptor_, &status) != 0) {
      Fail(errno, path_);
    }
    return status;
  }

  std::string path_;
  int descriptor_;
};

/// Writes a hidden file beside `path` and, when all of it is there, gives it the name.
void Replace(const std::string& path, std::string_view bytes) {
  WritableStatus(path);
  const std::string temporary = ParentOf(path) + "/.velmar-" + std::to_string(getpid()) + ".part";
  try {
    OpenFile file(temporary, O_WRONLY | O_CREAT | O_TRUNC);
    file.Write(bytes);
    file.Close();
    if (rename(temporary.c_str(), path.c_str()) != 0) {
      Fail(errno, path);
    }
  } catch (const RunTimeError&) {
    unlink(temporary.c_str());
    throw;
  }
}

/// Gives a file back the size that it had, or removes one that was not there. Where even that
/// fails, the failure that led here is the one to be told.
void TakeBack(const std::string& path, const std::optional<struct stat>& before) {
  const int result = before ? truncate(path.c_str(), before->st_size) : unlink(path.c_str());
  static_cast<void>(result);
}

}  // namespace

DiskFileSystem::DiskFileSystem() {
  // Where the current folder is gone, only absolute paths lead anywhere.
  std::error_code none;
  origin_ = std::filesystem::current_path(none).string();
}

std::string DiskFileSystem::OnDisk(const std::string& path) const {
  const std::string disk_path = DiskNameFromAnsi(path);
  if (disk_path.find('\0') != std::string::npos) {
    throw RunTimeError(ErrorNumber::kBadFileName, "a name with a zero byte");
  }
  return !disk_path.empty() && disk_path.front() == '/' ? disk_path : origin_ + "/" + disk_path;
}

bool DiskFileSystem::FolderExists(const std::string& path) {
  return IsFolder(OnDisk(path));
}

std::optional<FileStamp> DiskFileSystem::StampOf(const std::string& path) {
  const std::string disk_path = OnDisk(path);
  struct stat status {};
  if (stat(disk_path.c_str(), &status) != 0) {
    if (errno == ENOENT || errno == ENOTDIR) {
      return std::nullopt;
    }
    Fail(errno, disk_path);
  }
  if (S_ISDIR(status.st_mode)) {
    Fail(EISDIR, disk_path);
  }
  constexpr std::int64_t kSecond = 1'000'000'000;
  return FileStamp{static_cast<std::uint64_t>(status.st_size),
                   status.st_mtim.tv_sec * kSecond + status.st_mtim.tv_nsec, status.st_ino};
}

std::string DiskFileSystem::ReadAll(const std::string& path) {
  const std::string disk_path = OnDisk(path);
  return OpenFile(disk_path, O_RDONLY).Read();
}

void DiskFileSystem::WriteAll(const std::string& path, std::string_view bytes) {
  Replace(OnDisk(path), bytes);
}

void DiskFileSystem::Append(const std::string& path, std::string_view bytes) {
  const std::string disk_path = OnDisk(path);
  const auto before = WritableStatus(disk_path);
  OpenFile file(disk_path, O_WRONLY | O_CREAT | O_APPEND);
  try {
    file.Write(bytes);
    file.Close();
  } catch (const RunTimeError&) {
    TakeBack(disk_path, before);
    throw;
  }
}

std::vector<std::string> DiskFileSystem::List(const std::string& folder, std::string_view pattern) {
  const std::string disk_folder = OnDisk(folder);
  const std::unique_ptr<DIR, int (*)(DIR*)> open_folder(opendir(disk_folder.c_str()), &closedir);
  if (!open_folder) {
    Fail(errno == ENOENT ? ENOTDIR : errno, disk_folder);
  }
  std::vector<std::string> names;
  while (const dirent* entry = readdir(open_folder.get())) {
    const std::string_view disk_name = entry->d_name;
    if (disk_name.starts_with('.')) {
      continue;
    }
    if (entry->d_type != DT_REG && !IsPlainFile(disk_folder + "/" + std::string(disk_name))) {
      continue;
    }
    std::string name = AnsiFromDiskName(disk_name);
    if (MatchesPattern(name, pattern)) {
      names.push_back(std::move(name));
    }
  }
  std::sort(names.begin(), names.end(), NameLess);
  return names;
}

void DiskFileSystem::Copy(const std::string& from, const std::string& to) {
  Replace(OnDisk(to), ReadAll(from));
}

void DiskFileSystem::Move(const std::string& from, const std::string& to) {
  const std::string disk_from = OnDisk(from);
  const std::string disk_to = OnDisk(to);
  if (rename(disk_from.c_str(), disk_to.c_str()) != 0) {
    const int code = errno;
    Fail(code == ENOENT && !IsFolder(ParentOf(disk_to)) ? ENOTDIR : code, disk_from);
  }
}

void DiskFileSystem::Remove(const std::string& path) {
  const std::string disk_path = OnDisk(path);
  WritableStatus(disk_path);
  if (unlink(disk_path.c_str()) != 0) {
    Fail(errno, disk_path);
  }
}

void DiskFileSystem::MakeFolder(const std::string& path) {
  const std::string disk_path = OnDisk(path);
  if (mkdir(disk_path.c_str(), 0777) != 0) {
    Fail(errno == ENOENT ? ENOTDIR : errno, disk_path);
  }
}

void DiskFileSystem::ChangeFolder(const std::string& path) {
  const std::string disk_path = OnDisk(path);
  if (chdir(disk_path.c_str()) != 0) {
    Fail(errno == ENOENT ? ENOTDIR : errno, disk_path);
  }
}

}  // namespace velmar
