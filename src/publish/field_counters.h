#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The fields that are counted, in the order of their grid.
inline constexpr std::array<std::string_view, 12> kFields = {"KP", "JP", "IP", "IO", "JO", "KO",
                                                             "IN", "JN", "KN", "IM", "JM", "KM"};

/// Counts locators or squares by the field that they lie in.
class FieldCounters {
 public:
  /// Counts one, if its field is among those that are counted.
  void Count(std::string_view locator);

  int total() const;

  /// The counts in the order of the fields, then the total.
  std::vector<std::string> Texts() const;

 private:
  std::array<int, kFields.size()> counts_{};
};

}  // namespace velmar
