#pragma once

#include <QWidget>

namespace velmar {

/// A bar that stands on its lower edge, as high as its share.
class ShareBar : public QWidget {
 public:
  ShareBar();

  /// From 0 to 1, for the whole height.
  void SetShare(double share);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double share_ = 0;
};

}  // namespace velmar
