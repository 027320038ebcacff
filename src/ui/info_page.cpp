#include "ui/info_page.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/look.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(540, 340);
constexpr int kDisclaimerLines = 4;
constexpr int kMostDisclaimerLines = 8;

}  // namespace

InfoPage::InfoPage(InfoForm& form, EventRunner& runner) : FormWindow(form, runner) {
  SetCloseControl(form.cmdOK);
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(2 * kMargin, kMargin, 2 * kMargin, kMargin);
  rows->setSpacing(kMargin);
  auto* heading = new QHBoxLayout;
  heading->setSpacing(kMargin);
  heading->addWidget(MakeEmblem(form.picIcon), 0, Qt::AlignTop);
  auto* names = new QVBoxLayout;
  names->setSpacing(kSpacing / 2);
  auto* title = MakeText(form.lblTitle);
  title->setFont(HeadingFont(4));
  names->addWidget(title);
  for (Label* line : {&form.Label_info, &form.lblVersion}) {
    names->addWidget(MakeText(*line));
  }
  auto* newer = MakeText(form.Label2);
  newer->setFont(HeadingFont(0));
  names->addWidget(newer);
  names->addStretch(1);
  heading->addLayout(names, 1);
  rows->addLayout(heading);
  rows->addWidget(MakeText(form.lblDescription));
  rows->addWidget(MakeReader(form.Text4, kDisclaimerLines, kMostDisclaimerLines, nullptr), 1);
  auto* close = Make<QPushButton>(form.cmdOK);
  SetDefault(*close);
  rows->addWidget(close, 0, Qt::AlignRight);
  setMinimumSize(kSmallest);
  resize(kSmallest);
  Finish(content);
  SetKey(form.cmdOK, Qt::Key_Escape);
}

}  // namespace velmar
