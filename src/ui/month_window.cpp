#include "ui/month_window.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/look.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(480, 300);

}  // namespace

MonthWindow::MonthWindow(MonthForm& form, EventRunner& runner) : FormWindow(form, runner) {
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(2 * kMargin, kMargin, 2 * kMargin, kMargin);
  rows->setSpacing(kMargin);
  auto* heading = MakeText(form.Mese_kqv);
  heading->setFont(HeadingFont(3));
  rows->addWidget(heading);
  rows->addWidget(MakeText(form.Label1));
  auto* choices = new QHBoxLayout;
  choices->setSpacing(kSpacing);
  choices->addWidget(Make<QComboBox>(form.Combo_mese), 2);
  choices->addWidget(Make<QComboBox>(form.Combo_anno), 1);
  rows->addLayout(choices);
  auto* note = MakeText(form.note);
  SetQuiet(*note);
  rows->addWidget(note, 1);
  auto* confirm = Make<QPushButton>(form.OK_mese);
  SetDefault(*confirm);
  rows->addWidget(confirm, 0, Qt::AlignRight);
  setMinimumSize(kSmallest);
  resize(kSmallest);
  Finish(content);
}

}  // namespace velmar
