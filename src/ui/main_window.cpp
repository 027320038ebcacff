#include "ui/main_window.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

#include "ui/look.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr int kIntakeWidth = 300;
constexpr int kStepWidth = 360;
constexpr QSize kSmallest(980, 640);
constexpr QSize kUsual(1000, 640);

/// A button that stands for an item of the menu, its tick included.
QPushButton* MakeStep(QAction& item) {
  auto* step = new QPushButton;
  step->setMinimumSize(kStepWidth, 2 * step->fontMetrics().height());
  step->setAutoDefault(true);
  const auto draw = [step, &item] {
    step->setText(item.isChecked() ? QStringLiteral("✓  ") + item.iconText() : item.iconText());
    step->setEnabled(item.isEnabled());
    step->setVisible(item.isVisible());
  };
  QObject::connect(&item, &QAction::changed, step, draw);
  QObject::connect(step, &QPushButton::clicked, &item, &QAction::trigger);
  return step;
}

}  // namespace

MainWindow::MainWindow(MainForm& form, EventRunner& runner)
    : FormWindow(form, runner), form_(form) {
  SetCloseControl(form.esci);
  MakeMenu();
  auto* content = new QWidget;
  auto* panels = new QHBoxLayout(content);
  panels->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing / 2);
  panels->setSpacing(kMargin);
  panels->addWidget(intake_ = MakeIntake());
  panels->addWidget(header_ = MakeHeader(), 1);
  panels->addWidget(steps_ = MakeSteps(), 0, Qt::AlignCenter);
  MakeStatus();
  setMinimumSize(kSmallest);
  resize(kUsual);
  Finish(content);
}

void MainWindow::Refresh() {
  FormWindow::Refresh();
  if (steps_ != nullptr) {
    steps_->setVisible(intake_->isHidden() && header_->isHidden());
  }
}

QWidget* MainWindow::MakeIntake() {
  auto* group = new QGroupBox(QStringLiteral("Inserimento dei log"));
  auto* rows = new QVBoxLayout(group);
  rows->setSpacing(kMargin);
  rows->addLayout(MakeCommands());
  rows->addLayout(MakeModes());
  rows->addLayout(MakeFiles(), 1);
  group->setFixedWidth(kIntakeWidth);
  ShowWithAny(*group, {&form_.caricaedi, &form_.Marcafile, &form_.Aggiorna, &form_.Check_AUT_entry,
                       &form_.Ins_auto, &form_.turbo, &form_.File1, &form_.Text3, &form_.Dir1});
  return group;
}

QVBoxLayout* MainWindow::MakeCommands() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(kSpacing);
  for (Button* command : {&form_.caricaedi, &form_.Marcafile, &form_.Aggiorna}) {
    rows->addWidget(Make<QPushButton>(*command));
  }
  auto* inserted = MakeText(form_.Inserimento_OK);
  inserted->setFont(HeadingFont(0));
  rows->addWidget(inserted);
  return rows;
}

QVBoxLayout* MainWindow::MakeModes() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(kSpacing);
  for (Check* mode : {&form_.Check_AUT_entry, &form_.Ins_auto, &form_.turbo}) {
    rows->addWidget(Make<QCheckBox>(*mode));
  }
  auto* hint = MakeText(form_.info_turbo);
  SetCaption(*hint);
  rows->addWidget(hint);
  rows->addWidget(Make<QProgressBar>(form_.Bar1));
  return rows;
}

QVBoxLayout* MainWindow::MakeFiles() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(kSpacing);
  auto* heading = new QHBoxLayout;
  auto* text = MakeDisplay(form_.Text3);
  text->setFrame(false);
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::transparent);
  text->setPalette(palette);
  heading->addWidget(text, 1);
  auto* count = Make<QLabel>(form_.num_file2);
  count->setFont(HeadingFont(0));
  heading->addWidget(count);
  rows->addLayout(heading);
  auto* folder = new QHBoxLayout;
  folder->setSpacing(kSpacing);
  const Field path = MakePathField(form_.Dir1);
  SetCaption(*path.caption);
  folder->addWidget(path.caption);
  folder->addWidget(path.line, 1);
  rows->addLayout(folder);
  rows->addWidget(Make<RowView>(form_.File1), 1);
  rows->addStretch(0);
  return rows;
}

QWidget* MainWindow::MakeSteps() {
  auto* group = new QGroupBox(QStringLiteral("Prassi"));
  auto* rows = new QVBoxLayout(group);
  rows->setContentsMargins(2 * kMargin, kMargin, 2 * kMargin, 2 * kMargin);
  rows->setSpacing(kSpacing);
  for (const BindingPtr& binding : bindings()) {
    const Control& control = binding->control();
    const bool step_of_menu = control.container == &form_.controllo && &control != &form_.ass_mese;
    if (binding->action() == nullptr || !step_of_menu || !control.on_click) {
      continue;
    }
    QPushButton* step = MakeStep(*binding->action());
    AddToTabOrder(*step);
    rows->addWidget(step);
  }
  return group;
}

void MainWindow::MakeStatus() {
  statusBar()->setContentsMargins(kMargin, 0, kMargin, kSpacing / 2);
  statusBar()->addWidget(Make<QLabel>(form_.OS_versione), 1);
  statusBar()->addPermanentWidget(MakeLamp(form_.ExcelOpen));
  statusBar()->addPermanentWidget(Make<QLabel>(form_.Label_excel));
  statusBar()->addPermanentWidget(Make<QLabel>(form_.LBL_VersioneXLS));
  statusBar()->addPermanentWidget(Make<QPushButton>(form_.esci));
}

}  // namespace velmar
