#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// The characters of a row that a person is shown at most; a damaged file may hold rows of many
/// megabytes.
inline constexpr std::size_t kLongestShown = 400;

/// The same of a text that has many lines for itself.
inline constexpr std::size_t kLongestRead = 4000;

/// A text of the program (code page 1252) as the windows draw it. Control characters, which would
/// vanish or tear the line, are drawn as their symbols.
QString ToQString(std::string_view bytes);

/// The same of a text of any length: at most `longest` characters and "…" where more follow.
QString ToShownRow(std::string_view bytes, std::size_t longest = kLongestShown);

/// Rows as ToShownRow draws them.
QStringList ToShownRows(const std::vector<std::string>& rows);

/// What a person typed, as a text of the program. A character outside the code page becomes "?".
std::string FromQString(const QString& text);

/// A path or file name of the disk, and back.
QString ToDiskName(std::string_view bytes);
std::string FromDiskName(const QString& name);

}  // namespace velmar
