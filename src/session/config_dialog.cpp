#include "session/config_dialog.h"

#include <string_view>

#include "platform/error.h"

namespace velmar {

namespace {

struct LineText {
  std::string_view on;
  std::string_view off;
  std::string_view box;  ///< name of its check box; empty for a line that has a mark only
};

// The texts of the last two lines do not change.
constexpr std::array<LineText, kSettings> kTexts = {
    {{"Controllo orario sui qso ( 10 minuti tolleranza), ATTIVO",
      "Controllo orario sui qso ( 10 minuti tolleranza), DISATTIVO", ""},
     {"controllo NOT IN LOG, ATTIVATO", "controllo NOT IN LOG, DISATTIVATO", "Check1"},
     {"Visualizzazione messaggi, ATTIVATO", "Visualizzazione messaggi, DISATTIVATO", "Check2"},
     {"Assegnazione forzata di errore a un qso non evidenziato dal programma, ATTIVATO",
      "Assegnazione forzata di errore a un qso non evidenziato dal programma, DISATTIVATO",
      "Check3"},
     {"NON visualizzare i call unici contenuti nel data base del Velmar. ATTIVO ",
      "NON visualizzare i call unici contenuti nel data base del Velmar. DISATTIVO ", "Check5"},
     {" NON visualizzare i call unici che hanno inviato il log. ATTIVO",
      " NON visualizzare i call unici che hanno inviato il log. DISATTIVO", "Check6"},
     {" NON Visualizzare i call con più di 2 presenze. ATTIVO"_a,
      " NON Visualizzare i call con più di 2 presenze. ATTIVO"_a, "Check7"},
     {" NON Visualizzare i call con più di 3 presenze. ATTIVO"_a,
      " NON Visualizzare i call con più di 3 presenze. ATTIVO"_a, "Check8"}}};

constexpr std::array kAllSettings = {Setting::kTimeCheckOn,          Setting::kNotInLogCheckOn,
                                     Setting::kMessagesOn,           Setting::kForcedErrorOn,
                                     Setting::kHideUniqueInDatabase, Setting::kHideUniqueWithLog,
                                     Setting::kHideOverTwo,          Setting::kHideOverThree};

}  // namespace

ConfigForm::ConfigForm()
    : Form("VLM2M_00_Config", "V A R T O  Velmar - Configurazione"), lines(AddLines()) {}

std::array<ConfigForm::Line, kSettings> ConfigForm::AddLines() {
  std::array<Line, kSettings> added{};
  for (std::size_t i = 0; i < kSettings; ++i) {
    const std::string number = std::to_string(i + 1);
    Line& line = added[i];
    line.mark = &AddLabel("Mark" + number);
    line.mark->colour = colour::kRed;
    if (!kTexts[i].box.empty()) {
      line.box = &AddCheck(std::string(kTexts[i].box), "");
      line.box->enabled = false;
    }
    line.text = &AddLabel("Label" + number, std::string(kTexts[i].off));
  }
  return added;
}

ConfigDialog::ConfigDialog(ContestSession& session, FileSystem& files, Manager& manager,
                           MenuTrap& trap, Screen& screen, MainForm& main, CheckOptions& check)
    : session_(session),
      files_(files),
      manager_(manager),
      screen_(screen),
      main_(main),
      check_(check),
      trap_(trap) {
  form_.Command2.on_click = [this] { Command2_Click(); };
}

void ConfigDialog::Prepare() {
  trap_.Statement(60, [&] { LoadSettings(); });
  for (const Setting setting : kAllSettings) {
    ShowSetting(setting);
  }
}

void ConfigDialog::Open() {
  screen_.Show(form_);
}

void ConfigDialog::LoadSettings() {
  session_.settings = Settings();
  if (const auto text = ReadIfThere(files_, session_.workspace.settings())) {
    session_.settings.Parse(*text);
  }
}

void ConfigDialog::ShowSetting(Setting setting) {
  const bool on = session_.settings.On(setting);
  if (setting == Setting::kHideOverTwo || setting == Setting::kHideOverThree) {
    // Each of the two shows itself only where it is on, and the later one wins.
    if (on) {
      ShowExclusive(setting, setting == Setting::kHideOverTwo ? Setting::kHideOverThree
                                                              : Setting::kHideOverTwo);
    }
    return;
  }
  const ConfigForm::Line& line = form_.LineOf(setting);
  const LineText& texts = kTexts[static_cast<std::size_t>(setting)];
  line.text->caption = on ? texts.on : texts.off;
  line.mark->colour = on ? colour::kGreen : colour::kRed;
  if (line.box != nullptr) {
    line.box->checked = on;
  }
  check_.ItemOf(setting).checked = on;
}

void ConfigDialog::ShowExclusive(Setting on, Setting off) {
  form_.LineOf(on).box->checked = true;
  form_.LineOf(on).mark->colour = colour::kGreen;
  form_.LineOf(off).box->checked = false;
  form_.LineOf(off).mark->colour = colour::kRed;
  check_.ItemOf(on).checked = true;
  check_.ItemOf(off).checked = false;
}

void ConfigDialog::Command2_Click() {
  trap_.Procedure([&] {
    CreateSettings();
    screen_.Hide(form_);
    screen_.Show(main_);
    check_.Check9.checked = true;
    if (!session_.tree_existed) {
      manager_.Show(
          {.lines = {" Questa era la prima volta che inizializzavi il programma",
                     " Le directory sono state create ed è necesario riavviare il programma."_a,
                     " Programma Terminato. Riavvia"},
           .icon = Icon::kExclamation});
      throw ProgramEnd();
    }
  });
}

void ConfigDialog::CreateSettings() {
  const std::string path = session_.workspace.settings();
  bool missing = false;
  trap_.Statement(70, [&] { missing = !ReadIfThere(files_, path); });
  if (!missing) {
    return;
  }
  session_.settings = Settings::New();
  trap_.Statement(71, [&] { files_.WriteAll(path, session_.settings.Text()); });
  for (const Setting setting : kAllSettings) {
    if (session_.settings.On(setting)) {
      check_.ItemOf(setting).checked = true;
    }
  }
}

void SaveSettings(ContestSession& session, FileSystem& files, CheckOptions& check) {
  session.settings.Repair();
  if (session.settings[Setting::kHideOverTwo] == Settings::kOff) {
    check.Check8.checked = true;
  }
  files.WriteAll(session.workspace.settings(), session.settings.Text());
}

}  // namespace velmar
