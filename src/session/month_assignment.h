#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"
#include "session/menu_trap.h"

namespace velmar {

/// The ways in which the month and the date of the contest are typed by hand.
class MonthAssignment {
 public:
  MonthAssignment(ContestSession& session, FileSystem& files, Manager& manager, MenuTrap& trap,
                  Clock& clock)
      : session_(session), files_(files), manager_(manager), clock_(clock), trap_(trap) {}

  /// The menu item that gives the category store its month. It neither tests for January nor writes
  /// the month to check, so that a month that differs is found at the next start.
  void ass_mese_Click();

  /// Asks for the month to check anew, after the two month files were found to disagree. Ends the
  /// program on an empty answer. Only the month to check changes, so that the files may disagree
  /// again.
  void RepairMonth();

  /// Reads the contest date of a category (YYMMDD) into the session. Where there is no date file,
  /// the manager is asked until there is one; false when the answer was empty.
  bool ReadContestDate(std::string_view category);

 private:
  void TakeMonthFromDate();
  void Write(const std::string& path, const std::string& month);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  Clock& clock_;
  MenuTrap& trap_;
};

}  // namespace velmar
