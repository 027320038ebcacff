#include "ui/banner.h"

#include <QPainter>
#include <chrono>

#include "ui/look.h"

namespace velmar {

namespace {

// Slow enough to be read, and for those whom a quicker one would harm.
constexpr std::chrono::milliseconds kHalfBlink(600);

constexpr QColor kAlarm(0xA8, 0x1C, 0x1C);

}  // namespace

Banner::Banner() {
  setFont(HeadingFont(0));
  setAlignment(Qt::AlignCenter);
  blink_.setInterval(kHalfBlink);
  connect(&blink_, &QTimer::timeout, this, [this] {
    lit_ = !lit_;
    update();
  });
}

void Banner::showEvent(QShowEvent* event) {
  lit_ = true;
  blink_.start();
  PathLabel::showEvent(event);
}

void Banner::hideEvent(QHideEvent* event) {
  blink_.stop();
  PathLabel::hideEvent(event);
}

void Banner::paintEvent(QPaintEvent*) {
  const QColor background = lit_ ? kAlarm : QColor(Qt::white);
  QPainter painter(this);
  painter.fillRect(rect(), background);
  painter.setPen(lit_ ? QColor(Qt::white) : kAlarm);
  painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine,
                   fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width()));
}

}  // namespace velmar
