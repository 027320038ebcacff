#include "utility/absent_form.h"

#include "model/text.h"

namespace velmar {

AbsentForm::AbsentForm() : Form("VLM2M_10_assenti", "V A R T O  Velmar - Assenti") {
  Clear();
}

Label& AbsentForm::AddFigure(const std::string& name, const std::string& title) {
  Label& caption = In(Frame_log, AddLabel(Join("titolo_", name), title));
  Label& value = In(Frame_log, AddLabel(name));
  figures_.emplace_back(&caption, &value);
  return value;
}

void AbsentForm::Clear() {
  for (Label* label : {&Log_inviati, &call_effettivi, &qsofraita, &qso_con_esteri, &call_T,
                       &call_log, &perc_log_inv, &no_log, &perc_assenti, &Call_mancanti,
                       &LB_list_libreria, &LB_call_ass, &LB_lista}) {
    label->caption.clear();
  }
  for (List* list : {&List_libreria, &Call_assenti, &Lista}) {
    list->Fill({});
    list->visible = false;
  }
  inverti_ordine_lista.caption = kMinFirst;
  inverti_ordine_lista.colour.reset();
  inverti_ordine_lista.visible = false;
  stampa_assenti.enabled = false;
  Bar1.visible = false;
  Bar2.visible = false;
  ClearLog();
}

void AbsentForm::ClearLog() {
  for (const auto& [title, value] : figures_) {
    value->caption.clear();
  }
  pos_teo144.colour.reset();
  Log_assente.Fill({});
  tempo.caption.clear();
  label_secondi.visible = false;
  stampa_log_assente.enabled = false;
}

}  // namespace velmar
