#include "check/option_menu.h"

#include <string>

#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr Setting kPlain[] = {Setting::kTimeCheckOn,          Setting::kNotInLogCheckOn,
                              Setting::kMessagesOn,           Setting::kForcedErrorOn,
                              Setting::kHideUniqueInDatabase, Setting::kHideUniqueWithLog};

}  // namespace

OptionMenu::OptionMenu(ContestSession& session, Manager& manager, CheckForm& form)
    : session_(session), manager_(manager), form_(form) {
  for (const Setting setting : kPlain) {
    form.ItemOf(setting).on_click = [this, setting] { Toggle(setting); };
  }
  form.Check7.on_click = [this] {
    ToggleExclusive(Setting::kHideOverTwo, Setting::kHideOverThree);
  };
  form.Check8.on_click = [this] {
    ToggleExclusive(Setting::kHideOverThree, Setting::kHideOverTwo);
  };
  for (Menu* item : {&form.Check9, &form.Pass_next}) {
    item->on_click = [item] { item->checked = !item->checked; };
  }
  form.NOT_ERROR.on_click = [this] { NOT_ERROR_Click(); };
}

void OptionMenu::Show() {
  const Settings& settings = session_.settings;
  for (const Setting setting : kPlain) {
    form_.ItemOf(setting).checked = settings.On(setting);
  }
  // Exactly one of the two is on, whatever the file says.
  form_.Check8.checked =
      settings.On(Setting::kHideOverThree) || !settings.On(Setting::kHideOverTwo);
  form_.Check7.checked = !form_.Check8.checked;
  form_.Check9.checked = false;
}

void OptionMenu::Set(Setting setting, bool on) {
  form_.ItemOf(setting).checked = on;
  session_.settings.Set(setting, std::string(on ? Settings::kOn : Settings::kOff));
}

void OptionMenu::Toggle(Setting setting) {
  Set(setting, !form_.ItemOf(setting).checked);
}

void OptionMenu::ToggleExclusive(Setting setting, Setting other) {
  const bool on = !form_.ItemOf(setting).checked;
  Set(setting, on);
  Set(other, !on);
}

void OptionMenu::NOT_ERROR_Click() {
  form_.NOT_ERROR.checked = !form_.NOT_ERROR.checked;
  if (!form_.NOT_ERROR.checked) {
    manager_.Show(
        {.lines = {" Attenzione. disattivare questa opzione comporta un maggiore numero di 'Click'",
                   " perchè i locatori ritenuti validi sono da confermare, da parte del manager"_a,
                   " che effettua i controlli. ",
                   " disattivare vuol dire verificare di persona se il locatore è corretto e"_a,
                   " convalidare il qso evidenziato in finestra"}});
  }
}

}  // namespace velmar
