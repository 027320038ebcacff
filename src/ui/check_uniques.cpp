// The part of the desk's window for unique calls, for what is not in a log, and for two logs side
// by side.

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QVBoxLayout>

#include "ui/banner.h"
#include "ui/check_window.h"
#include "ui/column_titles.h"
#include "ui/look.h"
#include "ui/path_view.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr int kUniquePart = 4;  // of the width
constexpr int kSimilarPart = 4;
constexpr int kExplanationPart = 5;
constexpr int kNearbyPart = 3;

/// A part of the frame that can be hidden by itself.
QVBoxLayout* MakePart() {
  auto* rows = new QVBoxLayout(new QWidget);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(2);
  return rows;
}

void MoveTogether(RowView& one, RowView& other) {
  QScrollBar* bar = one.verticalScrollBar();
  QScrollBar* other_bar = other.verticalScrollBar();
  QObject::connect(bar, &QScrollBar::valueChanged, other_bar, &QScrollBar::setValue);
  QObject::connect(other_bar, &QScrollBar::valueChanged, bar, &QScrollBar::setValue);
}

}  // namespace

QWidget* CheckWindow::MakeUniques() {
  QBoxLayout* rows = MakeFrame(form_.Frame_unici);
  rows->addWidget(MakeUniquesHead());
  rows->addWidget(MakeHints());
  auto* lists = new QHBoxLayout;
  lists->setSpacing(kSpacing);
  lists->addWidget(unique_calls_ = MakeUniqueCalls(), kUniquePart);
  lists->addWidget(MakeSimilar(), kSimilarPart);
  lists->addWidget(explanations_ = MakeExplanations(), kExplanationPart);
  lists->addWidget(nearby_ = MakeNearby(), kNearbyPart);
  rows->addLayout(lists, 1);
  auto* tools = new QHBoxLayout;
  tools->setSpacing(kGap);
  AddButtons(*tools, {&form_.log_callda_cercare, &form_.log_call, &form_.not_button,
                      &form_.Controlla_estero});
  tools->addStretch(1);
  AddButtons(*tools, {&form_.nasondi});
  rows->addLayout(tools);
  return rows->parentWidget();
}

QWidget* CheckWindow::MakeUniquesHead() {
  auto* head = new QWidget;
  auto* row = new QHBoxLayout(head);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kSpacing);
  row->addWidget(MakeTitled(QStringLiteral("Aperti"), form_.num_unici));
  auto* waiting = Make<PathLabel>(form_.Unici_in_attesa_conf);
  waiting->setCursor(Qt::PointingHandCursor);
  row->addWidget(waiting);
  row->addWidget(Make<PathLabel>(form_.ric_notinlog));
  row->addWidget(Make<Banner>(form_.troppi_numeri), 1);
  row->addStretch();
  for (Label* label : {&form_.nome_call, &form_.pre_senze, &form_.Avviso}) {
    auto* presences = Make<QLabel>(*label);
    presences->setFont(HeadingFont(0));
    row->addWidget(presences);
  }
  row->addStrut(QFontMetrics(HeadingFont(0)).height());
  return head;
}

/// The line of the hints, which keeps its place while it has nothing to tell.
QWidget* CheckWindow::MakeHints() {
  auto* hints = new QWidget;
  auto* row = new QHBoxLayout(hints);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kSpacing);
  for (Label* label : {&form_.messaggio_unici, &form_.messaggio_locatore, &form_.Label12}) {
    row->addWidget(Make<PathLabel>(*label), 1);
  }
  row->addStrut(hints->fontMetrics().height());
  return hints;
}

QWidget* CheckWindow::MakeUniqueCalls() {
  constexpr int kDecisionsInARow = 2;
  QBoxLayout* rows = MakePart();
  AddList(*rows, form_.Call_unici, 1);
  rows->addLayout(MakeDecisions(
      {&form_.error_call_unici, &form_.Errore_locatore, &form_.marca_unico, &form_.ok_call_unici},
      kDecisionsInARow));
  return rows->parentWidget();
}

QWidget* CheckWindow::MakeSimilar() {
  QBoxLayout* rows = MakePart();
  similar_ = AddList(*rows, form_.Lista_simili, 1);
  AddButtons(*rows, {&form_.vedi_log2, &form_.cerca_qso});
  return rows->parentWidget();
}

QWidget* CheckWindow::MakeExplanations() {
  QBoxLayout* rows = MakePart();
  auto* list = new QVBoxLayout;
  list->setSpacing(0);
  auto* rule = Make<PathLabel>(form_.regola_notlog);
  rule->setFont(FixedFont());
  SetQuiet(*rule);
  list->addWidget(rule);
  auto* view = Make<RowView>(form_.lista_notlog);
  view->setMinimumHeight(view->HeightOf(2));
  list->addWidget(view, 1);
  rows->addLayout(list, 1);
  rows->addLayout(MakeDecisions({&form_.NO_in_log, &form_.no_errore}, 1));
  MoveTogether(*similar_, *view);
  return rows->parentWidget();
}

QWidget* CheckWindow::MakeNearby() {
  QBoxLayout* rows = MakePart();
  AddList(*rows, form_.List2_unici, 1);
  auto* probable = new QHBoxLayout;
  probable->setSpacing(kSpacing);
  probable->addWidget(MakeTitled(QStringLiteral("Scritto"), form_.call_scorretto));
  probable->addWidget(MakeTitled(QStringLiteral("Forse"), form_.Prob_call_corretto));
  probable->addStretch(1);
  rows->addLayout(probable);
  AddButtons(*rows, {&form_.cerca_probabile});
  return rows->parentWidget();
}

QWidget* CheckWindow::MakeLogs() {
  QBoxLayout* rows = MakeFrame(form_.Frame_log);
  auto* logs = new QHBoxLayout;
  logs->setSpacing(kSpacing);
  logs->addLayout(MakeLog(form_.Label16, form_.List_log_call_esame), 1);
  logs->addLayout(MakeLog(form_.Label17, form_.List_log_corrispondente), 1);
  rows->addLayout(logs, 1);
  auto* grades = new QHBoxLayout;
  grades->setSpacing(kSpacing);
  auto* grade = Make<PathLabel>(form_.Label_simile);
  grade->setFont(HeadingFont(0));
  grades->addWidget(grade, 1);
  grades->addWidget(Make<PathLabel>(form_.Label_info_errati), 3);
  grades->addStrut(grade->fontMetrics().height());  // so that a search leaves the lists their size
  rows->addLayout(grades);
  auto* tools = new QHBoxLayout;
  tools->setSpacing(kGap);
  AddButtons(*tools, {&form_.cerca_qso2, &form_.cerca_primo_qso});
  tools->addStretch(1);
  AddButtons(*tools, {&form_.chiudi});
  rows->addLayout(tools);
  return rows->parentWidget();
}

QBoxLayout* CheckWindow::MakeLog(Label& title, List& list) {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(2);
  auto* whose = Make<PathLabel>(title);
  whose->setFont(HeadingFont(0));
  auto* heading = new QHBoxLayout;  // keeps its place while it has nothing to tell
  heading->addStrut(whose->fontMetrics().height());
  heading->addWidget(whose);
  rows->addLayout(heading);
  auto* view = Make<RowView>(list);
  view->setMinimumHeight(view->HeightOf(2));
  rows->addWidget(view, 1);
  return rows;
}

}  // namespace velmar
