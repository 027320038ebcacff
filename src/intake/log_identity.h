#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// The call of a log, cleaned for its file name.
struct CleanedCall {
  std::string text;  ///< or why there is none: "call non valido", "Log non valido"
  bool valid = false;
  int removals = 0;  ///< portable suffixes and area prefixes taken away
};

/// Cleans a call as its log declares it: a prefix or suffix behind one separator goes. A call of
/// more than 12 characters, one with several separators, and none at all are not valid.
CleanedCall CleanCall(std::string_view declared);

/// Who a recalculated log says it is, and the file name that it gets for it.
struct LogIdentity {
  CleanedCall call;
  std::string section;  ///< of participation, as declared
  std::string band;     ///< as declared
  bool lacks_section = false;
  bool lacks_band = false;
  bool valid = false;  ///< fit to be inserted
  std::string text;    ///< what the name says: the call, or why the log is not valid
  std::string new_name;
};

/// The first characters of a name that says that its log is not valid or came twice.
inline constexpr std::string_view kSetAsideMark = "00_";

/// Reads the header of a log, up to its first empty line. `index` is that of the file among those
/// of the run, from 0. More than 370,000 lines ahead of the first empty one raise error 9.
LogIdentity IdentifyLog(std::string_view text, std::size_t index);

/// The name of a log that is not valid or came twice, from what it is to say.
std::string SetAsideName(std::string_view text);

/// The log with the given section, in capitals, in each line that declares one.
std::string WithSection(std::string_view log, std::string_view section);

}  // namespace velmar
