#pragma once

#include <QFont>

class QLabel;
class QWidget;

namespace velmar {

// Distances between things of a window, in px.
inline constexpr int kMargin = 14;
inline constexpr int kSpacing = 8;
inline constexpr int kGap = 4;

/// Gives the whole application its style, colours and font sizes.
void ApplyLook();

/// The font of lists and of rows with fixed columns. It is smaller on a narrow screen.
QFont FixedFont();

/// The font of headings, `larger` points above the usual one.
QFont HeadingFont(int larger);

/// Draws a label's text in the colour of things that matter less.
void SetQuiet(QLabel& label);

/// The same in a smaller font, for a caption above what it belongs to.
void SetCaption(QLabel& label);

/// Puts a window in the middle of its screen, no larger than what its frame leaves room for.
void Centre(QWidget& widget);

}  // namespace velmar
