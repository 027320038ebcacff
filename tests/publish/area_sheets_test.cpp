#include "publish/area_sheets.h"

#include <gtest/gtest.h>

#include "model/classification_row.h"
#include "model/lines.h"
#include "support/boxes.h"

namespace velmar::test {
namespace {

TEST(AreaSheets, EveryAreaHasItsSheetAlsoWithoutAParticipant) {
  const std::string header(classification_row::kHeader);
  ClassificationEntry entry;
  entry.call = "IT9QAA";
  const std::string one = TextOfLines(Names{header, ClassificationRow(entry)});
  Workbook book(1);
  Names statuses;
  int done = -1;
  CreateCallAreaSheets(
      book, {.month_title = "Gennaio ", .year = "2025", .contest_date = "", .version = ""},
      {.read =
           [&](CallArea area) {
             return area == CallArea::kI9   ? std::optional(one)
                    : area == CallArea::kI0 ? std::optional(header)
                                            : std::nullopt;
           },
       .status = [&](std::string_view text) { statuses.emplace_back(text); },
       .progress = [&](int made, int all) { done = made == done + 1 && all == 14 ? made : -9; }});
  Names names;
  for (const Worksheet& sheet : book.sheets()) {
    names.push_back(sheet.name());
  }
  EXPECT_EQ(names, (Names{"Foglio1", "2IT i0", "2IT i1", "2IT i2", "2IT i3", "2IT iv3", "2IT in3",
                          "2IT i4", "2IT i5", "2IT i6", "2IT i7", "2IT i8", "2IT it9", "2IT is0",
                          "2IT ix1"}));
  EXPECT_EQ(done, 14);
  EXPECT_EQ(statuses.at(0), "2IT call area I0 in corso.....");
  EXPECT_EQ(statuses.at(13), "2IT Call area IX1 in corso.....");
  const auto value = [&](std::string_view sheet, CellPlace place) {
    return book.Sheet(sheet).cells().at(place).value;
  };
  EXPECT_EQ(value("2IT it9", {2, 1}), CellValue("2IT - Call area IT9 - Gennaio   2025"));
  EXPECT_EQ(value("2IT it9", {5, 1}), CellValue(1.0));
  for (const char* empty : {"2IT i0", "2IT ix1"}) {
    EXPECT_EQ(value(empty, {5, 1}), CellValue("Nessun partecipante.")) << empty;
    EXPECT_EQ(book.Sheet(empty).selected, (CellPlace{5, 1}));
    EXPECT_EQ(value(empty, {4, 2}), CellValue("Call"));
  }
}

}  // namespace
}  // namespace velmar::test
