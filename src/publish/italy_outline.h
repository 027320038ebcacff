#pragma once

#include "platform/picture.h"

namespace velmar {

/// The outline of Italy on a clear ground, to lie over the squares of square_grid::kItaly.
Picture ItalyOutline();

}  // namespace velmar
