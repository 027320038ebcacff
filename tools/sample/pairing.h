#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "sample/random.h"
#include "sample/stations.h"

namespace velmar::sample {

/// No log gets more pairs than these, which leaves room for planted rows below 900.
inline constexpr std::size_t kMostPairs = 840;

/// Who works whom: pairs of indices into `stations`, none twice, most of them at a moderate
/// distance.
std::vector<std::pair<std::size_t, std::size_t>> MakePairs(Random& random,
                                                           const std::vector<Station>& stations,
                                                           std::size_t qsos);

}  // namespace velmar::sample
