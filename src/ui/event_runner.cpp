#include "ui/event_runner.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QKeyEvent>
#include <exception>
#include <utility>

#include "platform/error.h"

namespace velmar {

namespace {

constexpr qint64 kBreathMilliseconds = 50;

/// An event that took longer may have made somebody press twice.
constexpr qint64 kLongEventMilliseconds = 250;

bool IsInput(QEvent::Type type) {
  switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::NonClientAreaMouseButtonDblClick:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::InputMethod:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::Drop:
      return true;
    default:
      return false;
  }
}

}  // namespace

EventRunner::EventRunner() {
  qApp->installEventFilter(this);
}

EventRunner::~EventRunner() {
  SetBusy(false);
}

void EventRunner::Run(const std::function<void()>& event) {
  if (running_ || ended_) {
    return;
  }
  running_ = true;
  stop_requested_ = false;
  since_event_.start();
  since_breath_.start();
  Guard([&] {
    event();
    Refresh();
  });
  if (busy_ || since_event_.elapsed() > kLongEventMilliseconds) {
    DropInput();
  }
  SetBusy(false);
  running_ = false;
}

void EventRunner::Guard(const std::function<void()>& event) {
  try {
    event();
  } catch (const ProgramEnd&) {
    End(0);
  } catch (const std::exception& failure) {
    Fail(failure.what());
  } catch (...) {
    Fail("");
  }
}

void EventRunner::Fail(const std::string& what) {
  ended_ = true;  // nothing is drawn again, whatever state it is in
  SetBusy(false);
  if (on_failure) {
    on_failure(what);
  }
  End(kFailureCode);
}

void EventRunner::End(int exit_code) {
  ended_ = true;
  QCoreApplication::exit(exit_code);
}

void EventRunner::Refresh() {
  if (on_refresh && !ended_) {
    on_refresh();
  }
}

void EventRunner::Breathe() {
  if (!running_ || (busy_ && since_breath_.elapsed() < kBreathMilliseconds)) {
    return;
  }
  SetBusy(true);
  Refresh();
  DropInput();
  since_breath_.start();
}

bool EventRunner::TakeStopRequest() {
  DropInput();
  return std::exchange(stop_requested_, false);
}

int EventRunner::Converse(QDialog& dialog) {
  Refresh();
  DropInput();
  const bool was_busy = busy_;
  SetBusy(false);
  conversing_ = true;
  const int result = dialog.exec();
  conversing_ = false;
  SetBusy(was_busy);
  return result;
}

void EventRunner::DropInput() {
  QCoreApplication::processEvents();
}

void EventRunner::SetBusy(bool busy) {
  if (busy == busy_) {
    return;
  }
  busy_ = busy;
  if (busy) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QApplication::restoreOverrideCursor();
  }
}

bool EventRunner::eventFilter(QObject* watched, QEvent* event) {
  if (!running_ || conversing_ || !IsInput(event->type())) {
    return QObject::eventFilter(watched, event);
  }
  if (event->type() == QEvent::KeyPress) {
    stop_requested_ = stop_requested_ || static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
  }
  return true;
}

}  // namespace velmar
