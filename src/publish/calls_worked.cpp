#include "publish/calls_worked.h"

#include <algorithm>
#include <array>

#include "model/lines.h"
#include "model/print_line.h"
#include "model/sorted_list.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "publish/bands.h"
#include "publish/month_files.h"

namespace velmar {

namespace {

/// A zone of the logging stations: a digit or a prefix of their calls.
struct Zone {
  std::string_view name;
  CallArea area;
};

constexpr std::array<Zone, 14> kZones = {{{"0", CallArea::kI0},
                                          {"1", CallArea::kI1},
                                          {"2", CallArea::kI2},
                                          {"3", CallArea::kI3},
                                          {"4", CallArea::kI4},
                                          {"5", CallArea::kI5},
                                          {"6", CallArea::kI6},
                                          {"7", CallArea::kI7},
                                          {"8", CallArea::kI8},
                                          {"9", CallArea::kI9},
                                          {"IS0", CallArea::kIS0},
                                          {"IX1", CallArea::kIX1},
                                          {"IN3", CallArea::kIN3},
                                          {"IV3", CallArea::kIV3}}};

/// What the counts of the calls on the air are told by, and where.
constexpr std::string_view kOnAirLine = "call on air ";
constexpr Column kOnAirKey{1, 15};
constexpr Column kOnAirCount{19, 5};

std::string_view CallOf(std::string_view row) {
  return Cut(row, libreria_totale_row::kCall);
}

/// The rows of a category whose owner is Italian.
std::vector<std::string_view> ItalianLogs(const CountedRows& library, std::string_view category) {
  std::vector<std::string_view> rows;
  std::ranges::copy_if(library, std::back_inserter(rows), [category](std::string_view row) {
    return Cut(row, libreria_totale_row::kCategory) == category && row.starts_with('I');
  });
  return rows;
}

/// The calls, each once, that the stations of a zone worked.
struct ZoneCalls {
  std::vector<std::string> italian;
  std::vector<std::string> foreign;
};

ZoneCalls FindZoneCalls(const std::vector<std::string_view>& rows, std::string_view zone) {
  SortedList italian;
  SortedList foreign;
  for (const std::string_view row : rows) {
    constexpr std::size_t kPrefix = 3;
    const std::string_view owner = Trim(Cut(row, libreria_totale_row::kOwner));
    if ((Holds(owner, "/") && Right(owner, 1) == zone) || Holds(Left(row, kPrefix), zone)) {
      const std::string_view call = CallOf(row);
      (call.starts_with('I') ? italian : foreign).Add(std::string(Trim(call)));
    }
  }
  return {Distinct(italian.rows(), std::string::npos), Distinct(foreign.rows(), std::string::npos)};
}

}  // namespace

void CallsWorked::qso_est_Click() {
  trap_.Procedure([this] { Run(form_.banda_qso.value); });
}

/// A copy that the manager has placed beside the categories, or else the category's own file.
std::string CallsWorked::LibraryPath(const std::string& category) {
  const std::string placed = MonthFiles(session_).placed_library();
  return files_.StampOf(placed)
             ? placed
             : session_.workspace.store_file(StoreFile::kLibreriaTotale, category);
}

void CallsWorked::Run(const std::string& category) {
  trap_.At(1);
  const CountedRows library(files_, LibraryPath(category));
  trap_.At(2);
  const Counts counts = WriteZones(category, library);
  trap_.At(4);
  files_.Append(MonthFiles(session_).area_qsos(category), CountsText(counts));
  form_.tot_qso_est.caption = std::to_string(counts.italian.total() + counts.foreign.total());
  trap_.At(5);
  TakeOnAir(category);
  trap_.At(6);
  files_.Append(MonthFiles(session_).area_qsos(category), OnAirText());
  trap_.At(7);
  WriteItalianCalls(category, library);
  manager_.Show({.lines = {Join(" salvataggio file statistica  ", category, "  è terminato"_a)}});
  form_.qso_est.enabled = false;
  form_.calcola_qso.caption = " RIcalcola";
}

CallsWorked::Counts CallsWorked::WriteZones(const std::string& category,
                                            const CountedRows& library) {
  const std::vector<std::string_view> rows = ItalianLogs(library, category);
  Counts counts;
  for (const Zone& zone : kZones) {
    const ZoneCalls calls = FindZoneCalls(rows, zone.name);
    files_.WriteAll(MonthFiles(session_).zone_calls(category, true, zone.name),
                    TextOfLines(calls.italian));
    files_.WriteAll(MonthFiles(session_).zone_calls(category, false, zone.name),
                    TextOfLines(calls.foreign));
    counts.italian[zone.area] = static_cast<int>(calls.italian.size());
    counts.foreign[zone.area] = static_cast<int>(calls.foreign.size());
  }
  return counts;
}

std::string CallsWorked::CountsText(const Counts& counts) const {
  constexpr std::size_t kForeign = 40;
  constexpr std::size_t kBoth = 36;
  constexpr std::size_t kTotal = 52;
  const std::string rule(70, '-');
  std::string text;
  AddLine(text, " Effettivi senza doppi collegati da singole call area (mensili)");
  for (const CallArea area : kPrintedAreas) {
    text += PrintLine()
                .Text(Join("Call ita colleg da ", NameOf(area), "  = "))
                .Number(counts.italian[area])
                .Tab(kForeign)
                .Text(Join("call est colleg da ", NameOf(area), "  = "))
                .Number(counts.foreign[area])
                .End();
  }
  AddLine(text, rule);
  text += PrintLine()
              .Text("Partecipanti italia     = ")
              .Number(counts.italian.total())
              .Tab(kBoth)
              .Text("(ita+est)")
              .Number(counts.italian.total() + counts.foreign.total())
              .Tab(kTotal)
              .Text("Totali estero")
              .Number(counts.foreign.total())
              .End();
  AddLine(text, rule);
  return text;
}

/// The counts of the calls on the air, where the file of the band tells them; else they stay.
void CallsWorked::TakeOnAir(const std::string& category) {
  const Band* const band = BandOfCategory(category);
  const std::string label(band == nullptr ? std::string_view(category) : band->label);
  for (const std::string_view line : CountedRows(files_, MonthFiles(session_).band_counts(label))) {
    for (const CallArea area : kPrintedAreas) {
      if (Cut(line, kOnAirKey) == Join(kOnAirLine, NameOf(area))) {
        on_air_[area] = static_cast<int>(Val(Cut(line, kOnAirCount)));
      }
    }
  }
}

/// The columns of the year are there, but nothing counts over a year.
std::string CallsWorked::OnAirText() const {
  constexpr std::size_t kYear = 55;
  constexpr std::size_t kYearTotal = 40;
  std::string text;
  AddLine(text, "                         Call effettivi in aria");
  AddLine(text, "          (Valori mensili)                    (Valori annuali)");
  for (const CallArea area : kPrintedAreas) {
    text += PrintLine()
                .Text(Join("Call on air    da  ", NameOf(area), " = "))
                .Number(on_air_[area])
                .Tab(kYear)
                .End();
  }
  AddLine(text, std::string(69, '-'));
  text += PrintLine()
              .Text("Totali mensile Italia  = ")
              .Number(on_air_.total())
              .Tab(kYearTotal)
              .Text("Totali annuali Italia = ")
              .End();
  return text;
}

void CallsWorked::WriteItalianCalls(const std::string& category, const CountedRows& library) {
  constexpr std::size_t kSameStation = 6;
  SortedList calls;
  for (const std::string_view row : library) {
    if (Cut(row, libreria_totale_row::kCategory) == category && CallOf(row).starts_with('I')) {
      calls.Add(std::string(CallOf(row)));
    }
  }
  files_.WriteAll(MonthFiles(session_).italian_calls(category),
                  TextOfLines(Distinct(calls.rows(), kSameStation)));
}

}  // namespace velmar
