#pragma once

#include "publish/map_view.h"

namespace velmar {

/// What a map is drawn on: the sea, the land with Italy a shade warmer, the borders between
/// countries, and faint lines between the squares.
Picture MapBackground(const MapView& view);

}  // namespace velmar
