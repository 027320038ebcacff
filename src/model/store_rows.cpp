#include "model/store_rows.h"

#include "model/print_line.h"

namespace velmar {

namespace {

constexpr std::size_t kCwSectionWidth = 4;
constexpr std::size_t kCwLocatorWidth = 8;
constexpr std::size_t kDxDistanceWidth = 5;

/// Points as the log claims them, which it may have left out.
std::string_view PointsOrNone(std::string_view points) {
  return points.empty() ? "0" : points;
}

/// A text and a count in a field of a fixed width.
std::string Counted(std::string_view text, int count, Column column) {
  return Pad(Join(text, Str(count)), column.width);
}

std::string Counted(int count, Column column) {
  return Counted("", count, column);
}

}  // namespace

std::optional<std::string> LibreriaRow(std::string_view owner, std::string_view call,
                                       std::string_view locator, std::string_view points) {
  std::string row =
      Join(Call12(owner), Call12(call), Upper(RTrim(locator)), " ", PointsOrNone(points));
  return row.size() < libreria_row::kShortest ? std::nullopt : std::optional(std::move(row));
}

std::optional<std::string> LibreriaTotaleRow(std::string_view owner, std::string_view call,
                                             std::string_view locator, std::string_view category,
                                             std::string_view points) {
  const std::string measured = Join(Call12(owner), Call12(call), Upper(RTrim(locator)));
  return measured.size() < libreria_totale_row::kShortest
             ? std::nullopt
             : std::optional(Join(measured, " ", category, " ", PointsOrNone(points)));
}

std::string SommaSlxRow(std::string_view owner, std::string_view qso) {
  return Join(Call12(owner), ";", qso);
}

std::string SommaQsoRow(std::string_view qso, std::string_view category, std::string_view locator,
                        std::string_view owner) {
  return Join(qso, category, Loc6(locator), Call12(owner));
}

std::string PartecipanteRow(std::string_view call, std::string_view locator,
                            std::string_view category) {
  return Join(Call12(call), Loc6(locator), " ", category, " ", kBandCode);
}

std::string ModoRow(std::string_view call, std::string_view locator, int ssb_qsos, int cw_qsos) {
  return Join(Call12(call), Loc6(locator), " ", kBandCode, "  ",
              Counted("SSB=", ssb_qsos, modo_row::kSsb), "  ",
              Counted("CW =", cw_qsos, modo_row::kCw));
}

std::string TempiRow(std::string_view category, std::string_view call, int qsos, int hours,
                     int minutes) {
  return Join(category, "  ", Call12(call), Counted(qsos, tempi_row::kQsos), "Qso  ",
              Counted(hours, tempi_row::kHours), " ore  ", Counted(minutes, tempi_row::kMinutes),
              " minuti");
}

std::string StatisticaDxRow(std::string_view category, std::string_view call,
                            std::string_view locator, const DxClaim& dx) {
  return Join(category, " - ", Call12(call), Loc6(locator), " - ", dx.locator, "  ",
              Pad(dx.call, kCallWidth), "-  ", Pad(dx.distance, kDxDistanceWidth));
}

std::string ContestTeamRow(std::string_view call, std::string_view operators,
                           std::string_view more_operators) {
  return Join(Call12(call), " altri OP. :", operators, " ", more_operators);
}

std::string ControlLogRow(std::string_view call) {
  return Join(Call12(call), " log privo del modo di emissione");
}

std::string CwQsoRow(std::string_view owner, std::string_view owner_locator,
                     std::string_view section, std::string_view call, std::string_view locator,
                     std::string_view points) {
  const std::string_view shown = section.empty() ? "--- " : section;
  return PrintLine()
      .Text(Join(Replaced(Call12(owner), '/', '_'), owner_locator, " "))
      .Zone()
      .Text(Join(Left(shown, kCwSectionWidth), " - ", call, Pad(locator, kCwLocatorWidth), points))
      .Open();
}

std::string CwCallRow(std::string_view call, std::string_view category, std::string_view section,
                      int cw_qsos) {
  return Join(Call12(call), category, " ", Left(section, kCwSectionWidth), Str(cw_qsos));
}

}  // namespace velmar
