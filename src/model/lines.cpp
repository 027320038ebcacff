#include "model/lines.h"

namespace velmar {

bool LineReader::Next(std::string_view& line) {
  if (rest_.empty()) {
    return false;
  }
  const std::size_t end = rest_.find_first_of(kLineEnd);
  line = rest_.substr(0, end);
  if (end == std::string_view::npos) {
    rest_ = {};
  } else {
    rest_.remove_prefix(end + (rest_.substr(end).starts_with(kLineEnd) ? 2 : 1));
  }
  return true;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    lines.push_back(line);
  }
  return lines;
}

std::string_view LastLine(std::string_view text) {
  std::string_view last;
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    last = line;
  }
  return last;
}

}  // namespace velmar
