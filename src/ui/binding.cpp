#include "ui/binding.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <algorithm>
#include <limits>

#include "model/text.h"
#include "ui/click_label.h"
#include "ui/event_runner.h"
#include "ui/qt_text.h"
#include "ui/tab_stops.h"
#include "ui/widget_binding.h"

namespace velmar {

namespace {

template <typename Widget>
void SetText(Widget& widget, const QString& text) {
  if (widget.text() != text) {
    widget.setText(text);
  }
}

/// The mark that tells a colour's meaning by its shape, with a blank behind it; nothing for a
/// colour that has none.
QString MarkOf(std::optional<int> colour, const QString& at_yellow) {
  switch (colour.value_or(colour::kWhite)) {
    case colour::kGreen:
      return QStringLiteral("✓ ");
    case colour::kYellow:
      return at_yellow;
    case colour::kRed:
    case colour::kLightRed:
      return QStringLiteral("✗ ");
    default:
      return {};
  }
}

QString MarkOfButton(std::optional<int> colour) {
  return MarkOf(colour, QStringLiteral("? "));
}

/// Buttons of all kinds: the caption, the tick, the click.
BindingPtr BindButton(QAbstractButton& widget, Control& control, EventRunner& runner,
                      QString (*mark_of)(std::optional<int> colour) = MarkOfButton) {
  QObject::connect(&widget, &QAbstractButton::clicked, &widget, [&control, &runner] {
    Act(runner, control, [](Control& clicked) { clicked.Click(); });
  });
  return std::make_unique<WidgetBinding>(widget, control, runner, [&widget, &control, mark_of] {
    SetText(widget, mark_of(control.colour) + ToQString(control.caption));
    widget.setChecked(control.checked);
  });
}

void DrawLine(QLineEdit& widget, const Control& control) {
  const QString text = ToShownRow(control.value);
  if (widget.text() != text) {
    const int cursor = widget.cursorPosition();
    widget.setText(text);
    widget.setCursorPosition(widget.hasFocus() ? cursor : 0);
  }
}

class LabelBinding : public WidgetBinding {
 public:
  using WidgetBinding::WidgetBinding;

 protected:
  bool Seen() const override { return Shows(control()); }
};

void FillCombo(QComboBox& widget, const Control& control) {
  widget.clear();
  widget.addItems(ToShownRows(control.items.rows()));
}

void DrawCombo(QComboBox& widget, const Control& control) {
  const QString text = ToShownRow(control.value);
  if (widget.currentIndex() == control.selection && widget.currentText() == text) {
    return;
  }
  const QSignalBlocker quiet(widget);
  const int cursor = widget.lineEdit()->cursorPosition();
  widget.setCurrentIndex(control.selection);
  widget.setEditText(text);
  widget.lineEdit()->setCursorPosition(cursor);
}

}  // namespace

void DrawCaption(QLabel* caption, const Control& control) {
  if (caption != nullptr) {
    SetText(*caption, ToShownRow(control.caption));
    caption->setVisible(control.visible);
  }
}

bool Shows(const Control& control) {
  return control.visible && (control.kind() != ControlKind::kLabel || !control.caption.empty());
}

BindingPtr Bind(QPushButton& widget, Button& control, EventRunner& runner) {
  widget.setAutoDefault(true);  // so that Enter presses the button that has the focus
  return BindButton(widget, control, runner);
}

BindingPtr BindRun(QPushButton& widget, Button& control, EventRunner& runner) {
  widget.setAutoDefault(true);
  return BindButton(widget, control, runner, [](std::optional<int> colour) {
    return colour ? QStringLiteral("✓ ") : QString();
  });
}

BindingPtr Bind(QCheckBox& widget, Check& control, EventRunner& runner) {
  return BindButton(widget, control, runner);
}

BindingPtr Bind(QRadioButton& widget, Option& control, EventRunner& runner) {
  widget.setAutoExclusive(false);  // the procedures clear the others
  return BindButton(widget, control, runner);
}

BindingPtr Bind(QLabel& widget, Label& control, EventRunner& runner) {
  widget.setTextFormat(Qt::PlainText);
  return std::make_unique<LabelBinding>(widget, control, runner, [&widget, &control] {
    SetText(widget, ToShownRow(control.caption));
  });
}

BindingPtr Bind(ClickLabel& widget, Label& control, EventRunner& runner) {
  widget.on_key_press = [&control, &runner] {
    Act(runner, control, [](Control& pressed) { pressed.Click(); });
  };
  return Bind(static_cast<QLabel&>(widget), control, runner);
}

BindingPtr BindLamp(QLabel& widget, Label& control, EventRunner& runner) {
  widget.setTextFormat(Qt::PlainText);
  return std::make_unique<WidgetBinding>(widget, control, runner, [&widget, &control] {
    const QString mark = control.colour == colour::kWhite
                             ? QStringLiteral("– ")
                             : MarkOf(control.colour, QStringLiteral("▶ "));
    SetText(widget, (mark + ToShownRow(control.caption)).trimmed());
  });
}

BindingPtr BindPicture(QLabel& widget, Label& control, EventRunner& runner) {
  return std::make_unique<WidgetBinding>(widget, control, runner, [&widget, &control] {
    SetText(widget, ToShownRow(control.caption));
  });
}

BindingPtr Bind(QGroupBox& widget, Label& control, EventRunner& runner) {
  return std::make_unique<WidgetBinding>(widget, control, runner, [&widget, &control] {
    widget.setTitle(ToShownRow(control.caption));
  });
}

BindingPtr Bind(QLineEdit& widget, TextField& control, EventRunner& runner, QLabel* caption) {
  QObject::connect(&widget, &QLineEdit::textEdited, &widget,
                   [&control, &runner](const QString& text) {
                     Act(runner, control, [&](Control& typed) { typed.Type(FromQString(text)); });
                   });
  return std::make_unique<WidgetBinding>(widget, control, runner, [&widget, &control, caption] {
    DrawLine(widget, control);
    DrawCaption(caption, control);
  });
}

BindingPtr Bind(QPlainTextEdit& widget, TextField& control, EventRunner& runner, QLabel* caption) {
  widget.setReadOnly(true);
  return std::make_unique<WidgetBinding>(widget, control, runner, [&widget, &control, caption] {
    const auto start = std::string_view(control.value).substr(0, kLongestRead + 1);
    const QString text = ToShownRow(TabStops().Spread(start), kLongestRead);
    if (widget.toPlainText() != text) {
      widget.setPlainText(text);
    }
    DrawCaption(caption, control);
  });
}

BindingPtr Bind(QComboBox& widget, Combo& control, EventRunner& runner) {
  widget.setEditable(true);
  widget.setInsertPolicy(QComboBox::NoInsert);
  widget.setCompleter(nullptr);
  widget.setDuplicatesEnabled(true);  // else Enter would choose the row with the text typed
  QObject::connect(widget.lineEdit(), &QLineEdit::textEdited, &widget,
                   [&control, &runner](const QString& text) {
                     Act(runner, control, [&](Control& typed) { typed.Type(FromQString(text)); });
                   });
  QObject::connect(&widget, &QComboBox::activated, &widget, [&control, &runner](int row) {
    Act(runner, control, [row](Control& chosen) { chosen.Select(row); });
  });
  FillCombo(widget, control);
  return std::make_unique<WidgetBinding>(
      widget, control, runner, [&widget, &control, version = control.items.version()]() mutable {
        if (version != control.items.version()) {
          version = control.items.version();
          const QSignalBlocker quiet(widget);
          FillCombo(widget, control);
        }
        DrawCombo(widget, control);
      });
}

BindingPtr Bind(QProgressBar& widget, ProgressBar& control, EventRunner& runner) {
  return std::make_unique<WidgetBinding>(widget, control, runner, [&widget, &control] {
    constexpr std::size_t kMost = std::numeric_limits<int>::max();
    const int maximum = static_cast<int>(std::clamp<std::size_t>(control.maximum, 1, kMost));
    if (widget.maximum() != maximum) {
      widget.setMaximum(maximum);
    }
    widget.setValue(std::clamp(static_cast<int>(Val(control.value)), 0, maximum));
  });
}

}  // namespace velmar
