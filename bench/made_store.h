#pragma once

#include <cstddef>
#include <string>

namespace velmar::bench {

/// The files of a store that the check of a log reads, as the filing of made-up logs leaves them.
struct MadeStore {
  std::string library;
  std::string total_library;
  std::string somma_qso;
  std::string participants;
  std::string classification;  ///< no log has been checked
};

/// A store of as many logs as told, each with its share of the QSOs, `rows` in all. The log number
/// `n`, counted from 0, is that of the station `n`. More than a third of the stations that they
/// worked sent none; the others have the QSO as well. About one QSO in fifty has a locator that is
/// not the station's, one in twenty a call that no station has, and as many a time that is far from
/// that in the other log. The same numbers give the same bytes everywhere. One and a half times the
/// logs and the QSOs of a log are less together than kMadeStations.
MadeStore MakeStore(std::size_t rows, std::size_t logs);

}  // namespace velmar::bench
