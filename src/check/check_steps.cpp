#include "check/check_steps.h"

namespace velmar {

void CheckSteps::Reset() {
  for (Button* button : {&form_.unici, &form_.aggiorna_punt_class, &form_.ordina}) {
    button->enabled = false;
    button->colour.reset();
  }
  Show(CheckStep::kNone);
}

void CheckSteps::Advance() {
  if (!form_.Lista_dubbi.items.rows().empty()) {
    Show(CheckStep::kLocators);
  } else if (!form_.Lista_err_orario.items.rows().empty()) {
    Show(CheckStep::kTimes);
  } else {
    form_.unici.enabled = true;
    form_.unici.colour = colour::kGreen;
    Show(CheckStep::kUnique);
  }
}

void CheckSteps::SkipToUpdate() {
  form_.unici.colour.reset();
  form_.aggiorna_punt_class.visible = true;
  form_.aggiorna_punt_class.enabled = true;
  form_.aggiorna_punt_class.colour = colour::kGreen;
  Show(CheckStep::kUpdate);
}

void CheckSteps::Show(CheckStep open) {
  const int now = static_cast<int>(open);
  for (std::size_t i = 0; i < form_.passi.size(); ++i) {
    const int step = static_cast<int>(i) + 1;
    std::optional<int>& colour = form_.passi.at(i)->colour;
    if (step < now) {
      colour = colour::kGreen;
    } else if (step == now) {
      colour = colour::kYellow;
    } else {
      colour.reset();
    }
  }
}

}  // namespace velmar
