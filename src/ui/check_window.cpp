#include "ui/check_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSplitter>
#include <QStringList>
#include <QVBoxLayout>

#include "ui/column_titles.h"
#include "ui/look.h"
#include "ui/path_view.h"
#include "ui/qt_text.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(1014, 668);
constexpr QSize kUsual(1280, 860);
constexpr int kGroupMargin = 7;
constexpr int kLoadingWidth = 236;
constexpr int kSearchWidth = 90;
constexpr int kProgressWidth = 180;
constexpr int kQueueRows = 2;  // at least
constexpr int kFewErrors = 2;
constexpr int kMostErrors = 8;
constexpr int kQueuePart = 3;  // of the height
constexpr int kChecksPart = 5;

/// The height of so many rows.
int HeightOf(const RowView& view, int rows) {
  constexpr int kRowPadding = 6;
  return rows * (view.fontMetrics().height() + kRowPadding) + 2 * view.frameWidth();
}

}  // namespace

CheckWindow::CheckWindow(CheckForm& form, EventRunner& runner)
    : FormWindow(form, runner), form_(form) {
  SetCloseControl(form.torna_menu);
  MakeMenu();
  // Both lie in one cell: whichever is to be seen has the whole window.
  auto* content = new QWidget;
  auto* cell = new QGridLayout(content);
  cell->setContentsMargins(kSpacing, kGap, kSpacing, kGap);
  cell->addWidget(MakeDesk(), 0, 0);
  cell->addWidget(MakeWideView(), 0, 0);
  setMinimumSize(kSmallest);
  resize(kUsual);
  Finish(content);
  SetKeys();
}

void CheckWindow::Refresh() {
  FormWindow::Refresh();
  // A check with nothing open leaves its room to the others.
  const bool doubts = !form_.Lista_dubbi.items.rows().empty();
  locators_->setVisible(doubts || !form_.Frame_unici.visible);
  uniques_->setDirection(doubts ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  times_->setVisible(!form_.Lista_err_orario.items.rows().empty());
  empty_->setVisible(!form_.Frame_Controllo_locatori.visible && !form_.Frame_unici.visible);
}

QBoxLayout* CheckWindow::MakeFrame(Frame& frame) {
  auto* group = Make<QGroupBox>(frame);
  auto* rows = new QVBoxLayout(group);
  rows->setContentsMargins(kGroupMargin, kGap, kGroupMargin, kGap);
  rows->setSpacing(kGap);
  return rows;
}

void CheckWindow::AddList(QBoxLayout& rows, List& list, int stretch) {
  auto* column = new QVBoxLayout;
  column->setSpacing(0);
  const Columns made = MakeColumns(list);
  made.rows->setMinimumHeight(HeightOf(*made.rows, 2));
  column->addWidget(made.titles);
  column->addWidget(made.rows, 1);
  rows.addLayout(column, stretch);
}

QWidget* CheckWindow::MakeDesk() {
  auto* desk = new QWidget;
  auto* rows = new QVBoxLayout(desk);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kGap);
  auto* parts = new QSplitter(Qt::Vertical);
  parts->setChildrenCollapsible(false);
  auto* top = new QWidget;
  top->setLayout(MakeTop());
  parts->addWidget(top);
  auto* work = new QWidget;
  auto* work_rows = new QVBoxLayout(work);
  work_rows->setContentsMargins(0, 0, 0, 0);
  work_rows->setSpacing(kGap);
  work_rows->addWidget(MakeExam(), 1);
  work_rows->addLayout(MakeChecks(), 1);
  parts->addWidget(work);
  parts->setStretchFactor(0, kQueuePart);
  parts->setStretchFactor(1, kChecksPart);
  parts->setSizes({kQueuePart * kUsual.height(), kChecksPart * kUsual.height()});
  rows->addWidget(parts, 1);
  rows->addLayout(MakeFoot());
  std::vector<const Control*> frames;
  for (const auto& control : form_.controls()) {
    const bool frame = control->kind() == ControlKind::kLabel && control->container == nullptr;
    if (frame && control.get() != &form_.Frame_solo_classifica) {
      frames.push_back(control.get());
    }
  }
  ShowWithAny(*desk, std::move(frames));
  return desk;
}

QHBoxLayout* CheckWindow::MakeTop() {
  auto* top = new QHBoxLayout;
  top->setContentsMargins(0, 0, 0, 0);
  top->setSpacing(kSpacing);
  QWidget* loading = MakeLoading();
  top->addWidget(MakeQueue(), 1);
  top->addWidget(loading);
  return top;
}

QWidget* CheckWindow::MakeLoading() {
  QBoxLayout* rows = MakeFrame(form_.Frame1);
  rows->addWidget(Make<QRadioButton>(form_.Option3));
  rows->addWidget(Make<QPushButton>(form_.primo_carico));
  rows->addWidget(MakeText(form_.La_info));
  rows->addStretch(1);
  rows->addWidget(Make<QPushButton>(form_.exit_frame_caricacla));
  rows->parentWidget()->setFixedWidth(kLoadingWidth);
  return rows->parentWidget();
}

QWidget* CheckWindow::MakeQueue() {
  QBoxLayout* rows = MakeFrame(form_.Frame_Classifica_gene_banda);
  rows->addLayout(MakeQueueTools());
  rows->addLayout(MakeQueueName());
  auto* list = new QVBoxLayout;
  list->setSpacing(0);
  auto* titles = Make<ColumnTitles>(form_.titoli);
  SetQuiet(*titles);
  list->addWidget(titles);
  queue_ = Make<RowView>(form_.listacall_banda);
  queue_->setMinimumHeight(HeightOf(*queue_, kQueueRows) +
                           queue_->horizontalScrollBar()->sizeHint().height());
  titles->Follow(*queue_);
  list->addWidget(queue_, 1);
  rows->addLayout(list, 1);
  return rows->parentWidget();
}

QHBoxLayout* CheckWindow::MakeQueueTools() {
  auto* tools = new QHBoxLayout;
  tools->setSpacing(kSpacing);
  const Field search = MakeField(form_.sigla_call);
  search.line->setFixedWidth(kSearchWidth);
  tools->addWidget(search.caption);
  tools->addWidget(search.line);
  for (Button* button : {&form_.vai_a_un_call, &form_.primo_dacontrollare, &form_.prossimo}) {
    tools->addWidget(Make<QPushButton>(*button));
  }
  tools->addStretch(1);
  tools->addWidget(Make<QPushButton>(form_.Visualizza_solo_classifica));
  return tools;
}

QHBoxLayout* CheckWindow::MakeQueueName() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kSpacing);
  auto* name = Make<PathLabel>(form_.bandaesame);
  row->addWidget(name);
  row->addWidget(MakeTitled(QStringLiteral("Log"), form_.n_cla));
  row->addStretch(1);
  row->addWidget(Make<QLabel>(form_.LBL_doppioclick));
  return row;
}

QWidget* CheckWindow::MakeExam() {
  QBoxLayout* rows = MakeFrame(form_.Frame_esame);
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kSpacing);
  grid->setVerticalSpacing(kGap);
  grid->setColumnStretch(0, 1);
  grid->addLayout(MakeScore(), 0, 0);
  auto* row = Make<ColumnTitles>(form_.evidenzia);
  row->Follow(*queue_);
  grid->addLayout(MakeOrder(), 1, 0);
  int place = 0;
  for (Button* button : {&form_.unici, &form_.aggiorna_punt_class, &form_.ordina, &form_.vis_err,
                         &form_.vis_err2, &form_.stampa_errori}) {
    constexpr int kInARow = 3;
    grid->addWidget(Make<QPushButton>(*button), place / kInARow, 1 + place % kInARow);
    ++place;
  }
  rows->addLayout(grid);
  rows->addWidget(row);
  auto* errors = Make<RowView>(form_.List_errori);
  errors->setMinimumHeight(HeightOf(*errors, kFewErrors));
  errors->setMaximumHeight(HeightOf(*errors, kMostErrors));
  rows->addWidget(errors, 1);
  // No higher than it needs to be; the list of errors, when it is shown, asks for its share.
  rows->parentWidget()->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
  return rows->parentWidget();
}

QHBoxLayout* CheckWindow::MakeScore() {
  auto* score = new QHBoxLayout;
  score->setSpacing(kSpacing);
  auto* call = Make<QLabel>(form_.call_in_esame);
  call->setFont(HeadingFont(5));
  score->addWidget(call);
  score->addWidget(MakeTitled(QStringLiteral("Punti"), form_.qrb_ufficiale));
  score->addWidget(MakeTitled(QStringLiteral("Errori"), form_.err_count));
  score->addWidget(MakeTitled(QStringLiteral("Persi"), form_.err_qrb));
  score->addWidget(MakeTitled(QStringLiteral("Finale"), form_.qrb_finale));
  score->addStretch(1);
  return score;
}

QHBoxLayout* CheckWindow::MakeOrder() {
  auto* order = new QHBoxLayout;
  order->setSpacing(2);
  for (Label* step : form_.passi) {
    auto* lamp = MakeLamp(*step);
    QFont font = lamp->font();
    font.setPointSize(font.pointSize() - 1);
    lamp->setFont(font);
    lamp->setFrameShape(QFrame::StyledPanel);
    order->addWidget(lamp, 1);
  }
  return order;
}

QHBoxLayout* CheckWindow::MakeFoot() {
  auto* foot = new QHBoxLayout;
  foot->setSpacing(kSpacing);
  hint_ = new QLabel;
  SetCaption(*hint_);
  hint_->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  foot->addWidget(hint_, 1);
  auto* progress = Make<QProgressBar>(form_.Bar1);
  progress->setFixedWidth(kProgressWidth);
  foot->addWidget(progress);
  return foot;
}

QWidget* CheckWindow::MakeWideView() {
  QBoxLayout* rows = MakeFrame(form_.Frame_solo_classifica);
  auto* heading = new QHBoxLayout;
  heading->setSpacing(kSpacing);
  auto* caption = new QLabel;
  heading->addWidget(caption);
  heading->addWidget(MakeDisplay(form_.Text1, caption), 1);
  rows->addLayout(heading);
  rows->addWidget(Make<RowView>(form_.visualizza_classifica), 1);
  rows->addWidget(Make<QPushButton>(form_.esci_da_cla), 0, Qt::AlignRight);
  return rows->parentWidget();
}

void CheckWindow::SetKeys() {
  struct Key {
    const Button* button;
    QKeySequence key;
  };
  // The first ones are told at the foot of the window.
  constexpr qsizetype kTold = 9;
  const Key keys[] = {{&form_.primo_dacontrollare, Qt::Key_F2},
                      {&form_.prossimo, Qt::Key_F3},
                      {&form_.conferma_errore, Qt::Key_F5},
                      {&form_.errore_call, Qt::Key_F6},
                      {&form_.not_inlog, Qt::Key_F7},
                      {&form_.QSO_ok, Qt::Key_F8},
                      {&form_.unici, Qt::Key_F9},
                      {&form_.aggiorna_punt_class, Qt::Key_F11},
                      {&form_.ordina, Qt::Key_F12},
                      {&form_.vis_err, Qt::Key_F4},
                      {&form_.nasondi, Qt::CTRL | Qt::Key_F9},
                      {&form_.conf_err_time, Qt::CTRL | Qt::Key_F5},
                      {&form_.conf_err_RST, Qt::CTRL | Qt::Key_F6},
                      {&form_.convalida_qso_time, Qt::CTRL | Qt::Key_F8},
                      {&form_.Tutti_loc, Qt::CTRL | Qt::Key_L},
                      {&form_.Tutti_call, Qt::CTRL | Qt::Key_K},
                      {&form_.database, Qt::CTRL | Qt::Key_D},
                      {&form_.CercaDtbIaru, Qt::CTRL | Qt::Key_I},
                      {&form_.ric_in_quel_locatore, Qt::CTRL | Qt::Key_R},
                      {&form_.internet, Qt::CTRL | Qt::Key_Q},
                      {&form_.SEARC_loc, Qt::CTRL | Qt::Key_M},
                      {&form_.espandi_archivio, Qt::CTRL | Qt::Key_B},
                      {&form_.stampa_errori, Qt::CTRL | Qt::Key_P}};
  QStringList told;
  for (const auto& [button, key] : keys) {
    SetKey(*button, key);
    if (told.size() < kTold) {
      told += QStringLiteral("%1 %2").arg(key.toString(QKeySequence::NativeText),
                                          ToQString(button->caption).trimmed());
    }
  }
  hint_->setText(told.join(QStringLiteral("   ")));
}

}  // namespace velmar
