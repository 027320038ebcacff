// The lower half of the desk's window: the checks and what helps to judge.

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/check_window.h"
#include "ui/column_titles.h"
#include "ui/look.h"
#include "ui/path_view.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr int kDecisionsInARow = 2;
constexpr int kCountWidth = 44;  // px

/// Puts a frame, whose sight is its control's, into a widget that the window can hide.
QWidget* Hold(QWidget* frame) {
  auto* holder = new QWidget;
  auto* rows = new QVBoxLayout(holder);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->addWidget(frame);
  return holder;
}

}  // namespace

QHBoxLayout* CheckWindow::MakeChecks() {
  auto* checks = new QHBoxLayout;
  checks->setSpacing(kGap);
  auto* empty = new QLabel(
      QStringLiteral("Doppio click (o Invio) su un call della classifica per iniziare il suo "
                     "controllo."));
  empty->setAlignment(Qt::AlignCenter);
  empty->setWordWrap(true);
  SetQuiet(*empty);
  empty_ = empty;
  place_ = new QWidget;
  auto* cell = new QGridLayout(place_);
  cell->setContentsMargins(0, 0, 0, 0);
  cell->addWidget(empty, 0, 0);
  cell->addWidget(locators_ = Hold(MakeLocators()), 0, 0);
  cell->addWidget(uniques_ = Hold(MakeUniques()), 0, 0);
  auto* open = new QVBoxLayout;
  open->setSpacing(kGap);
  open->addWidget(place_, 1);
  open->addWidget(times_ = Hold(MakeTimes()));
  checks->addLayout(open, 1);
  checks->addWidget(MakeLookUps());
  return checks;
}

QWidget* CheckWindow::MakeLocators() {
  QBoxLayout* rows = MakeFrame(form_.Frame_Controllo_locatori);
  rows->addWidget(MakeVerdict());
  rows->addWidget(MakeDeclared());
  auto* lists = new QHBoxLayout;
  lists->setSpacing(kSpacing);
  AddList(*lists, form_.Lista_dubbi, 1);
  AddList(*lists, form_.Lista_locatori, 1);
  rows->addLayout(lists, 1);
  rows->addLayout(
      MakeDecisions({&form_.conferma_errore, &form_.errore_call, &form_.not_inlog, &form_.QSO_ok},
                    kDecisionsInARow));
  auto* searches = new QHBoxLayout;
  searches->setSpacing(kGap);
  searches->addWidget(Make<QPushButton>(form_.vedi_locator), 1);
  AddButtons(*searches, {&form_.internet2, &form_.Tutti_loc, &form_.Tutti_call});
  rows->addLayout(searches);
  return rows->parentWidget();
}

QWidget* CheckWindow::MakeVerdict() {
  auto* verdict = new QWidget;
  auto* row = new QHBoxLayout(verdict);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kSpacing);
  row->addWidget(MakeTitled(QStringLiteral("Dubbi"), form_.N_dubbi));
  auto* judged = Make<QLabel>(form_.infoloc);
  judged->setFont(HeadingFont(1));
  row->addWidget(judged);
  row->addStretch(1);
  row->addWidget(MakeTitled(QStringLiteral("Uguali"), form_.log_uguali));
  row->addWidget(MakeTitled(QStringLiteral("Diversi"), form_.log_diverso));
  row->addStrut(judged->fontMetrics().height());  // keeps its place with nothing to tell
  return verdict;
}

QWidget* CheckWindow::MakeDeclared() {
  auto* declared = new QWidget;
  auto* row = new QHBoxLayout(declared);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kSpacing);
  row->addWidget(Make<PathLabel>(form_.Locatore_in_log_arrivato), 1);
  row->addWidget(Make<PathLabel>(form_.err_loc_log), 1);
  row->addStrut(declared->fontMetrics().height());
  return declared;
}

QWidget* CheckWindow::MakeTimes() {
  QBoxLayout* rows = MakeFrame(form_.Frame_Log_errori_tempo);
  times_rows_ = rows;
  rows->addLayout(MakeTimesHead());
  times_list_ = new QWidget;
  auto* list = new QVBoxLayout(times_list_);
  list->setContentsMargins(0, 0, 0, 0);
  list->setSpacing(0);
  times_titles_ = Make<ColumnTitles>(form_.Label11);
  SetQuiet(*times_titles_);
  list->addWidget(times_heading_ = Hold(times_titles_));
  times_view_ = Make<RowView>(form_.Lista_err_orario);
  times_view_->setMinimumHeight(times_view_->HeightOf(1));
  times_titles_->Follow(*times_view_);
  list->addWidget(times_view_, 1);
  rows->addWidget(times_list_, 1);
  times_decisions_ = new QWidget;
  auto* decisions = new QVBoxLayout(times_decisions_);
  decisions->setContentsMargins(0, 0, 0, 0);
  decisions->setSpacing(kGap);
  decisions->addLayout(
      MakeDecisions({&form_.conf_err_time, &form_.conf_err_RST, &form_.convalida_qso_time}, 3));
  auto* views = new QHBoxLayout;
  views->setSpacing(kGap);
  AddButtons(*views, {&form_.vis_log, &form_.cerca_qso_rst});
  decisions->addLayout(views);
  rows->addWidget(times_decisions_);
  return rows->parentWidget();
}

QBoxLayout* CheckWindow::MakeTimesHead() {
  auto* head = new QHBoxLayout;
  head->setSpacing(kSpacing);
  auto* what = Make<QLabel>(form_.Label25);
  what->setFont(HeadingFont(0));
  head->addWidget(what);
  head->addWidget(Make<PathLabel>(form_.messaggio));
  head->addWidget(MakeTitled(QStringLiteral("Punti"), form_.kmerr));
  head->addStretch(1);
  auto* agreeing = new QLabel(QStringLiteral("Uguali"));
  SetQuiet(*agreeing);
  head->addWidget(agreeing);
  QLineEdit* count = MakeDisplay(form_.Text3);
  count->setFixedWidth(kCountWidth);
  head->addWidget(count);
  return head;
}

/// Times that differ have the place of the checks when it is their turn. Else what there is to tell
/// of them takes a line below the check that is open, or a few when none is.
void CheckWindow::ArrangeTimes(bool open, bool alone) {
  constexpr int kTimeOnAirWidth = 42;  // characters
  const bool listed = !form_.Lista_err_orario.items.rows().empty();
  times_->setVisible(listed || !form_.messaggio.caption.empty());
  times_list_->setVisible(listed);
  times_list_->setMinimumWidth(
      open ? 0 : kTimeOnAirWidth * times_view_->fontMetrics().horizontalAdvance(u'0'));
  times_heading_->setVisible(open);
  times_decisions_->setVisible(open);
  times_view_->setMaximumHeight(open ? QWIDGETSIZE_MAX : times_view_->HeightOf(1));
  times_view_->setHorizontalScrollBarPolicy(open ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  times_rows_->setDirection(open || alone ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
  // Where the columns stand depends on the length of the call under examination.
  const int call = static_cast<int>(form_.call_in_esame.caption.size());
  times_titles_->PlaceAt({0, 4, 5 + call, 10 + call, 27 + call, 33 + call});
}

QWidget* CheckWindow::MakeLookUps() {
  QBoxLayout* rows = MakeFrame(form_.Frame_ricerche);
  AddButtons(*rows, {&form_.database, &form_.CercaDtbIaru, &form_.ric_in_quel_locatore,
                     &form_.internet, &form_.SEARC_loc, &form_.espandi_archivio});
  AddList(*rows, form_.lista_call_unici, 1);
  return rows->parentWidget();
}

}  // namespace velmar
