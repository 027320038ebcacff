#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace velmar {

/// One record of the player's output: a JSON object on one line. Texts come in code page 1252 and
/// go out in UTF-8.
class JsonRecord {
 public:
  JsonRecord& Text(std::string_view name, std::string_view text);
  JsonRecord& TextOrNull(std::string_view name, const std::optional<std::string>& text);
  JsonRecord& Texts(std::string_view name, const std::vector<std::string>& texts);
  JsonRecord& Number(std::string_view name, long long number);
  JsonRecord& NumberOrNull(std::string_view name, const std::optional<int>& number);
  JsonRecord& Flag(std::string_view name, bool flag);

  /// The object, without a line end.
  std::string Line() const { return line_ + "}"; }

 private:
  JsonRecord& Add(std::string_view name, std::string_view json);

  std::string line_ = "{";
};

}  // namespace velmar
