#pragma once

#include <QLabel>

namespace velmar {

/// A label that a map shows already, as a part of its picture. It is drawn nowhere else; it is
/// there for those who have the screen read to them.
class MapMark : public QLabel {
 public:
  QSize sizeHint() const override { return {0, 0}; }
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace velmar
