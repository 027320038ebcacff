#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/file_system.h"

namespace velmar {

/// The eight settings, in the order of the lines of the settings file.
enum class Setting {
  kTimeCheckOn,           ///< check the times of QSOs with a tolerance of 10 minutes
  kNotInLogCheckOn,       ///< look for QSOs that are not in the other log
  kMessagesOn,            ///< show the informative messages
  kForcedErrorOn,         ///< let an error be forced on a QSO that the program has not marked
  kHideUniqueInDatabase,  ///< hide unique calls that stand in the contest's database
  kHideUniqueWithLog,     ///< hide unique calls that sent a log
  kHideOverTwo,           ///< hide calls with more than 2 appearances
  kHideOverThree          ///< hide calls with more than 3 appearances
};

inline constexpr std::size_t kSettings = 8;

/// The values of the settings: "SI" or "NO", or empty where the file has not been read.
class Settings {
 public:
  /// The values that a new file gets.
  static Settings New();

  const std::string& operator[](Setting setting) const { return values_[Index(setting)]; }
  void Set(Setting setting, std::string value) { values_[Index(setting)] = std::move(value); }

  /// Whether a setting is exactly "SI".
  bool On(Setting setting) const { return (*this)[setting] == kOn; }

  /// Takes the values out of a settings file: one a line, of which the first ten are read.
  void Parse(std::string_view text);

  /// Fills empty values and makes the last one "SI" when the one before it is "NO". The value put
  /// into an empty one is not always that of a new file, and is meant so.
  void Repair();

  /// The settings file: eight lines.
  std::string Text() const;

  static constexpr std::string_view kOn = "SI";
  static constexpr std::string_view kOff = "NO";

 private:
  static std::size_t Index(Setting setting) { return static_cast<std::size_t>(setting); }

  std::array<std::string, kSettings> values_;
};

}  // namespace velmar
