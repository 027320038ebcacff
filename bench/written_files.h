#pragma once

#include <cstddef>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

#include "measuring.h"
#include "platform/disk_file_system.h"

namespace velmar::bench {

/// A write of a program: a whole file, or bytes behind what a file held.
struct Write {
  std::string path;
  std::size_t bytes = 0;
  bool appended = false;
};

/// The writes as a text that ends in an empty line, for the way out of a child process, and back.
std::string TextOf(const std::vector<Write>& writes);
std::vector<Write> ReadWrites(std::istream& text);

/// The disk, with a record of the writes in their order. A file that only gets another name is not
/// written.
class CountingFiles : public DiskFileSystem {
 public:
  void WriteAll(const std::string& path, std::string_view bytes) override;
  void Append(const std::string& path, std::string_view bytes) override;
  void Copy(const std::string& from, const std::string& to) override;

  /// The writes since the last call.
  std::vector<Write> Take();

 private:
  std::vector<Write> writes_;
};

/// The writes of a program again, as many and of as many bytes, by the plainest means: the files
/// that were written in one go, by one `cp -r` for those of a folder and an extension; the others
/// by opening, appending, writing and closing, one write after another.
class Yardstick {
 public:
  /// Makes in `folder` what is to be copied, out of writes of any content.
  Yardstick(std::string folder, const std::vector<Write>& writes);

  /// Does it all in a child process, into folders that are new each time.
  double Seconds();

  std::size_t files() const { return files_; }
  std::size_t appends() const { return appends_.size(); }

 private:
  struct Appended {
    std::size_t file;  ///< by its number from 0
    std::size_t bytes;
  };

  void AddSource(const Write& write);
  void CopySources(const std::string& target) const;
  void AppendAll(const std::string& target) const;

  std::string folder_;
  std::vector<std::string> sources_;  ///< folder and extension, as the names of folders
  std::vector<Appended> appends_;
  std::size_t files_ = 0;       ///< to be copied
  std::size_t most_bytes_ = 0;  ///< of an append
  std::size_t runs_ = 0;
};

}  // namespace velmar::bench
