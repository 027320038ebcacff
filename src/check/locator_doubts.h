#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace velmar {

/// Whether a locator of six characters breaks the form of one. Of another length it is not tested.
bool LocatorBroken(std::string_view locator);

/// Whether a call is an Italian portable one, which the contest does not admit.
bool ItalianPortable(std::string_view call);

/// What a log under examination is compared with. All are rows as they lie in the store.
struct LocatorWitnesses {
  const std::vector<std::string_view>& log;     ///< library rows of the log
  const std::vector<std::string_view>& others;  ///< library rows of the other logs
  const std::vector<std::string_view>& participants;
  std::string_view category;
};

/// The QSOs whose locator is in doubt, by their places in the log counted from 0, in its order:
/// some other log has another locator for the call, the call's own log does not declare this one,
/// and at most three QSOs of the other logs have it. A call that no other log has is no doubt.
std::vector<std::size_t> FindLocatorDoubts(const LocatorWitnesses& witnesses);

/// The QSOs with the call under examination itself.
std::vector<std::size_t> FindOwnQsos(const std::vector<std::string_view>& log,
                                     std::string_view call);

/// The QSOs whose call has a participant's row with another locator, whatever its category.
std::vector<std::size_t> FindDeclaredOtherwise(const std::vector<std::string_view>& log,
                                               const std::vector<std::string_view>& participants);

}  // namespace velmar
