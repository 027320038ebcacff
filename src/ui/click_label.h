#pragma once

#include <QLabel>
#include <functional>

namespace velmar {

/// A label that a person clicks, or presses with Enter or the space bar. It is drawn as a button,
/// so that it looks like what it is.
class ClickLabel : public QLabel {
 public:
  ClickLabel();

  std::function<void()> on_key_press;  ///< Enter or the space bar

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace velmar
