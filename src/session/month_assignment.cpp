#include "session/month_assignment.h"

#include "model/lines.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "session/month.h"

namespace velmar {

namespace {

constexpr std::string_view kMonthTitle = "Mese e anno Contest Velmar ";

}  // namespace

void MonthAssignment::TakeMonthFromDate() {
  const std::string date = clock_.ShortDate();
  session_.system_year = YearOf(date);
  session_.month_text = MonthNameOf(date) + session_.system_year;
}

void MonthAssignment::Write(const std::string& path, const std::string& month) {
  trap_.Statement(24, [&] { files_.WriteAll(path, Join(month, kLineEnd)); });
}

void MonthAssignment::ass_mese_Click() {
  if (session_.month_assigned) {
    manager_.Show({.lines = {" Attenzione il nome al mese dello Velmar è già stato assegnato"_a,
                             Join(" il mese attuale è  "_a, session_.month_shown)}});
    return;
  }
  TakeMonthFromDate();
  const InputBox box{
      std::string(kMonthTitle),
      {Join(" Scrivi il mese e anno del contest (es: MARZO ", session_.contest_year, ") ")},
      session_.month_text};
  std::string answer;
  while (answer.empty()) {
    answer = manager_.Ask(box).value_or("");
  }
  session_.category_month = Upper(answer);
  session_.contest_year = YearOf(session_.category_month);
  Write(session_.workspace.category_month(), session_.category_month);
  session_.month_shown = session_.category_month;
  session_.month_assigned = true;
}

void MonthAssignment::RepairMonth() {
  TakeMonthFromDate();
  session_.contest_year = YearOf(session_.month_text);
  do {
    const std::string answer = manager_
                                   .Ask({std::string(kMonthTitle),
                                         {Join(" Scrivi il mese e anno da controllare (es: aprile ",
                                               session_.contest_year, ")")},
                                         session_.month_text})
                                   .value_or("");
    session_.month_to_check = Upper(answer);
    if (session_.month_to_check.empty()) {
      manager_.Show({.lines = {" programma terminato "}, .icon = Icon::kStop});
      throw ProgramEnd();
    }
    session_.contest_year = YearOf(session_.month_to_check);
  } while (Val(session_.contest_year) == 0);
  Write(session_.workspace.month_to_check(), session_.month_to_check);
  Write(session_.workspace.category_month(), session_.category_month);
}

bool MonthAssignment::ReadContestDate(std::string_view category) {
  for (;;) {
    const bool has_folder =
        files_.FolderExists(session_.workspace.category(CategoryCode(category)));
    const auto text =
        has_folder ? ReadIfThere(files_, session_.workspace.contest_date(category)) : std::nullopt;
    if (text) {
      session_.contest_date = Right(LastLine(*text), 6);
      return true;
    }
    const std::string answer =
        Upper(manager_
                  .Ask({"CATEGORIA spazio  DATA CONTEST",
                        {Join(" Scrivi la categoria e data del contest ( ", CategoryCode(category),
                              " AAMMGG )")},
                        ContestDateDefault(category, session_.category_month)})
                  .value_or(""));
    if (answer.empty()) {
      return false;
    }
    if (!files_.FolderExists(session_.workspace.category(CategoryCode(answer)))) {
      files_.MakeFolder(session_.workspace.category(CategoryCode(answer)));
    }
    files_.WriteAll(session_.workspace.contest_date(answer), Join(answer, kLineEnd));
  }
}

}  // namespace velmar
