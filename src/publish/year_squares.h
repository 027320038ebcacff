#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// The lists of squares over a year: the year so far, as it stood before this month, and this
/// month's own.
class YearSquares {
 public:
  YearSquares(ContestSession& session, FileSystem& files, Manager& manager)
      : session_(session), files_(files), manager_(manager) {}

  /// Takes the squares of this month in. The year so far is put aside first, once a month; without
  /// any a year begins. Gives how many squares the year has.
  std::size_t Keep(std::string_view band_label, const std::vector<std::string>& squares);

  /// The lists as texts. A missing file raises error 53.
  std::string Earlier(std::string_view band_label);
  std::string OfMonth(std::string_view band_label);

 private:
  void PutAside(std::string_view band_label);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
};

}  // namespace velmar
