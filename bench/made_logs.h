#pragma once

#include <cstddef>
#include <string>

namespace velmar::bench {

/// Made-up stations, numbered from 0; there are this many with a call of their own. No call is held
/// by another one.
inline constexpr std::size_t kMadeStations = 33'800;

/// The call of a station, six characters with a suffix that begins with "Q".
std::string MadeCall(std::size_t station);

/// The locator of a station, in one of the two fields that Italy lies in.
std::string MadeLocator(std::size_t station);

/// The log of a station with `qsos` QSOs, each with another station in the hour of the contest: of
/// the usual form, with CR LF, and without a fault or a row to be repaired, so that it goes all the
/// way to being filed. The same numbers give the same bytes everywhere. `qsos` is less than
/// kMadeStations.
std::string MadeLog(std::size_t station, std::size_t qsos);

/// Writes the logs of as many stations into a folder, which is made if need be, each named by its
/// call.
void WriteMadeLogs(const std::string& folder, std::size_t logs, std::size_t qsos);

}  // namespace velmar::bench
