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
  Bar1.visible = false;
  Label_sezione.visible = false;
  Text3.value = "Log da inserire";
}

TextField& MainForm::AddPanel(const std::string& name, const std::string& caption) {
  TextField& field = AddText(name, caption);
  panel_.push_back(&field);
  return field;
}

Combo& MainForm::AddPanelCombo(const std::string& name, std::vector<std::string> rows) {
  Combo& combo = AddCombo(name, std::move(rows));
  panel_.push_back(&combo);
  return combo;
}

void MainForm::ShowInsertStep(bool seen) {
  for (Control* control : std::initializer_list<Control*>{&caricaedi, &Ins_auto, &Check_AUT_entry,
                                                          &turbo, &Text3, &num_file2, &Dir1}) {
    control->visible = seen;
  }
  SetPanel(seen);
}

void MainForm::ClearPanel() {
  for (Control* control : panel_) {
    control->value.clear();
    control->selection = -1;
    control->checked = false;
  }
  differenza.caption = "Differenza";
  nome_sez.caption.clear();
  cod_sez.caption.clear();
  ClearColours();
}

void MainForm::ClearColours() {
  for (Control* control : panel_) {
    control->colour.reset();
  }
}

void MainForm::SetPanel(bool seen) {
  for (Control* control : panel_) {
    control->visible = seen;
  }
}

void MainForm::StopTurbo() {
  turbo.checked = false;
  info_turbo.visible = false;
}

void MainForm::ListFiles(FileSystem& files, const std::string& folder) {
  ShowFiles(folder, files.List(folder, "*.*"));
}

void MainForm::ShowFiles(const std::string& folder, std::vector<std::string> names) {
  Dir1.value = folder;
  File1.items.Assign(std::move(names));
  CountFiles();
}

void MainForm::ForgetFile(const std::string& name) {
  File1.items.Remove(name);
  CountFiles();
}

void MainForm::CountFiles() {
  const std::size_t files = File1.items.rows().size();
  num_file2.caption = std::to_string(files);
  File1.selection = files == 0 ? -1 : 0;
}

}  // namespace velmar
