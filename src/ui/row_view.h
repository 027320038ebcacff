#pragma once

#include <QListView>
#include <functional>

namespace velmar {

/// A list of rows in a font of one width, for 100,000 rows as well as for three.
class RowView : public QListView {
 public:
  RowView();

  /// Called when a key has moved the choice to another row.
  std::function<void(int row)> on_row_by_key;

  /// Called when Enter is pressed on a row; tells whether anything came of it.
  std::function<bool()> on_enter;

  /// The list shows its last rows whenever rows are added.
  bool follows_end = false;

  /// Draws the choice of `row`, -1 for none, without any event.
  void ShowChoice(int row);

  /// Moves the rows so that `row` is the first one to be seen, or as near as the last one lets it.
  void BeginWith(int row);

  /// The height of so many rows with their frame, in px.
  int HeightOf(int rows) const;

  /// Between the left edge of the viewport and the first character of a row, in px.
  int TextMargin() const;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace velmar
