#include "check/check_steps.h"

#include "model/text.h"

namespace velmar {

void CheckSteps::Reset() {
  for (Button* button : {&form_.unici, &form_.aggiorna_punt_class, &form_.ordina}) {
    button->enabled = false;
    button->colour.reset();
  }
  Show(CheckStep::kNone);
}

bool CheckSteps::TimesOpen() const {
  const auto& rows = form_.Lista_err_orario.items.rows();
  return !rows.empty() && !Holds(rows.front(), kTimeOnAirMark);
}

void CheckSteps::Advance() {
  if (!form_.Lista_dubbi.items.rows().empty()) {
    Show(CheckStep::kLocators);
  } else if (TimesOpen()) {
    Show(CheckStep::kTimes);
  } else {
    Offer(form_.unici);
    Show(CheckStep::kUnique);
  }
}

void CheckSteps::OpenUnique() {
  form_.unici.colour.reset();
  form_.aggiorna_punt_class.visible = true;
  Show(CheckStep::kUnique);
}

void CheckSteps::OpenNotInLog() {
  Show(CheckStep::kNotInLog);
}

void CheckSteps::OpenUpdate() {
  form_.unici.colour.reset();
  form_.aggiorna_punt_class.visible = true;
  Offer(form_.aggiorna_punt_class);
  Show(CheckStep::kUpdate);
}

void CheckSteps::OpenSave() {
  form_.aggiorna_punt_class.colour.reset();
  form_.aggiorna_punt_class.enabled = false;
  Offer(form_.ordina);
  Show(CheckStep::kUpdate);
}

void CheckSteps::Finish() {
  Reset();
  Show(CheckStep::kDone);
}

void CheckSteps::Offer(Button& button) {
  button.enabled = true;
  button.colour = colour::kGreen;
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
