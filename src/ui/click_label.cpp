#include "ui/click_label.h"

#include <QKeyEvent>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace velmar {

namespace {

/// Tells, besides the frame, that there is more to see.
const QString kMark = QStringLiteral(" ▸");

}  // namespace

ClickLabel::ClickLabel() {
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::PointingHandCursor);
  setAttribute(Qt::WA_Hover);
}

QSize ClickLabel::sizeHint() const {
  constexpr QSize kAir(20, 8);
  return fontMetrics().size(Qt::TextSingleLine, text() + kMark) + kAir;
}

void ClickLabel::paintEvent(QPaintEvent*) {
  QStyleOptionButton button;
  button.initFrom(this);
  button.state |= QStyle::State_Raised;
  button.text = text() + kMark;
  QStylePainter(this).drawControl(QStyle::CE_PushButton, button);
}

void ClickLabel::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      if (on_key_press) {
        on_key_press();
      }
      break;
    default:
      QLabel::keyPressEvent(event);
  }
}

}  // namespace velmar
