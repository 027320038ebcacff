#pragma once

#include <cstddef>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "model/workspace.h"
#include "platform/file_system.h"

namespace velmar {

/// No archive can be made, for the reason that what() tells; names of files stand in it as on the
/// disk.
class BookError : public std::runtime_error {
  using std::runtime_error::runtime_error;
};

/// What an archive takes from a contest that is over.
struct FiledContest {
  std::string date;          ///< YYMMDD
  std::string participants;  ///< the whole file: what each log declares
  std::string library;       ///< the whole file: what each log worked
};

/// Reads the contest that a workspace holds. Raises BookError, with the name of the file, where one
/// is missing or can't be read, and where the contest has no date.
FiledContest ReadFiledContest(FileSystem& files, const Workspace& workspace);

/// Makes the records of the archive from one contest after another. A pair of a call and a locator
/// gets into it where the station has declared it itself, or where 10 logs agree on it.
class BookMaker {
 public:
  static constexpr std::size_t kLogsThatAgree = 10;

  /// Two contests of one date are one contest: a log that is in both counts once.
  void Add(const FiledContest& contest);

  /// The records, by call and then by locator. Raises BookError where there is none, which the
  /// program would not take for an archive, or more than an archive holds.
  std::vector<std::string> Records() const;

 private:
  /// What is known of a call in a locator.
  struct Knowledge {
    bool declared = false;
    std::string last_date;
    std::set<std::pair<std::string, std::string>> logs;  ///< by date and owner
  };

  /// The place for a call, padded to 12, and a locator; none where the locator is no valid one, or
  /// where there is no call.
  Knowledge* Find(std::string_view call, std::string_view locator, const std::string& date);

  std::map<std::pair<std::string, std::string>, Knowledge> known_;
};

}  // namespace velmar
