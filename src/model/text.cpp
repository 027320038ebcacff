#include "model/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace velmar {

namespace {

using ByteTable = std::array<char, 256>;

struct CaseTables {
  ByteTable upper{};
  ByteTable lower{};

  constexpr CaseTables() {
    for (std::size_t i = 0; i < 256; ++i) {
      upper[i] = lower[i] = static_cast<char>(i);
    }
    const auto pair = [this](std::size_t capital, std::size_t small) {
      upper[small] = static_cast<char>(capital);
      lower[capital] = static_cast<char>(small);
    };
    for (std::size_t letter = 'A'; letter <= 'Z'; ++letter) {
      pair(letter, letter + 0x20);
    }
    for (std::size_t letter = 0xC0; letter <= 0xDE; ++letter) {
      if (letter != 0xD7) {  // the multiplication sign, with the division sign at F7
        pair(letter, letter + 0x20);
      }
    }
    pair(0x8A, 0x9A);
    pair(0x8C, 0x9C);
    pair(0x8E, 0x9E);
    pair(0x9F, 0xFF);
  }
};

constexpr CaseTables kCase;

std::string Mapped(std::string_view text, const ByteTable& table) {
  std::string mapped(text);
  for (char& c : mapped) {
    c = table[static_cast<unsigned char>(c)];
  }
  return mapped;
}

}  // namespace

std::string Upper(std::string_view text) {
  return Mapped(text, kCase.upper);
}

std::string Lower(std::string_view text) {
  return Mapped(text, kCase.lower);
}

std::string Pad(std::string_view text, std::size_t width) {
  std::string padded(Left(text, width));
  padded.resize(width, ' ');
  return padded;
}

std::string Str(long long number) {
  std::string text = number < 0 ? "" : " ";
  text += std::to_string(number);
  return text;
}

std::string StrReal(double number, int digits) {
  std::array<char, 32> buffer{};
  const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                          std::abs(number), std::chars_format::general, digits);
  std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
  if (text.starts_with("0.")) {
    text.remove_prefix(1);
  }
  std::string signed_text = number < 0 ? "-" : " ";
  signed_text += text;
  std::ranges::replace(signed_text, 'e', 'E');
  return signed_text;
}

std::string NumberText(double number) {
  return std::string(Trim(StrReal(number)));
}

double Val(std::string_view text) {
  text = LTrim(text);
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) {
    text.remove_prefix(1);
  }
  if (text.starts_with('-')) {
    return 0;
  }
  double number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed);
  return std::isfinite(number) ? (negative ? -number : number) : 0;
}

std::string Call12(std::string_view call) {
  return Pad(Upper(call), kCallWidth);
}

std::string Loc6(std::string_view locator) {
  return Upper(Left(locator, 6));
}

std::string WithoutBlanks(std::string_view text) {
  std::string kept(text);
  std::erase(kept, ' ');
  return kept;
}

std::string Replaced(std::string_view text, char from, char to) {
  std::string replaced(text);
  for (char& c : replaced) {
    c = c == from ? to : c;
  }
  return replaced;
}

}  // namespace velmar
