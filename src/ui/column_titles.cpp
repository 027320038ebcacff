#include "ui/column_titles.h"

#include <QPainter>
#include <QRegularExpression>
#include <QScrollBar>
#include <QStringList>
#include <QStyle>
#include <algorithm>

#include "ui/look.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr int kNarrowest = 60;  // px

}  // namespace

ColumnTitles::ColumnTitles() {
  setFont(FixedFont());
}

void ColumnTitles::Follow(RowView& rows) {
  rows_ = &rows;
  connect(rows.horizontalScrollBar(), &QScrollBar::valueChanged, this, [this] { update(); });
}

QSize ColumnTitles::minimumSizeHint() const {
  return {kNarrowest, QLabel::minimumSizeHint().height()};
}

QString ColumnTitles::Drawn() const {
  if (columns_.empty()) {
    return text();
  }
  static const QRegularExpression gap(QStringLiteral(" {2,}"));
  const QStringList titles = text().split(gap, Qt::SkipEmptyParts);
  QString placed;
  for (qsizetype i = 0; i < titles.size(); ++i) {
    const auto place = static_cast<std::size_t>(i);
    const qsizetype column = place < columns_.size() ? columns_[place] : 0;
    const qsizetype free = placed.isEmpty() ? 0 : placed.size() + 1;
    placed = placed.leftJustified(std::max(column, free)) + titles[i];
  }
  return placed;
}

void ColumnTitles::paintEvent(QPaintEvent*) {
  if (rows_ == nullptr) {
    return;
  }
  const QWidget* viewport = rows_->viewport();
  const int left = mapFrom(window(), viewport->mapTo(window(), QPoint())).x();
  const int start = left + rows_->TextMargin() - rows_->horizontalScrollBar()->value();
  QPainter painter(this);
  painter.setClipRect(QRect(left, 0, width() - left, height()));
  style()->drawItemText(&painter, QRect(start, 0, width() - start, height()),
                        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, palette(),
                        isEnabled(), Drawn(), foregroundRole());
}

}  // namespace velmar
