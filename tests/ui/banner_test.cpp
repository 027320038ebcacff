#include "ui/banner.h"

#include <gtest/gtest.h>

#include <QTest>

namespace velmar::test {
namespace {

TEST(Banner, BlinksWhileItIsSeen) {
  Banner banner;
  banner.setText("! ATTENZIONE !");
  const auto* timer = banner.findChild<QTimer*>();
  ASSERT_NE(timer, nullptr);
  banner.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&banner));
  const QImage lit = banner.grab().toImage();
  EXPECT_TRUE(QTest::qWaitFor([&] { return banner.grab().toImage() != lit; }));
  EXPECT_TRUE(QTest::qWaitFor([&] { return banner.grab().toImage() == lit; })) << "only once";
  banner.hide();
  EXPECT_FALSE(timer->isActive());
}

}  // namespace
}  // namespace velmar::test
