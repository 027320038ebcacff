#include "ui/emblem.h"

#include <QPainter>

namespace velmar {

namespace {

constexpr int kSize = 64;  // px
constexpr double kPen = 4;
constexpr QPointF kTip(32, 24);   ///< of the antenna
constexpr double kFootY = 60;     ///< of its two legs
constexpr double kLegReach = 14;  ///< from the middle
constexpr double kBraceY = 44;
constexpr double kBraceReach = 7;
constexpr double kWaves[] = {12, 21};  ///< radius
constexpr int kWaveAngle = 45 * 16;    ///< in sixteenths of a degree, each way from level

}  // namespace

Emblem::Emblem() {
  setFixedSize(kSize, kSize);
}

QSize Emblem::sizeHint() const {
  return {kSize, kSize};
}

void Emblem::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QPen pen(palette().color(QPalette::Highlight), kPen, Qt::SolidLine, Qt::RoundCap);
  painter.setPen(pen);
  for (const double side : {-1.0, 1.0}) {
    painter.drawLine(kTip, QPointF(kTip.x() + side * kLegReach, kFootY));
  }
  painter.drawLine(QPointF(kTip.x() - kBraceReach, kBraceY),
                   QPointF(kTip.x() + kBraceReach, kBraceY));
  for (const double radius : kWaves) {
    const QRectF circle(kTip.x() - radius, kTip.y() - radius, 2 * radius, 2 * radius);
    constexpr int kHalfTurn = 180 * 16;
    for (const int middle : {0, kHalfTurn}) {
      painter.drawArc(circle, middle - kWaveAngle, 2 * kWaveAngle);
    }
  }
  painter.setBrush(pen.color());
  painter.drawEllipse(kTip, kPen, kPen);
}

}  // namespace velmar
