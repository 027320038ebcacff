#pragma once

#include <string_view>

namespace velmar::hosts {

/// The hosts that the program talks to. They stand at this machine until whoever publishes the
/// program puts the real ones here, so that nothing built from these sources sends traffic away.
inline constexpr std::string_view kPing = "127.0.0.1";
inline constexpr std::string_view kVersionText =
    "http://127.0.0.1/varto/versione_varto_velmar144.txt";  ///< the newest short version

/// Pages that the manager can open: the map of a locator and the call book.
inline constexpr std::string_view kGridMap = "http://127.0.0.1/grid/?qth=";  ///< then the locator
inline constexpr std::string_view kGridMapEnd = "&t=n";
inline constexpr std::string_view kCallBook = "http://127.0.0.1/db/";  ///< then the call

}  // namespace velmar::hosts
