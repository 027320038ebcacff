#include "ui/path_view.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFrame>

namespace velmar {

namespace {

constexpr int kNarrowest = 60;  // px
constexpr int kLineMargin = 2;  // px, of a line's text, as the toolkit has it

QString Cut(const QWidget& widget, const QString& path, int width) {
  return widget.fontMetrics().elidedText(path, Qt::ElideMiddle, width);
}

}  // namespace

QSize PathLabel::minimumSizeHint() const {
  return {kNarrowest, QLabel::minimumSizeHint().height()};
}

bool PathLabel::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    setToolTip(text());
  }
  return QLabel::event(event);
}

void PathLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRect room = contentsRect();
  style()->drawItemText(&painter, room, static_cast<int>(alignment()), palette(), isEnabled(),
                        Cut(*this, text(), room.width()), foregroundRole());
}

bool PathLine::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    setToolTip(text());
  }
  return QLineEdit::event(event);
}

void PathLine::paintEvent(QPaintEvent* event) {
  QStyleOptionFrame option;
  initStyleOption(&option);
  const QRect room = style()
                         ->subElementRect(QStyle::SE_LineEditContents, &option, this)
                         .adjusted(kLineMargin, 0, -kLineMargin, 0);
  const QString cut = Cut(*this, text(), room.width());
  if (hasFocus() || cut == text()) {
    QLineEdit::paintEvent(event);
    return;
  }
  QPainter painter(this);
  style()->drawPrimitive(QStyle::PE_PanelLineEdit, &option, &painter, this);
  style()->drawItemText(&painter, room, static_cast<int>(alignment() | Qt::AlignVCenter), palette(),
                        isEnabled(), cut, QPalette::Text);
}

}  // namespace velmar
