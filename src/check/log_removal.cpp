#include "check/log_removal.h"

#include <string>
#include <utility>

#include "model/classification_row.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr int kHeaderRow = 0;

Box Question(std::string_view title, std::string_view text, Buttons buttons) {
  return {.lines = {std::string(text)},
          .icon = Icon::kQuestion,
          .title = std::string(title),
          .buttons = buttons};
}

}  // namespace

void LogRemoval::Cancella_log_Click() {
  armed_ = true;
  manager_.Show(
      {.lines = {" Cancellazione abilitata. Seleziona il log in classifica che vuoi cancellare"}});
}

bool LogRemoval::Confirmed() {
  return manager_.Show(Question(" Cancellazione LOG selezionato",
                                " ATTENZIONE sei sicuro di questa operazione ? ",
                                Buttons::kYesNoCancel)) == Reply::kYes &&
         manager_.Show(Question(" Il LOG sarà cancellato dalla classifica"_a, " PROCEDO ? ",
                                Buttons::kYesNo)) == Reply::kYes &&
         manager_.Show(Question(" V A R T O  Velmar", " Cancello il LOG ?", Buttons::kYesNo)) ==
             Reply::kYes;
}

void LogRemoval::visualizza_classifica_Click() {
  const auto row = form_.visualizza_classifica.ChosenRow();
  if (!armed_ || !row || form_.visualizza_classifica.selection == kHeaderRow || !Confirmed()) {
    return;
  }
  armed_ = false;
  const std::string call(Trim(ClassificaRow(*row).Call()));
  removed_ = true;  // also where it breaks off: the queue is no longer sure
  const Removal removal = store_.RemoveOwner(call, state_.categoria, session_.category_month);
  if (!removal.rewritten) {
    manager_.Show({.lines = {" la classifica non esiste oppure è corrotta"_a}});
    return;
  }
  TellMissing(removal);
  queue_.ShowWideRows();
}

void LogRemoval::TellMissing(const Removal& removal) {
  if (removal.classification_missing) {
    manager_.Show({.lines = {" la classifica non esiste oppure è corrotta"_a}});
  }
  for (const StoreFile file : removal.missing) {
    const std::string_view what = [file]() -> std::string_view {
      switch (file) {
        case StoreFile::kPartecipanti:
          return " Il file dei partecipanti è assente. Attenzione "_a;
        case StoreFile::kLibreria:
          return " Il file della libreria di categoria è assente. Attenzione "_a;
        case StoreFile::kLibreriaTotale:
          return " il file 'libreria_totale.tot' di categoria è assente. Attenzione "_a;
        case StoreFile::kTempi:
          return " il file dei tempi contest è assente. Attenzione "_a;
        case StoreFile::kModi:
          return " il file del modo qso dei partecipanti è assente. Attenzione "_a;
        default:
          return {};
      }
    }();
    if (!what.empty()) {
      manager_.Show({.lines = {std::string(what)}});
    }
  }
}

void LogRemoval::esci_da_cla_Click() {
  armed_ = false;
  queue_.LeaveWideView();
  if (std::exchange(removed_, false)) {
    queue_.Clear();
    state_.progress = {};  // it spoke of the queue that is gone
    manager_.Show(
        {.lines = {" è necessario rileggere la classifica aggiornata dopo una cancellazione"_a}});
  }
}

}  // namespace velmar
