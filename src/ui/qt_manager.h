#pragma once

#include <QStringList>

#include "platform/manager.h"

namespace velmar {

class EventRunner;

/// The person in front of the screen. Its dialogs belong to the running event.
class QtManager : public Manager {
 public:
  explicit QtManager(EventRunner& runner) : runner_(runner) {}

  Reply Show(const Box& box) override;
  std::optional<std::string> Ask(const InputBox& box) override;
  std::optional<std::string> PickFile(const FileDialog& dialog) override;
  void Beep(int times) override;
  bool StopWanted() override;
  void Progress(std::size_t done, std::size_t total) override;

 private:
  EventRunner& runner_;
};

/// The filter of a file dialog, "name|patterns|name|patterns", in the toolkit's form: one entry a
/// pair, "name (patterns)", with blanks between patterns instead of ";".
QStringList NameFilters(const std::string& filter);

}  // namespace velmar
