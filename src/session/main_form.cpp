#include "session/main_form.h"

namespace velmar {

MainForm::MainForm() : Form("VLM2M_01_input", "    V A R T O  Velmar VHF - by Iz9qqq ") {
  panel_.insert(panel_.end(), {&Rookie, &Young, &Command1});
  Marcatura.enabled = false;
  aggiorna_categoria.enabled = false;
  controlla_locatori.enabled = false;
  Marcafile.visible = false;
  Aggiorna.visible = false;
  info_turbo.visible = false;
  Inserimento_OK.visible = false;
  Text3.value = "Log da inserire";
}

TextField& MainForm::AddPanel(const std::string& name, const std::string& caption) {
  TextField& field = AddText(name, caption);
  panel_.push_back(&field);
  return field;
}

void MainForm::SetPanel(bool seen) {
  for (Control* control : panel_) {
    control->visible = seen;
  }
}

void MainForm::ListFiles(FileSystem& files, const std::string& folder) {
  File1.items.Assign(files.List(folder, "*.*"));
  num_file2.caption = std::to_string(File1.items.rows().size());
}

}  // namespace velmar
