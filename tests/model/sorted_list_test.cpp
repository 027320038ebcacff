#include "model/sorted_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {
namespace {

using Rows = std::vector<std::string>;

TEST(SortedList, AscendsWithoutRegardToCaseAndKeepsDuplicates) {
  SortedList list;
  for (const std::string text : {"ik2qaa", "è", "IK2QAA", "", "ik2qaa", "z", "9A1X", "IK2QA"}) {
    list.Add(AnsiFromUtf8(text));
  }
  EXPECT_EQ(list.rows(), (Rows{"", "9A1X", "IK2QA", "ik2qaa", "IK2QAA", "ik2qaa", "z", "è"_a}));
  list.Add("È"_a);
  EXPECT_EQ(list.rows().back(), "È"_a);
}

TEST(SortedList, AgreesWithInsertionInOrderHoweverOftenItIsLookedAt) {
  std::mt19937 random(2);
  SortedList list;
  Rows plain;
  for (int round = 0; round < 600; ++round) {
    std::string text;
    for (std::size_t size = random() % 4; text.size() < size;) {
      text += "aAbB_1"[random() % 6];
    }
    list.Add(text);
    plain.insert(std::upper_bound(plain.begin(), plain.end(), text,
                                  [](const auto& a, const auto& b) { return Lower(a) < Lower(b); }),
                 text);
    if (random() % 8 == 0) {
      ASSERT_EQ(list.rows(), plain);
    }
  }
  EXPECT_EQ(list.rows(), plain);
}

TEST(Distinct, ComparesTheFirstCharactersWithTheRowBefore) {
  const Rows rows = {"IK2A 1", "IK2A 2", "ik2A 3", "IK2A 4", "IK2B 1", "IK", "IK"};
  EXPECT_EQ(Distinct(rows, 4), (Rows{"IK2A 1", "ik2A 3", "IK2A 4", "IK2B 1", "IK"}));
  EXPECT_EQ(Distinct(rows, 2), (Rows{"IK2A 1", "ik2A 3", "IK2A 4"}));
  EXPECT_EQ(Distinct(rows, 99).size(), 6U);
  EXPECT_EQ(Distinct({}, 12), Rows());
}

}  // namespace
}  // namespace velmar
