#pragma once

#include <QLabel>

namespace velmar {

/// The picture of the program: an antenna and what it sends. Its text is drawn nowhere; it is there
/// for those who have the screen read to them.
class Emblem : public QLabel {
 public:
  Emblem();

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace velmar
