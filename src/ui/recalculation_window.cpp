#include "ui/recalculation_window.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/look.h"
#include "ui/qt_text.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(760, 520);
constexpr QSize kUsual(1000, 640);
constexpr int kCountWidth = 80;

}  // namespace

RecalculationWindow::RecalculationWindow(RecalculationForm& form, EventRunner& runner)
    : FormWindow(form, runner) {
  SetCloseControl(form.torna_menu);
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kSpacing);
  auto* lists = new QHBoxLayout;
  lists->setSpacing(kMargin);
  for (FileList* list : {&form.source, &form.destination}) {
    folders_.push_back(MakeFolder(*list));
    lists->addWidget(folders_.back().group, 1);
  }
  rows->addLayout(lists, 3);
  rows->addWidget(MakeOutcome(form), 4);
  rows->addLayout(MakeCommands(form));
  setMinimumSize(kSmallest);
  resize(kUsual);
  Finish(content);
}

void RecalculationWindow::Refresh() {
  FormWindow::Refresh();
  for (const Folder& folder : folders_) {
    folder.group->setTitle(QStringLiteral("%1  –  %2 file")
                               .arg(ToShownRow(folder.list->caption))
                               .arg(folder.list->items.rows().size()));
  }
}

RecalculationWindow::Folder RecalculationWindow::MakeFolder(FileList& list) {
  auto* group = new QGroupBox;
  auto* rows = new QVBoxLayout(group);
  rows->addWidget(Make<RowView>(list));
  return {&list, group};
}

QGroupBox* RecalculationWindow::MakeOutcome(RecalculationForm& form) {
  auto* group = new QGroupBox(ToShownRow(form.outcome.caption));
  auto* rows = new QVBoxLayout(group);
  rows->setSpacing(kSpacing);
  auto* outcome = Make<RowView>(form.outcome);
  outcome->follows_end = true;
  rows->addWidget(outcome, 1);
  auto* counts = new QHBoxLayout;
  counts->setSpacing(kSpacing);
  counts->addWidget(Make<QProgressBar>(form.progress), 1);
  counts->addWidget(Make<QLabel>(form.num_file));
  auto* caption = new QLabel;
  auto* count = MakeDisplay(form.Text1, caption);
  count->setFixedWidth(kCountWidth);
  counts->addSpacing(kMargin);
  counts->addWidget(caption);
  counts->addWidget(count);
  rows->addLayout(counts);
  return group;
}

QHBoxLayout* RecalculationWindow::MakeCommands(RecalculationForm& form) {
  auto* commands = new QHBoxLayout;
  commands->setSpacing(kSpacing);
  commands->addStretch(1);
  commands->addWidget(Make<QPushButton>(form.rinomina));
  commands->addWidget(Make<QPushButton>(form.torna_menu));
  return commands;
}

}  // namespace velmar
