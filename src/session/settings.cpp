#include "session/settings.h"

#include "model/lines.h"
#include "model/text.h"

namespace velmar {

namespace {

constexpr std::size_t kMostLines = 10;

struct Defaults {
  std::string_view when_new;
  std::string_view when_empty;
};

// The two columns differ in the last two lines, and are meant so.
constexpr std::array<Defaults, kSettings> kDefaults = {{{"NO", "NO"},
                                                        {"SI", "SI"},
                                                        {"NO", "NO"},
                                                        {"NO", "NO"},
                                                        {"SI", "SI"},
                                                        {"SI", "SI"},
                                                        {"SI", "NO"},
                                                        {"NO", "SI"}}};

}  // namespace

Settings Settings::New() {
  Settings settings;
  for (std::size_t i = 0; i < kSettings; ++i) {
    settings.values_[i] = kDefaults[i].when_new;
  }
  return settings;
}

void Settings::Parse(std::string_view text) {
  std::array<std::string, kMostLines> table;
  LineReader reader(text);
  std::string_view line;
  for (std::size_t i = 0; i < kMostLines && reader.Next(line); ++i) {
    table[i] = line;
  }
  for (std::size_t i = 0; i < kSettings; ++i) {
    values_[i] = table[i];
  }
}

void Settings::Repair() {
  for (std::size_t i = 0; i < kSettings; ++i) {
    if (values_[i].empty()) {
      values_[i] = kDefaults[i].when_empty;
    }
  }
  if ((*this)[Setting::kHideOverTwo] == kOff) {
    Set(Setting::kHideOverThree, std::string(kOn));
  }
}

std::string Settings::Text() const {
  std::string text;
  for (const std::string& value : values_) {
    text += value;
    text += kLineEnd;
  }
  return text;
}

}  // namespace velmar
