#include "publish/area_sheets.h"

#include <iterator>

#include "model/text.h"
#include "model/workspace.h"

namespace velmar {

namespace {

using A = CallArea;

/// A sheet, in the order of the workbook.
struct AreaSheet {
  CallArea area;
  std::string_view name;    ///< behind the category
  std::string_view title;   ///< of the area
  std::string_view status;  ///< behind the category
};

constexpr AreaSheet kSheets[] = {{A::kI0, " i0", "I 0", " call area I0 in corso....."},
                                 {A::kI1, " i1", "I 1", " call area I 1 in corso....."},
                                 {A::kI2, " i2", "I 2", " Call area I 2 in corso....."},
                                 {A::kI3, " i3", "I 3", " Call area I 3 in corso....."},
                                 {A::kIV3, " iv3", "IV3", " Call area IV3 in corso....."},
                                 {A::kIN3, " in3", "IN3", " Call area IN3 in corso....."},
                                 {A::kI4, " i4", "I 4", " Call area I 4 in corso....."},
                                 {A::kI5, " i5", "I 5", " Call area I 5 in corso....."},
                                 {A::kI6, " i6", "I 6", " Call area I 6 in corso....."},
                                 {A::kI7, " i7", "I 7", " Call area I 7 in corso....."},
                                 {A::kI8, " i8", "I 8", " Call area I 8 in corso....."},
                                 {A::kI9, " it9", "IT9", " Call area IT9 in corso....."},
                                 {A::kIS0, " is0", "IS0", " Call area IS0 in corso....."},
                                 {A::kIX1, " ix1", "IX1", " Call area IX1 in corso....."}};

void SayEmpty(Worksheet& sheet) {
  constexpr CellPlace kFirstRow{5, 1};
  sheet.Cells(kFirstRow.row, kFirstRow.column)
      .Value("Nessun partecipante.")
      .HorizontalAlignment(xl::kLeft);
  sheet.selected = kFirstRow;
}

}  // namespace

void CreateCallAreaSheets(Workbook& book, const SheetTexts& texts,
                          const AreaSheetSources& sources) {
  constexpr int kAreas = std::size(kSheets);
  int done = 0;
  sources.progress(done, kAreas);
  for (const auto& [area, name, title, status] : kSheets) {
    sources.status(Join(kCategory, status));
    const std::string classification = sources.read(area).value_or("");
    Worksheet& sheet = book.Add();
    book.Rename(sheet, Join(kCategory, name));
    book.Select(sheet);
    sheet.gridlines = false;
    SetUpClassificationSheet(sheet);
    const std::string heading =
        Join(kCategory, " - Call area ", title, " - ", texts.month_title, "  ", texts.year);
    if (FillClassificationSheet(sheet, classification, heading, texts) == 0) {
      SayEmpty(sheet);
    }
    sources.progress(++done, kAreas);
  }
}

}  // namespace velmar
