#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <string_view>

#include "platform/ansi.h"
#include "player/player.h"

namespace {

constexpr int kUsageError = 1;

/// The folder as the program takes it: without slashes at its end.
std::string WorkspaceOf(std::string_view argument) {
  while (argument.size() > 1 && argument.ends_with('/')) {
    argument.remove_suffix(1);
  }
  return velmar::AnsiFromDiskName(argument);
}

int Play(const std::string& workspace, std::istream& script) {
  velmar::Player player(workspace, std::cout, std::cerr);
  return static_cast<int>(player.Play(script));
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::cerr << "usage: velmar-play WORKSPACE SCRIPT\n"
                 "Plays SCRIPT (a file, or - for standard input) on the folder WORKSPACE.\n";
    return kUsageError;
  }
  if (!std::filesystem::is_directory(argv[1])) {
    std::cerr << "velmar-play: no such folder: " << argv[1] << '\n';
    return kUsageError;
  }
  const std::string workspace = WorkspaceOf(argv[1]);
  if (std::string_view(argv[2]) == "-") {
    return Play(workspace, std::cin);
  }
  std::ifstream script(argv[2]);
  if (!script || std::filesystem::is_directory(argv[2])) {
    std::cerr << "velmar-play: cannot read the script: " << argv[2] << '\n';
    return kUsageError;
  }
  return Play(workspace, script);
}
