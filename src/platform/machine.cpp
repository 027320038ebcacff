#include "platform/machine.h"

#include <charconv>

namespace velmar {

std::optional<double> PingMilliseconds(std::string_view output) {
  const std::size_t unit = output.find("ms ");
  if (unit == std::string_view::npos) {
    return std::nullopt;
  }
  const std::size_t line = output.find_last_of("\r\n", unit);
  std::string_view ahead = output.substr(0, unit);
  ahead.remove_prefix(line == std::string_view::npos ? 0 : line + 1);
  const std::size_t mark = ahead.find_last_of(" <=");
  const std::string_view digits = ahead.substr(mark == std::string_view::npos ? 0 : mark + 1);
  double milliseconds = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), milliseconds);
  return milliseconds;
}

}  // namespace velmar
