#include "ui/widget_binding.h"

#include <QGuiApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPalette>
#include <string>

#include "ui/event_runner.h"
#include "ui/qt_text.h"

namespace velmar {

namespace {

QColor ColourOf(int number) {
  return QColor(number & 0xFF, (number >> 8) & 0xFF, (number >> 16) & 0xFF);
}

/// Black or white, whichever can be read on `background`.
QColor TextOn(const QColor& background) {
  constexpr int kDarkest = 100;  // of what black can be read on
  return qGray(background.rgb()) > kDarkest ? Qt::black : Qt::white;
}

void Paint(QWidget& widget, std::optional<int> colour) {
  widget.setAutoFillBackground(colour.has_value());
  if (!colour) {
    widget.setPalette(QPalette());
    return;
  }
  const QColor background = ColourOf(*colour);
  QPalette palette;
  for (const QPalette::ColorRole role : {QPalette::Window, QPalette::Button, QPalette::Base}) {
    palette.setColor(role, background);
  }
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::ButtonText, QPalette::Text}) {
    palette.setColor(role, TextOn(background));
    palette.setColor(QPalette::Disabled, role, Qt::darkGray);
  }
  widget.setPalette(palette);
}

/// The name that the events know a key by: its character, or one of the named keys.
std::string KeyName(const QKeyEvent& event) {
  switch (event.key()) {
    case Qt::Key_F5:
      return "F5";
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return "Enter";
    case Qt::Key_Escape:
      return "Esc";
    default:
      return event.text().size() == 1 && event.text().front().isPrint() ? FromQString(event.text())
                                                                        : "";
  }
}

}  // namespace

void Act(EventRunner& runner, Control& control, std::function<void(Control&)> event) {
  runner.Run([&] {
    if (control.Reachable()) {
      event(control);
    }
  });
}

WidgetBinding::WidgetBinding(QWidget& widget, Control& control, EventRunner& runner,
                             std::function<void()> draw)
    : Binding(control), widget_(widget), runner_(runner), draw_(std::move(draw)) {
  widget.setObjectName(ToQString(control.name));
  widget.setToolTip(ToQString(control.tip));
  widget.installEventFilter(this);
}

void WidgetBinding::Refresh() {
  if (painted_ != control().colour) {
    painted_ = control().colour;
    Paint(widget_, painted_);
  }
  draw_();
  widget_.setEnabled(control().enabled);
  if (widget_.isHidden() == Seen()) {
    widget_.setVisible(Seen());
  }
}

bool WidgetBinding::eventFilter(QObject* watched, QEvent* event) {
  const bool label = control().kind() == ControlKind::kLabel;
  if (event->type() == QEvent::KeyPress && control().on_key) {
    const std::string key = KeyName(static_cast<QKeyEvent&>(*event));
    if (!key.empty()) {
      Act(runner_, control(), [&](Control& pressed) { pressed.Press(key); });
    }
  } else if (event->type() == QEvent::MouseButtonRelease && label && control().on_click) {
    Act(runner_, control(), [](Control& clicked) { clicked.Click(); });
  } else if (event->type() == QEvent::MouseButtonDblClick && control().on_double_click && label) {
    Act(runner_, control(), [](Control& clicked) { clicked.DoubleClick(); });
  }
  return QObject::eventFilter(watched, event);
}

}  // namespace velmar
