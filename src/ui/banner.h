#pragma once

#include <QTimer>

#include "ui/path_view.h"

namespace velmar {

/// A line that must not be overlooked: while it is to be seen its colours change places.
class Banner : public PathLabel {
 public:
  Banner();

 protected:
  void showEvent(QShowEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QTimer blink_{this};
  bool lit_ = false;
};

}  // namespace velmar
