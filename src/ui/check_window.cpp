#include "ui/check_window.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QSplitter>
#include <QVBoxLayout>

#include "check/check_steps.h"
#include "ui/column_titles.h"
#include "ui/look.h"
#include "ui/path_view.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(1014, 668);
constexpr QSize kUsual(1280, 860);
constexpr int kGroupMargin = 7;
constexpr int kLoadingWidth = 236;
constexpr int kSearchWidth = 90;
constexpr int kProgressWidth = 180;
constexpr int kFewRows = 2;  // of a list, at least
constexpr int kMostErrors = 8;
constexpr int kQueuePart = 3;  // of the height
constexpr int kChecksPart = 5;

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
  TellKeys();
}

void CheckWindow::Refresh() {
  const bool wide = form_.Frame_solo_classifica.visible;
  SetCloseControl(wide ? static_cast<Control&>(form_.esci_da_cla) : form_.torna_menu);
  Arrange();  // first, so that what is to have the focus can be seen
  FormWindow::Refresh();
  TellKeys();
}

/// The checks are settled in their order: one with open items keeps those behind it back, and one
/// without leaves them its room.
void CheckWindow::Arrange() {
  const bool doubts =
      form_.Frame_Controllo_locatori.visible && !form_.Lista_dubbi.items.rows().empty();
  const bool times = !doubts && CheckSteps(form_).TimesOpen();
  const bool uniques = form_.Frame_unici.visible && !doubts && !times;
  const bool locators = form_.Frame_Controllo_locatori.visible && !uniques && !times;
  top_->setVisible(!form_.Frame_log.visible);
  locators_->setVisible(locators);
  uniques_->setVisible(uniques);
  empty_->setVisible(!locators && !uniques && form_.call_in_esame.caption.empty());
  place_->setVisible(!times);
  ArrangeTimes(times, !locators && !uniques);
  const bool found = !form_.lista_notlog.items.rows().empty();
  const bool unique = !form_.Call_unici.items.rows().empty();
  unique_calls_->setVisible(unique || !found);
  nearby_->setVisible(unique || !found);
  explanations_->setVisible(found);
}

QBoxLayout* CheckWindow::MakeFrame(Frame& frame) {
  auto* group = Make<QGroupBox>(frame);
  auto* rows = new QVBoxLayout(group);
  rows->setContentsMargins(kGroupMargin, kGap, kGroupMargin, kGap);
  rows->setSpacing(kGap);
  return rows;
}

RowView* CheckWindow::AddList(QBoxLayout& rows, List& list, int stretch) {
  auto* column = new QVBoxLayout;
  column->setSpacing(0);
  const Columns made = MakeColumns(list);
  made.rows->setMinimumHeight(made.rows->HeightOf(kFewRows));
  column->addWidget(made.titles);
  column->addWidget(made.rows, 1);
  rows.addLayout(column, stretch);
  return made.rows;
}

void CheckWindow::AddButtons(QBoxLayout& row, const std::vector<Button*>& buttons) {
  for (Button* button : buttons) {
    row.addWidget(Make<QPushButton>(*button));
  }
}

QGridLayout* CheckWindow::MakeDecisions(const std::vector<Button*>& buttons, int in_a_row) {
  auto* decisions = new QGridLayout;
  decisions->setSpacing(kGap);
  int place = 0;
  for (Button* button : buttons) {
    auto* decision = Make<QPushButton>(*button);
    decision->setFont(HeadingFont(0));
    decisions->addWidget(decision, place / in_a_row, place % in_a_row);
    ++place;
  }
  return decisions;
}

QWidget* CheckWindow::MakeDesk() {
  auto* desk = new QWidget;
  auto* rows = new QVBoxLayout(desk);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kGap);
  auto* parts = new QSplitter(Qt::Vertical);
  parts->setChildrenCollapsible(false);
  parts->addWidget(MakeTop());
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

QWidget* CheckWindow::MakeTop() {
  auto* place = new QWidget;
  auto* rows = new QVBoxLayout(place);
  rows->setContentsMargins(0, 0, 0, 0);
  top_ = new QWidget;
  auto* top = new QHBoxLayout(top_);
  top->setContentsMargins(0, 0, 0, 0);
  top->setSpacing(kSpacing);
  QWidget* loading = MakeLoading();
  top->addWidget(MakeQueue(), 1);
  top->addWidget(loading);
  rows->addWidget(top_);
  rows->addWidget(MakeLogs());
  return place;
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
  queue_->setMinimumHeight(queue_->HeightOf(kFewRows) +
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
  QHBoxLayout* score = MakeScore();
  auto* row = Make<ColumnTitles>(form_.evidenzia);
  row->Follow(*queue_);
  AddButtons(*score, {&form_.vis_err, &form_.vis_err2, &form_.stampa_errori});
  rows->addLayout(score);
  QHBoxLayout* order = MakeOrder();
  AddButtons(*order,
             {&form_.control_time, &form_.unici, &form_.aggiorna_punt_class, &form_.ordina});
  rows->addLayout(order);
  rows->addWidget(row);
  auto* errors = Make<RowView>(form_.List_errori);
  errors->setMinimumHeight(errors->HeightOf(kFewRows));
  errors->setMaximumHeight(errors->HeightOf(kMostErrors));
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
  order->setSpacing(kGap);
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
  auto* wait = new QWidget;
  auto* texts = new QHBoxLayout(wait);
  texts->setContentsMargins(0, 0, 0, 0);
  auto* title = Make<QLabel>(form_.Attendi_calcolo);
  title->setFont(HeadingFont(0));
  texts->addWidget(title);
  texts->addWidget(Make<QLabel>(form_.calcolo_in_corso));
  ShowWithAny(*wait, {&form_.Attendi_calcolo});
  foot->addWidget(wait);
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

}  // namespace velmar
