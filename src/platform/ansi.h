#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace velmar {

/// Code page 1252, the form of every text inside the program: one byte a character, because the
/// columns of the files count bytes and no file is ever transcoded.
namespace ansi {

/// The Unicode characters of bytes 80 to 9F (hexadecimal); the other bytes stand for themselves.
/// The five bytes that the code page leaves open stand for the control characters of their number.
inline constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// The Unicode character of a byte.
constexpr char32_t CodePointOf(unsigned char byte) {
  return byte >= 0x80 && byte <= 0x9F ? kHighControls[byte - 0x80U] : byte;
}

/// The byte of a Unicode character, or -1 when the code page has none.
constexpr int ByteOf(char32_t code_point) {
  if (code_point < 0x80 || (code_point >= 0xA0 && code_point <= 0xFF)) {
    return static_cast<int>(code_point);
  }
  for (std::size_t i = 0; i < kHighControls.size(); ++i) {
    if (kHighControls[i] == code_point) {
      return static_cast<int>(0x80 + i);
    }
  }
  return -1;
}

struct Decoded {
  char32_t code_point;  ///< the character read
  std::size_t length;   ///< bytes it took; 0 when the text is not UTF-8 there
};

/// Reads the UTF-8 character at `text[at]`.
constexpr Decoded DecodeUtf8(std::string_view text, std::size_t at) {
  const auto lead = static_cast<unsigned char>(text[at]);
  if (lead < 0x80) {
    return {lead, 1};
  }
  const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
  if (lead < 0xC2 || lead > 0xF4 || at + length > text.size()) {
    return {0, 0};
  }
  char32_t code_point = lead & (0xFFU >> (length + 1));
  for (std::size_t i = 1; i < length; ++i) {
    const auto byte = static_cast<unsigned char>(text[at + i]);
    if ((byte & 0xC0U) != 0x80) {
      return {0, 0};
    }
    code_point = (code_point << 6U) | (byte & 0x3FU);
  }
  const bool overlong =
      (length == 3 && code_point < 0x800) || (length == 4 && code_point < 0x10000);
  const bool surrogate = code_point >= 0xD800 && code_point <= 0xDFFF;
  return overlong || surrogate || code_point > 0x10FFFF ? Decoded{0, 0}
                                                        : Decoded{code_point, length};
}

}  // namespace ansi

/// UTF-8 to code page 1252. A character that the code page lacks, and a byte that is not UTF-8,
/// become "?".
std::string AnsiFromUtf8(std::string_view utf8);

/// Code page 1252 to UTF-8. Every byte has a character, so nothing is lost.
std::string Utf8FromAnsi(std::string_view bytes);

/// The name that a file has on the disk (UTF-8) as text of the program, and back. A disk name that
/// is not UTF-8 or has characters outside the code page keeps each such byte as the byte 81 and two
/// hexadecimal digits, so that every file on the disk can be named, moved and found again.
std::string AnsiFromDiskName(std::string_view disk_name);
std::string DiskNameFromAnsi(std::string_view bytes);

/// A literal of a UTF-8 source as text of the program, turned at compile time: "è"_a. A character
/// outside the code page does not compile.
template <std::size_t N>
struct AnsiLiteral {
  // NOLINTNEXTLINE(google-explicit-constructor): a literal operator's parameter converts.
  consteval AnsiLiteral(const char (&utf8)[N]) {
    const std::string_view text(utf8, N - 1);
    for (std::size_t at = 0; at < text.size();) {
      const ansi::Decoded decoded = ansi::DecodeUtf8(text, at);
      const int byte = decoded.length == 0 ? -1 : ansi::ByteOf(decoded.code_point);
      if (byte < 0) {
        throw "a character outside code page 1252";
      }
      bytes[size++] = static_cast<char>(byte);
      at += decoded.length;
    }
  }

  char bytes[N] = {};
  std::size_t size = 0;
};

/// What such a literal gives: a view that also fills a std::string without further words.
struct AnsiView : std::string_view {
  using std::string_view::basic_string_view;
  // NOLINTNEXTLINE(google-explicit-constructor): that is what it is for.
  operator std::string() const { return std::string(data(), size()); }
};

template <AnsiLiteral kText>
constexpr AnsiView operator""_a() {
  return {kText.bytes, kText.size};
}

}  // namespace velmar
