#pragma once

#include <QColor>

#include "platform/picture.h"

class QPainter;

namespace velmar {

/// A colour number of the program (red in the lowest byte) as the toolkit has it.
QColor ToColour(int colour);

/// Draws a picture, its ground included, with its left upper corner at the painter's origin, one
/// unit of the picture being one of the painter's. What lies beyond its edges is cut off.
void Paint(QPainter& painter, const Picture& picture);

}  // namespace velmar
