#include "intake/pass_messages.h"

#include "model/edi_log.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

std::string OwnCall(const IntakeState& log) {
  return std::string(Trim(log.own_call));
}

/// A box about the time of a QSO: its head, what is wrong, and its end.
Box TimeBox(const IntakeState& log, const QsoProblem& problem, std::string first,
            std::string second = "") {
  Box box{.lines = {Join(" Log di ", OwnCall(log), "  Orario non valido. Ora = ", problem.time),
                    "    ", problem.row, " ", std::move(first)}};
  if (!second.empty()) {
    box.lines.push_back(std::move(second));
  }
  box.lines.emplace_back(" Inserimento annullato. ");
  box.lines.emplace_back(" Il log stato spostato in ....\\Log da ricontrollare");
  return box;
}

Box NoModeBox(const QsoProblem& problem) {
  std::size_t end = problem.row.find(';');  // becomes the end of the call
  for (std::size_t field = edi::kDateField; field < edi::kCallField; ++field) {
    end = problem.row.find(';', end + 1);
  }
  return {.lines = {Join("il qso n°"_a, problem.number, " è privo del modo di emissione."_a),
                    problem.row, " Tra la fine del call e il primo '59' ci deve eseere un numero",
                    " compreso fra i due punti e virgola. ", "  ",
                    Join(" esempio di correzzione: ", Left(problem.row, end),
                         " 1 ; 59;... qso in ssb ")},
          .title = "LOG non valido"};
}

Box SelfBox(const IntakeState& log, const QsoProblem& problem) {
  return {.lines = {
              Join("In questo log il qso con ", problem.call,
                   " è uguale al proprietario del log ("_a, OwnCall(log), ")"),
              "    ", " ", problem.row, "  ",
              " Non è possibile inserire SE STESSI nel log. Se è un qso da considerare errato, "_a,
              " è nessario segnalarlo con ERROR e non inserire lo stesso call del log."_a,
              Join(" Sostituisci ", problem.call, " con 'ERROR'     qso numero ", problem.number,
                   "  ")}};
}

Box QsoLocatorBox(const QsoProblem& problem) {
  return {
      .lines =
          {Join("  Il locatore ", problem.locator, " del QSO n° "_a, problem.number, " di ",
                problem.call, " è SBAGLIATO."_a),
           "                     ",
           Join(" Controlla numeri e lettere, non ci possono essere numeri oltre ai due centrali, ",
                "verifica la lettera O con lo zero 0 "),
           Join("                                 ",
                "le lettere valide sono da AA a XX, non validi Y e Z."),
           " Il log verrà inserito ugualmente ma DECURTATO del punteggio con locatore errato."_a,
           " Prendi nota del qso per verifiche sucessive, se il qso non ha altri errori non "
           "verrà visualizzato e il punteggio finale è corretto."_a,
           "    ",
           Join(" Con questo locatore errato non si potranno fare delle ricerche di altri call su ",
                "questo locatore inesistente."),
           " Controlla che non sia un qso doppio nel quale non risulta il locatore. "},
      .icon = Icon::kStop,
      .title = " LOCATORE ERRATO"};
}

}  // namespace

Box NoRowsBox() {
  return {.lines = {"problemi con il file edi (non ci sono qso), controlla !!!"}};
}

Box ProblemBox(const IntakeState& log, const QsoProblem& problem) {
  switch (problem.fault) {
    case QsoFault::kEarly:
      return TimeBox(log, problem, " Il qso risulta fatto prima dell' inizio del contest");
    case QsoFault::kLate:
      return TimeBox(log, problem, " Il qso risulta fatto dopo la fine del contest",
                     " Non possono esscerci qso oltre le ore 11.00 GMT ");
    case QsoFault::kTimeFormat:
      return TimeBox(log, problem, " l' orario del qso risulta in formato errato ",
                     " Formato ora : 4 cifre senza altri segni. ES. ora '17:00' va scritto '1700'");
    case QsoFault::kSelf:
      return SelfBox(log, problem);
    case QsoFault::kNoMode:
      return NoModeBox(problem);
    default:
      return QsoLocatorBox(problem);
  }
}

Box RowCountBox(const IntakeState& log) {
  return {
      .lines = {" Il numero di qso dichiarato NON coincide con i qso nel log.  CONTROLLA ",
                Join(" qso dichiarati= ", log.declared_rows, "   qso letti =", log.RowsBetween()),
                " Inserimento log annullato.",
                " Il log è stato spostato in ...\\Log da ricontrollare"_a}};
}

Box PassFailedBox() {
  return {.lines = {" ATTENZIONE !!!   Il log ha dei problemi , inserimento annullato. "}};
}

Box NoSectionBox() {
  return {.lines = {" Devi selezionare una sezione prima di inserire il log,",
                    " poi salva la sezione sul log e rileggi il log."}};
}

Box TimesFileBox() {
  return {.lines = {" si è verificato un errore durante l' accesso al file tempi.txt"_a,
                    " cio è possibile solo se non hai le autorizzazioni per questo PC"_a,
                    " oppure non hai eseguito il programma come amministartore"}};
}

Box NeedsCategoryBox() {
  return {.lines = {" devi aggiornare la categoria prima di inserire il file"}};
}

Box LibraryRowBox(std::string_view row) {
  return {.lines = {Join(" ATTENZIONE   Log con errore non identificato alla riga", row)}};
}

Box TotalLibraryRowBox(std::string_view row, std::string_view call) {
  return {.lines = {Join(" ATTENZIONE   errore non identificato alla riga", row),
                    Join(" del log di ", Trim(call))}};
}

Box SamePlaceBox() {
  return {.lines = {" Hai manipolato un file che era nella directory di destinazione. Azione "
                    "annullata.(4)"}};
}

}  // namespace velmar
