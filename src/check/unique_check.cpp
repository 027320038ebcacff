#include "check/unique_check.h"

#include <algorithm>

#include "check/call_comparison.h"
#include "check/locator_doubts.h"
#include "check/locator_messages.h"
#include "check/qso_line.h"
#include "check/unique_calls.h"
#include "check/waiting.h"
#include "model/call_book.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/ansi.h"

namespace velmar {

namespace {

constexpr Column kProbableCall{11, 10};  ///< the same, as far as it is compared
constexpr std::size_t kFewPresences = 3;
constexpr std::size_t kPatterns = 12;

}  // namespace

std::optional<UniqueItem> UniqueCheck::Selected() const {
  const auto row = form_.Call_unici.ChosenRow();
  return row ? std::optional(ReadUniqueItem(*row)) : std::nullopt;
}

void UniqueCheck::unici_Click() {
  ClearHints();
  form_.Unici_in_attesa_conf.visible = !form_.Call_unici.items.rows().empty();
  AskForcedCall();
  form_.Frame_unici.visible = true;
  form_.Frame_Controllo_locatori.visible = false;
  form_.Call_unici.Fill({});
  form_.num_unici.caption.clear();
  std::vector<std::string> unique;
  {
    const Waiting waiting(manager_, form_);
    if (!store_.Split(StoreReading::kForUnique, [](std::size_t) {})) {
      return;
    }
    unique = FindUnique();
  }
  AddForced(unique);
  const bool none = unique.empty();
  form_.num_unici.caption = std::to_string(unique.size());
  form_.Call_unici.Fill(std::move(unique));
  state_.unique_checked = true;
  steps_.OpenUnique();
  if (none) {
    if (form_.vis_mess.checked) {
      manager_.Show({.lines = {" LOG SENZA QSO UNICI "}});
    }
    not_in_log_.not_Click();
    return;
  }
  form_.Call_unici.selection = 0;
  Call_unici_Click();
  ShowDeclared(*Selected());
}

/// The call to be taken for wrong, where the manager wants to force one. An empty one turns that
/// option off.
void UniqueCheck::AskForcedCall() {
  state_.call_forzato.clear();
  if (!form_.assegna_errore_qso.checked) {
    return;
  }
  const auto answer = manager_.Ask({.title = "Error call",
                                    .lines = {" Scrivi il call che vuoi considerare errato "},
                                    .default_text = ""});
  state_.call_forzato = Trim(Upper(answer.value_or("")));
  if (state_.call_forzato.empty()) {
    TurnForcingOff();
  }
}

void UniqueCheck::TurnForcingOff() {
  form_.assegna_errore_qso.checked = false;
  session_.settings.Set(Setting::kForcedErrorOn, std::string(Settings::kOff));
}

std::vector<std::string> UniqueCheck::FindUnique() {
  const auto participants = store_.Participants();
  return FindUniqueCalls({.log = state_.qsos.log,
                          .others = state_.qsos.others,
                          .participants = participants,
                          .call_book = session_.call_book,
                          .hide_in_book = form_.Check5.checked,
                          .hide_with_log = form_.Check6.checked,
                          .hide_over_two = form_.Check7.checked});
}

void UniqueCheck::AddForced(std::vector<std::string>& unique) {
  state_.errore_forzato = false;
  if (state_.call_forzato.empty()) {
    return;
  }
  std::string row = ForcedRow(state_.qsos.log, state_.call_forzato);
  if (!row.empty()) {
    unique.push_back(std::move(row));
    state_.errore_forzato = true;
    TurnForcingOff();
  }
}

/// The row of the participants of a call that sent a log in this category; empty without one.
std::string_view UniqueCheck::DeclarationOf(const UniqueItem& item) const {
  const auto row = std::ranges::find_if(session_.participants, [&](const std::string& text) {
    return RTrim(Cut(text, partecipante_row::kCall)) == item.call &&
           Cut(text, partecipante_row::kCategory) == state_.categoria;
  });
  return row == session_.participants.end() ? std::string_view() : *row;
}

void UniqueCheck::ShowDeclared(const UniqueItem& item) {
  const std::string_view row = DeclarationOf(item);
  if (!row.empty()) {
    form_.messaggio_locatore.caption =
        Join(" Nel log inviato ", Cut(row, partecipante_row::kCall),
             " ha dichiarato: ", Cut(row, partecipante_row::kLocator));
  }
}

void UniqueCheck::ClearHints() {
  form_.ClearUniqueHints();
  form_.Lista_simili.Fill({});
  form_.lista_notlog.Fill({});
  form_.lista_call_unici.Fill({});
  form_.List2_unici.Fill({});
  form_.log_callda_cercare.enabled = false;
  state_.judged_wrong = false;
}

void UniqueCheck::Call_unici_Click() {
  const auto item = Selected();
  if (!item) {
    return;
  }
  ClearHints();
  form_.num_unici.caption = std::to_string(form_.Call_unici.items.rows().size());
  Findings findings;
  ShowCaptions(*item);
  if (LocatorBroken(RTrim(item->locator))) {
    manager_.Show(BrokenLocatorOfUnique(item->locator));
  }
  const Waiting waiting(manager_, form_);
  HintParticipants(*item);
  const bool similar = ShowSimilar(*item);
  ShowLocator(*item, findings);
  if (similar) {
    HintOwnLog(*item);
  }
  findings.in_book = std::ranges::any_of(session_.call_book, [&item](const std::string& record) {
    return RTrim(Cut(record, book_record::kCall)) == item->call;
  });
  const DigitWarning warning = CheckDigits(item->call);
  form_.troppi_numeri.caption = warning.banner;
  if (!warning.message.empty()) {
    form_.messaggio_unici.caption = warning.message;
  }
  ShowPresences(*item, findings);
  Advise(findings);
}

void UniqueCheck::ShowCaptions(const UniqueItem& item) {
  form_.NameLookUps(item.call, item.locator);
  form_.log_callda_cercare.caption = Join("cerca  sul log di ", item.call);
}

void UniqueCheck::HintParticipants(const UniqueItem& item) {
  for (const std::string& row : session_.participants) {
    if (Cut(row, partecipante_row::kCategory) == state_.categoria && Holds(row, item.call)) {
      form_.messaggio_unici.caption =
          Join(" CALL PARTECIPANTE:   ", Cut(row, partecipante_row::kDeclaration));
      form_.messaggio_unici.colour = colour::kYellow;
    }
  }
  const std::string base = BaseCall(item.call);
  if (base.empty()) {
    return;
  }
  const auto row = std::ranges::find_if(
      session_.participants, [&base](const std::string& text) { return Holds(text, base); });
  if (row != session_.participants.end()) {
    form_.messaggio_unici.caption =
        Join("Partecipante:   ", Cut(*row, partecipante_row::kDeclaration), "       ",
             Cut(*row, partecipante_row::kCategory));
  }
}

bool UniqueCheck::ShowSimilar(const UniqueItem& item) {
  form_.Lista_simili.Fill(FindSimilarCalls(
      state_.qsos.others, session_.archive_missing ? nullptr : &session_.call_book, item));
  return !form_.Lista_simili.items.rows().empty();
}

void UniqueCheck::ShowLocator(const UniqueItem& item, Findings& findings) {
  std::vector<std::string> rows = FindInLocator(state_.qsos.others, item.locator);
  findings.alone_in_locator = rows.empty();
  if (!rows.empty()) {
    form_.log_callda_cercare.caption =
        Join("cerca  sul log di ", RTrim(Cut(rows.front(), kListedCall)));
    form_.log_callda_cercare.enabled = true;
    form_.List2_unici.Fill(EachCallOnce(rows));
    form_.lista_call_unici.Fill(std::move(rows));
    form_.messaggio_locatore.caption = "Seleziona il probabile call corretto dall'elenco";
  }
  const bool sent_log = std::ranges::any_of(session_.participants, [&item](const auto& row) {
    return RTrim(Cut(row, partecipante_row::kCall)) == item.call;
  });
  if (sent_log) {
    form_.log_callda_cercare.caption = Join("cerca  sul log di ", item.call);
    form_.log_callda_cercare.enabled = true;
  }
  if (findings.alone_in_locator) {
    form_.messaggio_unici.caption =
        Join("Nessun altro ha collegato ", item.call, " in questa cat.");
    form_.messaggio_unici.colour = colour::kYellow;
    SearchTotalLibrary(item);
    ShowDeclared(item);
  }
}

void UniqueCheck::SearchTotalLibrary(const UniqueItem& item) {
  constexpr int kOften = 10;
  int seen = 0;
  for (const std::string& row : store_.TotalLibrary()) {
    const std::string_view call = Cut(row, libreria_totale_row::kCall);
    if (RTrim(call) != item.call) {
      continue;
    }
    ++seen;
    if (seen == 2) {
      form_.Label12.caption = " Questo call era presente anche in altre bande.";
    }
    const std::string_view category = Cut(row, libreria_totale_row::kCategory);
    if (seen > 1 && seen < kOften && category != state_.categoria) {
      form_.lista_call_unici.items.Add(
          Join(Cut(row, libreria_totale_row::kLocator), "    ", call, category));
    }
  }
}

void UniqueCheck::HintOwnLog(const UniqueItem& item) {
  for (const std::string& row : session_.participants) {
    if (Holds(row, item.call)) {
      form_.messaggio_unici.caption = Join("Nel proprio log : ", item.call, "ha dichiarato  ",
                                           Cut(row, partecipante_row::kLocator));
    }
  }
}

void UniqueCheck::ShowPresences(const UniqueItem& item, Findings& findings) {
  findings.presences = static_cast<std::size_t>(std::ranges::count_if(
      state_.qsos.others,
      [&item](std::string_view row) { return Trim(Cut(row, qso_line::kCall)) == item.call; }));
  form_.pre_senze.caption = std::to_string(findings.presences);
  form_.nome_call.caption = item.call;
  const bool few = findings.presences < kFewPresences;
  for (Label* label : {&form_.pre_senze, &form_.nome_call, &form_.Avviso}) {
    label->visible = few;
  }
}

/// At most one button is advised, and that decides nothing.
void UniqueCheck::Advise(const Findings& findings) {
  if (findings.in_book || findings.presences >= kFewPresences) {
    form_.ok_call_unici.colour = colour::kGreen;
  } else if (findings.alone_in_locator) {
    form_.marca_unico.colour = colour::kYellow;
  } else {
    form_.focus = &form_.error_call_unici;
    form_.CercaDtbIaru.colour = colour::kYellow;
  }
}

void UniqueCheck::ChooseListed(const List& list) {
  const auto row = list.ChosenRow();
  if (!row) {
    return;
  }
  form_.log_callda_cercare.caption = Join("cerca  sul log di ", RTrim(Cut(*row, kListedCall)));
  form_.log_callda_cercare.enabled = true;
  if (&list == &form_.List2_unici) {
    form_.Prob_call_corretto.caption = RTrim(Cut(*row, kProbableCall));
  }
}

/// Whether the manager wants this call to be wrong, whatever the checks say.
bool UniqueCheck::Forced(const UniqueItem& item) const {
  return state_.errore_forzato && item.call == state_.call_forzato;
}

void UniqueCheck::error_call_unici_Click() {
  const auto item = Selected();
  if (!item) {
    manager_.Beep(2);
    return;
  }
  if (!Forced(*item) && report_.AlreadyListed(Call12(item->call))) {
    return;
  }
  if (const auto call = CorrectCall(*item)) {
    report_.Penalise({.call = item->call,
                      .ordinal = item->ordinal,
                      .tag = error_tag::kCall,
                      .wrong = item->call,
                      .right = *call,
                      .points = item->points});
    state_.errore_forzato = false;
    RemoveSelected();
  }
}

/// The call as it should have been; nothing where the manager thinks better of it.
std::optional<std::string> UniqueCheck::CorrectCall(const UniqueItem& item) {
  if (!Forced(item)) {
    for (const List* list : {&form_.lista_call_unici, &form_.List2_unici}) {
      if (const auto row = list->ChosenRow()) {
        return std::string(Cut(*row, kListedCall));
      }
    }
  }
  const auto answer = manager_.Ask({.title = "Error call",
                                    .lines = {" Scrivi il CALL esatto    (*) per uscire"},
                                    .default_text = item.call});
  return answer && !answer->empty() && *answer != "*" ? answer : std::nullopt;
}

void UniqueCheck::Errore_locatore_Click() {
  const auto item = Selected();
  if (!item || (!Forced(*item) && report_.AlreadyListed(Call12(item->call)))) {
    return;
  }
  const auto answer = manager_.Ask(
      {.title = "Error Locator",
       .lines = {" Scrivi il LOCATORE esatto  (*) per uscire e non proseguire"},
       .default_text = std::string(Cut(DeclarationOf(*item), partecipante_row::kLocator))});
  if (!answer || answer->empty() || *answer == "*") {
    return;
  }
  report_.Penalise({.call = item->call,
                    .ordinal = item->ordinal,
                    .tag = error_tag::kLocator,
                    .wrong = item->locator,
                    .right = *answer,
                    .points = item->points});
  RemoveSelected();
}

void UniqueCheck::marca_unico_Click() {
  const auto item = Selected();
  if (!item || (!Forced(*item) && report_.AlreadyListed(Call12(item->call)))) {
    return;
  }
  report_.NoteUnique(item->call, item->ordinal);
  RemoveSelected();
}

void UniqueCheck::ok_call_unici_Click() {
  if (!Selected()) {
    return;
  }
  if (state_.judged_wrong && manager_.Show({.lines = {" Vuoi considerare valido il qso ?"},
                                            .icon = Icon::kQuestion,
                                            .title = "Call valutato errato",
                                            .buttons = Buttons::kYesNo}) != Reply::kYes) {
    return;
  }
  state_.errore_forzato = false;
  RemoveSelected();
}

/// Takes the selected call off the list and goes on: the next one, or what is not in a log.
void UniqueCheck::RemoveSelected() {
  form_.Frame_log.visible = false;  // it shows the logs of this one
  const std::size_t left = form_.Call_unici.RemoveChosen();
  form_.num_unici.caption = std::to_string(left);
  ClearHints();
  if (left == 0) {
    form_.Unici_in_attesa_conf.visible = false;
    not_in_log_.not_Click();
  } else {
    Call_unici_Click();
  }
}

void UniqueCheck::nasondi_Click() {
  form_.ClearLists();
  form_.ClearEvidence();
  ClearHints();
  form_.Frame_log.visible = false;
  state_.unici_saltati = true;
  state_.unique_checked = true;
  steps_.SkipToUpdate();
  manager_.Show({.lines = {" Hai saltato il controllo dei call unici/errati",
                           " per proseguire clicca sul pulsante VERDE"}});
}

void UniqueCheck::Unici_in_attesa_conf_Click() {
  manager_.Show({.lines = {" C'è un elenco che devi classificare come errore, "_a,
                           " oppure ignorare la segnalazione "}});
}

void UniqueCheck::cerca_probabile_Click() {
  form_.Prob_call_corretto.caption.clear();
  form_.call_scorretto.caption.clear();
  const auto item = Selected();
  if (!item) {
    return;
  }
  std::vector<std::string_view> nearby;
  for (const std::string_view row : state_.qsos.others) {
    if (Cut(row, qso_line::kLocator) == item->locator) {
      nearby.push_back(row);
    }
  }
  files_.WriteAll(session_.workspace.scratch(Join(state_.categoria, "call_in_stesso_locatore.tmp")),
                  TextOfLines(nearby));
  const auto found = std::ranges::find_if(nearby, [&item](std::string_view row) {
    return FitsWithOneGap(Trim(Cut(row, qso_line::kCall)), item->call, kPatterns);
  });
  std::string probable;
  if (found != nearby.end()) {
    probable = Trim(Cut(*found, qso_line::kCall));
  } else if (!form_.List2_unici.items.rows().empty()) {
    const std::string_view first = Trim(Cut(form_.List2_unici.items.rows().front(), kProbableCall));
    const bool anagram =
        first.size() == item->call.size() && std::ranges::all_of(first, [&item](char c) {
          return Holds(item->call, {&c, 1});
        });
    if (anagram) {
      probable = first;
    }
  }
  if (form_.pre_senze.caption == "0") {  // the log's own is the only one
    form_.messaggio_unici.caption = "I call con UNA presenza, sono SEMPRE visualizzati";
  }
  if (probable.empty()) {
    return;
  }
  state_.judged_wrong = probable != item->call;
  form_.Prob_call_corretto.caption = probable;
  form_.call_scorretto.caption = item->call;
  const auto& rows = form_.List2_unici.items.rows();
  const auto listed = std::ranges::find_if(rows, [&probable](const std::string& row) {
    return RTrim(Cut(row, kListedCall)) == probable;
  });
  form_.List2_unici.selection = listed == rows.end() ? -1 : static_cast<int>(listed - rows.begin());
}

}  // namespace velmar
