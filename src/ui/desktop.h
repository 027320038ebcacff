#pragma once

#include <map>
#include <memory>

#include "app/program.h"
#include "ui/form_window.h"

namespace velmar {

/// The windows of the program. Shows the window of a form while the form is to be seen, and draws
/// all windows again after every event.
class Desktop {
 public:
  Desktop(Program& program, EventRunner& runner, Manager& manager);
  ~Desktop();
  Desktop(const Desktop&) = delete;
  Desktop& operator=(const Desktop&) = delete;

  /// Starts the program and runs it to its end. Gives the exit code.
  int Run();

  /// The window of a form; nothing for a form that has none.
  FormWindow* WindowOf(const Form& form) const;

 private:
  void Add(std::unique_ptr<FormWindow> window);
  void ShowOrHide(Form& form);
  void Refresh();
  void TellFailure(const std::string& what);

  Program& program_;
  EventRunner& runner_;
  Manager& manager_;
  const Form* top_ = nullptr;  ///< the form whose window was put on top last
  std::size_t shows_ = 0;      ///< of the screen, at the last refresh
  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
};

}  // namespace velmar
