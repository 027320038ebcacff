#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "model/bounded_table.h"
#include "model/lines.h"
#include "platform/file_system.h"

namespace velmar {

/// The most lines of a file that the statistics read; one more raises error 9.
inline constexpr std::size_t kMostCounted = 370'000;

/// The lines of a file. A missing file raises error 53.
template <std::size_t kMost>
class BoundedRows {
 public:
  BoundedRows(FileSystem& files, const std::string& path) : text_(files.ReadAll(path)) {
    LineReader reader(text_);
    for (std::string_view row; reader.Next(row);) {
      rows_.Add(row);
    }
  }
  BoundedRows(const BoundedRows&) = delete;
  BoundedRows& operator=(const BoundedRows&) = delete;

  auto begin() const { return rows_.begin(); }
  auto end() const { return rows_.end(); }
  std::size_t size() const { return rows_.size(); }

 private:
  std::string text_;
  BoundedTable<std::string_view, kMost> rows_;
};

using CountedRows = BoundedRows<kMostCounted>;

}  // namespace velmar
