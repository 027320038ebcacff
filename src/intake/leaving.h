#pragma once

#include <string>
#include <vector>

#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"
#include "session/main_form.h"

namespace velmar {

/// The two ways out of the main screen. Each clears scratch files of the run; the store, the logs
/// and the error lists stay.
class Leaving {
 public:
  Leaving(ContestSession& session, FileSystem& files, Manager& manager, MainForm& main);

  /// The ordinary way out: asks first, then clears all scratch files and ends the program.
  void esci_Click();

  /// The quick way out: clears the working copies alone and ends the program.
  void exit_Click();

 private:
  /// A place to be cleared: the files of a folder that fit a pattern, or one file.
  struct Scratch {
    std::string folder;
    std::string pattern;
  };

  [[noreturn]] void ClearAndEnd(const std::vector<Scratch>& places);

  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
};

}  // namespace velmar
