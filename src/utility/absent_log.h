#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "model/somma_qso.h"

namespace velmar {

/// The log that a station would have sent, out of the logs of the others.
struct RebuiltLog {
  std::vector<std::string> lines;  ///< one a QSO
  double points = 0;
};

/// The QSOs of the category with a call. No progressive numbers are sent in this contest: each QSO
/// is shown as the first one.
RebuiltLog RebuildLog(const std::vector<SommaQso>& rows, std::string_view call);

/// Where a score would stand in a classification, which is taken to be in descending order.
struct TheoreticalPlace {
  std::size_t logs = 0;              ///< in the classification
  bool unchecked = false;            ///< none of them has been checked, so that there is no place
  std::optional<std::size_t> place;  ///< of the first lower score, from 1; nothing without one

  /// Such as "3 su 250". Behind all others it is "250 su 250".
  std::string Text() const;

  /// The colour of a good place; nothing for others.
  std::optional<int> Colour() const;
};

TheoreticalPlace FindPlace(std::string_view classification, double score);

}  // namespace velmar
