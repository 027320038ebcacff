#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include "ui/look.h"
#include "ui/main_window.h"
#include "ui/path_view.h"

namespace velmar {

namespace {

constexpr int kColumns = 12;
constexpr int kGroupGap = 5;
constexpr int kGroupMargin = 7;
constexpr int kCaptionGap = 2;  // above and below a caption
constexpr int kRemarkLines = 2;
constexpr int kMostRemarkLines = 8;

QGridLayout* MakeGrid() {
  auto* grid = new QGridLayout;
  grid->setHorizontalSpacing(kSpacing);
  grid->setVerticalSpacing(kCaptionGap);
  for (int column = 0; column < kColumns; ++column) {
    grid->setColumnStretch(column, 1);
  }
  return grid;
}

QGroupBox* MakeGroup(const QString& title, QGridLayout* grid) {
  auto* group = new QGroupBox(title);
  auto* rows = new QVBoxLayout(group);
  rows->setContentsMargins(kGroupMargin, 0, kGroupMargin, kGroupMargin);
  rows->addLayout(grid);
  return group;
}

}  // namespace

QWidget* MainWindow::MakeHeader() {
  auto* header = new QWidget;
  auto* rows = new QVBoxLayout(header);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kGroupGap);
  rows->addLayout(MakeHeadline());
  rows->addWidget(MakeOwner());
  rows->addWidget(MakeStation());
  rows->addWidget(MakeClaims());
  rows->addWidget(MakeResults());
  rows->addLayout(MakeRemarks(), 1);
  ShowWithAny(*header, {form_.panel().begin(), form_.panel().end()});
  return header;
}

QHBoxLayout* MainWindow::MakeHeadline() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kMargin);
  auto* name = Make<QLabel>(form_.ultimo_call);
  name->setFont(HeadingFont(2));
  row->addWidget(name);
  auto* category = Make<QLabel>(form_.Lbl_cat);
  category->setFont(HeadingFont(2));
  row->addWidget(category);
  auto* path = Make<PathLabel>(form_.Nomedelfile);
  SetCaption(*path);
  row->addWidget(path, 1);
  row->addStretch(0);
  row->addWidget(MakeTitled(QStringLiteral("Righe in libreria"), form_.perc_mem));
  return row;
}

QWidget* MainWindow::MakeOwner() {
  QGridLayout* grid = MakeGrid();
  AddRow(*grid, {FieldCell(form_.Callusato, 3), FieldCell(form_.locusato, 2),
                 FieldCell(form_.qth, 4), FieldCell(form_.NomeContest, 3)});
  AddRow(*grid, {FieldCell(form_.categoria, 2), FieldCell(form_.frequenza, 2), NewCategoryCell(2),
                 FieldCell(form_.datainizio, 2), FieldCell(form_.datafine, 2),
                 FieldCell(form_.codice, 2)});
  AddRow(*grid, {FieldCell(form_.operatore, 3), FieldCell(form_.callresp, 3),
                 FieldCell(form_.altri_op, 3), FieldCell(form_.club, 3)});
  AddRow(*grid,
         {FieldCell(form_.indirizzo, 4), FieldCell(form_.citta, 4), FieldCell(form_.telefono, 4)});
  return MakeGroup(QStringLiteral("Chi e dove"), grid);
}

QWidget* MainWindow::MakeStation() {
  QGridLayout* grid = MakeGrid();
  AddRow(*grid,
         {FieldCell(form_.trasmettitore, 3), FieldCell(form_.ricevitore, 3),
          FieldCell(form_.antenna, 3), FieldCell(form_.potenza, 1), FieldCell(form_.altezza, 2)});
  return MakeGroup(QStringLiteral("Stazione"), grid);
}

QWidget* MainWindow::MakeClaims() {
  QGridLayout* grid = MakeGrid();
  AddRow(*grid, {FieldCell(form_.punti, 2), FieldCell(form_.QRB, 2), FieldCell(form_.squares, 2),
                 FieldCell(form_.scambi, 2), FieldCell(form_.dxcc, 1), FieldCell(form_.codxc, 3)});
  return MakeGroup(QStringLiteral("Valori dichiarati"), grid);
}

QWidget* MainWindow::MakeResults() {
  QGridLayout* grid = MakeGrid();
  AddRow(*grid, {ResultCell(form_.qsovalidi, 2), ResultCell(form_.doppi, 2),
                 ResultCell(form_.qsoerror, 2), ResultCell(form_.sommaqrb, 2),
                 ResultCell(form_.percentuale, 2), ResultCell(form_.differenza, 2)});
  return MakeGroup(QStringLiteral("Esito della lettura"), grid);
}

QVBoxLayout* MainWindow::MakeRemarks() {
  auto* rows = new QVBoxLayout;
  rows->setSpacing(kCaptionGap);
  auto* caption = new QLabel;
  rows->addLayout(MakeMarks(caption));
  rows->addWidget(MakeReader(form_.Rem1, kRemarkLines, kMostRemarkLines, caption), 1);
  rows->addStretch(0);
  return rows;
}

QHBoxLayout* MainWindow::MakeMarks(QLabel* caption) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kMargin);
  SetCaption(*caption);
  row->addWidget(caption, 0, Qt::AlignBottom);
  row->addStretch(1);
  auto* request = Make<QLabel>(form_.Label_sezione);
  request->setFont(HeadingFont(0));
  row->addWidget(request);
  row->addWidget(Make<QLabel>(form_.cod_sez));
  row->addWidget(Make<QLabel>(form_.nome_sez));
  row->addWidget(Make<QRadioButton>(form_.Rookie));
  row->addWidget(Make<QRadioButton>(form_.Young));
  row->addWidget(Make<QPushButton>(form_.Command1));
  return row;
}

MainWindow::Cell MainWindow::FieldCell(TextField& field, int span) {
  const Field made = MakeField(field);
  return {made.caption, made.line, span};
}

MainWindow::Cell MainWindow::NewCategoryCell(int span) {
  auto* caption = new QLabel(QStringLiteral("Nuova categoria"));
  ShowWithAny(*caption, {&form_.newcate});
  return {caption, Make<QComboBox>(form_.newcate), span};
}

MainWindow::Cell MainWindow::ResultCell(TextField& field, int span) {
  auto* caption = new QLabel;
  auto* line = MakeDisplay(field, caption);
  line->setFont(HeadingFont(3));
  line->setAlignment(Qt::AlignCenter);
  return {caption, line, span};
}

void MainWindow::AddRow(QGridLayout& grid, const std::vector<Cell>& cells) {
  const int row = grid.rowCount();
  int column = 0;
  for (const Cell& cell : cells) {
    SetCaption(*cell.caption);
    cell.caption->setContentsMargins(0, kCaptionGap, 0, 0);
    grid.addWidget(cell.caption, row, column, 1, cell.span);
    grid.addWidget(cell.widget, row + 1, column, 1, cell.span);
    column += cell.span;
  }
}

}  // namespace velmar
