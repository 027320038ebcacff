#include "model/lines.h"

#include <algorithm>

namespace velmar {

bool LineReader::Next(std::string_view& line) {
  if (at_ >= text_.size()) {
    return false;
  }
  if (next_lf_ < at_) {
    next_lf_ = std::min(text_.find('\n', at_), text_.size());
  }
  const std::string_view rest = text_.substr(at_, next_lf_ - at_);
  const std::size_t cr = rest.find('\r');
  line = rest.substr(0, cr);
  const bool both = cr == rest.size() - 1 || cr == std::string_view::npos;
  at_ = both ? next_lf_ + 1 : at_ + cr + 1;
  return true;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  constexpr std::size_t kUsualLine = 48;
  std::vector<std::string_view> lines;
  lines.reserve(text.size() / kUsualLine);
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::string> CopyLines(std::string_view text) {
  const auto lines = SplitLines(text);
  return {lines.begin(), lines.end()};
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
