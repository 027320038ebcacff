#pragma once

#include <QFont>

class QLabel;
class QWidget;

namespace velmar {

// Distances between things of a window, in px.
inline constexpr int kMargin = 14;
inline constexpr int kSpacing = 8;

/// Gives the whole application its style, colours and font sizes.
void ApplyLook();

/// The font of lists and of rows with fixed columns.
QFont FixedFont();

/// The font of headings, `larger` points above the usual one.
QFont HeadingFont(int larger);

/// Draws a label's text in the colour of things that matter less.
void SetQuiet(QLabel& label);

/// The same in a smaller font, for a caption above what it belongs to.
void SetCaption(QLabel& label);

/// Puts a widget in the middle of its screen.
void Centre(QWidget& widget);

}  // namespace velmar
