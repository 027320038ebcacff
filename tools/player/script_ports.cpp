#include "player/script_ports.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "model/text.h"
#include "platform/ansi.h"
#include "platform/error.h"

namespace velmar {

namespace {

std::string_view NameOf(Icon icon) {
  constexpr std::array<std::string_view, 4> kNames = {"info", "stop", "exclamation", "question"};
  return kNames.at(static_cast<std::size_t>(icon));
}

std::string_view NameOf(Buttons buttons) {
  constexpr std::array<std::string_view, 4> kNames = {"ok", "ok-cancel", "yes-no", "yes-no-cancel"};
  return kNames.at(static_cast<std::size_t>(buttons));
}

std::string_view NameOf(Reply reply) {
  constexpr std::array<std::string_view, 4> kNames = {"ok", "yes", "no", "cancel"};
  return kNames.at(static_cast<std::size_t>(reply));
}

/// Whether a box with these buttons can be answered so.
bool Offers(Buttons buttons, Reply reply) {
  switch (reply) {
    case Reply::kOk:
      return buttons == Buttons::kOk || buttons == Buttons::kOkCancel;
    case Reply::kCancel:
      return buttons == Buttons::kOkCancel || buttons == Buttons::kYesNoCancel;
    default:
      return buttons == Buttons::kYesNo || buttons == Buttons::kYesNoCancel;
  }
}

std::string InOneLine(const std::vector<std::string>& lines) {
  std::string joined;
  for (const std::string& line : lines) {
    joined += joined.empty() ? "" : " / ";
    joined += line;
  }
  return Utf8FromAnsi(joined);
}

}  // namespace

Answer ScriptManager::Take(AnswerKind kind, const std::string& asked) {
  if (answers_.empty() || answers_.front().kind != kind) {
    throw NoAnswer(asked);
  }
  Answer answer = std::move(answers_.front());
  answers_.pop_front();
  return answer;
}

Reply ScriptManager::Show(const Box& box) {
  Reply reply = Reply::kOk;
  if (box.buttons != Buttons::kOk) {
    const std::string asked = "box: " + InOneLine(box.lines);
    reply = Take(AnswerKind::kBox, asked).reply;
    if (!Offers(box.buttons, reply)) {
      throw NoAnswer(Join(asked, " (it has no button \"", NameOf(reply), "\")"));
    }
  }
  sink_(JsonRecord()
            .Text("box", NameOf(box.icon))
            .Text("title", box.title)
            .Texts("lines", box.lines)
            .Text("buttons", NameOf(box.buttons))
            .Text("reply", NameOf(reply)));
  return reply;
}

std::optional<std::string> ScriptManager::Ask(const InputBox& box) {
  const Answer answer = Take(AnswerKind::kInput, "input box: " + InOneLine(box.lines));
  auto reply = answer.take_default ? std::optional(box.default_text) : answer.text;
  sink_(JsonRecord()
            .Text("input", box.title)
            .Texts("lines", box.lines)
            .Text("default", box.default_text)
            .TextOrNull("reply", reply));
  return reply;
}

std::optional<std::string> ScriptManager::PickFile(const FileDialog& dialog) {
  const Answer answer = Take(AnswerKind::kFile, "file dialog: " + Utf8FromAnsi(dialog.filter));
  sink_(JsonRecord()
            .Text("file", dialog.new_ending.empty() ? "open" : "save")
            .Text("title", dialog.title)
            .Text("filter", dialog.filter)
            .TextOrNull("reply", answer.text));
  return answer.text ? std::optional(folder_ + "/" + *answer.text) : std::nullopt;
}

void ScriptManager::Beep(int times) {
  sink_(JsonRecord().Number("beep", times));
}

void ScriptManager::Progress(std::size_t /*done*/, std::size_t /*total*/) {}

int ScriptMachine::WorkbookVersion() {
  if (facts_.excel == 0) {
    throw RunTimeError(ErrorNumber::kNoApplication, "no workbook application");
  }
  return facts_.excel;
}

void ScriptPrinter::Print(const PrintJob& job) {
  std::vector<std::string> lines;
  for (const PrintedBlock& block : job) {
    lines.insert(lines.end(), block.lines.begin(), block.lines.end());
  }
  sink_(JsonRecord().Texts("print", lines));
}

void ScriptPictures::Save(const Picture& picture, const std::string& path) {
  files_.Save(picture, path);
  const std::string inside = folder_ + "/";
  sink_(JsonRecord().Text("picture", path.starts_with(inside) ? path.substr(inside.size()) : path));
}

std::string ScriptWeb::Fetch(const std::string& url) {
  if (!facts_.online || !facts_.version) {
    throw RunTimeError(ErrorNumber::kDeviceError, url);
  }
  return *facts_.version;
}

}  // namespace velmar
