#pragma once

#include <string>

#include "intake/intake_state.h"

namespace velmar {

/// Why a log is refused on insertion and moved to the logs to be checked again.
enum class Refusal {
  kBadName,
  kBadDate,
  kNoQsos,
  kNameWithoutDigit,
  kBadHeader,
  kCallWithoutDigit,
  kZeroDeclared,
  kBadPoints,
  kNoTotal,
  kBadDx,
  kCategory,
  kMoreValidThanRows,
  kNotRecalculated,
  kInvalid,
  kCountsDiffer,
  kNameOfOtherCategory,
  kForeignLocator,
  kEarly,
  kLate,
  kTimeFormat,
  kRowCount
};

/// The name of a refused log: its own, and a suffix that tells why. Three reasons have the declared
/// category in front. `stem` and `suffix` are parted where a number may go that tells two logs of
/// one name apart.
struct RefusedName {
  std::string stem;
  std::string suffix;
};
RefusedName NameOfRefused(const IntakeState& state, Refusal refusal);

}  // namespace velmar
