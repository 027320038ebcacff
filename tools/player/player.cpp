#include "player/player.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"
#include "platform/form.h"

namespace velmar {

namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

/// A word, and the rest behind the blank that ends it.
struct Words {
  std::string first;
  std::string rest;
};

Words Divide(std::string_view text) {
  const std::size_t blank = text.find(' ');
  return {std::string(text.substr(0, blank)),
          blank == std::string_view::npos ? "" : std::string(text.substr(blank + 1))};
}

std::string_view NameOf(ControlKind kind) {
  constexpr std::array<std::string_view, 11> kNames = {"button", "menu", "check",   "option",
                                                       "label",  "text", "list",    "combo",
                                                       "files",  "grid", "progress"};
  return kNames.at(static_cast<std::size_t>(kind));
}

bool HasRows(const Control& control) {
  switch (control.kind()) {
    case ControlKind::kList:
    case ControlKind::kCombo:
    case ControlKind::kFiles:
    case ControlKind::kGrid:
      return true;
    default:
      return false;
  }
}

/// The number that `text` is as a whole, or nothing.
template <typename Number>
std::optional<Number> WholeNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  return error == std::errc() && end == text.data() + text.size() ? std::optional(number)
                                                                  : std::nullopt;
}

}  // namespace

Player::Player(const std::string& workspace, std::ostream& out, std::ostream& err)
    : workspace_(workspace),
      out_(out),
      err_(err),
      manager_(workspace, [this](const JsonRecord& record) { Record(record); }),
      clock_(facts_),
      machine_(facts_),
      web_(facts_, [this](const JsonRecord& record) { Record(record); }),
      printer_(facts_, [this](const JsonRecord& record) { Record(record); }),
      picture_files_(files_),
      pictures_(workspace, picture_files_, [this](const JsonRecord& record) { Record(record); }),
      workbooks_(files_) {}

PlayResult Player::Play(std::istream& script) {
  std::string line;
  std::size_t number = 0;
  try {
    while (std::getline(script, line)) {
      if (++number == 1 && line.starts_with(kByteOrderMark)) {
        line.erase(0, kByteOrderMark.size());
      }
      if (line.ends_with('\r')) {
        line.pop_back();
      }
      if (line.find_first_not_of(" \t") != std::string::npos && !line.starts_with('#')) {
        Perform(AnsiFromUtf8(line));
      }
    }
    Record(JsonRecord().Text("end", "script"));
    return PlayResult::kPlayed;
  } catch (const ProgramEnd&) {
    Record(JsonRecord().Text("end", "program"));
    return PlayResult::kPlayed;
  } catch (const ScriptError& error) {
    err_ << "line " << number << ": " << Utf8FromAnsi(error.what()) << '\n';
    return PlayResult::kScriptError;
  } catch (const NoAnswer& error) {
    err_ << "line " << number << ": no answer is queued for the " << error.what() << '\n';
    return PlayResult::kNoAnswer;
  } catch (const std::exception& error) {
    err_ << "line " << number << ": the program failed: " << error.what() << '\n';
    return PlayResult::kFailure;
  }
}

void Player::Perform(const std::string& line) {
  forced_ = line.starts_with('!');
  const auto [word, rest] = Divide(std::string_view(line).substr(forced_ ? 1 : 0));
  const auto command = Commands().find(word);
  if (command != Commands().end()) {
    (this->*command->second)(rest);
  } else if (!SetFact(word, rest) && !QueueAnswer(word, rest)) {
    throw ScriptError("unknown command: " + word);
  }
}

const std::map<std::string, Player::Command, std::less<>>& Player::Commands() {
  static const std::map<std::string, Command, std::less<>> commands = {
      {"start", &Player::Start},          {"click", &Player::Click},
      {"dblclick", &Player::DoubleClick}, {"tick", &Player::Tick},
      {"untick", &Player::Untick},        {"type", &Player::Type},
      {"select", &Player::Select},        {"key", &Player::Press},
      {"show", &Player::ShowControl},     {"show-form", &Player::ShowForm},
      {"forms", &Player::ShowForms}};
  return commands;
}

bool Player::SetFact(const std::string& word, const std::string& rest) {
  const auto yes = [&] {
    if (rest != "yes" && rest != "no") {
      throw ScriptError(word + " takes yes or no");
    }
    return rest == "yes";
  };
  const auto number = [&] {
    const auto value = WholeNumber<int>(rest);
    if (!value) {
      throw ScriptError(word + " takes a number");
    }
    return *value;
  };
  if (word == "date") {
    facts_.date = rest;
  } else if (word == "online") {
    facts_.online = yes();
  } else if (word == "ping") {
    facts_.ping = number();
  } else if (word == "version") {
    facts_.version = rest;
  } else if (word == "system") {
    facts_.system = rest;
  } else if (word == "excel") {
    facts_.excel = number();
  } else if (word == "excel-running") {
    facts_.excel_running = yes();
  } else if (word == "printer") {
    facts_.printer = yes();
  } else {
    return false;
  }
  return true;
}

bool Player::QueueAnswer(const std::string& word, const std::string& rest) {
  static const std::map<std::string, Reply, std::less<>> replies = {
      {"yes", Reply::kYes}, {"no", Reply::kNo}, {"cancel", Reply::kCancel}, {"ok", Reply::kOk}};
  if (word == "answer") {
    const auto reply = replies.find(rest);
    if (reply == replies.end()) {
      throw ScriptError("unknown answer: " + rest);
    }
    manager_.Queue({.kind = AnswerKind::kBox, .reply = reply->second});
  } else if (word == "input") {
    manager_.Queue({.kind = AnswerKind::kInput, .text = rest});
  } else if (word == "input-default") {
    manager_.Queue({.kind = AnswerKind::kInput, .take_default = true});
  } else if (word == "input-cancel") {
    manager_.Queue({.kind = AnswerKind::kInput, .text = std::nullopt});
  } else if (word == "pick") {
    manager_.Queue({.kind = AnswerKind::kFile, .text = rest});
  } else if (word == "pick-cancel") {
    manager_.Queue({.kind = AnswerKind::kFile, .text = std::nullopt});
  } else {
    return false;
  }
  return true;
}

void Player::Start(const std::string& /*rest*/) {
  program_ = std::make_unique<Program>(
      workspace_, Ports{files_, manager_, clock_, machine_, web_, printer_, pictures_, workbooks_});
  program_->screen().on_visibility = [this](const Form& form) {
    Record(JsonRecord().Text("form", form.name()).Flag("visible", form.visible()));
  };
  program_->Start();
}

void Player::Click(const std::string& rest) {
  Usable(rest).Click();
}

void Player::DoubleClick(const std::string& rest) {
  Usable(rest).DoubleClick();
}

void Player::Tick(const std::string& rest) {
  SetTick(rest, true);
}

void Player::Untick(const std::string& rest) {
  SetTick(rest, false);
}

void Player::SetTick(const std::string& name, bool tick) {
  Control& control = Usable(name);
  const bool option = control.kind() == ControlKind::kOption;
  if (!option && control.kind() != ControlKind::kCheck && control.kind() != ControlKind::kMenu) {
    throw ScriptError(name + " has no tick");
  }
  if (control.checked == tick) {
    return;
  }
  if (option && !tick) {
    throw ScriptError(name + " is cleared by choosing another option");
  }
  control.Click();
}

void Player::Type(const std::string& rest) {
  const auto [name, text] = Divide(rest);
  Control& control = Usable(name);
  if (control.kind() != ControlKind::kText && control.kind() != ControlKind::kCombo) {
    throw ScriptError(name + " takes no text");
  }
  control.Type(text);
}

void Player::Select(const std::string& rest) {
  const Words words = Divide(rest);
  const std::string& name = words.first;
  const std::string& row = words.rest;
  Control& control = Usable(name);
  if (!HasRows(control)) {
    throw ScriptError(name + " has no rows");
  }
  const auto& rows = control.items.rows();
  std::optional<std::size_t> chosen;
  if (row.starts_with('~')) {
    chosen = static_cast<std::size_t>(
        std::ranges::find_if(rows,
                             [&](const std::string& item) { return Holds(item, Mid(row, 2)); }) -
        rows.begin());
  } else {
    chosen = WholeNumber<std::size_t>(row);
  }
  if (!chosen || *chosen >= rows.size()) {
    throw ScriptError(name + " has no row " + row);
  }
  control.Select(static_cast<int>(*chosen));
}

void Player::Press(const std::string& rest) {
  const auto [name, key] = Divide(rest);
  if (key.size() != 1 && key != "F5" && key != "Enter" && key != "Esc") {
    throw ScriptError("unknown key: " + key);
  }
  Usable(name).Press(key);
}

void Player::ShowControl(const std::string& rest) {
  RecordControl(Find(rest));
}

void Player::ShowForm(const std::string& /*rest*/) {
  const auto& visible = ScreenOfProgram().visible_forms();
  if (visible.empty()) {
    throw ScriptError("no form is to be seen");
  }
  for (const auto& control : visible.front()->controls()) {
    RecordControl(*control);
  }
}

void Player::ShowForms(const std::string& /*rest*/) {
  for (const Form* form : ScreenOfProgram().visible_forms()) {
    Record(JsonRecord().Text("form", form->name()).Flag("visible", true));
  }
}

Screen& Player::ScreenOfProgram() {
  if (!program_) {
    throw ScriptError("the program has not been started");
  }
  return program_->screen();
}

Control* Player::FindIn(const Form& form, std::string_view name) {
  for (const auto& control : form.controls()) {
    if (Lower(control->name) == Lower(name)) {
      return control.get();
    }
  }
  return nullptr;
}

Control& Player::Find(const std::string& name) {
  Screen& screen = ScreenOfProgram();
  const std::size_t dot = name.find('.');
  if (dot != std::string::npos) {
    for (Form* form : screen.forms()) {
      if (Lower(form->name()) == Lower(name.substr(0, dot))) {
        if (Control* control = FindIn(*form, name.substr(dot + 1))) {
          return *control;
        }
      }
    }
  } else {
    for (const auto* forms : {&screen.visible_forms(), &screen.forms()}) {
      for (Form* form : *forms) {
        if (Control* control = FindIn(*form, name)) {
          return *control;
        }
      }
    }
  }
  throw ScriptError("unknown control: " + name);
}

Control& Player::Usable(const std::string& name) {
  Control& control = Find(name);
  if (!forced_ && !control.Reachable()) {
    throw ScriptError(name + (control.form().visible() && control.visible ? " is not enabled"
                                                                          : " is not to be seen"));
  }
  return control;
}

void Player::Record(const JsonRecord& record) {
  const std::string line = record.Line();
  out_ << line << '\n' << std::flush;
  if (on_record) {
    on_record(line);
  }
}

void Player::RecordControl(const Control& control) {
  // A label shows one text, which is its caption and its value.
  const bool label = control.kind() == ControlKind::kLabel;
  Record(JsonRecord()
             .Text("control", control.name)
             .Text("form", control.form().name())
             .Text("kind", NameOf(control.kind()))
             .Text("caption", control.caption)
             .Text("value", label ? control.caption : control.value)
             .Texts("items", control.items.rows())
             .Number("selected", control.selection)
             .Flag("visible", control.visible)
             .Flag("enabled", control.enabled)
             .Flag("checked", control.checked)
             .NumberOrNull("colour", control.colour));
}

}  // namespace velmar
