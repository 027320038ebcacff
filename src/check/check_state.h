#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "check/classification_queue.h"
#include "check/library_split.h"

namespace velmar {

/// How far the desk is. Another classification does not change it.
struct CheckProgress {
  bool classifica_da_salvare = false;  ///< a row was updated and is not written yet
  bool controllo_in_corso = false;
  bool salta_conferma = false;      ///< the next start is not asked about
  bool primo_vuoto_scelto = false;  ///< no start is asked about
};

/// What the desk holds between two actions of the manager. All of it is lost when it is left.
struct CheckState {
  CheckProgress progress;

  // The classification.
  std::string categoria;            ///< three letters
  std::string classification_path;  ///< it was read from
  ClassificationQueue queue;

  // The call under examination.
  std::string call_in_esame;      ///< empty ahead of the first check
  std::string locatore_in_esame;  ///< of its log
  std::string dx_call;            ///< of its row
  std::size_t indice_riga = 0;    ///< of its row in the queue
  double qrb_ufficiale = 0;       ///< points before the check
  double qrb_finale = 0;          ///< points that are left
  double err_qrb = 0;             ///< points taken away
  int err_count = 0;              ///< penalised errors
  int next_index = 1;             ///< of the next line in the error list
  std::string library;            ///< the text that the two lists of QSOs point into
  LibrarySplit qsos;

  // The doubt that is selected.
  std::string declared_locator;   ///< what its station declares, the first choice of a correction
  bool errore_in_arrivo = false;  ///< the doubts come from the participants' own logs
  bool errore_forzato_call = false;  ///< the log's own call, to be taken as it stands
  bool believed_wrong = false;

  // The later checks of the call.
  std::size_t time_errors = 0;  ///< QSOs that the time check listed
  bool report_mode = false;     ///< the list of times is one of reports
  std::string call_forzato;     ///< to be taken for wrong
  bool errore_forzato = false;  ///< the list of unique calls holds the forced one
  bool judged_wrong = false;    ///< a likely correct call was found for the selected one
  bool unique_checked = false;  ///< the result may be written
  bool unici_saltati = false;   ///< the check of unique calls was left out
};

}  // namespace velmar
