#pragma once

#include <deque>
#include <functional>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/clock.h"
#include "platform/machine.h"
#include "platform/manager.h"
#include "platform/printer.h"
#include "platform/web.h"
#include "player/json.h"

namespace velmar {

/// A box or dialog asked, and the script had no answer of its kind ready.
class NoAnswer : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Takes a record of what the manager would have seen.
using RecordSink = std::function<void(const JsonRecord& record)>;

/// What a script tells of the machine, with what holds when it tells nothing.
struct MachineFacts {
  std::string date = "21/01/2025";
  bool online = false;
  std::optional<double> ping;
  std::optional<std::string> version;
  std::string system = "Windows 11 Pro";
  int excel = 16;
  bool excel_running = false;
  bool printer = true;
};

enum class AnswerKind { kBox, kInput, kFile };

/// A reply that waits for the box or dialog that asks for it.
struct Answer {
  AnswerKind kind;
  Reply reply = Reply::kOk;              ///< of a box
  std::optional<std::string> text = "";  ///< of an input box or dialog; nothing for Cancel
  bool take_default = false;             ///< an input box: the text that it offers
};

/// The manager of a script: answers come out of one queue, in order.
class ScriptManager : public Manager {
 public:
  /// `folder` is what chosen paths are relative to.
  ScriptManager(std::string folder, RecordSink sink)
      : folder_(std::move(folder)), sink_(std::move(sink)) {}

  void Queue(Answer answer) { answers_.push_back(std::move(answer)); }

  Reply Show(const Box& box) override;
  std::optional<std::string> Ask(const InputBox& box) override;
  std::optional<std::string> PickFile(const FileDialog& dialog) override;
  void Beep(int times) override;
  /// A script has no one who could press a key while the program is at work.
  bool StopWanted() override { return false; }
  void Progress(std::size_t done, std::size_t total) override;

 private:
  Answer Take(AnswerKind kind, const std::string& asked);

  std::string folder_;
  RecordSink sink_;
  std::deque<Answer> answers_;
};

class ScriptClock : public Clock {
 public:
  explicit ScriptClock(const MachineFacts& facts) : facts_(facts) {}
  std::string ShortDate() override { return facts_.date; }
  double Timer() override { return 0; }

 private:
  const MachineFacts& facts_;
};

class ScriptMachine : public Machine {
 public:
  explicit ScriptMachine(MachineFacts& facts) : facts_(facts) {}
  bool Connected() override { return facts_.online; }
  std::optional<double> Ping() override { return facts_.online ? facts_.ping : std::nullopt; }
  std::string ProductName() override { return facts_.system; }
  bool WorkbookRunning() override { return facts_.excel_running; }
  void EndWorkbook() override { facts_.excel_running = false; }
  int WorkbookVersion() override;

 private:
  MachineFacts& facts_;
};

class ScriptWeb : public Web {
 public:
  ScriptWeb(const MachineFacts& facts, RecordSink sink) : facts_(facts), sink_(std::move(sink)) {}
  std::string Fetch(const std::string& url) override;
  void Open(const std::string& url) override { sink_(JsonRecord().Text("open", url)); }

 private:
  const MachineFacts& facts_;
  RecordSink sink_;
};

class ScriptPrinter : public Printer {
 public:
  ScriptPrinter(const MachineFacts& facts, RecordSink sink)
      : facts_(facts), sink_(std::move(sink)) {}
  bool Installed() override { return facts_.printer; }
  void Print(const PrintJob& job) override;
  void PrintPicture(const std::string& title, const Picture& /*picture*/) override {
    Print({{.lines = {title}}});
  }

 private:
  const MachineFacts& facts_;
  RecordSink sink_;
};

/// Tells of each picture that was kept as a file.
class ScriptPictures : public PictureFiles {
 public:
  /// `folder` is what the paths are told relative to.
  ScriptPictures(std::string folder, PictureFiles& files, RecordSink sink)
      : folder_(std::move(folder)), files_(files), sink_(std::move(sink)) {}
  void Save(const Picture& picture, const std::string& path) override;
  std::string Png(const Picture& picture) override { return files_.Png(picture); }

 private:
  std::string folder_;
  PictureFiles& files_;
  RecordSink sink_;
};

}  // namespace velmar
