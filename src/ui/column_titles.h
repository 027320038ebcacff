#pragma once

#include <QLabel>
#include <vector>

namespace velmar {

class RowView;

/// A line that belongs to the columns of a list: their titles, or one row more. It is drawn in the
/// list's font just above or below the list's own rows, and goes along when they are moved
/// sideways. What there is no room for is cut.
class ColumnTitles : public QLabel {
 public:
  ColumnTitles();

  /// The list, which outlives it.
  void Follow(RowView& rows);

  /// Puts the titles, which two blanks or more part, over these columns, counted from 0. A title
  /// that the one before it leaves no room for comes right behind that one.
  void PlaceAt(std::vector<int> columns) { columns_ = std::move(columns); }

  /// The text as it is drawn, with its titles in their places.
  QString Drawn() const;

  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  RowView* rows_ = nullptr;
  std::vector<int> columns_;
};

}  // namespace velmar
