#include "ui/row_view.h"

#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QStyle>

#include "ui/look.h"

namespace velmar {

RowView::RowView() {
  setFont(FixedFont());
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setTextElideMode(Qt::ElideNone);
  setVerticalScrollMode(ScrollPerItem);
  setHorizontalScrollMode(ScrollPerPixel);
}

void RowView::ShowChoice(int row) {
  if (currentIndex().row() == row) {
    return;
  }
  if (row < 0) {
    selectionModel()->clear();
  } else {
    setCurrentIndex(model()->index(row, 0));
  }
}

void RowView::BeginWith(int row) {
  scrollTo(model()->index(row, 0), PositionAtTop);
}

int RowView::HeightOf(int rows) const {
  constexpr int kRowPadding = 6;
  return rows * (fontMetrics().height() + kRowPadding) + 2 * frameWidth();
}

int RowView::TextMargin() const {
  return style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
}

void RowView::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && currentIndex().isValid() && on_enter && on_enter()) {
    event->accept();
    return;
  }
  const int before = currentIndex().row();
  QListView::keyPressEvent(event);
  const int after = currentIndex().row();
  if (after != before && after >= 0 && on_row_by_key) {
    on_row_by_key(after);
  }
}

}  // namespace velmar
