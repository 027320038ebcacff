#include "check/locator_messages.h"

#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr std::string_view kCheckLetters = " è SBAGLIATO  controlla numeri e lettere"_a;
const std::string kZeroHint =
    " non ci possono essere numeri oltre ai due centrali, verifica la lettera O con lo zero ";
const std::string kLetterHint = " le lettere valide sono da AA a XX, non validi Y e Z";

}  // namespace

Box BrokenLocatorOnReading(std::string_view locator, std::size_t qso, std::string_view call) {
  return {
      .lines = {Join(" il locatore ", locator, " del QSO n° "_a, qso, " di ", call, kCheckLetters),
                kZeroHint, kLetterHint}};
}

Box BrokenLocatorOfDoubt(std::string_view locator) {
  return {
      .lines = {Join(" il locatore ", locator, kCheckLetters), kZeroHint, kLetterHint,
                Join(" Verifica se il qso è stato decurtato in inserimento log , in questo caso "_a,
                     "consideralo qso valido perchè già tolti i punti del qso"_a),
                Join(" con questo locatore errato non si potranno fare delle ricerche di altri ",
                     "call su questo locatore inesistente")},
      .title = " LOCATORE ERRATO"};
}

Box BrokenLocatorOfUnique(std::string_view locator) {
  return {.lines = {Join(" il locatore ", locator, " è SBAGLIATO "_a), kZeroHint,
                    " IL PUNTEGGIO E' GIA' STATO DECURTATO IN ''INSERIMENTO LOG''",
                    " considera il qso valido per non togliere 2 volte il lo stesso punteggio"}};
}

Box MissingParticipants() {
  return {.lines = {" Il file dei partecipanti è assente. Attenzione "_a}};
}

}  // namespace velmar
