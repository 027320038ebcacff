#include "intake/insertion_messages.h"

#include "model/edi_log.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

/// A date YYMMDD as it is shown, or that there is none.
std::string ShownDate(std::string_view date) {
  return Trim(date).empty() ? " riga vuota "
                            : Join(Mid(date, 1, 2), "-", Mid(date, 3, 2), "-", Mid(date, 5, 2));
}

std::string OwnCall(const IntakeState& log) {
  return std::string(Trim(log.own_call));
}

Box PointsBox(const IntakeState& log, bool missing) {
  if (missing) {
    return {.lines = {" ATTENZIONE ",
                      " alla riga 29 (CQSOP=) manca il numero del punteggio dichiarato.",
                      " Questo dato NON è optional, è calcolato dal programma utilizzato "_a,
                      " per generare il file edi e non deve essere mancante",
                      " Questo log non può essere inserito."_a, " ",
                      " Inserisci in quella riga il valore che c'è alla riga 'CQSOP=' "_a,
                      " sulla stessa intestazione del log"}};
  }
  return {.lines = {
              " ATTENZIONE ",
              " alla riga 29 (CQSOP=) deve comparire SOLO il numero del punteggio effettuato",
              " Questo dato NON è optional o modificabile, è calcolato dal programma utilizzato "_a,
              " per generare il file edi e non deve essere modificato.",
              " Questo log non può essere inserito."_a, " ",
              " In questa riga deve esserci SOLO un numero e nessun altro simbolo o lettera ",
              " esempio dati  corretti : CQSOP=43220",
              Join(" invece è stato trovato : "_a, log.Row(header_row::kPoints))}};
}

Box NoTotalBox() {
  return {.lines = {" ATTENZIONE ",
                    " alla riga 36 (CToSc=) manca il valore del punteggio totale ottenuto.",
                    " Questo dato NON è optional, è calcolato dal programma utilizzato "_a,
                    " per generare il file edi e non deve essere mancante o manomesso.",
                    " Questo log non può essere inserito."_a, " ",
                    " Inserisci in quella riga il valore del totale dei punti di tutti i qso",
                    " File spostato in ......\\Log da ricontrollare"}};
}

Box BadDxBox() {
  return {.lines = {" ATTENZIONE nel log alla riga CODXC i dati non sono corretti",
                    " nella riga relativa la qso DX. CODXC=        ",
                    " I dati possono essere omessi ma i 2 ;; devono esserci. ",
                    " Correggi il log manualmente. Inserimento annullato", " ",
                    " File è stato spostato in ...\\Log da ricontrollare"_a}};
}

/// The counts of a log that have to agree.
struct Counts {
  explicit Counts(const IntakeState& log)
      : total(log.totals.rows), valid(total - log.totals.error_rows - log.totals.doubles) {}

  int total;
  int valid;
};

Box DoublesDifferBox(const IntakeState& log) {
  const double corrected = Val(log.declared_qsos) - log.totals.doubles;
  return {.lines = {
              " A T T E N Z I O N E  i qso da inserire NON corrispondono ai qso dichiarati.",
              Join(" i qso dichiarati validi sono: ", log.declared_qsos,
                   "  i qso totali nel log sono : ", Counts(log).total),
              Join(" ma nel log c'è/ci sono "_a, log.totals.doubles, " qso doppi o qso errore "),
              "                              ", Join(" Correggi il Log di ", OwnCall(log)),
              Join(" Alla riga ", log.Row(header_row::kQsos)),
              Join("      sostituisci ", log.declared_qsos, "   con   ", Trim(StrReal(corrected))),
              " Il log non può essere inserito."_a}};
}

}  // namespace

Box NoLogsBox() {
  return {.lines = {" Attenzione, nella cartella del programma,",
                    " (03 Log da inserire), NON ci sono log da inserire."}};
}

Box NoMonthBox() {
  return {.lines = {" devi inserire il mese del contest. ",
                    " da: menu 'Controllo' --->  Assegna nome mese allo Velmar"}};
}

Box UnfinishedNameBox() {
  return {.lines = {" questo file deve essere corretto/rinominato prima di caricarlo"}};
}

Box BadNameBox(const IntakeState& log) {
  return {.lines = {Join(" il nome del file : ''", log.log_name,
                         "'' , non è corretto. Inserimento annullato."_a)}};
}

Box BadDateBox(const IntakeState& log, std::string_view contest_date) {
  return {.lines = {"                                 ATTENZIONE                 ",
                    Join("     nel log di  ", log.log_name), " le date dei qso       ",
                    "     non corrispondono ai giorni del contest.               ", "     ",
                    Join("     La data del contest è :  20"_a, ShownDate(contest_date)),
                    Join("     sul log risulta che la data del qso è : <20"_a,
                         ShownDate(log.last_row_date), " >     "),
                    "  ", "     Il file sarà spostato nella directory 'log da ricontrollare'"_a,
                    "     è sarà necessario uscire e correggere il log manualmente.   "_a},
          .icon = Icon::kStop};
}

Box BadFirstRowBox(const IntakeState& log) {
  const std::string_view row = log.Row(1);
  return {
      .lines = {Join("                      Problemi con log di:  ", log.log_name, "   "),
                " Controlla che l'intestazione sia conforme alle direttive IARU REG 1  ",
                " riga 1 non conforme = ",
                Join("-", row, "- ci sono ", row.size(), " e non 12 caratteri. Controlla il log")}};
}

Box NoQsosBox(const IntakeState& log, std::string_view row) {
  return {.lines = {" Attenzione  ", " In questo log è stato dichiarato che i qso sono ZERO "_a,
                    Join(" controlla la riga  ", row, " del log"),
                    " NON è possibile inserire un log con ZERO qso."_a, "  ",
                    Join(" propritario = ", log.log_name)}};
}

Box NameWithoutDigitBox() {
  return {.lines = {" ATTENZIONE,  nel nome di questo log non c'è il numero."_a,
                    " Esci dal programma e correggi il nome del log manualmente.",
                    " Inserimento annullato."}};
}

Box NoHeaderBox() {
  return {.lines = {" problemi con intestazione  assicurati che sia un file .EDI"}};
}

Box MissingKeyBox(const IntakeState& log, const HeaderKey& key) {
  return {.lines = {Join(key.message, " invece ho trovato : ", log.Row(key.row))}};
}

Box BadHeaderBox() {
  return {.lines = {" lettura  interrotta, controlla il file EDI esterno a questo programma",
                    " il file è stato spostato nella dir 'Log da ricontrollare'"_a},
          .icon = Icon::kStop};
}

Box NoLocatorBox() {
  return {.lines = {" in questo log NON c'è dichiarato il locatore"_a}};
}

Box OwnLocatorBox(bool in_header) {
  return {.lines = {Join(" LOCATORE ERRATO     programma terminato - controlla log",
                         in_header ? " " : "")}};
}

Box ForeignLocatorQuestion(const IntakeState& log) {
  return {
      .lines = {" A T T E N Z I O N E !!!!",
                " Il nominativo del log è italiano ma il locatore dichiarato NON è in italia."_a,
                Join(" Il locatore dichiarato è : "_a, log.own_locator,
                     "   Gli squares italiani sono solo JN o JM."),
                "  ", " Vuoi confermare questo locatore ?", "    ",
                " SI= avanti         NO= salta log         ANNULLA= interrompi e esci"},
      .icon = Icon::kStop,
      .title = " Conferma Locatore ",
      .buttons = Buttons::kYesNoCancel,
      .default_button = 2};
}

Box ValueFaultBox(const IntakeState& log, ValueFault fault) {
  switch (fault) {
    case ValueFault::kCallWithoutDigit:
      return {.lines = {" ATTENZIONE il call non ha il numero.",
                        " Esci dal programma e correggi il log manualmente.",
                        " Inserimento annullato,", " File spostato in ...\\Log da ricontrollare"}};
    case ValueFault::kZeroQsos:
      return {.lines = {" sono stati dichiarati ZERO qso ",
                        " se non ci sono qso, il log non può essere inserito. Controlla"_a}};
    case ValueFault::kBadPoints:
    case ValueFault::kNoPoints:
      return PointsBox(log, fault == ValueFault::kNoPoints);
    case ValueFault::kNoTotal:
      return NoTotalBox();
    case ValueFault::kBadDx:
      break;
  }
  return BadDxBox();
}

Box UnusableRowBox(std::size_t row) {
  return {.lines = {Join(" errore inaspettato . probabili dati alterati riga ", row,
                         " nell'intestazione. Log manipolato")}};
}

Box ControlLogBox() {
  return {.lines = {" il call vuole essere Control log. Inserimento annullato"}};
}

Box WrongCategoryBox() {
  return {.lines = {" ATTENZIONE,  !!!  Freq. o Categoria mancante o errata  !!!"},
          .icon = Icon::kStop};
}

Box CorrectCategoryBox() {
  return {.lines = {" Prego correggere Frequenza / categoria "}};
}

Box CategoryQuestion() {
  return {.lines = {" Vuoi proseguire ?    (SI) assegno cat/freq       (NO) sposta file"},
          .icon = Icon::kQuestion,
          .title = "Sposto file in: LOG DA RICONTROLLARE",
          .buttons = Buttons::kYesNo};
}

Box UpdateCategoryBox() {
  return {.lines = {"Aggiorna Categoria/Freq. e RICARICA il file"}};
}

Box MoreValidThanRowsBox(const IntakeState& log) {
  if (!log.qso_records_seen) {
    return {
        .lines = {" Attenzione log non inseribile. ",
                  " NON è stato trovata la riga contenente la parola chiave [QSORecords;....]"_a,
                  " Controlla che sia scritta correttamente senza spazi vuoti,",
                  " che rispetti le maiuscole, minuscole, e che",
                  " contenga il numero di qso effettivi a log"}};
  }
  return {.lines = {" Attenzione log non inseribile. ",
                    " Nel log che  si sta leggendo il numero di qso dichiarati validi,",
                    " sono maggiori del numero totale di qso esistenti.",
                    " Questo non è posibile."_a}};
}

Box NotRecalculatedBox() {
  return {.lines = {"Il file caricato non è stato processato con il ricalcolo del qrb."_a,
                    "Questo log non può essere inserito."_a}};
}

Box AlreadyInsertedBox() {
  return {.lines = {" log già inserito in questa categoria"_a}};
}

Box CountsDifferBox(const IntakeState& log) {
  if (log.totals.doubles > 0) {
    return DoublesDifferBox(log);
  }
  const Counts counts(log);
  const std::string& declared = log.declared_qsos;
  return {.lines = {
              Join("                  A T T E N Z I O N E      nel log di ", log.log_name),
              " I qso da inserire NON corrispondono al numero di qso dichiarati a log.",
              Join(" i qso dichiarati validi sono : ", declared,
                   " , i qso totali nel log sono : ", counts.total),
              " ",
              " Nella riga 'CQSOs=' ci deve essere il numero di qso VALIDI che ci sono nel log.",
              " (per validi si intende i qso totali meno i qso ERROR e doppi).", "  ",
              " in pratica la riga :",
              Join(" CQSOs=", declared, ";1 e la riga [QSORecords;", counts.total,
                   "] devono contene lo stesso numero "),
              " se non ci sono qso doppi o error.", "   ",
              Join(" Il programma ha rilevato ", log.totals.error_rows, " qso error e  ",
                   log.totals.doubles, " qso doppi"),
              "  ",
              Join(" Nella riga 'CQSOs=", declared,
                   " deve esserci il numero di qso validi a log che sono  ", counts.valid),
              " ", Join(" I qso totali sono: ", counts.total),
              Join(" La riga [QSORecords;", log.declared_rows, "]  deve contenere ", counts.total),
              " ", " il log non può essere inserito. Correggi"_a}};
}

Box OtherCategoryBox(const IntakeState& log) {
  constexpr std::size_t kShownOfName = 2;  // one less than the category has, and meant so
  return {.lines = {" La categoria DICHIARATA nel file è diversa da quella indicata nel NOME del "
                    "file"_a,
                    Join(" Categoria dichiarata =  [ ", log.category,
                         " ] categoria nel nome file = [", Left(log.log_name, kShownOfName), "]"),
                    " inserimento del file annullato.  Esci e correggi.", "  ",
                    " Il file sarà spostato nella directory 'Log da ricontrollare'"_a}};
}

Box LogTroubleBox() {
  return {.lines = {" Il LOG ha dei problemi, impossibile effettuare l' inserimento (controlla)"}};
}

Box NoFileBox() {
  return {.lines = {" il file non è stato trovato"_a}};
}

}  // namespace velmar
