#include "check/archive.h"

#include <algorithm>

#include "check/qso_line.h"
#include "check/unique_evidence.h"
#include "model/call_book.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/ansi.h"
#include "platform/hosts.h"

namespace velmar {

namespace {

constexpr const char* kOpenCaption = "Archivio";
constexpr const char* kCloseCaption = " chiudi";

}  // namespace

Archive::Archive(ContestSession& session, FileSystem& files, Manager& manager, Web& web,
                 StoreReading& store, Screen& screen, CheckForm& form, CheckState& state)
    : session_(session),
      files_(files),
      manager_(manager),
      web_(web),
      store_(store),
      screen_(screen),
      desk_(form),
      state_(state) {
  browser_.Bar1.visible = false;
  notices_.cmdOK.on_click = [this] { screen_.Hide(notices_); };
}

void Archive::LoadBook() {
  if (session_.book_loaded || session_.archive_missing) {
    return;
  }
  session_.archive_missing = true;  // also where the read fails: its error is not told each time
  const auto bytes = ReadIfThere(files_, session_.workspace.call_book());
  if (!bytes) {
    manager_.Show({.lines = {" ARCHIVIO ASSENTE "}});
    return;
  }
  auto records = DecodeCallBook(*bytes);
  if (!records) {
    RefuseBook();
    return;
  }
  browser_.Bar1.maximum = records->size();
  browser_.Bar1.value = std::to_string(records->size());
  browser_.Bar1.visible = true;
  manager_.Progress(records->size(), records->size());
  browser_.Bar1.visible = false;
  browser_.lista_archivio.Fill(*records);
  browser_.tot_in_archivio.caption = std::to_string(records->size());
  if (!records->empty()) {
    desk_.Check5.checked = true;
    session_.settings.Set(Setting::kHideUniqueInDatabase, std::string(Settings::kOn));
  }
  session_.call_book = std::move(*records);
  session_.archive_missing = false;
  session_.book_loaded = true;
}

void Archive::RefuseBook() {
  manager_.Show(
      {.lines = {
           " Il file letto dal programma NON è l' archivio call di Varto."_a,
           " Il file ha lo stesso nome ma non contiene le informazioni necessarie",
           " i controlli risulteranno più lunghi e non avranno l'aiuto in caso di dubbi."_a}});
}

/// Loads the book for a look-up, which tells where the one that was read is gone.
void Archive::NeedBook() {
  LoadBook();
  if (session_.book_loaded && session_.archive_missing) {
    manager_.Show({.lines = {" Archivio interno assente"}});
  }
}

std::optional<Archive::Item> Archive::ItemOf(const List& list) {
  const auto line = list.ChosenRow();
  if (!line) {
    return std::nullopt;
  }
  return Item{.call = std::string(RTrim(Cut(*line, qso_line::kCall))),
              .locator = std::string(Cut(*line, qso_line::kLocator))};
}

std::optional<Archive::Item> Archive::SelectedItem() const {
  if (!desk_.Frame_unici.visible) {
    return ItemOf(desk_.Lista_dubbi);
  }
  if (auto item = ItemOf(desk_.Call_unici)) {
    return item;
  }
  // What is not in a log stands with its call alone.
  const auto row = desk_.Lista_simili.ChosenRow();
  if (!row || desk_.lista_notlog.items.rows().empty()) {
    return std::nullopt;
  }
  return Item{.call = std::string(RTrim(Left(*row, kCallWidth))), .locator = ""};
}

void Archive::Show(ResultRows rows) {
  notices_.List_avvisi.Fill(std::move(rows));
  screen_.Show(notices_);
}

void Archive::SuggestFrom(const std::string& row, std::string_view introduction) {
  desk_.Locatore_in_log_arrivato.caption =
      Join(introduction, Cut(row, partecipante_row::kDeclaration));
  state_.declared_locator = Cut(row, partecipante_row::kLocator);
}

void Archive::database_Click() {
  const auto item = SelectedItem();
  if (!item) {
    return;
  }
  NeedBook();
  ResultRows rows = FindInDatabase(Sources(), item->call, session_.archive_missing);
  if (!session_.archive_missing) {
    desk_.Locatore_in_log_arrivato.caption.clear();
    for (const std::string& row : session_.participants) {
      if (RTrim(Cut(row, partecipante_row::kCall)) == item->call &&
          Cut(row, partecipante_row::kCategory) == state_.categoria) {
        SuggestFrom(row, "Locator in log arrivato : ");
      }
    }
  }
  Show(std::move(rows));
}

void Archive::CercaDtbIaru_Click() {
  if (const auto item = SelectedItem()) {
    Show(FindAround(Sources(), item->call, item->locator, state_.call_in_esame));
  }
}

void Archive::Controlla_estero_Click() {
  if (const auto item = ItemOf(desk_.Call_unici)) {
    for (std::string& row : FindForeignCall(state_.qsos.others, item->call)) {
      desk_.Lista_simili.items.Add(std::move(row));
    }
  }
}

void Archive::Tutti_call_Click() {
  const auto item = ItemOf(desk_.Lista_dubbi);
  if (!item) {
    return;
  }
  NeedBook();
  desk_.Locatore_in_log_arrivato.caption.clear();
  for (const std::string& row : session_.participants) {
    if (Holds(row, item->call)) {
      SuggestFrom(row, "nel log si è dichiarato: "_a);
    }
  }
  if (desk_.lista_notlog.items.rows().empty()) {  // else the list holds other rows
    desk_.Lista_simili.Fill(FindSimilarCalls(
        state_.qsos.others, session_.archive_missing ? nullptr : &session_.call_book,
        {.call = item->call, .locator = item->locator}));
  }
  Show(FindCallsByEnd(session_.call_book, item->call));
}

void Archive::Tutti_loc_Click() {
  const auto item = ItemOf(desk_.Lista_dubbi);
  if (!item) {
    return;
  }
  NeedBook();
  Show(FindNearLocator(session_.call_book, state_.qsos.others, item->locator));
}

void Archive::ric_in_quel_locatore_Click() {
  const auto item = SelectedItem();
  if (!item) {
    return;
  }
  for (std::string& row : FindInSquare(store_.TotalLibrary(), item->call, item->locator)) {
    desk_.lista_call_unici.items.Add(std::move(row));
  }
}

void Archive::Vis_archivio_Click() {
  if (browser_.visible()) {
    chiudi_archivio_Click();
  } else {
    espandi_archivio_Click();
  }
}

void Archive::espandi_archivio_Click() {
  LoadBook();
  if (const auto item = SelectedItem()) {
    ResultRows found = FindRecords(item->call);
    if (found.empty()) {
      found.emplace_back(" No Found ");
    }
    browser_.Lista_trovati.Fill(std::move(found));
  }
  desk_.Vis_archivio.caption = kCloseCaption;
  screen_.Show(browser_);
}

void Archive::chiudi_archivio_Click() {
  desk_.Vis_archivio.caption = kOpenCaption;
  screen_.Hide(browser_);
}

void Archive::HideWindows() {
  chiudi_archivio_Click();
  screen_.Hide(notices_);
}

ResultRows Archive::FindRecords(const std::string& text) const {
  ResultRows found;
  std::ranges::copy_if(session_.call_book, std::back_inserter(found),
                       [&text](const std::string& record) { return Holds(record, text); });
  return found;
}

void Archive::cerca_Click() {
  const auto item = SelectedItem();
  const auto answer = manager_.Ask({.title = "Ricerca call",
                                    .lines = {" Scrivi il CALL da cercare o LOCATOR "},
                                    .default_text = item ? item->call : state_.call_in_esame});
  if (!answer || answer->empty()) {
    return;
  }
  browser_.Lista_trovati.Fill(FindRecords(Upper(*answer)));
  if (browser_.Lista_trovati.items.rows().empty()) {
    manager_.Show({.lines = {" Call no found"}});
  }
}

bool Archive::Online() {
  if (!session_.online) {
    manager_.Show({.lines = {" Spiacente ma non c'è un collegamento a internet attivo."_a}});
  }
  return session_.online;
}

void Archive::OpenMap(std::string_view locator) {
  web_.Open(Join(hosts::kGridMap, locator, hosts::kGridMapEnd));
}

void Archive::internet_Click() {
  if (!Online()) {
    return;
  }
  if (const auto item = SelectedItem()) {
    web_.Open(Join(hosts::kCallBook, item->call));
  }
}

void Archive::SEARC_loc_Click() {
  if (!Online()) {
    return;
  }
  if (const auto item = SelectedItem()) {
    OpenMap(item->locator);
  }
}

void Archive::vedi_locator_Click() {
  const auto row = desk_.Lista_locatori.ChosenRow();
  if (!row) {
    SEARC_loc_Click();
  } else if (Online()) {
    OpenMap(Cut(*row, qso_line::kLocator));
  }
}

}  // namespace velmar
