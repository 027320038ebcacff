#include "platform/ansi.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

namespace velmar {
namespace {

// The literals of the sources are turned while compiling, one byte a character.
static_assert("città €Œÿ"_a == std::string_view("citt\xE0 \x80\x8C\xFF"));

TEST(Ansi, EveryByteComesBackFromUtf8) {
  EXPECT_EQ(Utf8FromAnsi("\x80\x93\xE8"), "€“è");
  for (int byte = 0; byte < 256; ++byte) {
    const std::string bytes(1, static_cast<char>(byte));
    EXPECT_EQ(AnsiFromUtf8(Utf8FromAnsi(bytes)), bytes) << byte;
  }
}

TEST(Ansi, WhatTheCodePageLacksAndWhatIsNotUtf8BecomesAQuestionMark) {
  const struct {
    std::string_view utf8;
    std::string_view bytes;
  } cases[] = {
      {"aЖ😀b", "a??b"},  // one mark a character
      {"a\xE8z", "a?z"},
      {"\x80\xBF", "??"},  // strange bytes
      {"\xC0\xAF", "??"},
      {"\xE0\x80\xAF", "???"},       // overlong,
      {"\xF0\x80\x80\xAF", "????"},  // also with four bytes
      {"\xED\xA0\x80", "???"},
      {"\xF4\x90\x80\x80", "????"},  // a surrogate, beyond the last
      {"\xE2\x82", "??"},
      {"\xE2\x82x", "??x"},
      {"\xC3", "?"}  // cut
  };
  for (const auto& [utf8, bytes] : cases) {
    EXPECT_EQ(AnsiFromUtf8(utf8), bytes) << utf8;
  }
}

// As every name comes back from its text, distinct names have distinct texts too.
TEST(Ansi, EveryDiskNameComesBackFromItsText) {
  const auto expect_survives = [](const std::string& disk_name) {
    EXPECT_EQ(DiskNameFromAnsi(AnsiFromDiskName(disk_name)), disk_name);
  };
  EXPECT_EQ(AnsiFromDiskName("perché.edi"), "perché.edi"_a);
  for (const char* name : {"", "perché.edi", "Журнал.edi", "日本 €.txt", "\xFF.edi", "😀"}) {
    expect_survives(name);
  }
  for (int pair = 0; pair < 0x10000; ++pair) {
    expect_survives({static_cast<char>(pair >> 8), static_cast<char>(pair & 0xFF)});
  }
  // The bytes that matter to the escapes, in all kinds of neighbourhood.
  constexpr std::string_view kBytes = "8C1az\xC2\x81\xD0\xE2\x82\xAC\xFF";
  std::mt19937 random(144);
  for (int round = 0; round < 20000; ++round) {
    std::string disk_name;
    for (std::size_t size = 1 + random() % 8; disk_name.size() < size;) {
      disk_name += kBytes[random() % kBytes.size()];
    }
    expect_survives(disk_name);
  }
}

}  // namespace
}  // namespace velmar
