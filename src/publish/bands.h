#pragma once

#include <array>
#include <string_view>

namespace velmar {

/// A band of the statistics. Only the first is that of this contest; the files know the others.
struct Band {
  std::string_view frequency;  ///< as the map's choice has it
  std::string_view code;       ///< as the rows of the participants have it
  std::string_view label;      ///< eight characters, at the front of file names
  std::string_view file_name;  ///< in the names of the lists of what was worked
};

/// The last two share the name of their lists, which fits neither, and that is meant so.
inline constexpr std::array<Band, 9> kBands = {{{"144", "144M", "XA  144 ", "144"},
                                                {"432", "432M", "XB  432 ", "432"},
                                                {"1296", "1296", "XC  1K3 ", "1k3"},
                                                {"2320", "2320", "XD  2K3 ", "2K3"},
                                                {"5760", "5760", "XE  5K7 ", "5K7"},
                                                {"10 G", "10 G", "XF  10G ", "10G"},
                                                {"24 G", "24 G", "XG  24G ", "24G"},
                                                {"50", " 50M", "XH  50M ", "76G"},
                                                {"1EC", " 1EC", "XI  1EC ", "76G"}}};

inline constexpr const Band& kContestBand = kBands.front();

/// A category and the band that it is worked on. The category 1EC has the label of 50 MHz here and
/// one of its own among the frequencies, and that is meant so.
struct CategoryBand {
  std::string_view category;
  const Band& band;
};

inline constexpr std::array<CategoryBand, 9> kCategoryBands = {{{"2IT", kBands[0]},
                                                                {"3IT", kBands[1]},
                                                                {"4IT", kBands[2]},
                                                                {"2K3", kBands[3]},
                                                                {"5K7", kBands[4]},
                                                                {"10G", kBands[5]},
                                                                {"24G", kBands[6]},
                                                                {"1EC", kBands[7]},
                                                                {"1IT", kBands[7]}}};

}  // namespace velmar
