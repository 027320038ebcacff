#include "publish/export_form.h"

namespace velmar {

ExportForm::ExportForm() : Form("VLM2M_15_Excel_Cla", "") {
  Reset();
}

void ExportForm::Reset() {
  SI_stat.checked = SI_graf.checked = SI_testo.checked = false;
  NO_stat.checked = true;
  Check6.checked = Check7.checked = Check8.checked = false;
  SI_callarea.checked = false;
  NO_callarea.checked = true;
  Check12_144.checked = true;
  HScroll1.value = div_pag.caption = "60";
  crea_cla_band_xls_01.colour.reset();
  LBL_stato.visible = Bar1.visible = false;
  LBL_stato.caption.clear();
  LBL_tempo.caption.clear();
}

}  // namespace velmar
