#pragma once

#include <cstddef>
#include <string>

#include "platform/file_system.h"

namespace velmar {

/// What the demo prints between the records of what it plays.

void Heading(const std::string& text);

/// A file of the program as it lies there: its first lines, and how many follow.
void ShowText(FileSystem& files, const std::string& path, std::size_t most = 1000);

}  // namespace velmar
