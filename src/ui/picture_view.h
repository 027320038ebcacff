#pragma once

#include <QPixmap>
#include <QWidget>
#include <cstddef>
#include <functional>
#include <optional>

#include "platform/picture.h"

namespace velmar {

/// Shows a picture, as large as the room lets it be with its proportions kept. A person picks a
/// place on it with the mouse, or with a cross that the arrow keys move and Enter puts down.
class PictureView : public QWidget {
 public:
  /// The picture outlives it.
  explicit PictureView(const Picture& picture);

  /// Draws the picture anew if it has another version than the one drawn. `carried` is what the
  /// pointer or the cross seems to carry to its place.
  void Refresh(std::size_t version, const QString& carried);

  /// Called with the place that was picked, in the units of the picture, never beyond its edges.
  std::function<void(Point place)> on_place;

  /// Where a place of the picture is drawn, in the widget.
  QPointF Drawn(Point place) const;

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QRectF Sheet() const;  ///< where the picture lies in the widget
  Point PlaceAt(const QPointF& position) const;
  Point Inside(Point place) const;
  void Aim(std::optional<Point> place);
  void PutDown();
  void DrawPicture(const QSize& pixels, double ratio);
  void DrawAim(QPainter& painter) const;

  const Picture& picture_;
  std::size_t version_ = 0;
  std::size_t drawn_version_ = 0;
  QPixmap drawn_;
  QString carried_;
  std::optional<Point> aim_;  ///< under the pointer, or the cross
};

}  // namespace velmar
