#include "demo/played_program.h"

#include <iostream>
#include <stdexcept>
#include <string_view>

#include "model/text.h"

namespace velmar {

namespace {

/// The day on which the demo plays, whatever the machine's date is.
constexpr std::string_view kToday = "date 21/01/2025\n";

constexpr std::size_t kNarrated = 120;  ///< bytes shown of a box

/// The part of a record between two marks; empty where it has none.
std::string_view Between(std::string_view record, std::string_view from, std::string_view to) {
  const std::size_t begin = record.find(from);
  const std::size_t end = begin == std::string_view::npos ? begin : record.find(to, begin);
  return end == std::string_view::npos
             ? std::string_view()
             : record.substr(begin + from.size(), end - begin - from.size());
}

/// Shows a record of the player as a line to read: the beginning of a box, or a window.
void Narrate(std::string_view record) {
  if (record.starts_with("{\"box\"")) {
    const auto lines = Between(record, "\"lines\":[", "],\"buttons\"");
    const auto reply = Between(record, "\"reply\":\"", "\"}");
    std::cout << "  [" << reply << "] " << lines.substr(0, kNarrated)
              << (lines.size() > kNarrated ? "..." : "") << std::endl;
  } else if (record.starts_with("{\"form\"")) {
    std::cout << "  " << (Holds(record, "true") ? "opens  " : "closes ")
              << Between(record, "{\"form\":\"", "\",") << std::endl;
  }
}

}  // namespace

PlayedProgram::PlayedProgram(const std::string& workspace)
    : player_(workspace, records_, complaints_) {
  Do(std::string(kToday));
}

void PlayedProgram::Tell(const std::string& commands) {
  player_.on_record = Narrate;
  Do(commands);
  player_.on_record = nullptr;
}

void PlayedProgram::Do(const std::string& commands) {
  std::istringstream script(commands);
  if (player_.Play(script) != PlayResult::kPlayed) {
    throw std::runtime_error("the demo came to a stop: " + complaints_.str());
  }
}

}  // namespace velmar
