#include "ui/export_window.h"

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/look.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(720, 450);
constexpr QSize kUsual(820, 480);
constexpr int kIndent = 22;     // of what hangs on the choice above it
constexpr int kRunHeight = 48;  // of the button that starts the run
constexpr int kNumberWidth = 56;

/// The rows of a group of choices.
QVBoxLayout* MakeRows(QWidget& group) {
  auto* rows = new QVBoxLayout(&group);
  rows->setContentsMargins(kMargin, kSpacing, kMargin, kMargin);
  rows->setSpacing(kSpacing);
  return rows;
}

QHBoxLayout* MakeIndented(QVBoxLayout& rows) {
  auto* row = new QHBoxLayout;
  row->setContentsMargins(kIndent, 0, 0, 0);
  row->setSpacing(kMargin);
  rows.addLayout(row);
  return row;
}

/// What comes and goes with a run keeps its room, so that nothing else moves.
void KeepRoom(QWidget& widget) {
  QSizePolicy policy = widget.sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  widget.setSizePolicy(policy);
}

}  // namespace

ExportWindow::ExportWindow(ExportForm& form, EventRunner& runner)
    : FormWindow(form, runner), form_(form) {
  SetCloseControl(form.torna_casa);
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(2 * kMargin, kMargin, 2 * kMargin, kMargin);
  rows->setSpacing(kMargin);
  rows->addLayout(MakeHead());
  rows->addLayout(MakeChoices());
  rows->addLayout(MakeRun());
  rows->addStretch(1);
  rows->addWidget(Make<QPushButton>(form.torna_casa), 0, Qt::AlignRight);
  setMinimumSize(kSmallest);
  resize(kUsual);
  Finish(content);
  SetKey(form.crea_cla_band_xls_01, Qt::Key_F5);
  SetKey(form.torna_casa, Qt::Key_Escape);
}

QHBoxLayout* ExportWindow::MakeHead() {
  auto* head = new QHBoxLayout;
  head->setSpacing(kMargin);
  auto* title = MakeText(form_.titolo);
  title->setFont(HeadingFont(2));
  head->addWidget(title, 1);
  head->addWidget(MakeLamp(form_.ExcelOpen), 0, Qt::AlignTop);
  return head;
}

QHBoxLayout* ExportWindow::MakeChoices() {
  auto* choices = new QHBoxLayout;
  choices->setSpacing(kMargin);
  choices->addWidget(MakeStatistics(), 1);
  auto* side = new QVBoxLayout;
  side->setSpacing(kMargin);
  side->addWidget(MakeCallAreas(), 1);
  side->addWidget(MakePage());
  choices->addLayout(side, 1);
  return choices;
}

QWidget* ExportWindow::MakeStatistics() {
  auto* group = Make<QGroupBox>(form_.Conferma_stat);
  QVBoxLayout* rows = MakeRows(*group);
  rows->addWidget(Make<QRadioButton>(form_.NO_stat));
  rows->addWidget(Make<QRadioButton>(form_.SI_stat));
  QHBoxLayout* kinds = MakeIndented(*rows);
  kinds->addWidget(Make<QRadioButton>(form_.SI_graf));
  kinds->addWidget(Make<QRadioButton>(form_.SI_testo));
  kinds->addStretch(1);
  rows->addSpacing(kSpacing);
  rows->addWidget(Make<QCheckBox>(form_.Check6));
  QHBoxLayout* parts = MakeIndented(*rows);
  parts->addWidget(Make<QCheckBox>(form_.Check7));
  parts->addWidget(Make<QCheckBox>(form_.Check8));
  parts->addStretch(1);
  rows->addStretch(1);
  return group;
}

QWidget* ExportWindow::MakeCallAreas() {
  auto* group = Make<QGroupBox>(form_.Frame_callarea);
  QVBoxLayout* rows = MakeRows(*group);
  rows->addWidget(Make<QRadioButton>(form_.NO_callarea));
  rows->addWidget(Make<QRadioButton>(form_.SI_callarea));
  QHBoxLayout* bands = MakeIndented(*rows);
  bands->addWidget(Make<QCheckBox>(form_.Check12_144));
  bands->addStretch(1);
  rows->addStretch(1);
  return group;
}

QWidget* ExportWindow::MakePage() {
  auto* group = new QGroupBox(QStringLiteral("Pagine"));
  auto* row = new QHBoxLayout(group);
  row->setContentsMargins(kMargin, kSpacing, kMargin, kMargin);
  row->setSpacing(kSpacing);
  auto* caption = new QLabel;
  auto* number = MakeDisplay(form_.HScroll1, caption);
  number->setFixedWidth(kNumberWidth);
  number->setAlignment(Qt::AlignCenter);
  row->addWidget(caption);
  row->addWidget(number);
  row->addStretch(1);
  row->addWidget(MakeTitled(QStringLiteral("Nuova pagina ogni"), form_.div_pag));
  return group;
}

QBoxLayout* ExportWindow::MakeRun() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(kSpacing);
  auto* run = MakeRunButton(form_.crea_cla_band_xls_01);
  run->setFont(HeadingFont(2));
  run->setMinimumHeight(kRunHeight);
  rows->addWidget(run);
  auto* step = Make<QLabel>(form_.LBL_stato);
  auto* progress = Make<QProgressBar>(form_.Bar1);
  auto* time = Make<QLabel>(form_.LBL_tempo);
  time->setFont(HeadingFont(0));
  time->setMinimumHeight(time->fontMetrics().lineSpacing());
  KeepRoom(*time);
  KeepRoom(*progress);
  auto* told = new QHBoxLayout;
  told->addWidget(step);
  told->addStretch(1);
  told->addWidget(time);
  rows->addLayout(told);
  rows->addWidget(progress);
  return rows;
}

}  // namespace velmar
