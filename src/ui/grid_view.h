#pragma once

#include <QTableView>

namespace velmar {

/// A table of a few rows: as high as they are, without a bar of its own to move them.
class GridView : public QTableView {
 public:
  GridView();

  /// Lets the columns share the width. Else each is as wide as its texts, and they are moved
  /// sideways.
  void ShareWidth();

  void setModel(QAbstractItemModel* model) override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;
};

}  // namespace velmar
