#include "ui/qt_printer.h"

#include <QApplication>
#include <QFontMetricsF>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>

#include "platform/error.h"
#include "ui/event_runner.h"
#include "ui/look.h"
#include "ui/qt_text.h"

namespace velmar {

namespace {

constexpr double kLargestPoints = 10;
constexpr double kSmallestPoints = 4;

/// The font of one width in which `widest` fits a line of the page.
QFont FontFor(QPrinter& printer, const QString& widest) {
  QFont font = FixedFont();
  font.setPointSizeF(kLargestPoints);
  const double width = QFontMetricsF(font, &printer).horizontalAdvance(widest);
  const double room = printer.pageRect(QPrinter::DevicePixel).width();
  if (width > room) {
    font.setPointSizeF(std::max(kSmallestPoints, kLargestPoints * room / width));
  }
  return font;
}

}  // namespace

void PrintPages(QPrinter& printer, const std::vector<std::string>& lines) {
  std::vector<QString> shown;
  QString widest;
  for (const std::string& line : lines) {
    shown.push_back(ToShownRow(line));
    widest = std::max(widest, shown.back(),
                      [](const QString& a, const QString& b) { return a.size() < b.size(); });
  }
  QPainter painter;
  if (!painter.begin(&printer)) {
    throw RunTimeError(ErrorNumber::kDeviceError, "the printer");
  }
  painter.setFont(FontFor(printer, widest));
  const double step = painter.fontMetrics().lineSpacing();
  const double bottom = printer.pageRect(QPrinter::DevicePixel).height();
  double y = step;
  for (const QString& line : shown) {
    if (y > bottom) {
      printer.newPage();
      y = step;
    }
    painter.drawText(QPointF(0, y), line);
    y += step;
  }
}

void QtPrinter::Print(const std::vector<std::string>& lines) {
  QPrinter printer(QPrinter::HighResolution);
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  if (runner_.Converse(dialog) == QDialog::Accepted) {
    PrintPages(printer, lines);
  }
}

}  // namespace velmar
