#include <QHeaderView>
#include <QItemSelectionModel>
#include <QLabel>
#include <QScrollBar>
#include <QTableView>
#include <utility>

#include "ui/binding.h"
#include "ui/event_runner.h"
#include "ui/item_models.h"
#include "ui/look.h"
#include "ui/row_view.h"
#include "ui/widget_binding.h"

namespace velmar {

namespace {

void SelectRow(EventRunner& runner, Control& control, int row) {
  Act(runner, control, [row](Control& chosen) { chosen.Select(row); });
}

void RefreshRows(RowView& view, RowsModel& model) {
  const int position = view.verticalScrollBar()->value();
  if (!model.Refresh()) {
    return;
  }
  if (view.follows_end) {
    view.scrollToBottom();
  } else {
    view.verticalScrollBar()->setValue(position);
  }
}

void DoubleClick(EventRunner& runner, Control& control) {
  Act(runner, control, [](Control& clicked) { clicked.DoubleClick(); });
}

void Draw(RowView& view, RowsModel& model, Control& control, QLabel* caption) {
  RefreshRows(view, model);
  view.ShowChoice(control.selection);
  // Taken back: from now on the person moves the rows, until an event does so again.
  if (const int top = std::exchange(control.top, -1); top >= 0) {
    view.BeginWith(top);
  }
  DrawCaption(caption, control);
}

BindingPtr BindRows(RowView& view, Control& control, EventRunner& runner,
                    QLabel* caption = nullptr) {
  auto* model = new RowsModel(control, view.fontMetrics(), &view);
  view.setModel(model);
  view.on_row_by_key = [&control, &runner](int row) { SelectRow(runner, control, row); };
  QObject::connect(
      &view, &QListView::clicked, &view,
      [&control, &runner](const QModelIndex& index) { SelectRow(runner, control, index.row()); });
  QObject::connect(&view, &QListView::doubleClicked, &view,
                   [&control, &runner] { DoubleClick(runner, control); });
  view.on_enter = [&control, &runner] {
    const bool opens = control.on_double_click != nullptr;
    if (opens) {
      DoubleClick(runner, control);
    }
    return opens;
  };
  return std::make_unique<WidgetBinding>(view, control, runner, [&view, &control, model, caption] {
    Draw(view, *model, control, caption);
  });
}

}  // namespace

BindingPtr Bind(RowView& widget, List& control, EventRunner& runner, QLabel* caption) {
  return BindRows(widget, control, runner, caption);
}

BindingPtr Bind(RowView& widget, FileList& control, EventRunner& runner) {
  return BindRows(widget, control, runner);
}

BindingPtr Bind(QTableView& widget, Control& control, EventRunner& runner, FirstColumn first) {
  const bool headings = first == FirstColumn::kHeadings;
  auto* model = new GridModel(control, headings ? 1 : 0, &widget);
  widget.setFont(FixedFont());
  widget.verticalHeader()->setVisible(headings);
  widget.setModel(model);
  widget.setTabKeyNavigation(false);
  widget.setSelectionBehavior(QTableView::SelectRows);
  widget.setSelectionMode(QTableView::SingleSelection);
  // The heading is the control's row 0.
  QObject::connect(&widget, &QTableView::clicked, &widget,
                   [&control, &runner](const QModelIndex& index) {
                     SelectRow(runner, control, index.row() + 1);
                   });
  QObject::connect(&widget, &QTableView::doubleClicked, &widget,
                   [&control, &runner] { DoubleClick(runner, control); });
  return std::make_unique<WidgetBinding>(widget, control, runner, [&widget, &control, model] {
    model->Refresh();
    if (control.selection < 1) {
      widget.clearSelection();
    } else if (widget.currentIndex().row() != control.selection - 1) {
      widget.selectRow(control.selection - 1);
    }
  });
}

}  // namespace velmar
