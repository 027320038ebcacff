#include "publish/contest_totals.h"

#include <algorithm>
#include <array>
#include <map>

#include "model/lines.h"
#include "model/print_line.h"
#include "model/sorted_list.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "publish/bands.h"
#include "publish/countries.h"
#include "publish/farthest_qso.h"
#include "publish/long_total.h"
#include "publish/month_files.h"
#include "publish/worked_squares.h"

namespace velmar {

namespace {

/// The last column of the power and the blank behind it stand ahead of only three digits of the
/// QSOs: a log with a thousand of them counts its first three digits, and that is meant so.
constexpr Column kQsosOfLog{51, 5};

/// The call and the locator of the other station.
constexpr Column kForeignStation{13, 18};

constexpr std::size_t kMostLines = 32'000;  ///< of the library, read twice
constexpr std::size_t kSameStation = 5;     ///< characters that two calls of one station share

/// The participants that the owner of the DX is sought in.
using Owners = BoundedRows<500>;

/// A line that tells a number.
std::string NumberLine(std::string_view label, long long number) {
  return PrintLine().Text(label).Number(number).End();
}

std::string AreaLines(std::string_view label, const AreaCounters& counts) {
  std::string lines;
  for (const CallArea area : kPrintedAreas) {
    lines += NumberLine(Join(label, NameOf(area), " ="), counts[area]);
  }
  return lines;
}

/// Counts squares of one field by their number, of which "00" is none.
using SquareCounts = std::map<int, int>;

struct FieldActivity {
  SquareCounts jn;
  SquareCounts jm;

  void Count(std::string_view field, std::string_view number) {
    const int square = static_cast<int>(Val(number));
    if (square >= 1 && (field == "JN" || field == "JM")) {
      ++(field == "JN" ? jn : jm)[square];
    }
  }
};

std::string ActivityLines(std::string_view label, const SquareCounts& counts) {
  std::string lines;
  for (const auto& [square, count] : counts) {
    lines += NumberLine(Join(label, square < 10 ? "0" : "", square, " ="), count);
  }
  return lines;
}

constexpr Column FieldOf(Column locator) {
  return {locator.start, 2};
}

constexpr Column NumberOf(Column locator) {
  return {locator.start + 2, 2};
}

/// The locator of a row's owner; nothing where he is not among the participants.
std::optional<std::string_view> LocatorOf(std::string_view row, const Owners& participants) {
  const std::string_view owner = Trim(Cut(row, libreria_row::kOwner));
  for (const std::string_view participant : participants) {
    if (Trim(Cut(participant, partecipante_row::kCall)) == owner &&
        Cut(participant, partecipante_row::kCategory) == kCategory) {
      return Cut(participant, partecipante_row::kLocator);
    }
  }
  return std::nullopt;
}

/// A number with commas between its thousands; nothing for 0.
std::string Thousands(long long number) {
  std::string digits = number == 0 ? "" : std::to_string(number);
  for (std::size_t behind = 3; behind < digits.size(); behind += 4) {
    digits.insert(digits.size() - behind, 1, ',');
  }
  return digits;
}

}  // namespace

/// What the library holds in all.
struct ContestTotals::Found {
  SortedList calls;
  LongTotal points;
  double dx = 0;
  std::string dx_row;
  std::string dx_locator;  ///< of its owner
};

void ContestTotals::calcola_qso_Click() {
  trap_.Procedure([this] { Run(); }, " OVERFLOW     ci sono oltre 32255 qso in libreria");
}

std::string ContestTotals::StorePath(StoreFile file) const {
  return session_.workspace.store_file(file);
}

void ContestTotals::AddToStatistics(std::string_view lines) {
  files_.Append(MonthFiles(session_).statistics(), lines);
}

void ContestTotals::Run() {
  on_air_ = {};
  trap_.At(1);
  const CountedRows classification(files_,
                                   session_.workspace.classification(session_.category_month));
  CountLogs(classification);
  trap_.At(5);
  const CountedRows library(files_, StorePath(StoreFile::kLibreria));
  Found found = ReadLibrary(library);
  trap_.At(6);
  // The counter of lines goes on over a second reading, of the owners.
  if (2 * library.size() > kMostLines) {
    manager_.Show({.lines = {" il qso totali superano i 32000"}});
    return;
  }
  for (const std::string_view row : library) {
    found.calls.Add(std::string(Cut(row, libreria_row::kOwner)));
  }
  trap_.At(7);
  const auto dx = static_cast<long long>(found.dx);
  AddToStatistics(
      NumberLine("QRB DX        ", dx) +
      PrintLine().Text(Join("QSO DX         ", found.dx_locator, "  ", found.dx_row)).End() +
      NumberLine("QRB Totale    ", found.points.value()));
  form_.dx_144_tot.caption = std::to_string(dx);
  form_.qrb_144_tot.caption = Thousands(found.points.value());
  const std::vector<std::string> calls = Distinct(found.calls.rows(), kSameStation);
  trap_.At(9);
  WriteOnAir(calls);
  trap_.At(11);
  WriteCountries(calls);
  trap_.At(15);
  if (WriteSquares(library)) {
    trap_.At(19);
    WriteAreas(classification);
    trap_.At(20);
    WriteActivity(library);
  }
  trap_.At(21);
  ShowClasses(library);
  trap_.At(22);
  WriteForeignCalls(library);
}

void ContestTotals::CountLogs(const CountedRows& classification) {
  LongTotal qsos;
  const auto logs = static_cast<std::ptrdiff_t>(classification.size()) - 1;  // beside the header
  for (std::ptrdiff_t log = 1; log <= logs; ++log) {
    qsos.Add(Val(Cut(classification.begin()[log], kQsosOfLog)));
  }
  form_.qso_144_tot.caption = std::to_string(qsos.value());
  const std::string total = NumberLine("Qso totali    ", qsos.value());
  trap_.At(3);
  std::string head;
  AddLine(head, Join("Categoria 2IT - 144 MHz ", Lower(session_.category_month)));
  AddLine(head, " ");
  files_.WriteAll(
      MonthFiles(session_).statistics(),
      Join(head, NumberLine("Log totali    ", std::max<std::ptrdiff_t>(logs, 0)), total));
  trap_.At(4);
  // The QSOs of foreign stations are those beyond a total that was copied just before: always none.
  files_.Append(MonthFiles(session_).band_counts(kContestBand.label),
                NumberLine("qso di esteri ", 0) + total);
}

ContestTotals::Found ContestTotals::ReadLibrary(const CountedRows& library) {
  Found found;
  std::optional<Owners> owners;
  for (const std::string_view row : library) {
    found.calls.Add(std::string(Cut(row, libreria_row::kCall)));
    const double points = PointsOf(row);
    found.points.Add(points);
    if (points > found.dx) {
      found.dx = points;
      found.dx_row = row;
      if (!owners) {
        owners.emplace(files_, StorePath(StoreFile::kPartecipanti));
      }
      if (const auto locator = LocatorOf(row, *owners)) {
        found.dx_locator = *locator;
      }
    }
  }
  return found;
}

void ContestTotals::WriteOnAir(const std::vector<std::string>& calls) {
  std::string flags;
  for (const std::string& call : calls) {
    flags += NumberLine(call, 1);
  }
  const auto count = static_cast<long long>(calls.size());
  files_.WriteAll(MonthFiles(session_).on_air_flags(), flags);
  files_.WriteAll(MonthFiles(session_).on_air(), TextOfLines(calls));
  AddToStatistics(NumberLine("Call in aria  ", count));
  form_.onair_144_tot.caption = std::to_string(count);
}

void ContestTotals::WriteCountries(const std::vector<std::string>& calls) {
  const OnAirCounts counts = CountOnAir(calls);
  on_air_ = counts.areas;
  if (!counts.unknown.empty()) {
    files_.Append(MonthFiles(session_).unknown_calls(), TextOfLines(counts.unknown));
  }
  trap_.At(12);
  ShowCountries(counts);
  const std::vector<std::string> countries = CountryLines(counts);
  AddToStatistics(NumberLine("Call esteri   ", counts.abroad()) +
                  NumberLine("Call ita      ", counts.italy()) + TextOfLines(countries));
  trap_.At(13);
  files_.WriteAll(MonthFiles(session_).countries(), CountriesText(counts));
  trap_.At(14);
  const auto found = static_cast<long long>(countries.size());
  form_.paesi_144_tot.caption = std::to_string(found);
  // Italy is never tested for: that one country is taken off for it is a convention.
  AddToStatistics(NumberLine("Paesi esteri  ", found - 1) + NumberLine("Paesi totali  ", found));
}

void ContestTotals::ShowCountries(const OnAirCounts& counts) {
  for (std::size_t i = 0; i < kPrintedAreas.size(); ++i) {
    form_.Grid_italia.Set(1, i + 1, std::to_string(counts.areas[kPrintedAreas[i]]));
  }
  form_.Grid_italia.Set(1, StatisticsForm::kTotalColumn, std::to_string(counts.italy()));
  std::vector<std::string> cells;
  for (const int total :
       {counts.abroad(), counts.italy(), counts.abroad() + counts.italy(), counts.portables}) {
    cells.push_back(std::to_string(total));
  }
  form_.Grid_estero.SetRow(1, 1, cells);
  form_.Grid_estero.SetRow(1, StatisticsForm::kFirstCountryColumn, counts.countries.Texts());
  form_.Grid_estero.Set(1, StatisticsForm::kOtherColumn, std::to_string(counts.unknown.size()));
}

/// False where no locator was worked: then nothing more is told.
bool ContestTotals::WriteSquares(const CountedRows& library) {
  SortedList locators;
  for (const std::string_view row : library) {
    locators.Add(std::string(Cut(row, libreria_row::kLocator)));
  }
  const WorkedSquares worked = FindWorkedSquares(locators.rows());
  const std::string_view band = kContestBand.file_name;
  files_.WriteAll(MonthFiles(session_).locators(band), TextOfLines(worked.locators));
  trap_.At(16);
  files_.WriteAll(MonthFiles(session_).squares(band), worked.squares);
  files_.WriteAll(MonthFiles(session_).fields(band), worked.fields);
  AddToStatistics(worked.lines);
  trap_.At(17);
  form_.loc_onair_144_tot.caption = std::to_string(worked.locators.size());
  form_.sqr_onair_144_tot.caption = std::to_string(worked.square_count);
  form_.field_onair_144_tot.caption = std::to_string(worked.field_count);
  std::string totals;
  AddLine(totals, "  ");
  totals += NumberLine("Locatori      ", static_cast<long long>(worked.locators.size()));
  totals += NumberLine("SQR. tot      ", static_cast<long long>(worked.square_count));
  totals += NumberLine("Field         ", static_cast<long long>(worked.field_count));
  AddLine(totals, "---------------------------");
  AddToStatistics(totals);
  if (worked.locators.empty()) {
    return false;
  }
  trap_.At(18);
  AddToStatistics(AreaLines("call on air ", on_air_));
  return true;
}

void ContestTotals::WriteAreas(const CountedRows& classification) {
  AreaCounters active;
  for (const std::string_view row : classification) {
    if (const auto area = ActiveArea(row)) {
      ++active[*area];
    }
  }
  AddToStatistics(AreaLines("Part.Attivi ", active));
}

void ContestTotals::WriteActivity(const CountedRows& library) {
  const CountedRows participants(files_, StorePath(StoreFile::kPartecipanti));
  const auto count = [](const CountedRows& rows, Column locator) {
    FieldActivity activity;
    for (const std::string_view row : rows) {
      activity.Count(Cut(row, FieldOf(locator)), Cut(row, NumberOf(locator)));
    }
    return activity;
  };
  // Of the logs only those from JN are told.
  AddToStatistics(
      ActivityLines("Log da sqr JN", count(participants, partecipante_row::kLocator).jn));
  const FieldActivity worked = count(library, libreria_row::kLocator);
  AddToStatistics(ActivityLines("Attivi da  JN", worked.jn) +
                  ActivityLines("Attivi da  JM", worked.jm));
}

void ContestTotals::ShowClasses(const CountedRows& library) {
  struct Class {
    double from;
    Label& label;
  };
  const std::array<Class, 7> classes = {{{1000, form_.piu1200},
                                         {901, form_.piunov},
                                         {701, form_.setnov},
                                         {501, form_.cinset},
                                         {301, form_.trecin},
                                         {101, form_.centre},
                                         {0, form_.menocento}}};
  std::array<int, 7> counts{};
  for (const std::string_view row : library) {
    const double points = PointsOf(row);
    const auto* const fitting = std::ranges::find_if(
        classes, [points](const Class& tested) { return points >= tested.from; });
    ++counts.at(static_cast<std::size_t>(std::min(fitting, classes.end() - 1) - classes.begin()));
  }
  for (std::size_t i = 0; i < classes.size(); ++i) {
    classes.at(i).label.caption = std::to_string(counts.at(i));
  }
}

void ContestTotals::WriteForeignCalls(const CountedRows& library) {
  SortedList stations;
  for (const std::string_view row : library) {
    if (!Cut(row, libreria_row::kCall).starts_with('I')) {
      stations.Add(std::string(Cut(row, kForeignStation)));
    }
  }
  files_.WriteAll(MonthFiles(session_).foreign_calls(),
                  TextOfLines(Distinct(stations.rows(), std::string::npos)));
}

}  // namespace velmar
