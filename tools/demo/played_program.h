#pragma once

#include <ostream>
#include <sstream>
#include <string>

#include "platform/form.h"
#include "player/player.h"

namespace velmar {

/// The program as the demo plays it. What does not work out as written raises std::runtime_error.
class PlayedProgram {
 public:
  /// `workspace` is the folder of the program, in code page 1252.
  explicit PlayedProgram(const std::string& workspace);

  /// Plays commands of the player, and tells of each box and window on standard output.
  void Tell(const std::string& commands);

  /// Plays them without a word.
  void Do(const std::string& commands);

  /// A control of the program as it stands.
  const Control& See(const std::string& name) { return player_.See(name); }

 private:
  std::ostream records_{nullptr};
  std::ostringstream complaints_;
  Player player_;
};

}  // namespace velmar
