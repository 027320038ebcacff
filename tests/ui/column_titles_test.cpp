#include "ui/column_titles.h"

#include <gtest/gtest.h>

namespace velmar::test {
namespace {

TEST(ColumnTitles, TitlesComeOverTheirColumns) {
  ColumnTitles titles;
  titles.setText("Call          Locator    Last Date   Log");
  EXPECT_EQ(titles.Drawn(), titles.text());
  titles.PlaceAt({0, 12, 20, 27});
  EXPECT_EQ(titles.Drawn().toStdString(), "Call        Locator Last Date Log");
  titles.setText("Call  Locator  Band  Altro  Ancora");
  EXPECT_EQ(titles.Drawn().toStdString(), "Call        Locator Band   Altro Ancora");
}

}  // namespace
}  // namespace velmar::test
