#include "ui/share_bar.h"

#include <QPainter>
#include <algorithm>

namespace velmar {

namespace {

constexpr int kLeastHeight = 24;
constexpr int kWidest = 56;
constexpr int kDarkness = 105;  // of the ground that the bar stands on, in per cent

}  // namespace

ShareBar::ShareBar() {
  setMinimumHeight(kLeastHeight);
}

void ShareBar::SetShare(double share) {
  if (share_ != share) {
    share_ = std::clamp(share, 0.0, 1.0);
    update();
  }
}

void ShareBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const double breadth = std::min(width(), kWidest);
  const double left = (width() - breadth) / 2;
  const double risen = share_ * height();
  painter.fillRect(QRectF(left, 0, breadth, height()),
                   palette().window().color().darker(kDarkness));
  painter.fillRect(QRectF(left, height() - risen, breadth, risen), palette().highlight());
}

}  // namespace velmar
