#include "ui/map_mark.h"

namespace velmar {

void MapMark::paintEvent(QPaintEvent*) {}

}  // namespace velmar
