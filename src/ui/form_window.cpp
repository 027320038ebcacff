#include "ui/form_window.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "ui/column_titles.h"
#include "ui/emblem.h"
#include "ui/event_runner.h"
#include "ui/grid_view.h"
#include "ui/look.h"
#include "ui/path_view.h"
#include "ui/qt_text.h"
#include "ui/row_view.h"
#include "ui/widget_binding.h"

namespace velmar {

namespace {

constexpr int kLampMargin = 3;

}  // namespace

FormWindow::FormWindow(Form& form, EventRunner& runner) : form_(form), runner_(runner) {
  setObjectName(ToQString(form.name()));
}

FormWindow::~FormWindow() = default;

QLabel* FormWindow::MakeText(Label& control) {
  auto* label = Make<QLabel>(control);
  label->setWordWrap(true);
  return label;
}

QLineEdit* FormWindow::MakeDisplay(TextField& control, QLabel* caption) {
  auto* line = new QLineEdit;
  line->setReadOnly(true);
  line->setFocusPolicy(Qt::ClickFocus);
  AddBinding(Bind(*line, control, runner_, caption));
  return line;
}

FormWindow::Field FormWindow::MakeField(TextField& control) {
  return MakeFieldOf(control, new QLineEdit);
}

FormWindow::Field FormWindow::MakePathField(TextField& control) {
  return MakeFieldOf(control, new PathLine);
}

FormWindow::Field FormWindow::MakeFieldOf(TextField& control, QLineEdit* line) {
  const Field field{new QLabel, line};
  AddBinding(Bind(*field.line, control, runner_, field.caption));
  return field;
}

QPlainTextEdit* FormWindow::MakeReader(TextField& control, int lines, int most_lines,
                                       QLabel* caption) {
  auto* reader = new QPlainTextEdit;
  reader->setFocusPolicy(Qt::ClickFocus);
  const int line = reader->fontMetrics().lineSpacing() + 1;  // the font's is cut to whole pixels
  const int margin = static_cast<int>(reader->document()->documentMargin());
  const int frame = 2 * (reader->frameWidth() + margin);
  reader->setMinimumHeight(lines * line + frame);
  reader->setMaximumHeight(most_lines * line + frame);
  AddBinding(Bind(*reader, control, runner_, caption));
  return reader;
}

QWidget* FormWindow::MakeTitled(const QString& title, Label& control) {
  auto* pair = new QWidget;
  auto* row = new QHBoxLayout(pair);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kSpacing);
  auto* caption = new QLabel(title);
  SetQuiet(*caption);
  row->addWidget(caption);
  auto* value = Make<QLabel>(control);
  value->setFont(HeadingFont(0));
  row->addWidget(value);
  ShowWithAny(*pair, {&control});
  return pair;
}

FormWindow::Columns FormWindow::MakeColumns(List& control) {
  const Columns columns{new ColumnTitles, new RowView};
  columns.titles->Follow(*columns.rows);
  SetQuiet(*columns.titles);
  AddBinding(Bind(*columns.rows, control, runner_, columns.titles));
  return columns;
}

GridView* FormWindow::MakeGridView(Grid& control, FirstColumn first) {
  auto* view = new GridView;
  AddBinding(Bind(*view, control, runner_, first));
  return view;
}

QLabel* FormWindow::MakeLamp(Label& control) {
  auto* label = new QLabel;
  label->setAlignment(Qt::AlignCenter);
  label->setMargin(kLampMargin);
  AddBinding(BindLamp(*label, control, runner_));
  return label;
}

QPushButton* FormWindow::MakeRunButton(Button& control) {
  auto* button = new QPushButton;
  AddBinding(BindRun(*button, control, runner_));
  return button;
}

QLabel* FormWindow::MakeEmblem(Label& control) {
  auto* emblem = new Emblem;
  AddBinding(BindPicture(*emblem, control, runner_));
  return emblem;
}

void FormWindow::MakeMenu() {
  std::ranges::move(BindMenu(*menuBar(), form_.controls(), runner_), std::back_inserter(bindings_));
}

void FormWindow::ShowWithAny(QWidget& group, std::vector<const Control*> controls) {
  groups_.push_back({&group, std::move(controls)});
}

void FormWindow::SetKey(const Control& button, const QKeySequence& key) {
  auto* widget = findChild<QAbstractButton*>(ToQString(button.name));
  auto* shortcut = new QShortcut(key, this);
  shortcut->setAutoRepeat(false);  // a key that is held down decides once
  connect(shortcut, &QShortcut::activated, widget, [widget] {
    if (widget->isVisible()) {
      widget->click();
    }
  });
  const QString name = key.toString(QKeySequence::NativeText);
  const QString told = widget->toolTip();
  widget->setToolTip(told.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(told, name));
}

void FormWindow::SetDefault(QPushButton& button) {
  button.setDefault(true);
  default_button_ = &button;
}

void FormWindow::Finish(QWidget* content) {
  setCentralWidget(content);
  for (std::size_t i = 1; i < tab_order_.size(); ++i) {
    setTabOrder(tab_order_[i - 1], tab_order_[i]);
  }
  if (close_control_ == nullptr) {
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowMinimizeButtonHint);
  }
  Refresh();
}

void FormWindow::AddBinding(BindingPtr binding) {
  QWidget* widget = binding->widget();
  if (widget != nullptr && (widget->focusPolicy() & Qt::TabFocus) != 0) {
    tab_order_.push_back(widget);
  }
  bindings_.push_back(std::move(binding));
}

void FormWindow::Refresh() {
  if (const QString title = ToShownRow(form_.title); windowTitle() != title) {
    setWindowTitle(title);
  }
  for (const BindingPtr& binding : bindings_) {
    binding->Refresh();
  }
  for (const Group& group : groups_) {
    group.widget->setVisible(std::ranges::any_of(
        group.controls, [](const Control* control) { return Shows(*control); }));
  }
  ApplyFocus();
}

void FormWindow::ApplyFocus() {
  // Taken back, so that the same control can be asked for again.
  const Control* wanted = std::exchange(form_.focus, nullptr);
  for (const BindingPtr& binding : bindings_) {
    if (wanted == &binding->control() && binding->widget() != nullptr) {
      binding->widget()->setFocus();
      focus_waits_ = !isVisible();
    }
  }
}

void FormWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  const auto first = std::ranges::find_if(
      tab_order_, [](const QWidget* widget) { return widget->isVisible() && widget->isEnabled(); });
  if (!std::exchange(focus_waits_, false) && first != tab_order_.end()) {
    (*first)->setFocus();
  }
}

void FormWindow::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (close_control_ != nullptr) {
    Act(runner_, *close_control_, [](Control& control) { control.Click(); });
  }
}

void FormWindow::keyPressEvent(QKeyEvent* event) {
  const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (enter && default_button_ != nullptr) {
    default_button_->click();
  } else {
    QMainWindow::keyPressEvent(event);
  }
}

}  // namespace velmar
