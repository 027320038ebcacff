#pragma once

#include <QLabel>
#include <QLineEdit>

namespace velmar {

// Widgets for a path, or for another line that may be longer than there is room: what is cut is its
// middle, and the pointer brings up the whole of it.

class PathLabel : public QLabel {
 public:
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

/// While somebody types in it, it is a line like any other.
class PathLine : public QLineEdit {
 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace velmar
