#include "ui/recalculation_window.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "ui/look.h"
#include "ui/qt_text.h"
#include "ui/row_view.h"

namespace velmar {

RecalculationWindow::RecalculationWindow(RecalculationForm& form, EventRunner& runner)
    : FoldersWindow(form, runner, form.source, form.destination) {
  SetCloseControl(form.torna_menu);
  Complete(MakeOutcome(form), {&form.rinomina, &form.torna_menu});
}

QGroupBox* RecalculationWindow::MakeOutcome(RecalculationForm& form) {
  auto* group = new QGroupBox(ToShownRow(form.outcome.caption));
  auto* rows = new QVBoxLayout(group);
  rows->setSpacing(kSpacing);
  auto* outcome = Make<RowView>(form.outcome);
  outcome->follows_end = true;
  rows->addWidget(outcome, 1);
  QHBoxLayout* progress = MakeProgress(form.progress, form.Text1);
  progress->insertWidget(1, Make<QLabel>(form.num_file));
  rows->addLayout(progress);
  return group;
}

}  // namespace velmar
