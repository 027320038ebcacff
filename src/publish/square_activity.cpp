#include "publish/square_activity.h"

#include <map>
#include <span>

#include "model/columns.h"
#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/form.h"
#include "publish/sheet_style.h"

namespace velmar {

namespace {

constexpr std::string_view kHeading = "A39:P39";
constexpr int kLabelColumn = 1;

/// The squares go from west to east, those under one another from north to south; what found no
/// room in its place stands at the end.
constexpr std::string_view kWest[] = {"JN35", "JN34", "JN33", "JN46", "JN45",
                                      "JN44", "JN43", "JN41", "JN40", "JN56",
                                      "JN55", "JN54", "JN53", "JN52", "JN51"};
constexpr std::string_view kEast[] = {"JN66", "JN65", "JN64", "JN63", "JN62", "JN61", "JN60",
                                      "JN72", "JN71", "JN70", "JN81", "JN80", "JN90", "JN67"};
constexpr std::string_view kSouth[] = {"JM49", "JM48", "JM68", "JM67", "JM66",
                                       "JM65", "JM79", "JM78", "JM77", "JM76",
                                       "JM89", "JM88", "JM87", "JM99", "JM56"};

struct ActivityBlock {
  std::string_view cells;
  std::string_view names;  ///< the first row of them; those of the logs and of the QSOs follow
  std::span<const std::string_view> squares;
};

constexpr ActivityBlock kBlocks[] = {
    {"A40:P42", "A40:P40", kWest}, {"A44:O46", "A44:O44", kEast}, {"A48:P50", "A48:P48", kSouth}};

/// What a line tells, and in which row of its block.
struct ActivityLine {
  std::string_view key;
  int row;
};

constexpr ActivityLine kLines[] = {
    {"Log da sqr JN", 1}, {"Attivi da  JN", 2}, {"Attivi da  JM", 2}};

constexpr Column kSquare{12, 4};
constexpr std::size_t kCountStart = 19;

/// Writes the names, and gives the place of each.
std::map<std::string_view, CellPlace> WriteBlocks(Worksheet& sheet) {
  std::map<std::string_view, CellPlace> places;
  for (const auto& [cells, names, squares] : kBlocks) {
    SheetRange block = sheet_style::Frame(sheet.Range(cells));
    sheet.Range(names).Interior(sheet_style::kHeadGround).Font().Bold(true);
    int label = block.Row();
    for (const std::string_view text : {"Squares", "LOG da ", "QSO con"}) {
      sheet.Cells(label++, kLabelColumn).Value(text);
    }
    int column = kLabelColumn;
    for (const std::string_view square : squares) {
      places[square] = {block.Row(), ++column};
      sheet.Cells(block.Row(), column).Value(square);
    }
  }
  return places;
}

}  // namespace

void WriteSquareActivity(Worksheet& sheet, std::string_view statistics) {
  sheet_style::WriteHeading(sheet, kHeading, "Attività dai singoli squares"_a);
  const auto places = WriteBlocks(sheet);
  LineReader lines(statistics);
  for (std::string_view line; lines.Next(line);) {
    for (const auto& [key, row] : kLines) {
      const auto place = places.find(Cut(line, kSquare));
      if (Holds(line, key) && place != places.end()) {
        sheet.Cells(place->second.row + row, place->second.column)
            .Value(Val(Mid(line, kCountStart)));
      }
    }
  }
}

}  // namespace velmar
