#include "check/error_report.h"

#include "model/classification_row.h"
#include "model/lines.h"
#include "model/text.h"
#include "session/failure.h"

namespace velmar {

std::string ErrorReport::Path() const {
  return session_.workspace.error_list(state_.categoria, state_.call_in_esame,
                                       session_.category_month);
}

void ErrorReport::Require() {
  static_cast<void>(files_.ReadAll(Path()));
}

void ErrorReport::CutToHead() {
  const std::string list = files_.ReadAll(Path());
  if (SplitLines(list).size() > kErrorListHeadLines) {
    files_.WriteAll(Path(), ErrorListHeadOf(list));
  }
}

void ErrorReport::BeginScore(const std::string& row) {
  const std::string unmarked = WithDxMark(row, ' ');
  const double official = ClassificaRow(row).Ricalc();
  const std::string checked = CheckedRow(unmarked, {.errors = 0, .lost = 0, .final = official});
  state_.err_count = 0;
  state_.err_qrb = 0;
  state_.qrb_ufficiale = official;
  state_.qrb_finale = official;
  state_.next_index = 1;
  form_.evidenzia.caption = checked;
  ShowScore();
}

bool ErrorReport::AlreadyListed(const std::string& call) {
  if (!ErrorListHolds(files_.ReadAll(Path()), call)) {
    return false;
  }
  manager_.Show(
      {.lines = {
           Join(" Il call ", call, " è già presente  sulla lista degli errori "_a), "    ",
           " SE per lo stesso call sono stati commessi più errori, non è possibile penalizzarlo più di una volta. "_a,
           " Per proseguire considera valido il qso."}});
  return true;
}

void ErrorReport::Penalise(ErrorEntry entry) {
  entry.index = state_.next_index;
  AppendLine(ErrorListLine(entry));
  Lower(entry.call, entry.points);
}

void ErrorReport::PenaliseNotInLog(const std::string& call, const std::string& points) {
  AppendLine(NotInLogLine(state_.next_index, call, points));
  Lower(call, points);
}

void ErrorReport::NoteUnique(const std::string& call, const std::string& ordinal) {
  AppendLine(UniqueCallLine(state_.next_index, call, ordinal));
}

void ErrorReport::AppendTotals() {
  files_.Append(Path(), ErrorListTotals(state_.qrb_ufficiale, state_.qrb_finale));
}

/// Writes the line of a decision; an error of the disk leaves the index as it was.
void ErrorReport::AppendLine(const std::string& line) {
  const std::string list = files_.ReadAll(Path());
  // A list that was cut in the middle of a line keeps that line to itself, and no decision stands
  // among the lines of a head: the next start would take it for one.
  std::string gap = !list.empty() && list.back() != '\n' ? std::string(kLineEnd) : std::string();
  for (std::size_t lines = SplitLines(list).size(); lines < kErrorListHeadLines; ++lines) {
    gap += kLineEnd;
  }
  files_.Append(Path(), Join(gap, line, kLineEnd));
  if (form_.List_errori.visible) {
    ShowList();
  }
  ++state_.next_index;
}

/// Lowers the running score by what a decision costs.
void ErrorReport::Lower(const std::string& call, const std::string& points) {
  state_.err_qrb += Val(points);
  ++state_.err_count;
  state_.qrb_finale = state_.qrb_ufficiale - state_.err_qrb;
  std::string row =
      CheckedRow(form_.evidenzia.caption,
                 {.errors = state_.err_count, .lost = state_.err_qrb, .final = state_.qrb_finale});
  if (Trim(call) == state_.dx_call) {
    row = WithDxMark(row, '*');
  }
  form_.evidenzia.caption = std::move(row);
  ShowScore();
}

void ErrorReport::ShowScore() {
  form_.call_in_esame.caption = state_.call_in_esame;
  form_.qrb_ufficiale.caption = NumberText(state_.qrb_ufficiale);
  form_.err_count.caption = NumberText(state_.err_count);
  form_.err_qrb.caption = NumberText(state_.err_qrb);
  form_.qrb_finale.caption = NumberText(state_.qrb_finale);
}

void ErrorReport::vis_err_Click() {
  if (form_.List_errori.visible) {
    List_errori_Click();
  } else if (!state_.call_in_esame.empty()) {
    ShowList();
    form_.List_errori.visible = true;
    form_.vis_err.caption = form_.vis_err2.caption = "Nascondi lista errori";
  }
}

/// Fills the list on the screen, its end in sight.
void ErrorReport::ShowList() {
  form_.List_errori.Fill(CopyLines(files_.ReadAll(Path())));
  form_.List_errori.top = static_cast<int>(form_.List_errori.items.rows().size()) - 1;
}

void ErrorReport::List_errori_Click() {
  form_.HideErrors();
}

void ErrorReport::stampa_errori_Click() {
  if (!printer_.Installed()) {
    manager_.Show(NoPrinterBox());
  } else if (!state_.call_in_esame.empty()) {
    printer_.Print({{.lines = CopyLines(files_.ReadAll(Path()))}});
  }
}

}  // namespace velmar
