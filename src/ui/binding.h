#pragma once

#include <memory>
#include <vector>

#include "platform/form.h"

class QAction;
class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QMenu;
class QMenuBar;
class QPlainTextEdit;
class QProgressBar;
class QPushButton;
class QRadioButton;
class QTableView;
class QWidget;

namespace velmar {

class ClickLabel;
class EventRunner;
class RowView;

/// What joins one control of a form to what draws it on the screen. The widget or action bears the
/// control's name, and what a person does to it becomes the control's event.
class Binding {
 public:
  explicit Binding(Control& control) : control_(control) {}
  virtual ~Binding() = default;
  Binding(const Binding&) = delete;
  Binding& operator=(const Binding&) = delete;

  Control& control() const { return control_; }

  /// The widget; nothing for an item of a menu.
  virtual QWidget* widget() const { return nullptr; }
  /// The action of a menu item; nothing for a widget.
  virtual QAction* action() const { return nullptr; }

  /// Draws what has changed. Cheap where nothing has.
  virtual void Refresh() = 0;

 private:
  Control& control_;
};

using BindingPtr = std::unique_ptr<Binding>;

/// Whether a control has anything to show. A label without a text takes no room.
bool Shows(const Control& control);

// Bind a widget to a control of its kind. Widget, control and runner outlive the binding. A button
// with a colour bears a mark as well, for those who cannot tell the colours apart.
BindingPtr Bind(QPushButton& widget, Button& control, EventRunner& runner);
BindingPtr Bind(QCheckBox& widget, Check& control, EventRunner& runner);
BindingPtr Bind(QRadioButton& widget, Option& control, EventRunner& runner);
BindingPtr Bind(QLabel& widget, Label& control, EventRunner& runner);
BindingPtr Bind(ClickLabel& widget, Label& control, EventRunner& runner);
BindingPtr Bind(QComboBox& widget, Combo& control, EventRunner& runner);
BindingPtr Bind(RowView& widget, FileList& control, EventRunner& runner);
BindingPtr Bind(QProgressBar& widget, ProgressBar& control, EventRunner& runner);

/// A list. `caption`, if any, shows the control's caption above it, and is seen with it.
BindingPtr Bind(RowView& widget, List& control, EventRunner& runner, QLabel* caption = nullptr);

/// What stands in the first column of a grid.
enum class FirstColumn { kHeadings, kCells };

/// A grid: its first row, and its first column unless that holds cells, are the headings.
BindingPtr Bind(QTableView& widget, Control& control, EventRunner& runner,
                FirstColumn first = FirstColumn::kHeadings);

/// The title of a frame is a label too.
BindingPtr Bind(QGroupBox& widget, Label& control, EventRunner& runner);

/// A text field. `caption`, if any, shows the control's caption beside it, and is seen with it.
BindingPtr Bind(QLineEdit& widget, TextField& control, EventRunner& runner,
                QLabel* caption = nullptr);

/// A text field whose text, of many lines perhaps, is only read.
BindingPtr Bind(QPlainTextEdit& widget, TextField& control, EventRunner& runner, QLabel* caption);

/// A label whose colour tells a state: besides the colour it bears a mark that differs in shape.
/// White is what was left out.
BindingPtr BindLamp(QLabel& widget, Label& control, EventRunner& runner);

/// A button whose colour, whichever, tells that its run is done: the mark is a tick.
BindingPtr BindRun(QPushButton& widget, Button& control, EventRunner& runner);

/// A picture, which is to be seen with or without a text.
BindingPtr BindPicture(QLabel& widget, Label& control, EventRunner& runner);

/// Builds a menu bar out of the menu controls among `controls`: an item without a parent is a menu,
/// or an action of the bar when nothing hangs in it.
std::vector<BindingPtr> BindMenu(QMenuBar& bar,
                                 const std::vector<std::unique_ptr<Control>>& controls,
                                 EventRunner& runner);

}  // namespace velmar
