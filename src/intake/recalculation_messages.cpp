#include "intake/recalculation_messages.h"

#include <vector>

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

Box SemicolonsBox(const std::string& name, const LogFault& fault) {
  return {.lines = {Join(" il log di ", name, " è errato non è possibile elaborarlo"_a), "   ",
                    " in questo log i delimitatori dei campi dati (;) non sono in numero corretto",
                    " controlla se ogni qso abbia 14 punti e virgola.", "  ",
                    Join(" Nel qso ", fault.number, " sotto elencato ci sono ", fault.semicolons,
                         " punti e virgola al posto di 14."),
                    " Correggi manualmente il log e ripeti il controlo.",
                    Join(" il qso che crea problemi è:"_a, fault.text),
                    " Il file è stato spostato nella directory di ricontrolo."_a}};
}

Box QsoLocatorBox(const std::string& name, const LogFault& fault) {
  return {
      .lines = {" LOCATORE ERRATO",
                Join("Il locatore del QSO n° "_a, fault.number, " nel log di ", name,
                     " risulta essere \"", fault.text, "\"   probabilmente è SBAGLIATO."_a),
                "                     ",
                " Controlla numeri e lettere. Non ci possono essere numeri oltre ai due centrali,",
                " verifica la lettera O con lo zero 0, ",
                " le lettere valide sono: da AA a XX. Non sono validi le lettere Y e Z.",
                " Forse manca qualche punto e virgola.",
                " Il file è stato spostato. Correggi locatore qso"_a, "  "}};
}

std::vector<std::string> ObsoleteWriterIntroduction(const std::string& name) {
  return {" ATTENZIONE ",
          Join(" il log di \"", name, "\" è stato scritto con un programma obsoleto,"_a),
          " del quale si è a conoscenza dell' errore prodotto. "_a,
          " Il programma crea sulla terza riga un scritta supplementare che non deve esserci",
          " elimina la terza riga con la scritta '-SUP' dell' intestazione",
          "  "};
}

Box ObsoleteWriterBox(const std::string& name, const LogFault& fault) {
  Box box{.lines = ObsoleteWriterIntroduction(name)};
  for (std::size_t i = 0; i < fault.heading.size(); ++i) {
    box.lines.push_back(Join(" riga ", i + 1, "    ", fault.heading[i]));
  }
  box.lines.insert(box.lines.end(), {"  ", " Elimina la riga 3, salva e ripeti procedura"});
  return box;
}

Box MissingKeyBox(const std::string& name, const LogFault& fault) {
  Box box{.lines = {Join(" Attenzione nel log di ", name, " manca la riga numero ", fault.number,
                         "  ", fault.text)}};
  switch (fault.number) {
    case 4:
      box.lines.insert(
          box.lines.end(),
          {" Nel log manca il nominativo del log. Programma terminato ", " Esci e correggi"});
      break;
    case 5:
      box.lines.emplace_back(" Nel log manca il Locatore. Programma terminato ");
      break;
    case 6:
      box.lines.emplace_back(" Programma terminato. Esci e correggi");
      break;
    case 9:
      box.lines.emplace_back(" Nel log manca la categoria di partecipazione. Programma terminato ");
      break;
    default:
      box.lines.emplace_back(" Nel log manca la Frequenza di partecipazione. Programma terminato ");
  }
  return box;
}

}  // namespace

Box RefusalBox(const std::string& name, const LogFault& fault) {
  switch (fault.kind) {
    case LogFaultKind::kSemicolons:
      return SemicolonsBox(name, fault);
    case LogFaultKind::kQsoLocator:
      return QsoLocatorBox(name, fault);
    case LogFaultKind::kObsoleteWriter:
      return ObsoleteWriterBox(name, fault);
    case LogFaultKind::kMissingKey:
      return MissingKeyBox(name, fault);
    default:
      return OwnLocatorBox(fault.own_call, fault.own_locator);
  }
}

Box ForeignLocatorBox(const LogFault& fault) {
  return {.lines = {" A T T E N Z I O N E !!!!",
                    Join(" Il nominativo del log è italiano ("_a, fault.own_call,
                         ") ma il locatore dichiarato NON è in italia."_a),
                    Join(" Il locatore dichiarato è : "_a, fault.own_locator),
                    "   Gli squares italiani sono solo JN o JM.", "  ",
                    " Vuoi confermare questo locatore ?", "    ",
                    " SI = avanti         NO = sposta il file "},
          .icon = Icon::kQuestion,
          .title = " Conferma Locatore ",
          .buttons = Buttons::kYesNo};
}

Box OwnLocatorBox(const std::string& own_call, const std::string& own_locator) {
  return {.lines = {Join(" Il Locatore di ", own_call, " è errato "_a, own_locator),
                    " programma terminato - controlla log e ripeti procedura"}};
}

Box RepairBox(const std::string& name, const RowRepair& repair) {
  const bool colon = repair.found == ':';
  return {.lines = {Join(" attenzione carattere non valido del qso alla riga ", repair.line),
                    Join(" del log di   ", name), "   ",
                    colon ? " C'è un due punti (:)  al posto del (;) punto e virgola"_a
                          : " C'è un punto (.)  al posto del (;) punto e virgola "_a,
                    Join(" nella posizione del carattere numero ", repair.position),
                    " il programma corregge automaticamente l' errore.", "  ",
                    Join(colon ? " qso originale = " : " qso  originale  = ", repair.before), "  ",
                    Join(colon ? " qso corretto  = " : " qso  corretto   = ", repair.after)}};
}

std::string RefusalSuffix(const LogFault& fault) {
  switch (fault.kind) {
    case LogFaultKind::kSemicolons:
      return " - mancano punti virgola, no 14.edi";
    case LogFaultKind::kQsoLocator:
      return Join(" - qso ", fault.number, " con locatore non valido.edi");
    case LogFaultKind::kObsoleteWriter:
      return " - intestazione con programma errato.edi";
    default:
      return " + manca locatore partenza.edi";
  }
}

}  // namespace velmar
