#include "session/month_dialog.h"

#include "model/lines.h"
#include "model/text.h"
#include "session/month.h"
#include "session/version.h"

namespace velmar {

namespace {

std::vector<std::string> MonthRows() {
  std::vector<std::string> rows;
  rows.reserve(kMonthNames.size());
  for (const std::string_view name : kMonthNames) {
    rows.push_back(Join(Left(name, 1), Lower(Mid(name, 2))));
  }
  return rows;
}

std::vector<std::string> YearRows() {
  std::vector<std::string> rows;
  for (int year = 2020; year <= 2031; ++year) {
    rows.push_back(std::to_string(year));
  }
  return rows;
}

}  // namespace

MonthForm::MonthForm()
    : Form("VLM2M_00_Mese", "Velmar"),
      Combo_mese(AddCombo("Combo_mese", MonthRows())),
      Combo_anno(AddCombo("Combo_anno", YearRows())) {}

MonthDialog::MonthDialog(ContestSession& session, FileSystem& files, Manager& manager,
                         MenuTrap& trap, Clock& clock, Screen& screen, MainForm& main,
                         ConfigDialog& config)
    : session_(session),
      files_(files),
      manager_(manager),
      clock_(clock),
      screen_(screen),
      main_(main),
      config_(config),
      trap_(trap) {
  form_.Combo_mese.on_change = [this] { Combo_mese_Change(); };
  form_.OK_mese.on_click = [this] { OK_mese_Click(); };
}

void MonthDialog::Open() {
  Form_Load();
  screen_.Show(form_);
}

void MonthDialog::Form_Load() {
  const std::string date = clock_.ShortDate();
  session_.system_year = YearOf(date);
  form_.Combo_anno.value = session_.system_year;
  if (!session_.month_to_check.empty()) {
    session_.contest_year = YearOf(session_.month_to_check);
    form_.Combo_anno.value = session_.contest_year;
    const std::string& month = session_.month_to_check;
    form_.Combo_mese.value = Trim(Left(month, month.size() - session_.contest_year.size()));
  }
  std::optional<std::string> verified;
  trap_.Statement(50, [&] { verified = ReadIfThere(files_, session_.workspace.month_to_check()); });
  if (verified) {
    session_.month_to_check = LastLine(*verified);
    for (const std::string_view name : kMonthNames) {
      if (Join(name, session_.contest_year) == session_.month_to_check) {
        session_.month_text = name;
      }
    }
  } else {
    session_.month_text = MonthNameOf(date);
  }
  RememberMonth();
  session_.contest_year = YearOf(session_.month_to_check);
  form_.Combo_mese.value = Upper(session_.month_text);
  session_.month_to_check = form_.Combo_mese.value + form_.Combo_anno.value;
  form_.title = session_.contest_year + " Velmar ";
}

void MonthDialog::RememberMonth() {
  for (std::size_t i = 0; i < kMonthNames.size(); ++i) {
    if (kMonthNames[i] == session_.month_text) {
      remembered_ = static_cast<int>(i);
    }
  }
}

void MonthDialog::Combo_mese_Change() {
  form_.Combo_mese.Select(remembered_);
}

void MonthDialog::OK_mese_Click() {
  trap_.Procedure([&] {
    session_.month_text = Upper(form_.Combo_mese.value);
    session_.month_to_check = Join(Trim(session_.month_text), " ", form_.Combo_anno.value);
    session_.contest_year = form_.Combo_anno.value;
    if (session_.month_text != kContestMonth) {
      manager_.Show({.lines = {" Il contest Velmar si svolge solo a gennaio"}});
      return;
    }
    session_.month_shown = session_.month_to_check;
    session_.category_month = Upper(session_.month_to_check);
    const std::string line = Join(session_.month_to_check, kLineEnd);
    trap_.Statement(51, [&] { files_.WriteAll(session_.workspace.month_to_check(), line); });
    trap_.Statement(52, [&] { files_.WriteAll(session_.workspace.category_month(), line); });
    session_.month_assigned = true;
    main_.title = MainTitle(session_);
    config_.Prepare();  // ahead of the hiding: a failure leaves this dialog to be seen
    screen_.Hide(form_);
    config_.Open();
  });
}

std::string MainTitle(const ContestSession& session) {
  return Join("    V A R T O  Velmar VHF - by Iz9qqq ", kVersionLong, "   ", session.contest_label,
              "   ", session.category_month);
}

}  // namespace velmar
