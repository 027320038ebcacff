#include "ui/row_view.h"

#include <QItemSelectionModel>
#include <QKeyEvent>

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

void RowView::keyPressEvent(QKeyEvent* event) {
  const int before = currentIndex().row();
  QListView::keyPressEvent(event);
  const int after = currentIndex().row();
  if (after != before && after >= 0 && on_row_by_key) {
    on_row_by_key(after);
  }
}

}  // namespace velmar
