#pragma once

#include <QObject>
#include <QWidget>
#include <functional>
#include <optional>

#include "ui/binding.h"

namespace velmar {

/// The binding of a control to a widget: what all kinds have in common is done here; `draw` puts
/// what the kind has of its own (caption, value, tick, rows) into the widget where it differs.
class WidgetBinding : public QObject, public Binding {
 public:
  WidgetBinding(QWidget& widget, Control& control, EventRunner& runner, std::function<void()> draw);

  QWidget* widget() const override { return &widget_; }
  void Refresh() override;

 protected:
  /// Whether the widget is to be seen.
  virtual bool Seen() const { return control().visible; }

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget& widget_;
  EventRunner& runner_;
  std::function<void()> draw_;
  std::optional<int> painted_;  ///< the colour that the widget has now
};

/// Draws a control's caption in a label of its own, if there is one, which is seen with the
/// control.
void DrawCaption(QLabel* caption, const Control& control);

/// What a person does to a control: runs `event` when the control can be reached, and draws again
/// in any case, so that a tick that the toolkit set by itself does not stay.
void Act(EventRunner& runner, Control& control, std::function<void(Control&)> event);

}  // namespace velmar
