#include "intake/intake_panel.h"

#include <algorithm>
#include <cmath>

#include "intake/log_header.h"
#include "model/edi_log.h"
#include "model/text.h"

namespace velmar {

namespace {

constexpr double kGoodPercent = 3;
constexpr double kBadPercent = 5;

/// The values of several header rows behind one another.
std::string Values(const IntakeState& log, std::size_t first, std::size_t count) {
  std::string values;
  for (std::size_t row = first; row < first + count; ++row) {
    values += Join(HeaderValue(log, row), " ");
  }
  return std::string(Trim(values));
}

std::string Parts(const IntakeState& log, std::size_t row) {
  const auto parts = ThreeParts(log, row);
  return parts ? Join(parts->at(0), " ", parts->at(1), " ", parts->at(2)) : "";
}

/// A number as a person writes it, with a zero ahead of the point.
std::string Shown(double number) {
  const std::string text(Trim(StrReal(std::abs(number))));
  return Join(number < 0 ? "-" : "", text.starts_with('.') ? "0" : "", text);
}

}  // namespace

void IntakePanel::Reset() {
  BecomeIdle();
  form_.ClearColours();
  form_.Rookie.checked = false;
  form_.Young.checked = false;
  session_.operator_mark = OperatorMark::kNone;
}

void IntakePanel::Clear() {
  form_.ClearPanel();
  form_.Nomedelfile.caption.clear();
  form_.ultimo_call.caption.clear();
  form_.Lbl_cat.caption.clear();
  session_.operator_mark = OperatorMark::kNone;
}

void IntakePanel::ShowFile(const IntakeState& log) {
  form_.Nomedelfile.caption = log.log_path;
  form_.ultimo_call.caption = log.log_name;
}

void IntakePanel::ShowOwner(const IntakeState& log) {
  const DeclaredDates dates = DatesOf(log);
  form_.NomeContest.value = HeaderValue(log, header_row::kContest);
  form_.datainizio.value = dates.start;
  form_.datafine.value = dates.end;
  form_.Callusato.value = RTrim(log.own_call);
  form_.locusato.value = log.own_locator;
}

void IntakePanel::ShowStation(const IntakeState& log) {
  form_.codice.value = HeaderValue(log, header_row::kExchange);
  form_.qth.value = Values(log, header_row::kSite, 2);
  form_.categoria.value = HeaderValue(log, header_row::kSection);
  form_.frequenza.value = HeaderValue(log, header_row::kBand);
  form_.operatore.value = HeaderValue(log, header_row::kOperator);
  form_.callresp.value = HeaderValue(log, header_row::kResponsible);
  form_.indirizzo.value = Values(log, header_row::kAddress, 2);
  form_.citta.value = Values(log, header_row::kPostalCode, 3);
  form_.telefono.value = Values(log, header_row::kPhone, 2);
  form_.altri_op.value = Values(log, header_row::kOperators, 2);
  form_.trasmettitore.value = HeaderValue(log, header_row::kTransmitter);
  form_.potenza.value = Shown(log.power);
  form_.ricevitore.value = HeaderValue(log, header_row::kReceiver);
  form_.antenna.value = RTrim(log.antenna);
  form_.altezza.value = log.shown_height;
  if (log.height_wrong) {
    form_.altezza.colour = colour::kRed;
  }
}

void IntakePanel::ShowDeclared(const IntakeState& log) {
  form_.qsovalidi.value = log.declared_qsos;
  form_.punti.value = log.declared_points;
  form_.squares.value = Parts(log, header_row::kSquares);
  form_.scambi.value = Parts(log, header_row::kExchanges);
  form_.dxcc.value = Parts(log, header_row::kCountries);
  form_.QRB.value = HeaderValue(log, header_row::kTotal);
  form_.codxc.value = HeaderValue(log, header_row::kDx);
  form_.Rem1.value = Remarks(log);
}

void IntakePanel::ShowScore(double declared, double total) {
  constexpr std::size_t kQuotientCharacters = 6;
  constexpr double kLeastQuotient = 0.001;  // a smaller one has no six characters to be cut to
  const double quotient = declared / total < kLeastQuotient
                              ? 0
                              : Val(Left(StrReal(declared / total), kQuotientCharacters));
  const double percent = 100 * quotient - 100;
  form_.percentuale.value = Shown(std::round(percent * 100) / 100);
  form_.percentuale.colour = percent < kGoodPercent  ? std::optional(colour::kGreen)
                             : percent > kBadPercent ? std::optional(colour::kRed)
                                                     : std::nullopt;
  const std::string sign = total > declared ? "+" : total < declared ? "-" : "";
  form_.differenza.caption = sign.empty() ? "Diff" : "Diff " + sign;
  form_.differenza.value = sign + Shown(std::abs(total - declared));
  form_.differenza.colour = percent > kGoodPercent ? std::optional(colour::kYellow)
                            : percent >= 0         ? std::optional(colour::kGreen)
                                                   : std::nullopt;
}

void IntakePanel::ShowCounts(const IntakeState& log) {
  form_.doppi.value = std::to_string(log.totals.doubles);
  form_.sommaqrb.value = std::to_string(log.totals.distance);
  form_.qsoerror.value = std::to_string(log.totals.error_rows);
}

void IntakePanel::BecomeIdle() {
  form_.caricaedi.visible = true;
  form_.caricaedi.enabled = true;
  form_.apri.enabled = true;
  form_.Info.enabled = true;
  form_.Marcafile.visible = false;
  form_.Marcatura.enabled = false;
  UnlockMenus();
}

void IntakePanel::Drop() {
  Clear();
  BecomeIdle();
}

void IntakePanel::BecomeLoaded() {
  form_.Inserimento_OK.visible = false;
  form_.Marcafile.visible = true;
  form_.Marcafile.enabled = true;
  form_.Marcatura.enabled = true;
  for (Control* control :
       std::initializer_list<Control*>{&form_.apri, &form_.Aggiorna, &form_.Info}) {
    control->enabled = false;
  }
}

std::array<Menu*, 5> IntakePanel::LockedMenus() {
  return {&form_.controlla_locatori, &form_.statistiche, &form_.controllo, &form_.ass_mese,
          &form_.Utility};
}

void IntakePanel::LockMenus() {
  const auto menus = LockedMenus();
  if (!before_lock_) {
    before_lock_.emplace();
    std::ranges::transform(menus, before_lock_->begin(), &Menu::enabled);
  }
  for (Menu* menu : menus) {
    menu->enabled = false;
  }
}

void IntakePanel::UnlockMenus() {
  if (before_lock_) {
    const auto menus = LockedMenus();
    for (std::size_t i = 0; i < menus.size(); ++i) {
      menus.at(i)->enabled = before_lock_->at(i);
    }
    before_lock_.reset();
  }
}

void IntakePanel::OpenMenus() {
  before_lock_.reset();
  for (Menu* menu : LockedMenus()) {
    menu->enabled = true;
  }
  form_.CLA_mese_excel.enabled = true;
}

void IntakePanel::AwaitCategory() {
  ColourCategory(colour::kRed);
  form_.Aggiorna.visible = true;
  form_.Aggiorna.enabled = true;
  form_.aggiorna_categoria.enabled = true;
  form_.caricaedi.visible = false;
  form_.Marcafile.visible = false;
}

void IntakePanel::TakeNewCategory() {
  form_.nome_sez.caption.clear();
  form_.cod_sez.caption.clear();
  ColourCategory(colour::kGreen);
  form_.caricaedi.visible = true;
  form_.Marcafile.visible = false;
}

void IntakePanel::ColourCategory(int colour) {
  for (Control* field :
       std::initializer_list<Control*>{&form_.categoria, &form_.frequenza, &form_.newcate}) {
    field->colour = colour;
  }
}

void IntakePanel::Close() {
  form_.Ins_auto.checked = false;
  form_.Check_AUT_entry.checked = false;
  form_.StopTurbo();
  form_.File1.visible = false;
  form_.Inserimento_OK.visible = false;
  Clear();
  form_.ShowInsertStep(false);
}

}  // namespace velmar
