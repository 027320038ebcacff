#include "ui/box_text.h"

#include <QFontMetrics>
#include <QScreen>
#include <QScrollBar>
#include <QTextDocument>
#include <QTextLayout>
#include <QTextOption>
#include <algorithm>
#include <cmath>

#include "model/edi_log.h"
#include "ui/look.h"
#include "ui/qt_text.h"

namespace velmar {

namespace {

constexpr double kLargestPart = 0.7;  // of the screen
constexpr int kNarrowest = 220;       // px

bool HoldsLogRow(const std::vector<std::string>& lines) {
  return std::ranges::any_of(lines, [](const std::string& line) {
    return std::ranges::count(line, ';') >= static_cast<std::ptrdiff_t>(edi::kSemicolons / 2);
  });
}

/// The height of a line that is broken at `width`.
int BrokenHeight(const QString& line, const QFont& font, int width) {
  QTextLayout layout(line, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  layout.beginLayout();
  int height = 0;
  for (QTextLine row = layout.createLine(); row.isValid(); row = layout.createLine()) {
    row.setLineWidth(width);
    height += static_cast<int>(std::ceil(row.height()));
  }
  layout.endLayout();
  return height;
}

}  // namespace

BoxText::BoxText(const std::vector<std::string>& lines) {
  const QStringList shown = ToShownRows(lines);
  setFont(HoldsLogRow(lines) ? FixedFont() : font());
  setReadOnly(true);
  setFrameShape(NoFrame);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  QPalette colours = palette();
  colours.setColor(QPalette::Base, colours.color(QPalette::Window));
  setPalette(colours);
  setPlainText(shown.join('\n'));

  const QSize room = screen()->availableSize() * kLargestPart;
  const int margins = 2 * static_cast<int>(document()->documentMargin()) + 2;
  int width = kNarrowest;
  for (const QString& line : shown) {
    width = std::max(width, fontMetrics().horizontalAdvance(line));
  }
  width = std::min(width, room.width() - margins);
  int height = margins;
  for (const QString& line : shown) {
    height += BrokenHeight(line, font(), width);
  }
  const bool scrolls = height > room.height();
  setVerticalScrollBarPolicy(scrolls ? Qt::ScrollBarAlwaysOn : Qt::ScrollBarAlwaysOff);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setFocusPolicy(scrolls ? Qt::StrongFocus : Qt::ClickFocus);
  setMinimumSize(width + margins + (scrolls ? verticalScrollBar()->sizeHint().width() : 0),
                 std::min(height, room.height()));
}

}  // namespace velmar
