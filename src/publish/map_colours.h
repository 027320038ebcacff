#pragma once

#include "platform/form.h"

namespace velmar::map_colour {

/// The colours of the backgrounds of the maps: quiet ones, and none is near a mark's, which has
/// those of the windows.

using colour::Rgb;

inline constexpr int kSea = Rgb(214, 226, 234);
inline constexpr int kLand = Rgb(240, 238, 230);
inline constexpr int kItaly = Rgb(250, 236, 208);
inline constexpr int kCoast = Rgb(140, 154, 164);
inline constexpr int kBorder = Rgb(176, 170, 160);
inline constexpr int kSquareLine = Rgb(206, 212, 214);
inline constexpr int kFieldLine = Rgb(168, 180, 188);
inline constexpr int kSquareName = Rgb(128, 138, 146);
inline constexpr int kFieldName = Rgb(92, 106, 120);

}  // namespace velmar::map_colour
