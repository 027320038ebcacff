#include "check/not_in_log_check.h"

#include "check/not_in_log_search.h"
#include "model/columns.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::size_t kMostQsos = 1'000;
constexpr Column kItemCall{1, 12};
constexpr Column kItemPoints{13, 4};

}  // namespace

void NotInLogCheck::not_Click() {
  if (state_.call_in_esame.empty()) {
    return;
  }
  if (form_.NOT_IN_LOG.checked) {
    Search();
  }
  GoOn();
}

/// Offers what comes next: an open item of this list, one of the unique calls, or the reports.
void NotInLogCheck::GoOn() {
  if (!form_.lista_notlog.items.rows().empty()) {
    steps_.OpenNotInLog();
  } else if (form_.Call_unici.items.rows().empty()) {
    PassReports();
  } else {
    form_.Frame_unici.caption = CheckForm::kUniqueTitle;
    steps_.OpenUnique();
  }
}

void NotInLogCheck::Search() {
  if (state_.qsos.log.size() > kMostQsos) {
    throw RunTimeError(ErrorNumber::kSubscript, "the QSOs of a log");
  }
  form_.Lista_simili.Fill({});
  form_.lista_notlog.Fill({});
  form_.Frame_unici.caption = " NOT in LOG  ";
  form_.Lista_simili.caption = "Call        QRB";
  form_.no_errore.caption = "NO error";
  form_.ric_notinlog.caption = "NOT in LOG ricerca in corso....";
  manager_.Progress(0, 1);  // so that the windows show it
  const auto participants = store_.Participants();
  const auto rows = store_.TotalLibrary();
  const std::vector<std::string_view> total(rows.begin(), rows.end());
  const auto hits = FindNotInLog({.log = state_.qsos.log,
                                  .others = state_.qsos.others,
                                  .participants = participants,
                                  .total_library = total,
                                  .category = state_.categoria,
                                  .call = state_.call_in_esame,
                                  .locator = state_.locatore_in_esame},
                                 form_.Check9.checked);
  for (const NotInLogHit& hit : hits) {
    form_.Lista_simili.items.Add(hit.item);
    form_.lista_notlog.items.Add(hit.explanation);
  }
  form_.ric_notinlog.caption.clear();
  ShowOpenItems();
  if (!hits.empty()) {
    form_.Lista_simili.selection = 0;
    Lista_simili_Click();
  }
}

void NotInLogCheck::ShowOpenItems() {
  form_.num_unici.caption =
      std::to_string(form_.Call_unici.items.rows().size() + form_.lista_notlog.items.rows().size());
}

/// The list also shows similar calls, which stand without an explanation and are no items.
std::optional<std::string> NotInLogCheck::Selected() const {
  const auto items = static_cast<int>(form_.lista_notlog.items.rows().size());
  return form_.Lista_simili.selection < items ? form_.Lista_simili.ChosenRow() : std::nullopt;
}

void NotInLogCheck::Lista_simili_Click() {
  const auto item = Selected();
  form_.lista_notlog.selection = item ? form_.Lista_simili.selection : -1;
  if (item) {
    const std::string_view call = RTrim(Cut(*item, kItemCall));
    form_.log_callda_cercare.caption = Join("cerca  sul log di ", call);
    form_.log_callda_cercare.enabled = true;
    form_.NameLookUps(call, "");
  }
  EnableByItem();
}

void NotInLogCheck::lista_notlog_Click() {
  form_.Lista_simili.selection = form_.lista_notlog.selection;
  Lista_simili_Click();
}

void NotInLogCheck::EnableByItem() {
  const std::string item = Selected().value_or("");
  form_.NO_in_log.colour.reset();
  form_.no_errore.colour.reset();
  if (Holds(item, "NOT in log")) {
    form_.NO_in_log.colour = colour::kGreen;
  } else if (Holds(item, "NO errore")) {
    form_.no_errore.colour = colour::kGreen;
  }
}

void NotInLogCheck::NO_in_log_Click() {
  const auto item = Selected();
  if (!item) {
    manager_.Beep(2);
    return;
  }
  const std::string call(Cut(*item, kItemCall));
  if (report_.AlreadyListed(call)) {
    return;
  }
  report_.PenaliseNotInLog(call, std::string(Cut(*item, kItemPoints)));
  RemoveSelected();
}

void NotInLogCheck::no_errore_Click() {
  if (Selected()) {
    RemoveSelected();
  }
}

void NotInLogCheck::RemoveSelected() {
  form_.lista_notlog.selection = form_.Lista_simili.selection;
  form_.Frame_log.visible = false;  // it shows the logs of this one
  const std::size_t left = form_.lista_notlog.RemoveChosen();
  form_.Lista_simili.RemoveChosen();
  form_.Lista_simili.selection = form_.lista_notlog.selection;
  ShowOpenItems();
  Lista_simili_Click();
  if (left == 0) {
    GoOn();
  }
}

/// The step of the reports. No progressive numbers are sent in this contest, so nothing is
/// compared.
void NotInLogCheck::PassReports() {
  form_.Frame_log.visible = false;
  form_.Frame_unici.visible = false;
  form_.Frame_unici.caption = CheckForm::kUniqueTitle;
  form_.Frame_Classifica_gene_banda.visible = true;
  form_.Frame_Log_errori_tempo.caption = "    Controllo rapporti    ";
  form_.Label25.caption = " Errori di RAPPORTO";
  form_.messaggio.caption.clear();
  if (state_.time_errors == 0) {
    form_.messaggio.caption = " Non si trasmettono i progressivi nello VLM. Procedura saltata";
  } else if (!steps_.TimesOpen()) {
    form_.messaggio.caption = " i rapporti risultano corretti";
  }
  form_.Text3.value = std::to_string(0);
  state_.report_mode = true;
  if (form_.Lista_dubbi.items.rows().empty() && !steps_.TimesOpen() && state_.unique_checked) {
    steps_.OpenUpdate();
  }
}

}  // namespace velmar
