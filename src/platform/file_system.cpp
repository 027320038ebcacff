#include "platform/file_system.h"

#include <algorithm>
#include <array>

#include "platform/error.h"

namespace velmar {

namespace {

/// Small letters of code page 1252, byte by byte.
constexpr auto kSmallLetters = [] {
  std::array<unsigned char, 256> small{};
  for (std::size_t byte = 0; byte < small.size(); ++byte) {
    const bool letter =
        (byte >= 'A' && byte <= 'Z') || (byte >= 0xC0 && byte <= 0xDE && byte != 0xD7);
    const bool other = byte == 0x8A || byte == 0x8C || byte == 0x8E;
    small[byte] = static_cast<unsigned char>(byte + (letter ? 0x20 : other ? 0x10 : 0));
  }
  small[0x9F] = 0xFF;
  return small;
}();

constexpr unsigned char Fold(char c) {
  return kSmallLetters[static_cast<unsigned char>(c)];
}

}  // namespace

bool MatchesPattern(std::string_view name, std::string_view pattern) {
  if (pattern == "*.*") {
    return true;
  }
  std::size_t at = 0;
  std::size_t in_pattern = 0;
  std::size_t star = std::string_view::npos;
  std::size_t resume = 0;
  while (at < name.size()) {
    if (in_pattern < pattern.size() && pattern[in_pattern] == '*') {
      star = in_pattern++;
      resume = at;
    } else if (in_pattern < pattern.size() &&
               (pattern[in_pattern] == '?' || Fold(pattern[in_pattern]) == Fold(name[at]))) {
      ++in_pattern;
      ++at;
    } else if (star != std::string_view::npos) {
      in_pattern = star + 1;
      at = ++resume;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', in_pattern) == std::string_view::npos;
}

bool NameLess(std::string_view left, std::string_view right) {
  const auto [l, r] = std::mismatch(left.begin(), left.end(), right.begin(), right.end(),
                                    [](char a, char b) { return Fold(a) == Fold(b); });
  if (l != left.end() && r != right.end()) {
    return Fold(*l) < Fold(*r);
  }
  return left.size() != right.size() ? left.size() < right.size() : left < right;
}

bool SameName(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return Fold(a) == Fold(b); });
}

bool HoldsFiles(FileSystem& files, const std::string& folder, std::string_view pattern) {
  return files.FolderExists(folder) && !files.List(folder, pattern).empty();
}

std::optional<std::string> ReadIfThere(FileSystem& files, const std::string& path) {
  try {
    return files.ReadAll(path);
  } catch (const RunTimeError& error) {
    if (error.number() != ErrorNumber::kFileNotFound) {
      throw;
    }
    return std::nullopt;
  }
}

std::string FreeName(FileSystem& files, const std::string& source, const std::string& folder,
                     const std::string& name, const std::string& ending) {
  const std::string prefix = folder + "/";
  std::string target = name + ending;
  for (int number = 2;; ++number) {
    const auto there = ReadIfThere(files, prefix + target);
    if (!there || *there == files.ReadAll(source)) {
      return target;
    }
    target = name;
    target.append(" (").append(std::to_string(number)).append(")").append(ending);
  }
}

std::string FreeName(FileSystem& files, const std::string& source, const std::string& folder,
                     const std::string& name) {
  const std::size_t dot = std::min(name.rfind('.'), name.size());
  return FreeName(files, source, folder, name.substr(0, dot), name.substr(dot));
}

bool SameFile(FileSystem& files, const std::string& left, const std::string& right) {
  const auto stamp = files.StampOf(left);
  return stamp && stamp == files.StampOf(right);
}

void RemoveMatching(FileSystem& files, const std::string& folder, std::string_view pattern) {
  const std::string prefix = folder + "/";
  for (const std::string& name : files.List(folder, pattern)) {
    RemoveIfThere(files, prefix + name);
  }
}

void RemoveIfThere(FileSystem& files, const std::string& path) {
  try {
    files.Remove(path);
  } catch (const RunTimeError& error) {
    if (error.number() != ErrorNumber::kFileNotFound) {
      throw;
    }
  }
}

}  // namespace velmar
