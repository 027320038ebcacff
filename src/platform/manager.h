#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace velmar {

enum class Icon { kInfo, kStop, kExclamation, kQuestion };
enum class Buttons { kOk, kOkCancel, kYesNo, kYesNoCancel };
enum class Reply { kOk, kYes, kNo, kCancel };

/// A message box, as a value: what the manager reads and may answer.
struct Box {
  std::vector<std::string> lines{};
  Icon icon = Icon::kInfo;
  std::string title{};
  Buttons buttons = Buttons::kOk;
  int default_button = 1;  ///< counted from 1

  bool operator==(const Box&) const = default;
};

/// A box with a text field.
struct InputBox {
  std::string title;
  std::vector<std::string> lines;
  std::string default_text;

  bool operator==(const InputBox&) const = default;
};

/// A dialog that lets the manager choose a file to open, or one to write.
struct FileDialog {
  std::string title;
  std::string filter;  ///< pairs of a name and its patterns, parted by "|"
  std::string folder;
  std::string new_ending{};  ///< to write: what a name without an ending takes; empty to open

  bool operator==(const FileDialog&) const = default;
};

/// The person at the machine. Texts are in code page 1252.
class Manager {
 public:
  virtual ~Manager() = default;

  /// Shows a box until a button is pressed, and gives that button.
  virtual Reply Show(const Box& box) = 0;

  /// The text typed, or nothing when the manager cancelled.
  virtual std::optional<std::string> Ask(const InputBox& box) = 0;

  /// The path of the chosen file, or nothing when the manager cancelled.
  virtual std::optional<std::string> PickFile(const FileDialog& dialog) = 0;

  virtual void Beep(int times) = 0;

  /// Whether the manager has asked, by Esc, that a run should end early; true once for each time.
  virtual bool StopWanted() = 0;

  /// Tells that `done` of `total` units of a long work are over. Cheap enough to be called for each
  /// unit; keeps the windows alive.
  virtual void Progress(std::size_t done, std::size_t total) = 0;
};

}  // namespace velmar
