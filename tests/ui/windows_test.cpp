// What holds for every window: each control of its form is bound to a widget of its kind, reaches
// its event, and is drawn again when an event changed it.

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <QTest>
#include <set>

#include "platform/ansi.h"
#include "publish/export_form.h"
#include "publish/statistics_form.h"
#include "ui/row_view.h"
#include "ui_fixture.h"

namespace velmar::test {
namespace {

using FormOf = Form& (*)(Program&);

struct WindowCase {
  const char* name;
  FormOf form;
  void (*arrange)(Form& form) = nullptr;  ///< for a window that never shows all at once
};

Form& DeskOf(Program& program) {
  return program.check_desk().form();
}

/// The doubtful locators, with times that wait.
void ShowLocators(Form& form) {
  static_cast<CheckForm&>(form).Frame_log.visible = false;
}

/// The times that differ.
void ShowTimes(Form& form) {
  ShowLocators(form);
  static_cast<CheckForm&>(form).Lista_dubbi.Fill({});
}

/// The unique calls, with no time open.
void ShowUniques(Form& form) {
  auto& desk = static_cast<CheckForm&>(form);
  desk.Frame_log.visible = desk.Frame_Controllo_locatori.visible = false;
  desk.Lista_err_orario.Fill({" tempo intercorso: 23 ore  e  55  minuti"});
}

/// Two logs above the unique calls.
void ShowLogs(Form& form) {
  ShowUniques(form);
  static_cast<CheckForm&>(form).Frame_log.visible = true;
}

Form& StatisticsOf(Program& program) {
  return program.statistics_form();
}

void ShowCounts(Form& form) {
  static_cast<StatisticsForm&>(form).Frame_grafica.visible = false;
}

void ShowMap(Form& form) {
  static_cast<StatisticsForm&>(form).Frame_testo.visible = false;
}

void ShowNoMapYet(Form& form) {
  ShowMap(form);
  static_cast<StatisticsForm&>(form).Frame_mappa.visible = false;
}

const WindowCase kWindows[] = {
    {"Main", [](Program& program) -> Form& { return program.main_form(); }},
    {"Month", [](Program& program) -> Form& { return program.month_dialog().form(); }},
    {"Config", [](Program& program) -> Form& { return program.config_dialog().form(); }},
    {"Recalculation", [](Program& program) -> Form& { return program.recalculation().form(); }},
    {"Renaming", [](Program& program) -> Form& { return program.renaming().form(); }},
    {"CheckLocators", DeskOf, ShowLocators},
    {"CheckTimes", DeskOf, ShowTimes},
    {"CheckUniques", DeskOf, ShowUniques},
    {"CheckLogs", DeskOf, ShowLogs},
    {"Archive", [](Program& program) -> Form& { return program.check_desk().archive_form(); }},
    {"Notices", [](Program& program) -> Form& { return program.check_desk().notices_form(); }},
    {"Export", [](Program& program) -> Form& { return program.export_form(); }},
    {"StatisticsCounts", StatisticsOf, ShowCounts},
    {"StatisticsMap", StatisticsOf, ShowMap},
    {"StatisticsNoMapYet", StatisticsOf, ShowNoMapYet},
    {"Absent", [](Program& program) -> Form& { return program.absent_stations().form(); }},
    {"Info", [](Program& program) -> Form& { return program.info_form(); }}};

class WindowTest : public testing::TestWithParam<WindowCase> {
 protected:
  /// Shows the window with its controls within reach, with something to show, and without events.
  WindowTest() {
    fixture.runner.Run([&] {
      for (const auto& control : form.controls()) {
        control->visible = control->enabled = true;
        control->on_click = control->on_change = control->on_double_click = nullptr;
        control->on_key = nullptr;
        control->items.Assign({"prima\triga", "seconda\triga"});
        if (control->caption.empty()) {
          control->caption = "123456";
        }
      }
      if (GetParam().arrange != nullptr) {
        GetParam().arrange(form);
      }
      fixture.program.screen().Show(form);
    });
  }

  /// Whether the arrangement shows a control. Without one all controls are shown.
  bool Shown(const Control& control) {
    const auto* widget = WidgetOf(control);
    return ActionOf(control) != nullptr || (widget != nullptr && widget->isVisible());
  }

  QAction* ActionOf(const Control& control) {
    for (const BindingPtr& binding : window.bindings()) {
      if (&binding->control() == &control) {
        return binding->action();
      }
    }
    return nullptr;
  }

  template <typename Widget = QWidget>
  Widget* WidgetOf(const Control& control) {
    return window.findChild<Widget*>(QString::fromStdString(control.name));
  }

  void Use(Control& control);

  DesktopFixture fixture;
  Form& form = GetParam().form(fixture.program);
  FormWindow& window = fixture.Window(form);
};

bool RightKind(const Control& control, QWidget* widget) {
  switch (control.kind()) {
    case ControlKind::kButton:
      return qobject_cast<QPushButton*>(widget) != nullptr;
    case ControlKind::kCheck:
      return qobject_cast<QCheckBox*>(widget) != nullptr;
    case ControlKind::kOption:
      return qobject_cast<QRadioButton*>(widget) != nullptr;
    case ControlKind::kLabel:
      return qobject_cast<QLabel*>(widget) != nullptr ||
             qobject_cast<QGroupBox*>(widget) != nullptr;
    case ControlKind::kText:
      return qobject_cast<QLineEdit*>(widget) != nullptr ||
             qobject_cast<QPlainTextEdit*>(widget) != nullptr;
    case ControlKind::kList:
    case ControlKind::kFiles:
      return dynamic_cast<RowView*>(widget) != nullptr;
    case ControlKind::kGrid:
      return qobject_cast<QTableView*>(widget) != nullptr;
    case ControlKind::kCombo:
      return qobject_cast<QComboBox*>(widget) != nullptr;
    case ControlKind::kProgress:
      return qobject_cast<QProgressBar*>(widget) != nullptr;
    default:
      return false;
  }
}

/// The caption that is drawn for a control; nothing where its kind has none of its own.
std::optional<QString> DrawnCaption(QWidget* widget) {
  if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
    return button->text();
  }
  if (auto* label = qobject_cast<QLabel*>(widget)) {
    return label->text();
  }
  if (auto* group = qobject_cast<QGroupBox*>(widget)) {
    return group->title();
  }
  return std::nullopt;
}

/// The text that is drawn in a text field; nothing for widgets of other kinds.
std::optional<QString> DrawnText(const QWidget* widget) {
  if (const auto* line = qobject_cast<const QLineEdit*>(widget)) {
    return line->text();
  }
  if (const auto* reader = qobject_cast<const QPlainTextEdit*>(widget)) {
    return reader->toPlainText();
  }
  return std::nullopt;
}

/// Does to a control what a person does with the mouse or the keys.
void WindowTest::Use(Control& control) {
  QWidget* widget = WidgetOf(control);
  if (QAction* action = ActionOf(control)) {
    if (action->menu() != nullptr) {
      emit action->menu()->aboutToShow();
    } else {
      action->trigger();
    }
  } else if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, {5, 5});
  } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
    combo->setCurrentIndex(0);
    QTest::keyClick(combo, Qt::Key_Down);
  } else {
    QTest::mouseClick(widget, Qt::LeftButton, {}, {8, widget->height() / 2});
  }
}

TEST_P(WindowTest, EveryControlHasAWidgetOfItsKind) {
  std::set<const Control*> bound;
  for (const BindingPtr& binding : window.bindings()) {
    EXPECT_TRUE(bound.insert(&binding->control()).second) << binding->control().name << " twice";
  }
  for (const auto& control : form.controls()) {
    EXPECT_TRUE(bound.contains(control.get())) << control->name << " is not bound";
    if (control->kind() == ControlKind::kMenu) {
      ASSERT_NE(ActionOf(*control), nullptr) << control->name;
      EXPECT_EQ(ActionOf(*control)->objectName().toStdString(), control->name);
    } else {
      EXPECT_TRUE(RightKind(*control, WidgetOf(*control))) << control->name;
      EXPECT_TRUE(GetParam().arrange != nullptr || Shown(*control)) << control->name;
    }
  }
}

TEST_P(WindowTest, EveryControlReachesItsEvent) {
  for (const auto& control : form.controls()) {
    if (control->kind() == ControlKind::kProgress || !Shown(*control)) {
      continue;
    }
    int events = 0;
    control->on_click = [&] { ++events; };
    control->on_change = [&] { ++events; };
    if (control->kind() == ControlKind::kText) {
      QWidget* text = WidgetOf(*control);
      QTest::keyClicks(text, "x");
      EXPECT_EQ(events, text->property("readOnly").toBool() ? 0 : 1) << control->name;
    } else {
      Use(*control);
      EXPECT_EQ(events, 1) << control->name;
    }
    control->on_click = control->on_change = nullptr;
  }
}

TEST_P(WindowTest, WhatAnEventChangedIsDrawn) {
  for (const auto& control : form.controls()) {
    fixture.runner.Run([&] {
      control->caption = "Nuovo è"_a;
      control->value = "7";
      control->enabled = false;
      control->checked = true;
      control->colour = colour::kYellow;
    });
    if (const QAction* action = ActionOf(*control)) {
      EXPECT_EQ(action->text(), QStringLiteral("Nuovo è"));
      EXPECT_FALSE(action->isEnabled());
      EXPECT_TRUE(action->isChecked()) << control->name;
    } else {
      const QWidget* widget = WidgetOf(*control);
      EXPECT_FALSE(widget->isEnabled()) << control->name;
      EXPECT_EQ(widget->palette().color(QPalette::Window), QColor(Qt::yellow)) << control->name;
      if (const auto caption = DrawnCaption(WidgetOf(*control))) {
        EXPECT_TRUE(caption->endsWith(QStringLiteral("Nuovo è"))) << control->name;
      }
      EXPECT_EQ(DrawnText(widget).value_or("7"), "7") << control->name;
      if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) {
        EXPECT_EQ(button->isChecked(), button->isCheckable()) << control->name;
      }
      EXPECT_EQ(widget->property("value").toInt(),
                control->kind() == ControlKind::kProgress ? 7 : 0);
    }
    fixture.runner.Run([&] { control->visible = false; });
    EXPECT_FALSE(ActionOf(*control) ? ActionOf(*control)->isVisible()
                                    : !WidgetOf(*control)->isHidden())
        << control->name;
  }
}

TEST_P(WindowTest, TabVisitsEachWidgetOnceInOrder) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  std::vector<QWidget*> wanted;
  for (const BindingPtr& binding : window.bindings()) {
    if (binding->widget() != nullptr && binding->widget()->isVisible() &&
        (binding->widget()->focusPolicy() & Qt::TabFocus) != 0) {
      wanted.push_back(binding->widget());
    }
  }
  for (QWidget* widget : wanted) {
    EXPECT_EQ(window.focusWidget(), widget) << widget->objectName().toStdString();
    QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
    if (std::ranges::find(wanted, window.focusWidget()) == wanted.end()) {
      QTest::keyClick(window.focusWidget(), Qt::Key_Tab);  // past what belongs to no control
    }
  }
  EXPECT_EQ(window.focusWidget(), wanted.front()) << "Tab does not come round";
}

TEST_P(WindowTest, NothingIsCutAtTheSmallestSize) {
  constexpr QSize kSmallestScreen(1024, 700);
  constexpr QSize kWindowFrame(10, 32);
  const QSize with_frame = window.minimumSize() + kWindowFrame;
  EXPECT_EQ(with_frame.boundedTo(kSmallestScreen), with_frame) << "larger than a small screen";
  window.resize(window.minimumSize());
  constexpr int kDeepestNesting = 10;
  for (int level = 0; level < kDeepestNesting; ++level) {
    QCoreApplication::processEvents();  // a layout is heard by the one around it in the next round
  }
  for (const BindingPtr& binding : window.bindings()) {
    const QWidget* widget = binding->widget();
    if (widget == nullptr || !widget->isVisible() ||
        dynamic_cast<const RowView*>(widget) != nullptr) {
      continue;
    }
    EXPECT_GE(widget->width(), std::min(widget->minimumSizeHint().width(), widget->maximumWidth()))
        << binding->control().name;
    if (qobject_cast<const QPlainTextEdit*>(widget) == nullptr) {
      EXPECT_GE(widget->height(), widget->minimumSizeHint().height()) << binding->control().name;
    }
    EXPECT_TRUE(window.rect().contains(QRect(widget->mapTo(&window, QPoint()), widget->size())))
        << binding->control().name;
  }
}

TEST(Windows, EachControlIsShownInOneOfTheArrangements) {
  std::set<std::string> unseen;
  std::set<std::string> seen;
  for (const WindowCase& shown : kWindows) {
    if (shown.arrange == nullptr) {
      continue;
    }
    DesktopFixture fixture;
    Form& form = shown.form(fixture.program);
    fixture.runner.Run([&] {
      for (const auto& control : form.controls()) {
        control->visible = true;
        control->items.Assign({"prima riga", "seconda riga"});
        control->caption = "123456";
      }
      shown.arrange(form);
      fixture.program.screen().Show(form);
    });
    for (const BindingPtr& binding : fixture.Window(form).bindings()) {
      const bool visible = binding->widget() == nullptr || binding->widget()->isVisible();
      (visible ? seen : unseen).insert(form.name() + binding->control().name);
    }
  }
  for (const std::string& name : unseen) {
    EXPECT_TRUE(seen.contains(name)) << name;
  }
}

INSTANTIATE_TEST_SUITE_P(All, WindowTest, testing::ValuesIn(kWindows),
                         [](const auto& test) { return test.param.name; });

}  // namespace
}  // namespace velmar::test
