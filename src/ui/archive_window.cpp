#include "ui/archive_window.h"

#include <QHBoxLayout>
#include <QKeySequence>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "model/call_book.h"
#include "ui/column_titles.h"
#include "ui/look.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(720, 360);
constexpr QSize kUsual(780, 560);

/// Where the titles of the call book stand over its records, from 0.
std::vector<int> TitleColumns() {
  std::vector<int> columns;
  for (const Column& column : {book_record::kCall, book_record::kLocator, book_record::kLastDate,
                               book_record::kLogs, book_record::kBand}) {
    columns.push_back(static_cast<int>(column.start) - 1);
  }
  return columns;
}

}  // namespace

ArchiveWindow::ArchiveWindow(ArchiveForm& form, EventRunner& runner) : FormWindow(form, runner) {
  SetCloseControl(form.chiudi_archivio);
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  rows->setSpacing(kSpacing);
  auto* lists = new QHBoxLayout;
  lists->setSpacing(kMargin);
  for (List* list : {&form.lista_archivio, &form.Lista_trovati}) {
    auto* column = new QVBoxLayout;
    column->setSpacing(0);
    const Columns made = MakeColumns(*list);
    if (list == &form.lista_archivio) {
      made.titles->PlaceAt(TitleColumns());
    }
    column->addWidget(made.titles);
    column->addWidget(made.rows, 1);
    lists->addLayout(column, 1);
  }
  rows->addLayout(lists, 1);
  auto* commands = new QHBoxLayout;
  commands->setSpacing(kSpacing);
  commands->addWidget(MakeTitled(QStringLiteral("Call in archivio"), form.tot_in_archivio));
  commands->addWidget(Make<QProgressBar>(form.Bar1), 1);
  commands->addStretch(0);
  commands->addWidget(Make<QPushButton>(form.cerca));
  commands->addWidget(Make<QPushButton>(form.chiudi_archivio));
  rows->addLayout(commands);
  setMinimumSize(kSmallest);
  resize(kUsual);
  Finish(content);
  SetKey(form.cerca, QKeySequence::Find);
  SetKey(form.chiudi_archivio, Qt::Key_Escape);
}

}  // namespace velmar
