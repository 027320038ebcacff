#pragma once

#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"
#include "session/menu_trap.h"

namespace velmar {

/// The classifications by call area: the category's own, cut into one for each area. A row may
/// stand in more than one of them or in none; see BelongsTo.
class AreaClassifications {
 public:
  static constexpr std::size_t kMostRows = 500;  ///< of an area; one more is error 9

  AreaClassifications(ContestSession& session, FileSystem& files, Manager& manager, MenuTrap& trap)
      : session_(session), files_(files), manager_(manager), trap_(trap) {}

  void cla_x_callarea_Click();

 private:
  void WriteAll();

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  MenuTrap& trap_;
};

}  // namespace velmar
