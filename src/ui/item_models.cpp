#include "ui/item_models.h"

#include <QSize>
#include <algorithm>

#include "ui/qt_text.h"

namespace velmar {

namespace {

constexpr int kRowPadding = 6;  // px, between the rows and at both ends together

/// The part of a row that can be shown, and one character more where there is more.
std::string_view Start(const std::string& row) {
  return std::string_view(row).substr(0, kLongestShown + 1);
}

const std::string* RowAt(const Control& control, int row) {
  const auto& rows = control.items.rows();
  const auto at = static_cast<std::size_t>(row);
  return row >= 0 && at < rows.size() ? &rows[at] : nullptr;
}

}  // namespace

RowsModel::RowsModel(const Control& control, const QFontMetrics& metrics, QObject* parent)
    : QAbstractListModel(parent), control_(control), metrics_(metrics) {}

bool RowsModel::Refresh() {
  if (version_ == control_.items.version()) {
    return false;
  }
  beginResetModel();
  version_ = control_.items.version();
  const auto& rows = control_.items.rows();
  count_ = static_cast<int>(rows.size());
  stops_ = {};
  for (const std::string& row : rows) {
    stops_.Widen(Start(row));
  }
  widest_ = 0;
  for (const std::string& row : rows) {
    widest_ = std::max(widest_, std::min(stops_.WidthOf(Start(row)), kLongestShown + 1));
  }
  endResetModel();
  return true;
}

int RowsModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : count_;
}

QVariant RowsModel::data(const QModelIndex& index, int role) const {
  // The rows may have become fewer since the last refresh.
  const std::string* row = RowAt(control_, index.row());
  if (row == nullptr) {
    return {};
  }
  if (role == Qt::DisplayRole) {
    return ToShownRow(stops_.Spread(Start(*row)));
  }
  if (role == Qt::SizeHintRole) {
    return QSize(metrics_.horizontalAdvance('M') * static_cast<int>(widest_) + 2 * kRowPadding,
                 metrics_.height() + kRowPadding);
  }
  return {};
}

GridModel::GridModel(const Control& control, int heading_columns, QObject* parent)
    : QAbstractTableModel(parent), control_(control), heading_columns_(heading_columns) {}

bool GridModel::Refresh() {
  if (version_ == control_.items.version()) {
    return false;
  }
  beginResetModel();
  version_ = control_.items.version();
  rows_ = std::max(0, static_cast<int>(control_.items.rows().size()) - 1);
  const std::string* heading = RowAt(control_, 0);
  columns_ = heading == nullptr
                 ? 0
                 : static_cast<int>(std::ranges::count(*heading, '\t')) + 1 - heading_columns_;
  endResetModel();
  return true;
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::Cell(int row, int column) const {
  const std::string* text = RowAt(control_, row);
  std::string_view rest = text == nullptr ? std::string_view() : *text;
  for (; column > 0; --column) {
    const std::size_t tab = rest.find('\t');
    rest.remove_prefix(tab == std::string_view::npos ? rest.size() : tab + 1);
  }
  return ToShownRow(rest.substr(0, rest.find('\t')));
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (role == Qt::TextAlignmentRole) {
    return Qt::AlignCenter;
  }
  return role == Qt::DisplayRole ? Cell(index.row() + 1, index.column() + heading_columns_)
                                 : QVariant();
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (role != Qt::DisplayRole) {
    return {};
  }
  return orientation == Qt::Horizontal ? Cell(0, section + heading_columns_) : Cell(section + 1, 0);
}

}  // namespace velmar
