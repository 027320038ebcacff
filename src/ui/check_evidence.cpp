// The lower half of the desk's window: the checks and what helps to judge.

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include "ui/check_window.h"
#include "ui/look.h"
#include "ui/path_view.h"
#include "ui/row_view.h"

namespace velmar {

namespace {

constexpr int kDecisionsInARow = 2;
constexpr int kWide = 5;  // parts of the width
constexpr int kNarrow = 3;

/// Lets a line keep its place while it has nothing to tell, so that what is below does not jump.
void KeepPlace(QWidget& line, const QFont& font) {
  line.setMinimumHeight(QFontMetrics(font).height());
}

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
  checks->addWidget(empty, kWide);
  checks->addWidget(locators_ = Hold(MakeLocators()), kWide);
  checks->addWidget(times_ = Hold(MakeTimes()), kNarrow);
  checks->addWidget(MakeUniques(), kWide);
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
  auto* decisions = new QGridLayout;
  decisions->setSpacing(kGap);
  int place = 0;
  for (Button* button :
       {&form_.conferma_errore, &form_.errore_call, &form_.not_inlog, &form_.QSO_ok}) {
    auto* decision = Make<QPushButton>(*button);
    decision->setFont(HeadingFont(0));
    decisions->addWidget(decision, place / kDecisionsInARow, place % kDecisionsInARow);
    ++place;
  }
  rows->addLayout(decisions);
  rows->addWidget(Make<QPushButton>(form_.vedi_locator));
  auto* searches = new QHBoxLayout;
  searches->setSpacing(kGap);
  for (Button* button : {&form_.internet2, &form_.Tutti_loc, &form_.Tutti_call}) {
    searches->addWidget(Make<QPushButton>(*button));
  }
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
  KeepPlace(*verdict, judged->font());
  return verdict;
}

QWidget* CheckWindow::MakeDeclared() {
  auto* declared = new QWidget;
  auto* row = new QHBoxLayout(declared);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kSpacing);
  row->addWidget(Make<PathLabel>(form_.Locatore_in_log_arrivato), 1);
  row->addWidget(Make<PathLabel>(form_.err_loc_log), 1);
  KeepPlace(*declared, declared->font());
  return declared;
}

QWidget* CheckWindow::MakeTimes() {
  QBoxLayout* rows = MakeFrame(form_.Frame_Log_errori_tempo);
  rows->addWidget(Make<RowView>(form_.Lista_err_orario), 1);
  for (Button* button : {&form_.conf_err_time, &form_.conf_err_RST, &form_.convalida_qso_time}) {
    rows->addWidget(Make<QPushButton>(*button));
  }
  return rows->parentWidget();
}

QWidget* CheckWindow::MakeUniques() {
  QBoxLayout* rows = MakeFrame(form_.Frame_unici);
  uniques_ = new QVBoxLayout;
  uniques_->setSpacing(kGap);
  for (List* list : {&form_.Call_unici, &form_.Lista_simili}) {
    AddList(*uniques_, *list, 1);
  }
  rows->addLayout(uniques_, 1);
  for (Button* button : {&form_.Controlla_estero, &form_.nasondi}) {
    rows->addWidget(Make<QPushButton>(*button));
  }
  return rows->parentWidget();
}

QWidget* CheckWindow::MakeLookUps() {
  QBoxLayout* rows = MakeFrame(form_.Frame_ricerche);
  for (Button* button : {&form_.database, &form_.CercaDtbIaru, &form_.ric_in_quel_locatore,
                         &form_.internet, &form_.SEARC_loc, &form_.espandi_archivio}) {
    rows->addWidget(Make<QPushButton>(*button));
  }
  AddList(*rows, form_.lista_call_unici, 1);
  return rows->parentWidget();
}

}  // namespace velmar
