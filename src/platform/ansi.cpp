#include "platform/ansi.h"

#include <algorithm>

namespace velmar {

namespace {

constexpr char kEscape = '\x81';
constexpr std::string_view kHexDigits = "0123456789ABCDEF";

/// Whether a text is the same in every form.
bool IsAscii(std::string_view text) {
  return std::ranges::none_of(text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
}

void AppendUtf8(char32_t code_point, std::string& out) {
  if (code_point < 0x80) {
    out += static_cast<char>(code_point);
  } else if (code_point < 0x800) {
    out += static_cast<char>(0xC0U | (code_point >> 6U));
    out += static_cast<char>(0x80U | (code_point & 0x3FU));
  } else {
    out += static_cast<char>(0xE0U | (code_point >> 12U));
    out += static_cast<char>(0x80U | ((code_point >> 6U) & 0x3FU));
    out += static_cast<char>(0x80U | (code_point & 0x3FU));
  }
}

}  // namespace

std::string AnsiFromUtf8(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  for (std::size_t at = 0; at < utf8.size();) {
    const ansi::Decoded decoded = ansi::DecodeUtf8(utf8, at);
    const int byte = decoded.length == 0 ? -1 : ansi::ByteOf(decoded.code_point);
    bytes += byte < 0 ? '?' : static_cast<char>(byte);
    at += decoded.length == 0 ? 1 : decoded.length;
  }
  return bytes;
}

std::string Utf8FromAnsi(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char byte : bytes) {
    AppendUtf8(ansi::CodePointOf(static_cast<unsigned char>(byte)), utf8);
  }
  return utf8;
}

std::string AnsiFromDiskName(std::string_view disk_name) {
  if (IsAscii(disk_name)) {
    return std::string(disk_name);
  }
  std::string bytes;
  for (std::size_t at = 0; at < disk_name.size();) {
    const ansi::Decoded decoded = ansi::DecodeUtf8(disk_name, at);
    const int byte = decoded.length == 0 ? -1 : ansi::ByteOf(decoded.code_point);
    const std::size_t length = decoded.length == 0 ? 1 : decoded.length;
    if (byte >= 0 && static_cast<char>(byte) != kEscape) {
      bytes += static_cast<char>(byte);
    } else {
      for (const char raw : disk_name.substr(at, length)) {
        bytes += kEscape;
        bytes += kHexDigits[static_cast<unsigned char>(raw) >> 4U];
        bytes += kHexDigits[static_cast<unsigned char>(raw) & 0x0FU];
      }
    }
    at += length;
  }
  return bytes;
}

std::string DiskNameFromAnsi(std::string_view bytes) {
  if (IsAscii(bytes)) {
    return std::string(bytes);
  }
  std::string disk_name;
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    if (bytes[at] == kEscape && at + 2 < bytes.size()) {
      const std::size_t high = kHexDigits.find(bytes[at + 1]);
      const std::size_t low = kHexDigits.find(bytes[at + 2]);
      if (high != std::string_view::npos && low != std::string_view::npos) {
        disk_name += static_cast<char>(high << 4U | low);
        at += 2;
        continue;
      }
    }
    AppendUtf8(ansi::CodePointOf(static_cast<unsigned char>(bytes[at])), disk_name);
  }
  return disk_name;
}

}  // namespace velmar
