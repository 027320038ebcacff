#pragma once

#include <array>
#include <string_view>

namespace velmar {

/// A band of the statistics. Only the first is that of this contest; the files know the others.
struct Band {
  std::string_view frequency;  ///< as the map's choice has it
  std::string_view category;   ///< that is worked on it
  std::string_view code;       ///< as the rows of the participants have it
  std::string_view label;      ///< eight characters, at the front of file names
  std::string_view file_name;  ///< in the names of the lists of what was worked
};

/// The last two are one category's, with a label for each frequency, and share the name of their
/// lists, which fits neither. That is meant so.
inline constexpr std::array<Band, 9> kBands = {{{"144", "2IT", "144M", "XA  144 ", "144"},
                                                {"432", "3IT", "432M", "XB  432 ", "432"},
                                                {"1296", "4IT", "1296", "XC  1K3 ", "1k3"},
                                                {"2320", "2K3", "2320", "XD  2K3 ", "2K3"},
                                                {"5760", "5K7", "5760", "XE  5K7 ", "5K7"},
                                                {"10 G", "10G", "10 G", "XF  10G ", "10G"},
                                                {"24 G", "24G", "24 G", "XG  24G ", "24G"},
                                                {"50", "1EC", " 50M", "XH  50M ", "76G"},
                                                {"1EC", "1EC", " 1EC", "XI  1EC ", "76G"}}};

inline constexpr const Band& kContestBand = kBands.front();

/// The band of a category; nothing where it has none. Two categories share 50 MHz.
const Band* BandOfCategory(std::string_view category);

}  // namespace velmar
