#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "model/columns.h"

namespace velmar {

/// The rows of the store files: their columns, for those who read, and the functions that make
/// them, without a line end. Where a call has its own columns, it is put in capitals and cut or
/// padded to 12, and the owner's locator is put in capitals and cut to 6. Empty points become "0".

/// The band code of the contest's category, as the rows have it.
inline constexpr std::string_view kBandCode = "144M";

/// "libreria.qso": one row for each QSO of every inserted log.
namespace libreria_row {
inline constexpr Column kOwner{1, 12}, kCall{13, 12}, kLocator{25, 6}, kPoints{32, kToTheEnd};
inline constexpr std::size_t kShortest = 30;  ///< a row of fewer characters is not written
static_assert(FollowOneAnother({kOwner, kCall, kLocator, {31, 1}, kPoints}));
}  // namespace libreria_row

/// Nothing where the row would be too short. A locator that has not six characters shifts the
/// points, which readers do not correct.
std::optional<std::string> LibreriaRow(std::string_view owner, std::string_view call,
                                       std::string_view locator, std::string_view points);

/// "libreria_totale.tot": the same with the category.
namespace libreria_totale_row {
inline constexpr Column kOwner{1, 12}, kCall{13, 12}, kLocator{25, 6}, kCategory{32, 3},
    kPoints{36, kToTheEnd};
inline constexpr std::size_t kShortest = 30;  ///< up to the locator, the rest is not measured
static_assert(FollowOneAnother({kOwner, kCall, kLocator, {31, 1}, kCategory, {35, 1}, kPoints}));
}  // namespace libreria_totale_row

/// Nothing where the part up to the locator is too short: unlike in LibreriaRow the points do not
/// help, and that is meant so.
std::optional<std::string> LibreriaTotaleRow(std::string_view owner, std::string_view call,
                                             std::string_view locator, std::string_view category,
                                             std::string_view points);

/// "somma_qso.slx": the owner, ";", and the QSO row as it stands.
namespace somma_slx_row {
inline constexpr Column kOwner{1, 12}, kQso{14, kToTheEnd};
static_assert(FollowOneAnother({kOwner, {13, 1}, kQso}));
}  // namespace somma_slx_row

std::string SommaSlxRow(std::string_view owner, std::string_view qso);

/// "somma_qso.qso": the QSO row as it stands, then category, locator and call of the owner. The
/// columns count in what stands behind the QSO row, which is the end of the row.
namespace somma_qso_row {
inline constexpr Column kCategory{1, 3}, kLocator{4, 6}, kOwner{10, 12};
inline constexpr std::size_t kBehindQso = 21;  ///< characters
static_assert(FollowOneAnother({kCategory, kLocator, kOwner}) && kOwner.end() == kBehindQso + 1);
}  // namespace somma_qso_row

std::string SommaQsoRow(std::string_view qso, std::string_view category, std::string_view locator,
                        std::string_view owner);

/// " partecipanti.par": one row for each log.
namespace partecipante_row {
inline constexpr Column kCall{1, 12}, kLocator{13, 6}, kCategory{20, 3}, kBand{24, 4};
inline constexpr Column kDeclaration{1, 18};  ///< call and locator
static_assert(FollowOneAnother({kCall, kLocator, {19, 1}, kCategory, {23, 1}, kBand}));
}  // namespace partecipante_row

std::string PartecipanteRow(std::string_view call, std::string_view locator,
                            std::string_view category);

/// "Classifica_modo.par": the modes of a log.
namespace modo_row {
inline constexpr Column kCall{1, 12}, kLocator{13, 6}, kBand{20, 4}, kSsb{26, 8}, kCw{36, 8};
static_assert(FollowOneAnother({kCall, kLocator, {19, 1}, kBand, {24, 2}, kSsb, {34, 2}, kCw}));
}  // namespace modo_row

/// The row ends with the CW field: the QSOs without a mode are not told.
std::string ModoRow(std::string_view call, std::string_view locator, int ssb_qsos, int cw_qsos);

/// "tempi.txt": the time on the air of a checked log.
namespace tempi_row {
inline constexpr Column kCategory{1, 3}, kCall{6, 12}, kQsos{18, 6}, kHours{29, 3}, kMinutes{38, 3};
static_assert(FollowOneAnother(
    {kCategory, {4, 2}, kCall, kQsos, {24, 5}, kHours, {32, 6}, kMinutes, {41, 7}}));
}  // namespace tempi_row

std::string TempiRow(std::string_view category, std::string_view call, int qsos, int hours,
                     int minutes);

/// The farthest QSO of a log: as computed, and as the log declares it.
struct DxClaim {
  std::string locator;   ///< computed
  std::string call;      ///< declared
  std::string distance;  ///< declared, km
};

/// " Statistica DX.cdx": the farthest QSO of each log.
std::string StatisticaDxRow(std::string_view category, std::string_view call,
                            std::string_view locator, const DxClaim& dx);

/// "-Contest Team.txt": the other operators of a log, as its two header rows tell them.
std::string ContestTeamRow(std::string_view call, std::string_view operators,
                           std::string_view more_operators);

/// " control_log.txt": a log with a QSO without a mode.
std::string ControlLogRow(std::string_view call);

/// " Qso_in_CW.CW": a CW QSO. `section` is the section of the log's operator, of which four
/// characters count.
std::string CwQsoRow(std::string_view owner, std::string_view owner_locator,
                     std::string_view section, std::string_view call, std::string_view locator,
                     std::string_view points);

/// " Call_con_qso_in_CW.CW": a log with CW QSOs, and how many.
std::string CwCallRow(std::string_view call, std::string_view category, std::string_view section,
                      int cw_qsos);

}  // namespace velmar
