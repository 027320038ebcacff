#pragma once

#include <QMainWindow>
#include <QString>
#include <memory>
#include <vector>

#include "ui/binding.h"

class QGroupBox;
class QKeySequence;

namespace velmar {

class ColumnTitles;
class GridView;

/// The window of a form: owns what binds its widgets to the controls. Its title, its controls and
/// the focus are the form's; a window of a form adds the layout.
class FormWindow : public QMainWindow {
 public:
  FormWindow(Form& form, EventRunner& runner);
  ~FormWindow() override;

  Form& form() const { return form_; }
  const std::vector<BindingPtr>& bindings() const { return bindings_; }

  /// Draws everything that has changed since, and puts the focus where an event wants it.
  virtual void Refresh();

 protected:
  /// Makes a widget for a control. The layout takes it.
  template <typename Widget, typename Kind>
  Widget* Make(Kind& control) {
    auto* widget = new Widget;
    AddBinding(Bind(*widget, control, runner_));
    return widget;
  }

  /// Makes a label that wraps, or a line that only shows its value.
  QLabel* MakeText(Label& control);
  QLineEdit* MakeDisplay(TextField& control, QLabel* caption = nullptr);

  /// Makes a text field with a label for its caption.
  struct Field {
    QLabel* caption;
    QLineEdit* line;
  };
  Field MakeField(TextField& control);
  Field MakePathField(TextField& control);

  /// Makes a text that is only read, from `lines` to `most_lines` high.
  QPlainTextEdit* MakeReader(TextField& control, int lines, int most_lines, QLabel* caption);

  /// Makes a label that holds a bare value, with a title before it that comes and goes with it.
  QWidget* MakeTitled(const QString& title, Label& control);

  /// Makes a list with its caption above it, as the titles of its columns.
  struct Columns {
    ColumnTitles* titles;
    RowView* rows;
  };
  Columns MakeColumns(List& control);

  /// Makes a table of a few rows.
  GridView* MakeGridView(Grid& control, FirstColumn first);

  QLabel* MakeLamp(Label& control);
  QPushButton* MakeRunButton(Button& control);
  QLabel* MakeEmblem(Label& control);
  void MakeMenu();

  /// Hides `group` while none of `controls` shows anything.
  void ShowWithAny(QWidget& group, std::vector<const Control*> controls);

  /// Lets a key do what a click on a button does, while the button can be clicked. The pointer
  /// brings up its name.
  void SetKey(const Control& button, const QKeySequence& key);

  /// The button that Enter presses wherever the focus is.
  void SetDefault(QPushButton& button);

  /// The control that is clicked instead when somebody closes the window. Without one the window
  /// bears no button for it.
  void SetCloseControl(Control& control) { close_control_ = &control; }

  /// Lets Tab come to a widget that is bound to no control, after those made so far.
  void AddToTabOrder(QWidget& widget) { tab_order_.push_back(&widget); }

  /// Takes the finished layout, and lets Tab go through the widgets in the order they were made.
  void Finish(QWidget* content);

  void showEvent(QShowEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  struct Group {
    QWidget* widget;
    std::vector<const Control*> controls;
  };

  Field MakeFieldOf(TextField& control, QLineEdit* line);
  void AddBinding(BindingPtr binding);
  void ApplyFocus();

  Form& form_;
  EventRunner& runner_;
  std::vector<BindingPtr> bindings_;
  std::vector<QWidget*> tab_order_;
  std::vector<Group> groups_;
  QPushButton* default_button_ = nullptr;
  Control* close_control_ = nullptr;
  bool focus_waits_ = false;  ///< an event put the focus while the window was hidden
};

}  // namespace velmar
