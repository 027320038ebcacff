#pragma once

#include <string>
#include <string_view>

namespace velmar {

inline constexpr std::string_view kProgramTitle = "VARTO Velmar VHF";
inline constexpr std::string_view kProgramDate = "VARTO Velmar VHF - 02 Gennaio 2024 - Ver. 24-008";
inline constexpr std::string_view kVersionLong = " Ver. 2024-008 ";
inline constexpr std::string_view kVersionShort = "24-008";

/// A short version as three digits with points between them: its 4th, 5th and last characters. The
/// version "24-008" is 0.0.8.
std::string DottedVersion(std::string_view short_version);

/// The dotted form of this version.
std::string VersionDotted();

}  // namespace velmar
