#include "model/lines.h"

#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "model/bounded_table.h"

namespace velmar {
namespace {

using namespace std::string_view_literals;
using Lines = std::vector<std::string_view>;

TEST(SplitLines, EachKindOfLineEnd) {
  const struct {
    std::string_view text;
    Lines lines;
  } cases[] = {{"", {}},
               {"a", {"a"}},
               {"a\r\nb\r\n", {"a", "b"}},
               {"a\nb\rc\r\nd", {"a", "b", "c", "d"}},
               {"a\r\r\nb", {"a", "", "b"}},
               {"a\n\rb", {"a", "", "b"}},
               {"\r\n", {""}},
               {"\r\n\r\n", {"", ""}},
               {"a \t\0b\x1A\r\n"sv, {"a \t\0b\x1A"sv}},
               {"\xEF\xBB\xBF[REG1TEST;1]\n", {"\xEF\xBB\xBF[REG1TEST;1]"}}};
  for (const auto& [text, lines] : cases) {
    EXPECT_EQ(SplitLines(text), lines) << testing::PrintToString(text);
  }
}

// The lines of a text, character by character.
std::vector<std::string> PlainLines(const std::string& text) {
  std::vector<std::string> lines;
  bool open = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\n' && i > 0 && text[i - 1] == '\r') {
      continue;
    }
    if (!open) {
      lines.emplace_back();
    }
    open = text[i] != '\r' && text[i] != '\n';
    if (open) {
      lines.back() += text[i];
    }
  }
  return lines;
}

TEST(SplitLines, AgreesWithAPlainLoopOnEveryShortText) {
  std::vector<std::string> texts = {""};
  for (std::size_t i = 0; texts[i].size() < 7; ++i) {
    for (const char c : {'a', '\r', '\n'}) {
      texts.push_back(texts[i] + c);
    }
  }
  for (const std::string& text : texts) {
    const Lines lines = SplitLines(text);
    const std::vector<std::string> expected = PlainLines(text);
    EXPECT_EQ(std::vector<std::string>(lines.begin(), lines.end()), expected)
        << testing::PrintToString(text);
    EXPECT_EQ(LastLine(text), expected.empty() ? "" : expected.back());
  }
}

TEST(BoundedTable, RaisesErrorNineBeyondItsSizeAndItsElements) {
  const auto raises = [](const auto& step) {
    try {
      step();
    } catch (const RunTimeError& error) {
      return error.number() == ErrorNumber::kSubscript;
    }
    return false;
  };
  BoundedTable<std::string, 2> table;
  EXPECT_TRUE(raises([&] { table[1]; }));
  table.Add("one");
  EXPECT_TRUE(raises([&] { table[2]; }));
  table.Add("two");
  EXPECT_TRUE(raises([&] { table.Add("three"); }));
  EXPECT_TRUE(raises([&] { table[0]; }));
  EXPECT_TRUE(raises([&] { table[3]; }));
  EXPECT_EQ(table[1] + *std::prev(table.end()), "onetwo");
  table.Clear();
  table.Add("again");
  EXPECT_EQ(table[1], "again");
}

}  // namespace
}  // namespace velmar
