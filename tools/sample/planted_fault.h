#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// What is wrong in a log of a sample contest.
enum class FaultKind {
  // Many to a contest.
  kBustedCall,     ///< one character of the other call is another one
  kBustedLocator,  ///< one character of the other locator is another one; still a locator
  kTimeOff,        ///< 11 to 45 minutes away from the time in the other log
  kMissingQso,     ///< a QSO that the log of the other station lacks
  kUnique,         ///< a call that nobody else worked and that sent no log
  kPortableMark,   ///< "/P" left out, or added to a call without it
  kSelfQso,        ///< a row with the log's own call
  kDuplicate,      ///< a station worked again, whether marked ";D" or not
  kErrorRow,       ///< a row with the call "ERROR"
  kDeletedRow,     ///< a QSO taken back by "DELETED" in the field of the received exchange
  // One to a contest, alone in its log, which is refused for it.
  kSupRow,            ///< a third row "-SUP"
  kBadOwnLocator,     ///< an own locator that is none
  kForeignLocator,    ///< an Italian call with a locator outside JN and JM
  kBadQsoLocator,     ///< the locator of a QSO that is none
  kShortOfSemicolons  ///< a QSO row with 12 semicolons in place of 14
};

inline constexpr std::array kCommonFaults = {
    FaultKind::kBustedCall, FaultKind::kBustedLocator, FaultKind::kTimeOff, FaultKind::kMissingQso,
    FaultKind::kUnique,     FaultKind::kPortableMark,  FaultKind::kSelfQso, FaultKind::kDuplicate,
    FaultKind::kErrorRow,   FaultKind::kDeletedRow};

inline constexpr std::array kRefusals = {FaultKind::kSupRow, FaultKind::kBadOwnLocator,
                                         FaultKind::kForeignLocator, FaultKind::kBadQsoLocator,
                                         FaultKind::kShortOfSemicolons};

/// The name of a kind in the list of faults: "busted_call".
std::string_view FaultName(FaultKind kind);

/// One fault. Calls and locators are in capitals here, also where the log has small letters.
struct PlantedFault {
  FaultKind kind;
  std::string log;     ///< own call of the log that holds the fault
  std::size_t qso;     ///< its row among the QSO rows of that log, from 1 on; 0 for the header
  std::string time;    ///< HHMM as that row has it; empty for the header
  std::string other;   ///< true call of the other station; empty where there is none
  std::string sent;    ///< the true value
  std::string logged;  ///< the value that stands in the log
  std::string note;    ///< in English
};

/// The faults as a text in columns under a heading, one a line, the lines ended by CR LF.
std::string FaultList(const std::vector<PlantedFault>& faults);

}  // namespace velmar
