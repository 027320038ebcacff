#include <gtest/gtest.h>

#include <QApplication>

#include "ui/look.h"

int main(int count, char* arguments[]) {
  testing::InitGoogleTest(&count, arguments);
  // Also where a build lists the tests, on a machine without a screen.
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(count, arguments);
  velmar::ApplyLook();
  return RUN_ALL_TESTS();
}
