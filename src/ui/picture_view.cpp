#include "ui/picture_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "ui/picture_painter.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(320, 200);
constexpr int kEdge = 2;             // px, the line around the picture
constexpr double kStep = 10;         // of the cross, in units of the picture
constexpr double kSmallStep = 1;     // with the control key
constexpr double kCrossArm = 9;      // px
constexpr int kCarriedMargin = 4;    // px
constexpr int kBehindLetters = 200;  // how much the ground of what is carried covers, of 255

/// Where an arrow key leads; nothing for other keys.
std::optional<QPointF> DirectionOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return QPointF(-1, 0);
    case Qt::Key_Right:
      return QPointF(1, 0);
    case Qt::Key_Up:
      return QPointF(0, -1);
    case Qt::Key_Down:
      return QPointF(0, 1);
    default:
      return std::nullopt;
  }
}

}  // namespace

PictureView::PictureView(const Picture& picture) : picture_(picture) {
  setMinimumSize(kSmallest);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::StrongFocus);
}

void PictureView::Refresh(std::size_t version, const QString& carried) {
  if (version_ != version || carried_ != carried) {
    version_ = version;
    carried_ = carried;
    update();
  }
}

QSize PictureView::sizeHint() const {
  return QSizeF(picture_.width() + 2 * kEdge, picture_.height() + 2 * kEdge).toSize();
}

QRectF PictureView::Sheet() const {
  const QRectF room = QRectF(rect()).adjusted(kEdge, kEdge, -kEdge, -kEdge);
  QSizeF size(picture_.width(), picture_.height());
  size.scale(room.size(), Qt::KeepAspectRatio);
  QRectF sheet(QPointF(), size);
  sheet.moveCenter(room.center());
  return sheet;
}

QPointF PictureView::Drawn(Point place) const {
  const QRectF sheet = Sheet();
  return sheet.topLeft() + QPointF(place.x, place.y) * (sheet.width() / picture_.width());
}

Point PictureView::PlaceAt(const QPointF& position) const {
  const QRectF sheet = Sheet();
  const QPointF place = (position - sheet.topLeft()) * (picture_.width() / sheet.width());
  return Inside({place.x(), place.y()});
}

Point PictureView::Inside(Point place) const {
  return {std::clamp(place.x, 0.0, picture_.width()), std::clamp(place.y, 0.0, picture_.height())};
}

void PictureView::Aim(std::optional<Point> place) {
  aim_ = place;
  update();
}

void PictureView::PutDown() {
  const auto place = std::exchange(aim_, std::nullopt);
  update();
  if (place && on_place) {
    on_place(*place);
  }
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton && Sheet().contains(event->position())) {
    Aim(PlaceAt(event->position()));
  }
}

void PictureView::mouseMoveEvent(QMouseEvent* event) {
  if (aim_ && event->buttons().testFlag(Qt::LeftButton)) {
    Aim(PlaceAt(event->position()));
  }
}

void PictureView::mouseReleaseEvent(QMouseEvent* event) {
  if (aim_ && event->button() == Qt::LeftButton) {
    Aim(PlaceAt(event->position()));
    PutDown();
  }
}

void PictureView::keyPressEvent(QKeyEvent* event) {
  const int key = event->key();
  if (const auto direction = DirectionOf(key)) {
    const double step = event->modifiers().testFlag(Qt::ControlModifier) ? kSmallStep : kStep;
    const Point from = aim_.value_or(Point{picture_.width() / 2, picture_.height() / 2});
    Aim(Inside({from.x + step * direction->x(), from.y + step * direction->y()}));
  } else if (aim_ && (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)) {
    PutDown();
  } else {
    QWidget::keyPressEvent(event);
  }
}

void PictureView::focusOutEvent(QFocusEvent* event) {
  Aim(std::nullopt);
  QWidget::focusOutEvent(event);
}

void PictureView::paintEvent(QPaintEvent*) {
  const QRectF sheet = Sheet();
  const double ratio = devicePixelRatioF();
  const QSize pixels = (sheet.size() * ratio).toSize().expandedTo({1, 1});
  if (drawn_.size() != pixels || drawn_version_ != version_) {
    DrawPicture(pixels, ratio);
  }
  QPainter painter(this);
  painter.drawPixmap(sheet, drawn_, QRectF(drawn_.rect()));
  painter.setPen(
      QPen(hasFocus() ? palette().highlight() : palette().mid(), hasFocus() ? kEdge : 1));
  painter.drawRect(sheet.adjusted(-1, -1, 1, 1));
  DrawAim(painter);
}

void PictureView::DrawPicture(const QSize& pixels, double ratio) {
  drawn_ = QPixmap(pixels);
  drawn_.setDevicePixelRatio(ratio);
  drawn_version_ = version_;
  QPainter painter(&drawn_);
  painter.scale(pixels.width() / (ratio * picture_.width()),
                pixels.height() / (ratio * picture_.height()));
  Paint(painter, picture_);
}

void PictureView::DrawAim(QPainter& painter) const {
  if (!aim_) {
    return;
  }
  const QPointF centre = Drawn(*aim_);
  if (!carried_.isEmpty()) {
    QRectF room(0, 0, fontMetrics().horizontalAdvance(carried_) + 2 * kCarriedMargin,
                fontMetrics().height());
    room.moveCenter(centre);
    painter.fillRect(room, QColor(255, 255, 255, kBehindLetters));
    painter.setPen(Qt::black);
    painter.drawText(room, Qt::AlignCenter, carried_);
    painter.drawRect(room);
    return;
  }
  painter.setPen(QPen(palette().highlight(), kEdge));
  painter.drawLine(centre - QPointF(kCrossArm, 0), centre + QPointF(kCrossArm, 0));
  painter.drawLine(centre - QPointF(0, kCrossArm), centre + QPointF(0, kCrossArm));
}

}  // namespace velmar
