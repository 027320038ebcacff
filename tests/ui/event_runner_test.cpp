#include "ui/event_runner.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPushButton>
#include <QTest>
#include <stdexcept>

#include "platform/error.h"
#include "ui_fixture.h"

namespace velmar::test {
namespace {

int ExitCodeOf(EventRunner& runner, const std::function<void()>& event) {
  QTimer::singleShot(0, [&] { runner.Run(event); });
  return QApplication::exec();
}

TEST(EventRunner, TheEndOfTheProgramEndsTheApplication) {
  EventRunner runner;
  runner.on_refresh = [] { FAIL() << "drawn after the end"; };
  EXPECT_EQ(ExitCodeOf(runner, [] { throw ProgramEnd(); }), 0);
  runner.Run([] { FAIL() << "an event after the end"; });
}

TEST(EventRunner, AnUnexpectedFailureIsToldAndEndsTheApplication) {
  EventRunner runner;
  std::string told;
  runner.on_failure = [&](const std::string& what) { told = what; };
  const auto fail = [] { throw std::runtime_error("guasto"); };
  EXPECT_EQ(ExitCodeOf(runner, fail), EventRunner::kFailureCode);
  EXPECT_EQ(told, "guasto");
}

TEST(EventRunner, AnEventWithinAnEventDoesNotRun) {
  EventRunner runner;
  int refreshed = 0;
  runner.on_refresh = [&] { ++refreshed; };
  runner.Run([&] { runner.Run([] { FAIL() << "an event within an event"; }); });
  EXPECT_EQ(refreshed, 1);
  EXPECT_FALSE(runner.running());
}

TEST(EventRunner, InputDuringAnEventIsDropped) {
  EventRunner runner;
  QPushButton button("x");
  button.show();
  int clicks = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++clicks; });
  runner.Run([&] {
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    // What still waits when the work breathes or ends must not be done later.
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      QCoreApplication::postEvent(
          &button, new QMouseEvent(type, button.rect().center(), QCursor::pos(), Qt::LeftButton,
                                   Qt::LeftButton, Qt::NoModifier));
    }
    runner.Breathe();
  });
  QCoreApplication::processEvents();
  EXPECT_EQ(clicks, 0);
  QTest::mouseClick(&button, Qt::LeftButton);
  EXPECT_EQ(clicks, 1);
}

TEST(EventRunner, EscDuringAnEventIsKeptInMindOnce) {
  EventRunner runner;
  QPushButton button("x");
  button.show();
  QTest::keyClick(&button, Qt::Key_Escape);
  runner.Run([&] {
    EXPECT_FALSE(runner.TakeStopRequest()) << "pressed ahead of the event";
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_FALSE(runner.TakeStopRequest());
    QTest::keyClick(&button, Qt::Key_Escape);
    QTest::keyClick(&button, Qt::Key_Return);
    EXPECT_TRUE(runner.TakeStopRequest());
    EXPECT_FALSE(runner.TakeStopRequest());
    // Pressed, while the work went on without a breath.
    QCoreApplication::postEvent(&button,
                                new QKeyEvent(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier));
    EXPECT_TRUE(runner.TakeStopRequest());
    QTest::keyClick(&button, Qt::Key_Escape);
  });
  runner.Run([&] { EXPECT_FALSE(runner.TakeStopRequest()) << "meant for the event before"; });
}

TEST(EventRunner, WindowsLiveOnDuringLongWork) {
  EventRunner runner;
  bool drawn = false;
  int refreshed = 0;
  runner.on_refresh = [&] { ++refreshed; };
  runner.Run([&] {
    QMetaObject::invokeMethod(
        &runner, [&] { drawn = true; }, Qt::QueuedConnection);
    runner.Breathe();
    EXPECT_TRUE(drawn);
    EXPECT_EQ(refreshed, 1);
    runner.Breathe();
    EXPECT_EQ(refreshed, 1) << "a unit of work that took no time";
  });
}

TEST(EventRunner, TheCursorAsksForPatienceDuringLongWork) {
  EventRunner runner;
  const auto work = [&] {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    runner.Breathe();
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
    QDialog dialog;
    EXPECT_EQ(runner.Converse(dialog), 0 + QDialog::Accepted);
    EXPECT_NE(QApplication::overrideCursor(), nullptr);
  };
  Converse(runner, work, [](QDialog& dialog) {
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    dialog.accept();
  });
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace velmar::test
