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
#include "ui/picture_painter.h"
#include "ui/qt_text.h"

namespace velmar {

namespace {

constexpr double kSmallestPoints = 4;
constexpr int kTitlePoints = 14;
constexpr double kMarginMillimetres = 12;

/// Starts a page with margins as a binder wants them: those of printers are the least they can do.
void Begin(QPainter& painter, QPrinter& printer) {
  const QMarginsF given = printer.pageLayout().margins(QPageLayout::Millimeter);
  const QMarginsF wanted(kMarginMillimetres, kMarginMillimetres, kMarginMillimetres,
                         kMarginMillimetres);
  printer.setPageMargins(given | wanted, QPageLayout::Millimeter);
  if (!painter.begin(&printer)) {
    throw RunTimeError(ErrorNumber::kDeviceError, "the printer");
  }
}

QFont FontOf(double points) {
  QFont font = FixedFont();
  font.setPointSizeF(std::max(kSmallestPoints, points));
  return font;
}

/// What the letters of a job shrink by, so that its longest line fits a page.
double Shrinkage(QPrinter& printer, const PrintJob& job) {
  const double room = printer.pageRect(QPrinter::DevicePixel).width();
  double shrinkage = 1;
  for (const PrintedBlock& block : job) {
    const QFontMetricsF metrics(FontOf(block.points), &printer);
    for (const std::string& line : block.lines) {
      shrinkage = std::min(shrinkage, room / metrics.horizontalAdvance(ToShownRow(line)));
    }
  }
  return shrinkage;
}

}  // namespace

void PrintPages(QPrinter& printer, const PrintJob& job) {
  QPainter painter;
  Begin(painter, printer);
  const double shrinkage = Shrinkage(printer, job);
  const double bottom = printer.pageRect(QPrinter::DevicePixel).height();
  double y = 0;
  for (const PrintedBlock& block : job) {
    painter.setFont(FontOf(block.points * shrinkage));
    const double step = painter.fontMetrics().lineSpacing();
    for (const std::string& line : block.lines) {
      y += step;
      if (y > bottom) {
        printer.newPage();
        y = step;
      }
      painter.drawText(QPointF(0, y), ToShownRow(line));
    }
  }
}

void PrintPicturePage(QPrinter& printer, const std::string& title, const Picture& picture) {
  QPainter painter;
  Begin(painter, printer);
  QFont font = QApplication::font();
  font.setPointSizeF(kTitlePoints);
  painter.setFont(font);
  const double step = painter.fontMetrics().lineSpacing();
  const QRectF page = printer.pageRect(QPrinter::DevicePixel);
  painter.drawText(QRectF(0, 0, page.width(), step), Qt::AlignHCenter, ToShownRow(title));
  const double top = 1.5 * step;
  const double scale =
      std::min(page.width() / picture.width(), (page.height() - top) / picture.height());
  painter.translate((page.width() - scale * picture.width()) / 2, top);
  painter.scale(scale, scale);
  Paint(painter, picture);
}

void QtPrinter::OnPages(QPageLayout::Orientation orientation,
                        const std::function<void(QPrinter& printer)>& draw) {
  QPrinter printer(QPrinter::HighResolution);
  printer.setPageOrientation(orientation);
  QPrintDialog dialog(&printer, QApplication::activeWindow());
  if (runner_.Converse(dialog) == QDialog::Accepted) {
    draw(printer);
  }
}

void QtPrinter::Print(const PrintJob& job) {
  OnPages(QPageLayout::Portrait, [&](QPrinter& printer) { PrintPages(printer, job); });
}

void QtPrinter::PrintPicture(const std::string& title, const Picture& picture) {
  const bool wide = picture.width() > picture.height();
  OnPages(wide ? QPageLayout::Landscape : QPageLayout::Portrait,
          [&](QPrinter& printer) { PrintPicturePage(printer, title, picture); });
}

}  // namespace velmar
