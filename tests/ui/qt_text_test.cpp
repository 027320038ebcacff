#include "ui/qt_text.h"

#include <gtest/gtest.h>

#include "platform/ansi.h"

namespace velmar {
namespace {

TEST(QtText, EveryByteOfTheCodePageSurvivesTheWindow) {
  for (int byte = 0x20; byte <= 0xFF; ++byte) {
    const std::string text(1, static_cast<char>(byte));
    const QString shown = ToQString(text);
    ASSERT_EQ(shown.size(), 1);
    if (ansi::CodePointOf(static_cast<unsigned char>(byte)) >= 0xA0 || byte < 0x7F) {
      EXPECT_EQ(FromQString(shown), text) << byte;
    }
  }
}

TEST(QtText, ControlCharactersAreSeen) {
  EXPECT_EQ(ToQString(std::string_view("a\0b\x1F\x7F\x81", 6)), QStringLiteral("a␀b␟␡\uFFFD"));
}

TEST(QtText, ALongRowIsCut) {
  const std::string row(50'000'000, 'x');
  const QString shown = ToShownRow(row);
  EXPECT_EQ(shown.size(), static_cast<qsizetype>(kLongestShown) + 1);
  EXPECT_TRUE(shown.endsWith("x…"));
  EXPECT_EQ(ToShownRow("x"), "x");
}

TEST(QtText, TypedTextOutsideTheCodePageBecomesAQuestionMark) {
  EXPECT_EQ(FromQString(QStringLiteral("perché Ж")), std::string("perché ?"_a));
  // An accent that the keyboard sends as a character of its own.
  EXPECT_EQ(FromQString(QStringLiteral("e\u0301")), std::string("é"_a));
}

TEST(QtText, DiskNamesComeBack) {
  EXPECT_EQ(FromDiskName(ToDiskName("02 Log/è"_a)), std::string("02 Log/è"_a));
}

}  // namespace
}  // namespace velmar
