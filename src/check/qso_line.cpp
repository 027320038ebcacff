#include "check/qso_line.h"

#include "model/text.h"

namespace velmar {

std::string QsoLine(std::string_view library_row, std::size_t ordinal) {
  return Pad(library_row, qso_line::kRow.width) + Str(static_cast<long long>(ordinal));
}

}  // namespace velmar
