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

  /// The list shows its last rows whenever rows are added.
  bool follows_end = false;

  /// Draws the choice of `row`, -1 for none, without any event.
  void ShowChoice(int row);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace velmar
