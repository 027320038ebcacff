#include "player/json.h"

#include "platform/ansi.h"

namespace velmar {

namespace {

std::string Quoted(std::string_view text) {
  constexpr std::string_view kHex = "0123456789abcdef";
  std::string quoted = "\"";
  for (const char c : Utf8FromAnsi(text)) {
    const auto byte = static_cast<unsigned char>(c);
    if (c == '"' || c == '\\') {
      quoted += '\\';
      quoted += c;
    } else if (byte < 0x20) {
      quoted += "\\u00";
      quoted += kHex[byte >> 4U];
      quoted += kHex[byte & 0x0FU];
    } else {
      quoted += c;
    }
  }
  return quoted + "\"";
}

}  // namespace

JsonRecord& JsonRecord::Add(std::string_view name, std::string_view json) {
  line_ += line_.size() > 1 ? ",\"" : "\"";
  line_ += name;
  line_ += "\":";
  line_ += json;
  return *this;
}

JsonRecord& JsonRecord::Text(std::string_view name, std::string_view text) {
  return Add(name, Quoted(text));
}

JsonRecord& JsonRecord::TextOrNull(std::string_view name, const std::optional<std::string>& text) {
  return Add(name, text ? Quoted(*text) : "null");
}

JsonRecord& JsonRecord::Texts(std::string_view name, const std::vector<std::string>& texts) {
  std::string array = "[";
  for (const std::string& text : texts) {
    array += array.size() > 1 ? "," : "";
    array += Quoted(text);
  }
  return Add(name, array + "]");
}

JsonRecord& JsonRecord::Number(std::string_view name, long long number) {
  return Add(name, std::to_string(number));
}

JsonRecord& JsonRecord::NumberOrNull(std::string_view name, const std::optional<int>& number) {
  return Add(name, number ? std::to_string(*number) : "null");
}

JsonRecord& JsonRecord::Flag(std::string_view name, bool flag) {
  return Add(name, flag ? "true" : "false");
}

}  // namespace velmar
