#include "ui/grid_view.h"

#include <QAbstractItemModel>
#include <QHeaderView>
#include <QScrollBar>

namespace velmar {

namespace {

constexpr int kRowAir = 8;         // px
constexpr int kLeastColumn = 24;   // px
constexpr int kLabelWidth = 44;    // of the first column, where it holds headings
constexpr int kLeastColumns = 12;  // to be seen of any table

}  // namespace

GridView::GridView() {
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollMode(ScrollPerPixel);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  horizontalHeader()->setMinimumSectionSize(kLeastColumn);
  horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  horizontalHeader()->setHighlightSections(false);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + kRowAir);
  verticalHeader()->setMinimumWidth(kLabelWidth);
  verticalHeader()->setDefaultAlignment(Qt::AlignCenter);
  verticalHeader()->setHighlightSections(false);
}

void GridView::ShareWidth() {
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
}

void GridView::setModel(QAbstractItemModel* model) {
  QTableView::setModel(model);
  connect(model, &QAbstractItemModel::modelReset, this, &QWidget::updateGeometry);
}

QSize GridView::sizeHint() const {
  const bool moved = horizontalScrollBarPolicy() != Qt::ScrollBarAlwaysOff;
  const int height = horizontalHeader()->sizeHint().height() + verticalHeader()->length() +
                     (moved ? horizontalScrollBar()->sizeHint().height() : 0) + 2 * frameWidth();
  return {kLeastColumns * kLeastColumn, height};
}

QSize GridView::minimumSizeHint() const {
  return sizeHint();
}

}  // namespace velmar
