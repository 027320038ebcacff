#pragma once

#include <cstdint>
#include <limits>

#include "platform/error.h"

namespace velmar {

/// A sum of 32 bits: one that goes beyond raises error 6.
class LongTotal {
 public:
  /// Adds a number without its fraction.
  void Add(double number) {
    const double sum =
        static_cast<double>(total_) + static_cast<double>(static_cast<std::int64_t>(number));
    if (sum > std::numeric_limits<std::int32_t>::max() ||
        sum < std::numeric_limits<std::int32_t>::min()) {
      throw RunTimeError(ErrorNumber::kOverflow, "a total");
    }
    total_ = static_cast<std::int32_t>(sum);
  }

  std::int32_t value() const { return total_; }

 private:
  std::int32_t total_ = 0;
};

}  // namespace velmar
