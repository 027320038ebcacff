#include "ui/statistics_window.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>
#include <utility>

#include "ui/grid_view.h"
#include "ui/look.h"

namespace velmar {

namespace {

constexpr QSize kSmallest(1014, 668);
constexpr QSize kUsual(1260, 840);
constexpr int kBoxMargin = 7;
constexpr int kCategoryWidth = 90;

}  // namespace

StatisticsWindow::StatisticsWindow(StatisticsForm& form, EventRunner& runner)
    : FormWindow(form, runner), form_(form), runner_(runner) {
  SetCloseControl(form.usci);
  MakeMenu();
  auto* content = new QWidget;
  auto* rows = new QVBoxLayout(content);
  rows->setContentsMargins(kSpacing, kGap, kSpacing, kSpacing);
  rows->setSpacing(kSpacing);
  // Both lie in one cell: whichever is to be seen has the whole room.
  auto* pages = new QGridLayout;
  pages->addWidget(MakeCounts(), 0, 0);
  pages->addWidget(MakeMapPage(), 0, 0);
  rows->addLayout(pages, 1);
  rows->addLayout(MakeFoot());
  setMinimumSize(kSmallest);
  resize(kUsual);
  Finish(content);
  SetKey(form.usci, Qt::Key_Escape);
}

void StatisticsWindow::Refresh() {
  const bool placed = form_.focus != nullptr;
  FormWindow::Refresh();
  RefreshTotals();
  RefreshMap();
  // What had the focus went with its page; it is not to fall to the button that leaves.
  const bool turned =
      std::exchange(on_map_page_, form_.Frame_grafica.visible) != form_.Frame_grafica.visible;
  if (turned && !placed) {
    (on_map_page_ ? show_map_ : count_)->setFocus();
  }
}

QBoxLayout* StatisticsWindow::MakeRows(QWidget& box) {
  auto* rows = new QVBoxLayout(&box);
  rows->setContentsMargins(kBoxMargin, kGap, kBoxMargin, kBoxMargin);
  rows->setSpacing(kSpacing);
  return rows;
}

void StatisticsWindow::AddButtons(QGridLayout& grid, const std::vector<Button*>& buttons,
                                  int in_a_row) {
  grid.setSpacing(kGap);
  int place = 0;
  for (Button* button : buttons) {
    grid.addWidget(Make<QPushButton>(*button), place / in_a_row, place % in_a_row);
    ++place;
  }
}

QWidget* StatisticsWindow::MakeCounts() {
  auto* page = Make<QGroupBox>(form_.Frame_testo);
  QBoxLayout* rows = MakeRows(*page);
  rows->addLayout(MakeRuns());
  rows->addLayout(MakeTotals(), 1);
  rows->addLayout(MakeTable(QStringLiteral("Italia: call in aria (ON AIR) per call area"),
                            form_.Grid_italia, false));
  rows->addLayout(MakeTable(
      QStringLiteral("Estero: call in aria (riga 144) e qso della categoria scelta (riga QSO)"),
      form_.Grid_estero, true));
  return page;
}

QHBoxLayout* StatisticsWindow::MakeRuns() {
  auto* runs = new QHBoxLayout;
  runs->setSpacing(kSpacing);
  runs->addWidget(count_ = Make<QPushButton>(form_.calcola_qso));
  runs->addSpacing(kMargin);
  runs->addWidget(new QLabel(QStringLiteral("Categoria")));
  auto* category = Make<QComboBox>(form_.banda_qso);
  category->setFixedWidth(kCategoryWidth);
  runs->addWidget(category);
  runs->addWidget(Make<QPushButton>(form_.trova));
  runs->addWidget(Make<QPushButton>(form_.qso_est));
  runs->addStretch(1);
  return runs;
}

QBoxLayout* StatisticsWindow::MakeTable(const QString& title, Grid& grid, bool moved) {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(2);
  auto* caption = new QLabel(title);
  SetCaption(*caption);
  rows->addWidget(caption);
  GridView* table = MakeGridView(grid, FirstColumn::kHeadings);
  if (!moved) {
    table->ShareWidth();
  }
  rows->addWidget(table);
  return rows;
}

QHBoxLayout* StatisticsWindow::MakeFoot() {
  auto* foot = new QHBoxLayout;
  foot->addStretch(1);
  foot->addWidget(Make<QPushButton>(form_.usci));
  return foot;
}

}  // namespace velmar
