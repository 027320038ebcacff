#include "publish/export_messages.h"

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr std::string_view kRepeat = " programma terminato. Riavvia e ripeti";

int NumberOf(const RunTimeError& error) {
  return static_cast<int>(error.number());
}

std::string ErrorAt(const RunTimeError& error, int step) {
  return Join(" errore numero ", NumberOf(error), "  riga ", step);
}

}  // namespace

std::optional<Box> FatalExportBox(const RunTimeError& error, int step, std::string_view file,
                                  bool creating) {
  const std::string where = ErrorAt(error, step);
  const std::string repeat(kRepeat);
  switch (error.number()) {
    case ErrorNumber::kPermissionDenied:
      return Box{.lines = {" Accesso negato al file. ( il file è aperto da altro prog.)"_a,
                           Join(" Chiudi il programma che impegna il file :", file),
                           Join(" Errore 70 ", " riga ", step),
                           " Programma terminato. Riavvia e ripeti"}};
    case ErrorNumber::kServerGone:
      return Box{.lines = {" Probabilmente excel è stato chiuso e non è "_a,
                           Join(" possibile prelevare informazioni.  err 462 ", "riga ", step),
                           repeat}};
    case ErrorNumber::kSubscript:
      return Box{.lines = {" Probabilmente ci sono delle istanze aperte di excel",
                           " oppure il programma fa riferimento a un foglio che non esiste.",
                           " Accertati che excel all' avvio abbia tre fogli di default.", where,
                           repeat}};
    case ErrorNumber::kObjectNotSet:
      if (creating) {
        return Box{
            .lines = {" Il programma excel è stato avviato prima dell' esecuzione di questo"_a,
                      " programma ma non è stato chiuso. Chiudere tutte le istanze di excel."_a,
                      where, repeat}};
      }
      return Box{.lines = {" Probabilmente ci sono delle istanze aperte di excel",
                           " oppure il programma fa riferimento a un foglio che non esiste.", where,
                           repeat}};
    case ErrorNumber::kNoApplication:
      return Box{
          .lines = {" Impossibile proseguire. sono stati cancellati alcuni valori nel registro",
                    " di automatizzazione nel registro di windows ,forse a causa di qualche ",
                    Join(" disinstallazione di qualche programma, non sono reperibili ",
                         "alcunifil e comuni."),
                    " Assicurati che sia installato e funzionante il programma excel", where,
                    " programma terminato. "}};
    case ErrorNumber::kLibraryMissing:
      return Box{.lines = {" Impossibile proseguire. sono mancanti alcuni riferimenti nel registro",
                           " di automatizzazione del registro di windows,forse a causa di qualche ",
                           Join(" disinstallazione di qualche programma, non sono reperibili ",
                                "alcuni file comuni."),
                           where, " programma terminato. "}};
    default:
      return std::nullopt;
  }
}

Box UnsavedBox(const RunTimeError& error, int step) {
  return {.lines = {" FILE NON SALVATO. ",
                    " Possibili cause : ", " 1) il file è aperto da un alto programma."_a,
                    " 2) c'è un' altra istanza di excel aperta. Controlla nel "_a,
                    "    'task manager', chiudi eventuali istanze aperte. Esci e ripeti.",
                    Join(" 3) controlla che sia installata una stampante.   riga ", step,
                         " errore ", NumberOf(error)),
                    " Programma terminato. Riavvia e ripeti"}};
}

Box UnexpectedExportBox(const RunTimeError& error, int step, std::string_view version) {
  return {.lines = {Join(" errore numero: ", NumberOf(error), " nella linea : ", step,
                         " 10101 excel    ver_", version)}};
}

Box UnfinishedBox(const RunTimeError& error, int step) {
  return {.lines = {" ERRORE. ", " file non terminato per errore imprevisto : ", " ", " ", " ",
                    Join(" Riga ", step, " Errore ", NumberOf(error))}};
}

}  // namespace velmar
