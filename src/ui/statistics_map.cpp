// The second page of the window of the statistics: the map with what is drawn on it.

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/event_runner.h"
#include "ui/grid_view.h"
#include "ui/look.h"
#include "ui/map_mark.h"
#include "ui/path_view.h"
#include "ui/picture_view.h"
#include "ui/qt_text.h"
#include "ui/row_view.h"
#include "ui/statistics_window.h"

namespace velmar {

namespace {

constexpr int kToolsWidth = 326;  // px
constexpr int kFrequencyWidth = 80;
constexpr int kInARow = 2;

}  // namespace

QWidget* StatisticsWindow::MakeMapPage() {
  auto* page = Make<QGroupBox>(form_.Frame_grafica);
  QBoxLayout* rows = MakeRows(*page);
  rows->addLayout(MakeFirstSteps());
  auto* cell = new QGridLayout;
  cell->addWidget(MakeMap(), 0, 0);
  auto* hint = new QLabel(
      QStringLiteral("Premi \"mappa 1\" per vedere la mappa.\nI punti da disegnare sono quelli "
                     "dell'ultimo calcolo (menu Calcola)."));
  hint->setAlignment(Qt::AlignCenter);
  SetQuiet(*hint);
  no_map_ = hint;
  cell->addWidget(hint, 0, 0);
  rows->addLayout(cell, 1);
  return page;
}

QHBoxLayout* StatisticsWindow::MakeFirstSteps() {
  auto* steps = new QHBoxLayout;
  steps->setSpacing(kSpacing);
  steps->addWidget(new QLabel(QStringLiteral("Frequenza, MHz")));
  auto* frequency = Make<QComboBox>(form_.frequenza);
  frequency->setFixedWidth(kFrequencyWidth);
  steps->addWidget(frequency);
  steps->addWidget(show_map_ = Make<QPushButton>(form_.mappa));
  steps->addStretch(1);
  return steps;
}

QWidget* StatisticsWindow::MakeMap() {
  auto* frame = Make<QGroupBox>(form_.Frame_mappa);
  auto* sides = new QHBoxLayout;
  sides->setSpacing(kSpacing);
  QBoxLayout* rows = MakeRows(*frame);
  rows->addLayout(MakeBackgrounds());
  rows->addLayout(sides, 1);
  QWidget* tools = MakeTools();
  sides->addLayout(MakeSheet(), 1);
  sides->addWidget(tools);
  return frame;
}

QHBoxLayout* StatisticsWindow::MakeBackgrounds() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kMargin);
  for (Option* map : form_.map_options()) {
    row->addWidget(Make<QRadioButton>(*map));
  }
  row->addStretch(1);
  return row;
}

QBoxLayout* StatisticsWindow::MakeSheet() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(kGap);
  auto* heading = new QHBoxLayout;
  auto* title = Make<QLabel>(form_.titolo);
  title->setFont(HeadingFont(1));
  heading->addWidget(title);
  for (Label* field : form_.field_labels()) {
    heading->addWidget(Make<MapMark>(*field));
  }
  heading->addStretch(1);
  heading->addWidget(Make<QLabel>(form_.squares_collegati));
  heading->addStrut(title->fontMetrics().height());  // keeps its place with nothing to tell
  rows->addLayout(heading);
  map_ = new PictureView(form_.map);
  map_->setObjectName(QStringLiteral("map"));
  map_->setAccessibleName(QStringLiteral("Mappa"));
  map_->setToolTip(
      QStringLiteral("Il nome sulla mappa si sposta col mouse, o con le frecce e Invio"));
  map_->on_place = [this](Point place) {
    runner_.Run([this, place] {
      if (form_.on_label_moved && form_.Frame_mappa.Reachable()) {
        form_.on_label_moved(place);
      }
    });
  };
  AddToTabOrder(*map_);
  rows->addWidget(map_, 1);
  GridView* fields = MakeGridView(form_.Grid_field, FirstColumn::kCells);
  fields->ShareWidth();
  rows->addWidget(fields);
  return rows;
}

QWidget* StatisticsWindow::MakeTools() {
  auto* tools = new QWidget;
  tools->setFixedWidth(kToolsWidth);
  auto* rows = new QVBoxLayout(tools);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kGap);
  rows->addWidget(MakePlot());
  rows->addWidget(MakeLabelTools());
  rows->addLayout(MakeLists(), 1);
  auto* output = new QGridLayout;
  AddButtons(*output, {&form_.Salva_statistica2, &form_.Stampa_form_statistica2}, kInARow);
  rows->addLayout(output);
  return tools;
}

QWidget* StatisticsWindow::MakePlot() {
  auto* box = new QGroupBox(QStringLiteral("Da disegnare"));
  QBoxLayout* rows = MakeRows(*box);
  rows->setSpacing(kGap);
  auto* choices = new QGridLayout;
  choices->setSpacing(kGap);
  int place = 0;
  for (Check* choice : {&form_.check_Field, &form_.Check_part, &form_.check_squares,
                        &form_.Check_line, &form_.Check_tutti}) {
    choices->addWidget(Make<QCheckBox>(*choice), place / kInARow, place % kInARow);
    ++place;
  }
  rows->addLayout(choices);
  auto* commands = new QGridLayout;
  AddButtons(*commands, {&form_.esegui, &form_.linee, &form_.illustra, &form_.resetta}, kInARow);
  rows->addLayout(commands);
  return box;
}

QWidget* StatisticsWindow::MakeLabelTools() {
  auto* box = new QGroupBox(QStringLiteral("Nome sulla mappa"));
  QBoxLayout* rows = MakeRows(*box);
  rows->setSpacing(kGap);
  // The map shows it in its place; here it can be read whatever is drawn below it.
  auto* name = Make<PathLabel>(form_.nome_call);
  name->setFont(HeadingFont(0));
  rows->addWidget(name);
  auto* commands = new QGridLayout;
  AddButtons(*commands, {&form_.scrivi_label, &form_.no_label, &form_.res_pos_label}, 3);
  rows->addLayout(commands);
  return box;
}

QHBoxLayout* StatisticsWindow::MakeLists() {
  auto* lists = new QHBoxLayout;
  lists->setSpacing(kSpacing);
  lists->addLayout(MakeTitledList(QStringLiteral("Partecipanti"), form_.Lista_partecipanti), 5);
  QBoxLayout* year = MakeTitledList(QStringLiteral("Squares del mese"), form_.List2);
  year->addSpacing(kGap);
  year->addWidget(Make<QPushButton>(form_.squares_old));  // which comes to bear their number
  lists->addLayout(year, 3);
  return lists;
}

QBoxLayout* StatisticsWindow::MakeTitledList(const QString& title, List& list) {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(0);
  auto* caption = new QLabel(title);
  SetCaption(*caption);
  rows->addWidget(caption);
  auto* view = Make<RowView>(list);
  view->setMinimumHeight(view->HeightOf(2));
  rows->addWidget(view, 1);
  return rows;
}

void StatisticsWindow::RefreshMap() {
  no_map_->setVisible(!form_.Frame_mappa.visible);
  const Label& name = form_.nome_call;
  map_->Refresh(form_.map_version, name.visible ? ToShownRow(name.caption) : QString());
}

}  // namespace velmar
