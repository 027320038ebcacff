#include "publish/bands.h"

#include <algorithm>

namespace velmar {

const Band* BandOfCategory(std::string_view category) {
  const std::string_view known = category == "1IT" ? "1EC" : category;
  const auto* const band = std::ranges::find(kBands, known, &Band::category);
  return band == kBands.end() ? nullptr : band;
}

}  // namespace velmar
