#include "ui/folders_window.h"

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
constexpr int kFoldersPart = 3;  // of the height
constexpr int kOutcomePart = 4;
constexpr int kCountWidth = 80;

}  // namespace

FoldersWindow::FoldersWindow(Form& form, EventRunner& runner, FileList& source,
                             FileList& destination)
    : FormWindow(form, runner), folders_{MakeFolder(source), MakeFolder(destination)} {}

void FoldersWindow::Refresh() {
  FormWindow::Refresh();
  for (const Folder& folder : folders_) {
    folder.group->setTitle(QStringLiteral("%1  –  %2 file")
                               .arg(ToShownRow(folder.list->caption))
                               .arg(folder.list->items.rows().size()));
  }
}

FoldersWindow::Folder FoldersWindow::MakeFolder(FileList& list) {
  auto* group = new QGroupBox;
  auto* rows = new QVBoxLayout(group);
  rows->addWidget(Make<RowView>(list));
  return {&list, group};
}

QHBoxLayout* FoldersWindow::MakeProgress(ProgressBar& progress, TextField& count) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kSpacing);
  row->addWidget(Make<QProgressBar>(progress), 1);
  auto* caption = new QLabel;
  auto* line = MakeDisplay(count, caption);
  line->setFixedWidth(kCountWidth);
  row->addSpacing(kMargin);
  row->addWidget(caption);
  row->addWidget(line);
  return row;
}

void FoldersWindow::Complete(QWidget* outcome, const std::vector<Button*>& buttons) {
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kSpacing);
  auto* folders = new QHBoxLayout;
  folders->setSpacing(kMargin);
  for (const Folder& folder : folders_) {
    folders->addWidget(folder.group, 1);
  }
  rows->addLayout(folders, kFoldersPart);
  rows->addWidget(outcome, kOutcomePart);
  rows->addLayout(MakeCommands(buttons));
  setMinimumSize(kSmallest);
  resize(kUsual);
  Finish(content);
}

QHBoxLayout* FoldersWindow::MakeCommands(const std::vector<Button*>& buttons) {
  auto* commands = new QHBoxLayout;
  commands->setSpacing(kSpacing);
  commands->addStretch(1);
  for (Button* button : buttons) {
    commands->addWidget(Make<QPushButton>(*button));
  }
  return commands;
}

}  // namespace velmar
