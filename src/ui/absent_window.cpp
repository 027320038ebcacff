#include "ui/absent_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QVBoxLayout>
#include <array>
#include <tuple>
#include <vector>

#include "ui/column_titles.h"
#include "ui/look.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(1000, 660);
constexpr QSize kUsual(1160, 820);
constexpr int kProgressWidth = 200;
constexpr int kFewRows = 3;    // of a list, at least
constexpr int kListsPart = 5;  // of the height
constexpr int kLogPart = 4;
constexpr int kFigureWidth = 90;

/// Where the titles of the rebuilt log stand over its rows, from 0.
constexpr std::array kTitleColumns = {0, 5, 14, 26, 38, 51};

}  // namespace

AbsentWindow::AbsentWindow(AbsentForm& form, EventRunner& runner)
    : FormWindow(form, runner), form_(form) {
  SetCloseControl(form.usci);
  MakeMenu();
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(kMargin, kSpacing, kMargin, kSpacing);
  rows->setSpacing(kSpacing);
  rows->addWidget(MakeText(form.Label_domanda));
  rows->addLayout(MakeHead());
  rows->addLayout(MakeCounters());
  auto* parts = new QSplitter(Qt::Vertical);
  parts->setChildrenCollapsible(false);
  parts->addWidget(MakeLists());
  parts->addWidget(MakeLog());
  parts->setSizes({kListsPart * kUsual.height(), kLogPart * kUsual.height()});
  rows->addWidget(parts, 1);
  auto* leave = Make<QPushButton>(form.usci);
  rows->addWidget(leave, 0, Qt::AlignRight);
  setMinimumSize(kSmallest);
  resize(kUsual);
  Finish(content);
  leave->setShortcut({});  // the same letter is the menu's
  SetKey(form.Verifica_assenti, Qt::Key_F5);
  SetKey(form.inverti_ordine_lista, Qt::Key_F6);
  SetKey(form.stampa_assenti, QKeySequence::Print);
  SetKey(form.usci, Qt::Key_Escape);
}

void AbsentWindow::Refresh() {
  empty_->setVisible(!form_.Lista.visible);
  FormWindow::Refresh();
}

QHBoxLayout* AbsentWindow::MakeHead() {
  auto* head = new QHBoxLayout;
  head->setSpacing(kSpacing);
  head->addWidget(Make<QPushButton>(form_.Verifica_assenti));
  for (ProgressBar* bar : {&form_.Bar1, &form_.Bar2}) {
    auto* progress = Make<QProgressBar>(*bar);
    progress->setFixedWidth(kProgressWidth);
    head->addWidget(progress);
  }
  head->addStretch(1);
  return head;
}

QGridLayout* AbsentWindow::MakeCounters() {
  struct Counter {
    QString title;
    Label* count;
  };
  const std::vector<std::vector<Counter>> lines = {
      {{QStringLiteral("Log arrivati"), &form_.Log_inviati},
       {QStringLiteral("di call diversi"), &form_.call_effettivi},
       {QStringLiteral("QSO fra italiani"), &form_.qsofraita},
       {QStringLiteral("QSO con esteri"), &form_.qso_con_esteri},
       {QStringLiteral("Assenti in elenco"), &form_.Call_mancanti}},
      {{QStringLiteral("Call trovati"), &form_.call_T},
       {QStringLiteral("Call con log"), &form_.call_log},
       {QStringLiteral("Log su call trovati"), &form_.perc_log_inv},
       {QStringLiteral("Call senza log"), &form_.no_log},
       {QStringLiteral("Assenti su call trovati"), &form_.perc_assenti}}};
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kMargin);
  grid->setVerticalSpacing(kGap);
  for (std::size_t line = 0; line < lines.size(); ++line) {
    for (std::size_t place = 0; place < lines[line].size(); ++place) {
      const Counter& counter = lines[line][place];
      grid->addWidget(MakeTitled(counter.title, *counter.count), static_cast<int>(line),
                      static_cast<int>(place), Qt::AlignLeft);
    }
  }
  return grid;
}

/// The lists side by side: what each one holds above it, how many rows it has below.
QWidget* AbsentWindow::MakeLists() {
  auto* place = new QWidget;
  auto* grid = new QGridLayout(place);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setHorizontalSpacing(kMargin);
  grid->setVerticalSpacing(kGap);
  grid->setRowStretch(1, 1);
  auto* empty = new QLabel(QStringLiteral("Start controllo (F5) prepara gli elenchi."));
  empty->setAlignment(Qt::AlignCenter);
  SetQuiet(*empty);
  grid->addWidget(empty_ = empty, 1, 0, 1, 3);
  const std::tuple<Label*, List*, Label*> columns[] = {
      {&form_.Label_sx, &form_.List_libreria, &form_.LB_list_libreria},
      {&form_.Label_centro, &form_.Call_assenti, &form_.LB_call_ass},
      {&form_.Label_dx, &form_.Lista, &form_.LB_lista}};
  int column = 0;
  for (const auto& [explanation, list, count] : columns) {
    auto* text = MakeText(*explanation);
    SetCaption(*text);
    text->setAlignment(Qt::AlignBottom);
    grid->addWidget(text, 0, column);
    auto* rows = Make<RowView>(*list);
    rows->setMinimumHeight(rows->HeightOf(kFewRows));
    grid->addWidget(rows, 1, column);
    grid->addWidget(MakeTitled(QStringLiteral("Call"), *count), 2, column, Qt::AlignLeft);
    grid->setColumnStretch(column++, 1);
  }
  // Across all columns, so that none is wider than the others.
  auto* commands = new QHBoxLayout;
  commands->setSpacing(kSpacing);
  commands->addStretch(1);
  commands->addWidget(Make<QPushButton>(form_.inverti_ordine_lista));
  commands->addWidget(Make<QPushButton>(form_.stampa_assenti));
  grid->addLayout(commands, 3, 0, 1, 3);
  return place;
}

QWidget* AbsentWindow::MakeLog() {
  auto* group = Make<QGroupBox>(form_.Frame_log);
  auto* parts = new QHBoxLayout(group);
  parts->setContentsMargins(kSpacing, kGap, kSpacing, kGap);
  parts->setSpacing(kMargin);
  parts->addLayout(MakeLogRows(), 1);
  auto* side = new QVBoxLayout;
  side->setSpacing(kGap);
  side->addLayout(MakeFigures());
  side->addStretch(1);
  auto* foot = new QHBoxLayout;
  foot->setSpacing(kSpacing);
  foot->addWidget(MakeTitled(QStringLiteral("Tempo"), form_.tempo));
  foot->addWidget(Make<QLabel>(form_.label_secondi));
  foot->addStretch(1);
  foot->addWidget(Make<QPushButton>(form_.stampa_log_assente));
  side->addLayout(foot);
  parts->addLayout(side);
  return group;
}

QBoxLayout* AbsentWindow::MakeLogRows() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(0);
  auto* hint = Make<QLabel>(form_.Label_clicca);
  SetCaption(*hint);
  rows->addWidget(hint);
  rows->addSpacing(kGap);
  const Columns made = MakeColumns(form_.Log_assente);
  made.titles->PlaceAt({kTitleColumns.begin(), kTitleColumns.end()});
  made.rows->setMinimumHeight(made.rows->HeightOf(kFewRows));
  rows->addWidget(made.titles);
  rows->addWidget(made.rows, 1);
  return rows;
}

QGridLayout* AbsentWindow::MakeFigures() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kSpacing);
  grid->setVerticalSpacing(kGap);
  const auto& figures = form_.figures();
  const std::size_t half = (figures.size() + 1) / 2;
  for (std::size_t i = 0; i < figures.size(); ++i) {
    const int row = static_cast<int>(i % half);
    const int column = i < half ? 0 : 2;
    auto* title = Make<QLabel>(*figures[i].first);
    SetQuiet(*title);
    grid->addWidget(title, row, column);
    auto* value = Make<QLabel>(*figures[i].second);
    value->setFont(HeadingFont(0));
    grid->addWidget(value, row, column + 1);
    grid->setColumnMinimumWidth(column + 1, kFigureWidth);
  }
  return grid;
}

}  // namespace velmar
