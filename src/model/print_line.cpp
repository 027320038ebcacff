#include "model/print_line.h"

#include <algorithm>

#include "model/lines.h"
#include "model/text.h"

namespace velmar {

PrintLine& PrintLine::Text(std::string_view text) {
  line_ += text;
  return *this;
}

PrintLine& PrintLine::Number(long long number) {
  line_ += Str(number);
  line_ += ' ';
  return *this;
}

PrintLine& PrintLine::Tab(std::size_t column) {
  line_.resize(std::max(line_.size(), column - std::min<std::size_t>(column, 1)), ' ');
  return *this;
}

PrintLine& PrintLine::Zone() {
  line_.resize((line_.size() / kZoneWidth + 1) * kZoneWidth, ' ');
  return *this;
}

std::string PrintLine::End() const {
  return line_ + std::string(kLineEnd);
}

}  // namespace velmar
