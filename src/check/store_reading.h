#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check/check_state.h"
#include "model/contest_store.h"
#include "platform/file_system.h"
#include "platform/manager.h"
#include "session/contest_session.h"

namespace velmar {

/// Reads the store for the checks of one call. What is missing is told in the store's own words.
class StoreReading {
 public:
  StoreReading(ContestSession& session, FileSystem& files, Manager& manager, ContestStore& store,
               CheckState& state)
      : session_(session), files_(files), manager_(manager), store_(store), state_(state) {}

  /// The names of the two scratch files of a split, behind the category.
  struct SplitNames {
    std::string_view log;
    std::string_view others;
  };
  static constexpr SplitNames kForLocators{"log_da_verificare.tmp", "Libreria_temp.tmp"};
  static constexpr SplitNames kForUnique{"Log_da_verificare_doppi.tmp", "Libreria_temp_doppi.tmp"};

  /// Parts the library for the call under examination, and writes the scratch files. `progress` is
  /// told how many of three steps are done. False where there is no library.
  bool Split(const SplitNames& names, const std::function<void(std::size_t done)>& progress);

  /// The participants as the desk read them when it opened.
  std::vector<std::string_view> Participants() const;

  /// The rows of the total library; none where it is missing.
  std::vector<std::string> TotalLibrary();

 private:
  ContestSession& session_;
  FileSystem& files_;
  Manager& manager_;
  ContestStore& store_;
  CheckState& state_;
};

}  // namespace velmar
