#include "check/check_steps.h"

#include "model/text.h"

namespace velmar {

void CheckSteps::Reset() {
  CloseButtons();
  times_left_out_ = false;
  unique_left_out_ = false;
  unique_done_ = false;
  Show(CheckStep::kNone);
}

void CheckSteps::CloseButtons() {
  for (Button* button : {&form_.unici, &form_.aggiorna_punt_class, &form_.ordina}) {
    button->enabled = false;
    button->colour.reset();
  }
}

bool CheckSteps::TimesOpen() const {
  const auto& rows = form_.Lista_err_orario.items.rows();
  return !rows.empty() && !Holds(rows.front(), kTimeOnAirMark);
}

void CheckSteps::Advance() {
  const bool doubts = !form_.Lista_dubbi.items.rows().empty();
  if (doubts || TimesOpen()) {
    CloseButtons();  // they may have led on before the times were looked at again
    form_.focus = doubts ? &form_.Lista_dubbi : &form_.Lista_err_orario;
    Show(doubts ? CheckStep::kLocators : CheckStep::kTimes);
    return;
  }
  times_left_out_ = form_.Lista_err_orario.items.rows().empty();
  Offer(form_.unici);
  if (unique_done_) {
    OpenUpdate();
  } else {
    form_.focus = &form_.unici;
    Show(CheckStep::kUnique);
  }
}

void CheckSteps::OpenUnique() {
  unique_done_ = false;
  form_.unici.colour.reset();
  form_.aggiorna_punt_class.visible = true;
  Show(CheckStep::kUnique);
}

void CheckSteps::OpenNotInLog() {
  Show(CheckStep::kNotInLog);
}

void CheckSteps::OpenUpdate() {
  unique_done_ = true;
  form_.unici.colour.reset();
  form_.aggiorna_punt_class.visible = true;
  Offer(form_.aggiorna_punt_class);
  form_.focus = &form_.aggiorna_punt_class;
  Show(CheckStep::kUpdate);
}

void CheckSteps::SkipToUpdate() {
  unique_left_out_ = true;
  OpenUpdate();
}

void CheckSteps::OpenSave() {
  CloseButtons();
  Offer(form_.ordina);
  form_.focus = &form_.ordina;
  Show(CheckStep::kUpdate);
}

void CheckSteps::Finish() {
  CloseButtons();
  Show(CheckStep::kDone);
}

void CheckSteps::Offer(Button& button) {
  button.enabled = true;
  button.colour = colour::kGreen;
}

/// Whether a step that lies behind was not taken: by an option, by the manager, or because this
/// contest has nothing for it.
bool CheckSteps::LeftOut(CheckStep step) const {
  switch (step) {
    case CheckStep::kTimes:
      return times_left_out_;
    case CheckStep::kReports:
      return true;
    case CheckStep::kUnique:
      return unique_left_out_;
    case CheckStep::kNotInLog:
      return unique_left_out_ || !form_.NOT_IN_LOG.checked;
    default:
      return false;
  }
}

void CheckSteps::Show(CheckStep open) {
  const int now = static_cast<int>(open);
  for (std::size_t i = 0; i < form_.passi.size(); ++i) {
    const int step = static_cast<int>(i) + 1;
    std::optional<int>& colour = form_.passi.at(i)->colour;
    if (step == now) {
      colour = colour::kYellow;
    } else if (step > now) {
      colour.reset();
    } else {
      colour = LeftOut(static_cast<CheckStep>(step)) ? colour::kWhite : colour::kGreen;
    }
  }
}

}  // namespace velmar
