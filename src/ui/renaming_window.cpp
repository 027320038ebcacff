#include "ui/renaming_window.h"

#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QVBoxLayout>

#include "ui/look.h"
#include "ui/qt_text.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr int kDonePart = 3;  // of the width
constexpr int kSetAsidePart = 2;
constexpr int kEntryLines = 3;

}  // namespace

RenamingWindow::RenamingWindow(RenamingForm& form, EventRunner& runner)
    : FoldersWindow(form, runner, form.source, form.destination) {
  SetCloseControl(form.torna_menu);
  Complete(MakeOutcome(form), {&form.rinomina, &form.torna_menu, &form.esci});
}

QWidget* RenamingWindow::MakeOutcome(RenamingForm& form) {
  auto* outcome = new QWidget;
  auto* rows = new QVBoxLayout(outcome);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kSpacing);
  auto* lists = new QHBoxLayout;
  lists->setSpacing(kMargin);
  lists->addWidget(MakeList(form.List1), kDonePart);
  lists->addWidget(MakeSetAside(form), kSetAsidePart);
  rows->addLayout(lists, 1);
  rows->addLayout(MakeCounters(form));
  rows->addLayout(MakeProgress(form.progress, form.Text1));
  return outcome;
}

QGroupBox* RenamingWindow::MakeList(List& list) {
  auto* group = new QGroupBox(ToShownRow(list.caption));
  auto* rows = new QVBoxLayout(group);
  rows->setSpacing(kSpacing / 2);
  auto* view = Make<RowView>(list);
  view->follows_end = true;
  rows->addWidget(view, 1);
  return group;
}

QGroupBox* RenamingWindow::MakeSetAside(RenamingForm& form) {
  QGroupBox* group = MakeList(form.List2);
  auto* caption = new QLabel;
  SetCaption(*caption);
  group->layout()->addWidget(caption);
  group->layout()->addWidget(MakeReader(form.Text2, kEntryLines, kEntryLines, caption));
  return group;
}

QHBoxLayout* RenamingWindow::MakeCounters(RenamingForm& form) {
  struct Counter {
    QString title;
    Label* count;
  };
  const Counter counters[] = {{QStringLiteral("File letti"), &form.file_letti},
                              {QStringLiteral("File doppi"), &form.file_doppi},
                              {QStringLiteral("Call cambiati"), &form.call_cambiati},
                              {QStringLiteral("File non validi"), &form.file_nonvalidi},
                              {QStringLiteral("File rinominati"), &form.file_rinominati}};
  auto* row = new QHBoxLayout;
  row->setSpacing(kSpacing);
  for (const Counter& counter : counters) {
    row->addWidget(MakeTitled(counter.title, *counter.count));
    row->addStretch(1);
  }
  return row;
}

}  // namespace velmar
