#include "demo/story.h"

#include <algorithm>
#include <iostream>

#include "model/lines.h"
#include "platform/ansi.h"

namespace velmar {

void Heading(const std::string& text) {
  std::cout << "\n== " << text << '\n';
}

void ShowText(FileSystem& files, const std::string& path, std::size_t most) {
  const std::string text = files.ReadAll(path);
  const auto lines = SplitLines(text);
  for (std::size_t i = 0; i < std::min(most, lines.size()); ++i) {
    std::cout << "  " << Utf8FromAnsi(lines[i]) << '\n';
  }
  if (lines.size() > most) {
    std::cout << "  and " << lines.size() - most << " lines more\n";
  }
}

}  // namespace velmar
