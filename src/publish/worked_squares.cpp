#include "publish/worked_squares.h"

#include "model/lines.h"
#include "model/sorted_list.h"
#include "model/text.h"

namespace velmar {

WorkedSquares FindWorkedSquares(const std::vector<std::string>& sorted) {
  constexpr std::size_t kField = 2;
  constexpr std::size_t kSquare = 4;
  WorkedSquares worked;
  worked.locators = Distinct(sorted, std::string::npos);
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    const std::string_view next = i + 1 < sorted.size() ? std::string_view(sorted[i + 1]) : "";
    const auto tell = [&](std::size_t width, std::string_view label, std::string& list,
                          std::size_t& count) {
      const std::string_view name = Left(sorted[i], width);
      if (name != Left(next, width)) {
        ++count;
        AddLine(list, name);
        AddLine(worked.lines, Join(label, name));
      }
    };
    tell(kSquare, "Squares        ", worked.squares, worked.square_count);
    tell(kField, "Field          ", worked.fields, worked.field_count);
  }
  return worked;
}

}  // namespace velmar
