#include "session/failure.h"

#include "model/text.h"

namespace velmar {

Box FailureBox(const RunTimeError& error, int step, std::string_view tag) {
  return {.lines = {Join(" errore imprevisto numero: ", static_cast<int>(error.number()),
                         " nella linea : ", step, tag)}};
}

Box NoPrinterBox() {
  return {.lines = {" Nessuna stampante installata. "}};
}

}  // namespace velmar
