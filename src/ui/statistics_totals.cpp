// The totals of the window of the statistics: of the contest, by distance, and of one category.

#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

#include "model/text.h"
#include "ui/click_label.h"
#include "ui/look.h"
#include "ui/row_view.h"
#include "ui/share_bar.h"
#include "ui/statistics_window.h"

namespace velmar {

namespace {

constexpr int kNumberSize = 4;  // points above the usual font
constexpr int kCountSize = 0;
constexpr int kFoundWidth = 112;  // px
constexpr int kCategoryWidth = 124;

/// The name of a number, or of a row of them, in small letters.
QLabel* MakeCaption(const QString& text) {
  auto* caption = new QLabel(text);
  SetCaption(*caption);
  caption->setAlignment(Qt::AlignCenter);
  return caption;
}

bool OpensList(const StatisticsForm& form, const Label& number) {
  return &number == &form.loc_onair_144_tot || &number == &form.sqr_onair_144_tot ||
         &number == &form.field_onair_144_tot;
}

}  // namespace

QHBoxLayout* StatisticsWindow::MakeTotals() {
  auto* totals = new QHBoxLayout;
  totals->setSpacing(kSpacing);
  totals->addWidget(MakeContest(), 3);
  totals->addWidget(MakeFound());
  totals->addWidget(MakeDistances(), 5);
  totals->addWidget(MakeCategory());
  return totals;
}

/// A number, or what stands for it as long as it is unknown. Those that a person can click are
/// drawn as buttons.
QWidget* StatisticsWindow::MakeNumber(Label& number, const QString& title, int larger) {
  auto* cell = new QWidget;
  auto* place = new QGridLayout(cell);
  place->setContentsMargins(0, 0, 0, 0);
  QLabel* shown = nullptr;
  if (OpensList(form_, number) || &number == &form_.dx_144_tot) {
    shown = Make<ClickLabel>(number);
    shown->setAccessibleName(title);
    shown->setToolTip(OpensList(form_, number) ? QStringLiteral("Mostra o nasconde l'elenco")
                                               : QStringLiteral("Dice di chi è il DX"));
  } else {
    shown = Make<QLabel>(number);
  }
  shown->setFont(HeadingFont(larger));
  shown->setAlignment(Qt::AlignCenter);
  auto* blank = new QLabel(QStringLiteral("–"));
  SetQuiet(*blank);
  blank->setFont(shown->font());
  blank->setAlignment(Qt::AlignCenter);
  place->addWidget(shown, 0, 0, Qt::AlignCenter);
  place->addWidget(blank, 0, 0);
  place->setRowMinimumHeight(0, ClickLabel().sizeHint().height() + kSpacing);
  blanks_.push_back({blank, &number});
  return cell;
}

void StatisticsWindow::AddNumber(QGridLayout& grid, int place, int in_a_row, const QString& title,
                                 Label& number) {
  auto* tile = new QFrame;
  tile->setFrameShape(QFrame::StyledPanel);
  QPalette palette;
  palette.setColor(QPalette::Window, palette.color(QPalette::Base));
  tile->setPalette(palette);
  tile->setAutoFillBackground(true);
  auto* rows = new QVBoxLayout(tile);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addStretch(1);
  rows->addWidget(MakeCaption(title));
  rows->addWidget(MakeNumber(number, title, kNumberSize));
  rows->addStretch(1);
  grid.setSpacing(kGap);
  grid.addWidget(tile, place / in_a_row, place % in_a_row);
}

QWidget* StatisticsWindow::MakeContest() {
  auto* box = new QGroupBox(QStringLiteral("Contest, 144 MHz"));
  auto* grid = new QGridLayout;
  MakeRows(*box)->addLayout(grid);
  const std::vector<std::pair<QString, Label*>> numbers = {
      {QStringLiteral("Qso totali"), &form_.qso_144_tot},
      {QStringLiteral("Call in aria"), &form_.onair_144_tot},
      {QStringLiteral("DX km"), &form_.dx_144_tot},
      {QStringLiteral("QRB totale km"), &form_.qrb_144_tot},
      {QStringLiteral("Paesi"), &form_.paesi_144_tot},
      {QStringLiteral("Locatori"), &form_.loc_onair_144_tot},
      {QStringLiteral("Squares"), &form_.sqr_onair_144_tot},
      {QStringLiteral("Field"), &form_.field_onair_144_tot}};
  int place = 0;
  for (const auto& [title, number] : numbers) {
    AddNumber(*grid, place++, 2, title, *number);
  }
  return box;
}

QWidget* StatisticsWindow::MakeDistances() {
  auto* box = new QGroupBox(QStringLiteral("Qso per distanza, km"));
  auto* grid = new QGridLayout;
  grid->setSpacing(kGap);
  grid->setRowStretch(0, 1);
  MakeRows(*box)->addLayout(grid);
  const std::vector<std::pair<QString, Label*>> classes = {
      {QStringLiteral("sotto 101"), &form_.menocento}, {QStringLiteral("101-300"), &form_.centre},
      {QStringLiteral("301-500"), &form_.trecin},      {QStringLiteral("501-700"), &form_.cinset},
      {QStringLiteral("701-900"), &form_.setnov},      {QStringLiteral("901-999"), &form_.piunov},
      {QStringLiteral("da 1000"), &form_.piu1200}};
  int column = 0;
  for (const auto& [title, count] : classes) {
    auto* bar = new ShareBar;
    grid->setColumnStretch(column, 1);
    grid->addWidget(bar, 0, column);
    grid->addWidget(MakeNumber(*count, title, kCountSize), 1, column);
    grid->addWidget(MakeCaption(title), 2, column);
    distances_.push_back({bar, count});
    ++column;
  }
  return box;
}

QWidget* StatisticsWindow::MakeCategory() {
  auto* box = new QGroupBox(QStringLiteral("Categoria scelta"));
  box->setFixedWidth(kCategoryWidth);
  auto* grid = new QGridLayout;
  MakeRows(*box)->addLayout(grid);
  AddNumber(*grid, 0, 1, QStringLiteral("Qso Italia"), form_.qso_italia);
  AddNumber(*grid, 1, 1, QStringLiteral("Qso estero"), form_.qso_estero);
  AddNumber(*grid, 2, 1, QStringLiteral("Totale qso"), form_.totale_qso);
  AddNumber(*grid, 3, 1, QStringLiteral("Doppi"), form_.dopi);
  AddNumber(*grid, 4, 1, QStringLiteral("Call collegati"), form_.tot_qso_est);
  return box;
}

QWidget* StatisticsWindow::MakeFound() {
  found_ = new QGroupBox;
  found_->setFixedWidth(kFoundWidth);
  MakeRows(*found_)->addWidget(Make<RowView>(form_.Lista_sqr_fld_loc));
  ShowWithAny(*found_, {&form_.Lista_sqr_fld_loc});
  return found_;
}

void StatisticsWindow::RefreshTotals() {
  for (const Blank& blank : blanks_) {
    blank.widget->setVisible(!Shows(*blank.number));
  }
  double most = 1;
  for (const Distance& distance : distances_) {
    most = std::max(most, Val(distance.count->caption));
  }
  for (const Distance& distance : distances_) {
    distance.bar->SetShare(Val(distance.count->caption) / most);
  }
  found_->setTitle(QStringLiteral("Elenco (%1)").arg(form_.Lista_sqr_fld_loc.items.rows().size()));
}

}  // namespace velmar
