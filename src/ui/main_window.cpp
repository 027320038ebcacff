#include "ui/main_window.h"

#include <QAction>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStatusBar>
#include <QVBoxLayout>
#include <vector>

#include "ui/look.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr int kIntakeWidth = 300;
constexpr int kStepWidth = 360;
constexpr QSize kSmallest(860, 560);
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
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kSpacing);
  auto* panels = new QHBoxLayout;
  panels->setSpacing(kMargin);
  panels->addWidget(intake_ = MakeIntake(), 1);
  panels->addWidget(header_ = MakeHeader(), 2);
  panels->addWidget(steps_ = MakeSteps(), 0, Qt::AlignCenter);
  rows->addLayout(panels, 1);
  rows->addWidget(Make<QPushButton>(form.esci), 0, Qt::AlignRight);
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
  rows->setSpacing(kSpacing);
  rows->addWidget(Make<QPushButton>(form_.caricaedi));
  rows->addWidget(Make<QPushButton>(form_.Marcafile));
  rows->addWidget(Make<QPushButton>(form_.Aggiorna));
  rows->addWidget(Make<QCheckBox>(form_.Check_AUT_entry));
  rows->addWidget(Make<QCheckBox>(form_.Ins_auto));
  rows->addWidget(Make<QCheckBox>(form_.turbo));
  rows->addWidget(MakeText(form_.info_turbo));
  auto* inserted = MakeText(form_.Inserimento_OK);
  inserted->setFont(HeadingFont(0));
  rows->addWidget(inserted);
  rows->addLayout(MakeFiles(), 1);
  group->setMinimumWidth(kIntakeWidth);
  ShowWithAny(*group, {&form_.caricaedi, &form_.Marcafile, &form_.Aggiorna, &form_.Check_AUT_entry,
                       &form_.Ins_auto, &form_.turbo, &form_.File1, &form_.Text3});
  return group;
}

QVBoxLayout* MainWindow::MakeFiles() {
  auto* rows = new QVBoxLayout;
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
  rows->addWidget(Make<RowView>(form_.File1), 1);
  rows->addStretch(0);
  return rows;
}

QWidget* MainWindow::MakeHeader() {
  auto* group = new QGroupBox(QStringLiteral("Testata del log"));
  auto* rows = new QVBoxLayout(group);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kSpacing);
  grid->setVerticalSpacing(kSpacing);
  grid->setColumnStretch(1, 1);
  grid->setColumnStretch(3, 1);
  const std::vector<TextField*> left = {&form_.NomeContest, &form_.datainizio, &form_.datafine,
                                        &form_.Callusato,   &form_.locusato,   &form_.categoria,
                                        &form_.frequenza,   &form_.club,       &form_.operatore,
                                        &form_.callresp,    &form_.codxc};
  const std::vector<TextField*> right = {
      &form_.trasmettitore, &form_.potenza, &form_.antenna,  &form_.altezza,     &form_.QRB,
      &form_.qsovalidi,     &form_.doppi,   &form_.sommaqrb, &form_.percentuale, &form_.differenza};
  for (std::size_t i = 0; i < left.size(); ++i) {
    AddHeaderField(*grid, *left[i], static_cast<int>(i), 0);
  }
  for (std::size_t i = 0; i < right.size(); ++i) {
    AddHeaderField(*grid, *right[i], static_cast<int>(i), 2);
  }
  rows->addLayout(grid);
  auto* marks = new QHBoxLayout;
  marks->setSpacing(2 * kSpacing);
  marks->addWidget(Make<QRadioButton>(form_.Rookie));
  marks->addWidget(Make<QRadioButton>(form_.Young));
  marks->addWidget(Make<QPushButton>(form_.Command1));
  marks->addStretch(1);
  rows->addLayout(marks);
  rows->addStretch(1);
  ShowWithAny(*group, {form_.panel().begin(), form_.panel().end()});
  return group;
}

void MainWindow::AddHeaderField(QGridLayout& grid, TextField& field, int row, int column) {
  const Field made = MakeField(field);
  made.caption->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  grid.addWidget(made.caption, row, column);
  grid.addWidget(made.line, row, column + 1);
}

QWidget* MainWindow::MakeSteps() {
  auto* group = new QGroupBox(QStringLiteral("Prassi"));
  auto* rows = new QVBoxLayout(group);
  rows->setContentsMargins(2 * kMargin, kMargin, 2 * kMargin, 2 * kMargin);
  rows->setSpacing(kSpacing);
  for (const BindingPtr& binding : bindings()) {
    const Control& control = binding->control();
    const bool step_of_menu = control.menu == &form_.controllo && &control != &form_.ass_mese;
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
}

}  // namespace velmar
