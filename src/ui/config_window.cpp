#include "ui/config_window.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/look.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(640, 500);
constexpr QSize kUsual(860, 520);
constexpr int kLampSize = 26;

}  // namespace

ConfigWindow::ConfigWindow(ConfigForm& form, EventRunner& runner) : FormWindow(form, runner) {
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(2 * kMargin, kMargin, 2 * kMargin, kMargin);
  rows->setSpacing(kMargin);
  auto* heading = MakeText(form.heading);
  heading->setFont(HeadingFont(1));
  rows->addWidget(heading);
  rows->addWidget(MakeSettings(form), 1);
  auto* hint = MakeText(form.hint);
  SetQuiet(*hint);
  rows->addWidget(hint);
  auto* confirm = Make<QPushButton>(form.Command2);
  SetDefault(*confirm);
  rows->addWidget(confirm, 0, Qt::AlignRight);
  setMinimumSize(kSmallest);
  resize(kUsual);
  Finish(content);
}

QGroupBox* ConfigWindow::MakeSettings(ConfigForm& form) {
  auto* group = Make<QGroupBox>(form.frame);
  auto* grid = new QGridLayout(group);
  grid->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  grid->setHorizontalSpacing(kSpacing);
  grid->setVerticalSpacing(kSpacing);
  grid->setColumnStretch(2, 1);
  int row = 0;
  for (std::size_t i = 0; i < form.lines.size(); ++i) {
    if (i == static_cast<std::size_t>(Setting::kHideUniqueInDatabase)) {
      auto* rule = MakeText(form.rule);
      SetQuiet(*rule);
      rule->setAlignment(Qt::AlignCenter);
      grid->addWidget(rule, row++, 0, 1, 3);
    }
    AddLine(*grid, form.lines[i], row++);
  }
  return group;
}

void ConfigWindow::AddLine(QGridLayout& grid, const ConfigForm::Line& line, int row) {
  auto* lamp = MakeLamp(*line.mark);
  lamp->setFont(HeadingFont(0));
  lamp->setFixedSize(kLampSize, kLampSize);
  grid.addWidget(lamp, row, 0);
  if (line.box != nullptr) {
    grid.addWidget(Make<QCheckBox>(*line.box), row, 1);
  }
  grid.addWidget(MakeText(*line.text), row, 2);
}

}  // namespace velmar
