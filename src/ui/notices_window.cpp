#include "ui/notices_window.h"

#include <QKeySequence>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/look.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(480, 320);
constexpr int kUsualHeight = 560;
constexpr int kUsualColumns = 60;  // of a row

}  // namespace

NoticesWindow::NoticesWindow(NoticesForm& form, EventRunner& runner) : FormWindow(form, runner) {
  SetCloseControl(form.cmdOK);
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kSpacing);
  auto* list = Make<RowView>(form.List_avvisi);
  rows->addWidget(list, 1);
  for (Label* mark : {&form.Label1, &form.Label2}) {
    auto* meaning = MakeText(*mark);
    SetQuiet(*meaning);
    rows->addWidget(meaning);
  }
  auto* close = Make<QPushButton>(form.cmdOK);
  SetDefault(*close);
  rows->addWidget(close, 0, Qt::AlignRight);
  const int row = list->fontMetrics().horizontalAdvance(QLatin1Char('M')) * kUsualColumns;
  const int around = 2 * (kMargin + list->frameWidth() + list->TextMargin()) +
                     list->verticalScrollBar()->sizeHint().width();
  setMinimumSize(kSmallest);
  resize(row + around, kUsualHeight);
  Finish(content);
  SetKey(form.cmdOK, Qt::Key_Escape);
}

}  // namespace velmar
