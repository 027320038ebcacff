#include "check/locator_check.h"

#include "check/locator_doubts.h"
#include "check/locator_evidence.h"
#include "check/locator_messages.h"
#include "check/qso_line.h"
#include "model/lines.h"
#include "model/store_rows.h"
#include "model/text.h"
#include "platform/error.h"

namespace velmar {

namespace {

constexpr std::size_t kMostQsos = 1500;
constexpr std::size_t kMostDoubts = 10'000;
constexpr std::size_t kMostFreshParticipants = 700;
constexpr std::size_t kShortestParticipant = 18;

void Add(std::vector<std::string>& doubts, std::string_view row, std::size_t place) {
  if (doubts.size() == kMostDoubts) {
    throw RunTimeError(ErrorNumber::kSubscript, "the list of doubts");
  }
  doubts.push_back(QsoLine(row, place + 1));
}

std::vector<std::string_view> Participants(std::string_view text) {
  std::vector<std::string_view> participants;
  LineReader reader(text);
  for (std::string_view line; reader.Next(line);) {
    if (line.size() < kShortestParticipant) {
      continue;
    }
    if (participants.size() == kMostFreshParticipants) {
      throw RunTimeError(ErrorNumber::kSubscript, "the participants");
    }
    participants.push_back(line);
  }
  return participants;
}

}  // namespace

void LocatorCheck::Build() {
  const auto& log = state_.qsos.log;
  if (log.size() > kMostQsos) {
    throw RunTimeError(ErrorNumber::kSubscript, "the QSOs of a log");
  }
  std::vector<std::string> doubts;
  ReadQsos(doubts);
  const std::vector<std::string_view> participants(session_.participants.begin(),
                                                   session_.participants.end());
  for (const std::size_t place :
       FindLocatorDoubts({log, state_.qsos.others, participants, state_.categoria})) {
    Add(doubts, log[place], place);
  }
  for (const std::size_t place : FindOwnQsos(log, state_.call_in_esame)) {
    Add(doubts, log[place], place);
  }
  state_.errore_in_arrivo = doubts.empty() && CompareWithDeclared(doubts);
  form_.err_loc_log.visible = state_.errore_in_arrivo;
  form_.N_dubbi.caption = std::to_string(doubts.size());
  if (doubts.empty() && form_.vis_mess.checked) {
    manager_.Show({.lines = {"   LOG SENZA LOCATORI ERRATI "}});
  }
  form_.Lista_dubbi.Fill(std::move(doubts));
}

void LocatorCheck::ReadQsos(std::vector<std::string>& doubts) {
  const auto& log = state_.qsos.log;
  for (std::size_t i = 0; i < log.size(); ++i) {
    const std::string_view locator = RTrim(Cut(log[i], qso_line::kLocator));
    const std::string_view call = RTrim(Cut(log[i], qso_line::kCall));
    if (LocatorBroken(locator)) {
      manager_.Show(BrokenLocatorOnReading(locator, i + 1, call));
    }
    if (ItalianPortable(call)) {
      manager_.Show(
          {.lines = {" se il call è italiano il '/P' nel trofeo non è ammesso, errore"_a}});
      Add(doubts, log[i], i);
    }
  }
}

bool LocatorCheck::CompareWithDeclared(std::vector<std::string>& doubts) {
  const auto text = ReadIfThere(
      files_, session_.workspace.store_file(StoreFile::kPartecipanti, state_.categoria));
  if (!text) {
    manager_.Show(MissingParticipants());
    return false;
  }
  for (const std::size_t place : FindDeclaredOtherwise(state_.qsos.log, Participants(*text))) {
    Add(doubts, state_.qsos.log[place], place);
  }
  return !doubts.empty();
}

std::optional<LocatorCheck::Doubt> LocatorCheck::Selected() const {
  const auto line = form_.Lista_dubbi.ChosenRow();
  if (!line) {
    return std::nullopt;
  }
  return Doubt{.call = std::string(Cut(*line, qso_line::kCall)),
               .locator = std::string(Cut(*line, qso_line::kLocator)),
               .points = std::string(LTrim(Cut(*line, qso_line::kPoints))),
               .ordinal = std::string(Cut(*line, qso_line::kOrdinal))};
}

void LocatorCheck::Lista_dubbi_Click() {
  while (ShowEvidence() && form_.NOT_ERROR.checked) {
    RemoveSelected();
    if (!Selected()) {
      Settle();
    }
  }
}

/// Shows the evidence of the selected doubt, and tells whether it speaks for the locator.
bool LocatorCheck::ShowEvidence() {
  const auto doubt = Selected();
  if (!doubt) {
    return false;
  }
  form_.ClearEvidence();
  form_.err_loc_log.visible = state_.errore_in_arrivo;
  if (LocatorBroken(RTrim(doubt->locator))) {
    manager_.Show(BrokenLocatorOfDoubt(doubt->locator));
  }
  LocatorEvidence evidence = GatherEvidence(state_.qsos.others, doubt->call, doubt->locator);
  if (state_.errore_in_arrivo) {
    evidence.other = 1;
  } else {
    ++evidence.same;  // the log under examination
  }
  const LocatorVerdict verdict = JudgeLocator(evidence.same, evidence.other);
  form_.Lista_locatori.Fill(std::move(evidence.rows));
  form_.log_uguali.caption = std::to_string(evidence.same);
  form_.log_diverso.caption = std::to_string(evidence.other);
  form_.infoloc.caption = verdict.text;
  state_.believed_wrong = verdict.believed_wrong;
  if (verdict.good) {
    form_.QSO_ok.colour = colour::kGreen;
  } else {
    form_.conferma_errore.colour = verdict.doubt ? colour::kYellow : colour::kRed;
  }
  form_.NameLookUps(RTrim(doubt->call), doubt->locator);
  form_.lista_call_unici.Fill({});  // of another square, perhaps
  ShowDeclared(*doubt);
  TellOwnCall(*doubt);
  return verdict.good;
}

void LocatorCheck::ShowDeclared(const Doubt& doubt) {
  state_.declared_locator.clear();
  const std::string_view call = Trim(doubt.call);
  for (const std::string& row : session_.participants) {
    if (Cut(row, partecipante_row::kCall) == doubt.call &&
        Cut(row, partecipante_row::kCategory) == state_.categoria) {
      form_.Locatore_in_log_arrivato.caption =
          Join("Locator in log arrivato : ", Cut(row, partecipante_row::kDeclaration));
      state_.declared_locator = Cut(row, partecipante_row::kLocator);
      return;
    }
    if (Holds(row, call) && Holds(row, "/")) {
      form_.Locatore_in_log_arrivato.caption =
          Join("Locator dichiarato da : ", Cut(row, partecipante_row::kDeclaration));
    }
  }
}

void LocatorCheck::TellOwnCall(const Doubt& doubt) {
  const std::string_view call = Trim(doubt.call);
  state_.errore_forzato_call = call == state_.call_in_esame;
  if (state_.errore_forzato_call) {
    manager_.Show({.lines = {Join(" Il call ", call, " è uguale al dichiarante. "_a), "    ",
                             " Non è possibile inserire SE STESSI nel log. "_a,
                             " Il qso sarà considerato ERROR CALL. "_a}});
  }
}

void LocatorCheck::Lista_locatori_Click() {
  if (const auto row = form_.Lista_locatori.ChosenRow()) {
    form_.vedi_locator.caption = Join(CheckForm::kMapOf, Cut(*row, qso_line::kLocator));
  }
}

void LocatorCheck::conferma_errore_Click() {
  const auto doubt = Selected();
  if (!doubt) {
    return;
  }
  state_.believed_wrong = false;
  if (report_.AlreadyListed(doubt->call)) {
    return;
  }
  if (const auto locator = AskLocator()) {
    Penalise(*doubt, error_tag::kLocator, doubt->locator, *locator);
  }
}

/// The locator as it should have been; nothing where the manager thinks better of it.
std::optional<std::string> LocatorCheck::AskLocator() {
  constexpr std::size_t kLength = 6;
  const bool declared = !state_.declared_locator.empty();
  InputBox box{.title = declared ? "Errore locatore" : "Error locator",
               .lines = {" Scrivi il locatore esatto o conferma locatore"},
               .default_text = declared ? state_.declared_locator
                                        : RepeatedLocator(form_.Lista_locatori.items.rows())};
  for (;;) {
    auto answer = manager_.Ask(box);
    if (!answer || answer->empty() || *answer == "*") {
      return std::nullopt;
    }
    if (answer->size() == kLength) {
      return answer;
    }
    box.lines = {" Scrivi il LOCATORE esatto 2"};
    box.default_text = *answer;
  }
}

void LocatorCheck::errore_call_Click() {
  const auto doubt = Selected();
  if (!doubt || report_.AlreadyListed(doubt->call)) {
    return;
  }
  if (const auto call = CorrectCall(*doubt)) {
    Penalise(*doubt, error_tag::kCall, doubt->call, *call);
  }
}

/// The call as it should have been; nothing where the manager thinks better of it.
std::optional<std::string> LocatorCheck::CorrectCall(const Doubt& doubt) {
  if (const auto row = form_.Lista_locatori.ChosenRow()) {
    return std::string(Cut(*row, qso_line::kCall));
  }
  if (state_.errore_forzato_call) {
    return doubt.call;
  }
  const auto answer = manager_.Ask({.title = "Error call",
                                    .lines = {" Scrivi il CALL esatto / Corretto "},
                                    .default_text = std::string(RTrim(doubt.call))});
  return answer && !answer->empty() && *answer != "*" ? answer : std::nullopt;
}

void LocatorCheck::not_inlog_Click() {
  const auto doubt = Selected();
  if (!doubt || report_.AlreadyListed(doubt->call)) {
    return;
  }
  const auto& witnesses = form_.Lista_locatori.items.rows();
  Penalise(*doubt, error_tag::kNotInLog,
           witnesses.empty() ? "" : std::string(Cut(witnesses.front(), qso_line::kLocator)), "");
}

void LocatorCheck::QSO_ok_Click() {
  if (!Selected()) {
    return;
  }
  if (state_.believed_wrong && manager_.Show({.lines = {" Vuoi considerare valido il qso ?"},
                                              .icon = Icon::kQuestion,
                                              .buttons = Buttons::kYesNo}) != Reply::kYes) {
    return;
  }
  GoOn();
}

void LocatorCheck::Penalise(const Doubt& doubt, std::string_view tag, const std::string& wrong,
                            const std::string& right) {
  report_.Penalise({.call = doubt.call,
                    .ordinal = doubt.ordinal,
                    .tag = tag,
                    .wrong = wrong,
                    .right = right,
                    .points = doubt.points});
  GoOn();
}

/// The selected doubt is decided: the next one, or the next check.
void LocatorCheck::GoOn() {
  RemoveSelected();
  if (Selected()) {
    Lista_dubbi_Click();
  } else {
    Settle();
  }
}

void LocatorCheck::RemoveSelected() {
  form_.N_dubbi.caption = std::to_string(form_.Lista_dubbi.RemoveChosen());
}

void LocatorCheck::Settle() {
  form_.ClearEvidence();
  form_.Lista_locatori.Fill({});
  steps_.Advance();
}

}  // namespace velmar
