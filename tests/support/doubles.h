#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <iterator>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "platform/clock.h"
#include "platform/error.h"
#include "platform/file_system.h"
#include "platform/machine.h"
#include "platform/manager.h"
#include "platform/printer.h"
#include "platform/web.h"
#include "platform/workbook_app.h"

namespace velmar::test {

/// A manager that holds the answers of a test and records what was asked. A box that no answer was
/// queued for fails the test, as does an answer left over.
class ScriptedManager : public Manager {
 public:
  ~ScriptedManager() override {
    EXPECT_TRUE(replies.empty()) << "answers left over";
    EXPECT_TRUE(inputs.empty()) << "inputs left over";
    EXPECT_TRUE(picks.empty()) << "picks left over";
  }

  Reply Show(const Box& box) override {
    boxes.push_back(box);
    return box.buttons == Buttons::kOk ? Reply::kOk : Take(replies, Reply::kCancel, box.lines[0]);
  }
  std::optional<std::string> Ask(const InputBox& box) override {
    asked.push_back(box);
    return Take(inputs, std::optional<std::string>(), box.lines[0]);
  }
  std::optional<std::string> PickFile(const FileDialog& dialog) override {
    return Take(picks, std::optional<std::string>(), dialog.filter);
  }
  void Beep(int times) override { beeps += times; }
  bool StopWanted() override { return std::exchange(stop_wanted, false); }
  void Progress(std::size_t done, std::size_t total) override {
    EXPECT_LE(done, total);
    progress.emplace_back(done, total);
  }

  /// The first lines of the boxes shown so far, which are then forgotten.
  std::vector<std::string> TakeFirstLines() {
    std::vector<std::string> lines;
    for (const Box& box : std::exchange(boxes, {})) {
      lines.push_back(box.lines[0]);
    }
    return lines;
  }

  std::deque<Reply> replies;
  std::deque<std::optional<std::string>> inputs;
  std::deque<std::optional<std::string>> picks;

  std::vector<Box> boxes;
  std::vector<InputBox> asked;
  std::vector<std::pair<std::size_t, std::size_t>> progress;
  int beeps = 0;
  bool stop_wanted = false;

 private:
  template <typename Queue, typename Value>
  static Value Take(Queue& queue, Value otherwise, const std::string& what) {
    if (queue.empty()) {
      ADD_FAILURE() << "no answer was queued for: " << what;
      return otherwise;
    }
    Value value = queue.front();
    queue.pop_front();
    return value;
  }
};

class FixedClock : public Clock {
 public:
  std::string ShortDate() override { return date; }
  double Timer() override { return timer; }

  std::string date = "21/01/2025";
  double timer = 0;
};

class FakeMachine : public Machine {
 public:
  bool Connected() override { return connected; }
  std::optional<double> Ping() override { return ping; }
  std::string ProductName() override { return product_name; }
  bool WorkbookRunning() override { return workbook_running; }
  void EndWorkbook() override {
    ++workbooks_ended;
    if (workbook_refuses_to_end) {
      throw RunTimeError(ErrorNumber::kWorkbookRefused);
    }
  }
  int WorkbookVersion() override {
    if (workbook_version == 0) {
      throw RunTimeError(ErrorNumber::kNoApplication);
    }
    return workbook_version;
  }

  bool connected = false;
  std::optional<double> ping;
  std::string product_name = "Windows 11 Pro";
  bool workbook_running = false;
  bool workbook_refuses_to_end = false;
  int workbook_version = 16;
  int workbooks_ended = 0;
};

class FakeWeb : public Web {
 public:
  std::string Fetch(const std::string& url) override {
    fetched.push_back(url);
    if (!page) {
      throw RunTimeError(ErrorNumber::kDeviceError);
    }
    return *page;
  }
  void Open(const std::string& url) override { opened.push_back(url); }

  std::optional<std::string> page;
  std::vector<std::string> fetched;
  std::vector<std::string> opened;
};

class RecordingPrinter : public Printer {
 public:
  bool Installed() override { return installed; }
  void Print(const PrintJob& job) override {
    Look();
    printed.push_back(job);
  }
  void PrintPicture(const std::string& title, const Picture& picture) override {
    Look();
    pictures.emplace_back(title, picture.shapes().size());
  }

  bool installed = true;
  bool broken = false;  ///< no page comes out
  std::vector<PrintJob> printed;
  std::vector<std::pair<std::string, std::size_t>> pictures;  ///< title and number of shapes

 private:
  void Look() const {
    if (broken) {
      throw RunTimeError(ErrorNumber::kDeviceError);
    }
  }
};

/// Keeps what would have been saved.
class RecordingPictures : public PictureFiles {
 public:
  void Save(const Picture& picture, const std::string& path) override {
    saved.emplace_back(path, picture);
  }
  /// One clear dot, whatever is drawn.
  std::string Png(const Picture& /*picture*/) override {
    static constexpr unsigned char kDot[] = {
        0x89, 0x50, 0x4E, 0x47, 0x0D, 0x0A, 0x1A, 0x0A, 0x00, 0x00, 0x00, 0x0D, 0x49, 0x48,
        0x44, 0x52, 0x00, 0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x06, 0x00, 0x00,
        0x00, 0x1F, 0x15, 0xC4, 0x89, 0x00, 0x00, 0x00, 0x0B, 0x49, 0x44, 0x41, 0x54, 0x78,
        0xDA, 0x63, 0x60, 0x00, 0x02, 0x00, 0x00, 0x05, 0x00, 0x01, 0xE9, 0xFA, 0xDC, 0xD8,
        0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4E, 0x44, 0xAE, 0x42, 0x60, 0x82,
    };
    return {std::begin(kDot), std::end(kDot)};
  }

  std::vector<std::pair<std::string, Picture>> saved;
};

/// Keeps copies of the workbooks that were saved, and leaves a file in the place of each.
class RecordingWorkbooks : public WorkbookApp {
 public:
  explicit RecordingWorkbooks(FileSystem& files) : files_(files) {}

  int Version() override { return version; }
  void SaveAs(const Workbook& book, const std::string& path) override {
    if (fails_with && path.ends_with(failing_name)) {
      throw RunTimeError(*fails_with);
    }
    saved.emplace_back(path, book);
    files_.WriteAll(path, "a workbook of " + std::to_string(book.Count()));
  }

  int version = 16;
  std::optional<ErrorNumber> fails_with;
  std::string failing_name;  ///< only of such files; empty for all
  std::vector<std::pair<std::string, Workbook>> saved;

 private:
  FileSystem& files_;
};

/// A file system that breaks at a chosen call. It passes all others on.
class FailingFileSystem : public FileSystem {
 public:
  explicit FailingFileSystem(FileSystem& real) : real_(real) {}

  /// Breaks with `number` at the call of that number among all that write, move or remove, counted
  /// from 1, and at as many calls behind it as `breaks` has more than one; 0 for none.
  int break_at_change = 0;
  int breaks = 1;
  /// Breaks every call that concerns a path which holds this text; empty for none.
  std::string broken_path;
  ErrorNumber number = ErrorNumber::kDiskFull;
  int changes = 0;
  std::vector<std::string> changed_paths;  ///< of those calls, in their order

  bool FolderExists(const std::string& path) override { return real_.FolderExists(path); }
  std::optional<FileStamp> StampOf(const std::string& path) override {
    Look(path);
    return real_.StampOf(path);
  }
  std::string ReadAll(const std::string& path) override {
    Look(path);
    return real_.ReadAll(path);
  }
  void WriteAll(const std::string& path, std::string_view bytes) override {
    Change(path);
    real_.WriteAll(path, bytes);
  }
  void Append(const std::string& path, std::string_view bytes) override {
    Change(path);
    real_.Append(path, bytes);
  }
  std::vector<std::string> List(const std::string& folder, std::string_view pattern) override {
    Look(folder);
    return real_.List(folder, pattern);
  }
  void Copy(const std::string& from, const std::string& to) override {
    Look(from);
    Change(to);
    real_.Copy(from, to);
  }
  void Move(const std::string& from, const std::string& to) override {
    Change(from);
    real_.Move(from, to);
  }
  void Remove(const std::string& path) override {
    Change(path);
    real_.Remove(path);
  }
  void MakeFolder(const std::string& path) override {
    Look(path);
    real_.MakeFolder(path);
  }
  void ChangeFolder(const std::string& path) override { Look(path); }

 private:
  void Look(const std::string& path) const {
    if (!broken_path.empty() && path.find(broken_path) != std::string::npos) {
      throw RunTimeError(number, path);
    }
  }
  void Change(const std::string& path) {
    Look(path);
    changed_paths.push_back(path);
    ++changes;
    if (break_at_change > 0 && changes >= break_at_change && changes < break_at_change + breaks) {
      throw RunTimeError(number, path);
    }
  }

  FileSystem& real_;
};

}  // namespace velmar::test
