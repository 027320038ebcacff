#pragma once

#include <QPlainTextEdit>
#include <string>
#include <vector>

namespace velmar {

/// The lines of a box, blanks included, as large as they need. A line too wide for the screen is
/// broken, and more lines than the screen has room for scroll. Rows of a log have a font of one
/// width, so that their characters can be counted.
class BoxText : public QPlainTextEdit {
 public:
  explicit BoxText(const std::vector<std::string>& lines);

  QSize sizeHint() const override { return minimumSize(); }
};

}  // namespace velmar
