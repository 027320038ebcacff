#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

namespace velmar {

/// The text helpers that every format rests on. Texts are bytes in code page 1252; positions count
/// from 1 and are clamped to the text, so that a short row gives a short or empty field.

/// The first `count` characters.
constexpr std::string_view Left(std::string_view text, std::size_t count) {
  return text.substr(0, count);
}

/// `count` characters from position `start` (counted from 1) on, or all that follow.
constexpr std::string_view Mid(std::string_view text, std::size_t start,
                               std::size_t count = std::string_view::npos) {
  const std::size_t first = start == 0 ? 1 : start;
  return first > text.size() ? std::string_view() : text.substr(first - 1, count);
}

/// The last `count` characters.
constexpr std::string_view Right(std::string_view text, std::size_t count) {
  return count >= text.size() ? text : text.substr(text.size() - count);
}

/// The text without the blanks (and blanks alone) at its front, at its end, or at both.
constexpr std::string_view LTrim(std::string_view text) {
  while (!text.empty() && text.front() == ' ') {
    text.remove_prefix(1);
  }
  return text;
}
constexpr std::string_view RTrim(std::string_view text) {
  while (!text.empty() && text.back() == ' ') {
    text.remove_suffix(1);
  }
  return text;
}
constexpr std::string_view Trim(std::string_view text) {
  return LTrim(RTrim(text));
}

/// Whether `text` holds `part` anywhere. Like every comparison here it minds the case.
constexpr bool Holds(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

/// Capitals and small letters of code page 1252.
std::string Upper(std::string_view text);
std::string Lower(std::string_view text);

/// The text cut, or padded with blanks on the right, to exactly `width` characters.
std::string Pad(std::string_view text, std::size_t width);

/// A number as text with one blank ahead when it is not negative: " 5", "-5". Column layouts rest
/// on that blank.
std::string Str(long long number);

/// The same for a number that may have a fraction, with at most `digits` of them (7 for a number in
/// single precision) and without a zero ahead of the point: " 1.5", " .5", " 1E-05".
std::string StrReal(double number, int digits = 15);

/// The same without the blank, as the labels of a form show a number.
std::string NumberText(double number);

/// The number that stands at the start of a text, behind blanks: a sign, digits and a decimal
/// point, each if it is there. 0 when there is none.
double Val(std::string_view text);

inline constexpr std::size_t kCallWidth = 12;  ///< of a call in the store files

/// A call in capitals, padded or cut to 12 characters: its form in the store files.
std::string Call12(std::string_view call);

/// A locator in capitals, cut to 6 characters.
std::string Loc6(std::string_view locator);

/// The text without any of its blanks.
std::string WithoutBlanks(std::string_view text);

/// The text with every `from` turned into `to`.
std::string Replaced(std::string_view text, char from, char to);

/// Texts and numbers behind one another. A number has no blanks of its own here.
template <typename... Parts>
std::string Join(const Parts&... parts) {
  constexpr std::size_t kMostDigits = 20;
  const auto room = []<typename Part>(const Part& part) -> std::size_t {
    if constexpr (requires { std::to_string(part); }) {
      return kMostDigits;
    } else {
      return std::string_view(part).size();
    }
  };
  std::string joined;
  joined.reserve((room(parts) + ... + 0));
  const auto add = [&joined]<typename Part>(const Part& part) {
    static_assert(!std::is_same_v<Part, char>, "a character would be taken for a number");
    if constexpr (requires { std::to_string(part); }) {
      joined += std::to_string(part);
    } else {
      joined += part;
    }
  };
  (add(parts), ...);
  return joined;
}

}  // namespace velmar
