#include "ui/picture_painter.h"

#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <cmath>

#include "ui/qt_text.h"

namespace velmar {

namespace {

QPolygonF ToPolygon(const std::vector<Point>& points) {
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const Point& point : points) {
    polygon << QPointF(point.x, point.y);
  }
  return polygon;
}

void Draw(QPainter& painter, const Disc& disc) {
  painter.setPen(QPen(ToColour(disc.border), 1));
  painter.setBrush(ToColour(disc.fill));
  painter.drawEllipse(QPointF(disc.centre.x, disc.centre.y), disc.radius, disc.radius);
}

void Draw(QPainter& painter, const Stroke& stroke) {
  painter.setPen(
      QPen(ToColour(stroke.colour), stroke.width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(ToPolygon(stroke.points));
}

void Draw(QPainter& painter, const Area& area) {
  QPainterPath path;
  for (const std::vector<Point>& ring : area.rings) {
    path.addPolygon(ToPolygon(ring));
    path.closeSubpath();
  }
  painter.fillPath(path, ToColour(area.fill));
}

void Draw(QPainter& painter, const Lettering& lettering) {
  QFont font;
  font.setPixelSize(std::max(1, static_cast<int>(std::lround(lettering.height))));
  font.setBold(lettering.bold);
  painter.setFont(font);
  const QString text = ToShownRow(lettering.text);
  const QFontMetricsF metrics(font);
  QRectF room(0, 0, metrics.horizontalAdvance(text), metrics.height());
  room.moveCenter({lettering.centre.x, lettering.centre.y});
  if (lettering.ground >= 0) {
    const double margin = lettering.height / 3;
    painter.fillRect(room.adjusted(-margin, 0, margin, 0), ToColour(lettering.ground));
  }
  painter.setPen(ToColour(lettering.colour));
  painter.drawText(room, static_cast<int>(Qt::AlignCenter) | static_cast<int>(Qt::TextDontClip),
                   text);
}

}  // namespace

QColor ToColour(int colour) {
  return {colour & 0xFF, (colour >> 8) & 0xFF, (colour >> 16) & 0xFF};
}

void Paint(QPainter& painter, const Picture& picture) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF sheet(0, 0, picture.width(), picture.height());
  painter.setClipRect(sheet, Qt::IntersectClip);
  if (picture.ground() >= 0) {
    painter.fillRect(sheet, ToColour(picture.ground()));
  }
  for (const Shape& shape : picture.shapes()) {
    std::visit([&painter](const auto& drawn) { Draw(painter, drawn); }, shape);
  }
  painter.restore();
}

}  // namespace velmar
