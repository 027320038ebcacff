#include "written_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <utility>

#include "model/text.h"

namespace velmar::bench {

namespace fs = std::filesystem;

std::string TextOf(const std::vector<Write>& writes) {
  std::string text;
  for (const Write& write : writes) {
    text += Join(write.bytes, write.appended ? " 1 " : " 0 ", write.path, "\n");
  }
  return text + "\n";
}

std::vector<Write> ReadWrites(std::istream& text) {
  std::vector<Write> writes;
  while (text.peek() != '\n') {
    Write write;
    text >> write.bytes >> write.appended;
    if (!std::getline(text.ignore(), write.path)) {
      throw std::runtime_error("a record of writes is torn");
    }
    writes.push_back(std::move(write));
  }
  text.ignore();
  return writes;
}

void CountingFiles::WriteAll(const std::string& path, std::string_view bytes) {
  DiskFileSystem::WriteAll(path, bytes);
  writes_.push_back({path, bytes.size(), false});
}

void CountingFiles::Append(const std::string& path, std::string_view bytes) {
  DiskFileSystem::Append(path, bytes);
  writes_.push_back({path, bytes.size(), true});
}

void CountingFiles::Copy(const std::string& from, const std::string& to) {
  DiskFileSystem::Copy(from, to);
  writes_.push_back({to, static_cast<std::size_t>(StampOf(to).value().size), false});
}

std::vector<Write> CountingFiles::Take() {
  return std::exchange(writes_, {});
}

Yardstick::Yardstick(std::string folder, const std::vector<Write>& writes)
    : folder_(std::move(folder)) {
  std::map<std::string, std::size_t> times;
  std::map<std::string, std::size_t> numbers;
  for (const Write& write : writes) {
    ++times[write.path];
  }
  for (const Write& write : writes) {
    // A file with one append alone was made by it.
    if (!write.appended || times[write.path] == 1) {
      AddSource(write);
      continue;
    }
    const std::size_t file = numbers.try_emplace(write.path, numbers.size()).first->second;
    appends_.push_back({file, write.bytes});
    most_bytes_ = std::max(most_bytes_, write.bytes);
  }
}

void Yardstick::AddSource(const Write& write) {
  const fs::path path(write.path);
  const std::string source =
      Join(path.parent_path().filename().string(), path.extension().string());
  if (std::ranges::find(sources_, source) == sources_.end()) {
    sources_.push_back(source);
    fs::create_directories(Join(folder_, "/", source));
  }
  DiskFileSystem().WriteAll(Join(folder_, "/", source, "/", path.filename().string()),
                            std::string(write.bytes, ' '));
  ++files_;
}

double Yardstick::Seconds() {
  const std::string target = Join(folder_, "/run ", ++runs_);
  fs::create_directory(target);
  const Work work = [&] {
    CopySources(target);
    AppendAll(target);
    return std::string();
  };
  return RunRested(work).seconds;
}

void Yardstick::CopySources(const std::string& target) const {
  for (const std::string& source : sources_) {
    RunChild([&]() -> std::string {
      BecomeCopy(Join(folder_, "/", source), Join(target, "/", source));
    });
  }
}

void Yardstick::AppendAll(const std::string& target) const {
  const std::string bytes(most_bytes_, ' ');
  for (const Appended& append : appends_) {
    const std::string path = Join(target, "/", append.file);
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0666);
    const auto size = static_cast<ssize_t>(append.bytes);
    if (file < 0 || write(file, bytes.data(), append.bytes) != size || close(file) != 0) {
      throw std::runtime_error("an append failed");
    }
  }
}

}  // namespace velmar::bench
