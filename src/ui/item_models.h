#pragma once

#include <QAbstractListModel>
#include <QAbstractTableModel>
#include <QFontMetrics>
#include <cstddef>

#include "platform/form.h"
#include "ui/tab_stops.h"

namespace velmar {

/// The rows of a list as the toolkit asks for them. It reads the control's own rows, so that a list
/// of 100,000 rows costs next to nothing until a row is drawn. Cells parted by tabs stand in
/// columns.
class RowsModel : public QAbstractListModel {
 public:
  /// `metrics` are those of the font that the rows are drawn in, which has one width.
  RowsModel(const Control& control, const QFontMetrics& metrics, QObject* parent);

  /// Takes the rows in when they have changed since, and tells whether they had.
  bool Refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;

 private:
  const Control& control_;
  QFontMetrics metrics_;
  std::size_t version_ = 0;
  int count_ = 0;
  TabStops stops_;
  std::size_t widest_ = 0;  ///< characters
};

/// The rows of a grid, cut at their tabs. The first row holds its headings, and so does the first
/// column where it has `heading_columns`, which is 1 or 0.
class GridModel : public QAbstractTableModel {
 public:
  GridModel(const Control& control, int heading_columns, QObject* parent);

  /// Takes the rows in when they have changed since, and tells whether they had.
  bool Refresh();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QVariant Cell(int row, int column) const;

  const Control& control_;
  int heading_columns_;
  std::size_t version_ = 0;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace velmar
