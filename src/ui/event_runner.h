#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <functional>
#include <string>

class QDialog;

namespace velmar {

/// The one place that runs the events of the forms. One event runs at a time: while it does, what a
/// person presses or types is dropped, although the windows go on to be drawn. Only a dialog that
/// the event itself opens gets input. Of what is dropped, Esc is kept in mind for a run that asks.
///
/// No exception leaves it. ProgramEnd ends the application with exit code 0, any other exception
/// with 3, after on_failure has told it.
class EventRunner : public QObject {
 public:
  static constexpr int kFailureCode = 3;

  EventRunner();
  ~EventRunner() override;

  /// Runs `event`, then draws the windows again. Does nothing while another event runs, and nothing
  /// once the program has ended.
  void Run(const std::function<void()>& event);

  bool running() const { return running_; }

  /// For long work in an event, which may call it for each of its units: now and then draws the
  /// windows again, with the cursor that asks for patience.
  void Breathe();

  /// Whether Esc was pressed, outside a dialog, since the event began or this was asked last.
  bool TakeStopRequest();

  /// Shows a dialog of the running event and gives its result.
  int Converse(QDialog& dialog);

  std::function<void()> on_refresh;                         ///< draws the windows again
  std::function<void(const std::string& what)> on_failure;  ///< tells the person

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Guard(const std::function<void()>& event);
  void Fail(const std::string& what);
  void End(int exit_code);
  void Refresh();
  void DropInput();
  void SetBusy(bool busy);

  bool running_ = false;
  bool conversing_ = false;
  bool busy_ = false;
  bool ended_ = false;
  bool stop_requested_ = false;
  QElapsedTimer since_event_;
  QElapsedTimer since_breath_;
};

}  // namespace velmar
