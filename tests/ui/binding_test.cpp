#include "ui/binding.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QTableView>
#include <QTest>
#include <QVBoxLayout>

#include "platform/ansi.h"
#include "ui/row_view.h"
#include "ui_fixture.h"

namespace velmar::test {
namespace {

struct SmallForm : Form {
  SmallForm() : Form("piccola", "Piccola") {}

  List& list = AddList("lista");
  TextField& field = AddText("campo", "Campo");
  Button& button = AddButton("comando", "C&omando");
  Label& lamp = AddLabel("spia", "Excel");
  Label& label = AddLabel("scritta", "A&B");
  Control& grid = *new PlainControl<ControlKind::kGrid>(*this, "griglia", "");
  std::unique_ptr<Control> owner{&grid};
};

class SmallWindow : public FormWindow {
 public:
  SmallWindow(SmallForm& form, EventRunner& runner) : FormWindow(form, runner) {
    auto* content = new QWidget;
    auto* rows = new QVBoxLayout(content);
    rows->addWidget(list = Make<RowView>(form.list));
    const Field made = MakeField(form.field);
    rows->addWidget(caption = made.caption);
    rows->addWidget(field = made.line);
    rows->addWidget(button = Make<QPushButton>(form.button));
    rows->addWidget(lamp = MakeLamp(form.lamp));
    rows->addWidget(label = Make<QLabel>(form.label));
    rows->addWidget(grid = Make<QTableView>(form.grid));
    Finish(content);
  }

  RowView* list = nullptr;
  QLabel* caption = nullptr;
  QLineEdit* field = nullptr;
  QPushButton* button = nullptr;
  QLabel* lamp = nullptr;
  QLabel* label = nullptr;
  QTableView* grid = nullptr;
};

using Fixture = WindowFixture<SmallForm, SmallWindow>;

std::vector<std::string> Rows(int count) {
  std::vector<std::string> rows;
  for (int i = 0; i < count; ++i) {
    rows.push_back(std::to_string(i));
  }
  return rows;
}

void ClickRow(RowView& view, int row) {
  const QPoint spot = view.visualRect(view.model()->index(row, 0)).center();
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, {5, spot.y()});
}

TEST(ListBinding, AHundredThousandRowsOpenAtOnce) {
  Fixture fixture;
  auto rows = Rows(100'000);
  rows.back() = std::string(500, 'w');
  QElapsedTimer timer;
  timer.start();
  fixture.runner.Run([&] { fixture.form.list.items.Assign(std::move(rows)); });
  fixture.window.list->grab();
  EXPECT_LT(timer.elapsed(), 1000);
  EXPECT_EQ(fixture.window.list->model()->rowCount(), 100'000);
  EXPECT_GT(fixture.window.list->horizontalScrollBar()->maximum(), 0) << "the last row is cut";
}

TEST(ListBinding, TheMouseAndTheKeysChooseARow) {
  Fixture fixture;
  std::vector<int> chosen;
  int opened = 0;
  fixture.form.list.on_click = [&] { chosen.push_back(fixture.form.list.selection); };
  fixture.form.list.on_double_click = [&] { ++opened; };
  fixture.runner.Run([&] { fixture.form.list.items.Assign(Rows(3)); });
  ClickRow(*fixture.window.list, 1);
  ClickRow(*fixture.window.list, 1);
  QTest::keyClick(fixture.window.list, Qt::Key_Down);
  EXPECT_EQ(chosen, (std::vector{1, 1, 2}));
  ClickRow(*fixture.window.list, 0);
  QTest::mouseDClick(fixture.window.list->viewport(), Qt::LeftButton, {}, {5, 5});
  EXPECT_EQ(opened, 1);
  fixture.runner.Run([&] { fixture.form.list.selection = -1; });
  EXPECT_FALSE(fixture.window.list->currentIndex().isValid());
  EXPECT_EQ(opened, 1);
}

TEST(ListBinding, RowsThatWentAwayAreNotRead) {
  Fixture fixture;
  fixture.runner.Run([&] { fixture.form.list.items.Assign(Rows(50)); });
  fixture.form.list.items.Assign({});
  fixture.window.list->grab();
  EXPECT_FALSE(fixture.window.list->model()->index(49, 0).data().isValid());
}

TEST(ListBinding, CellsStandInColumns) {
  Fixture fixture;
  const std::string name(30, 'n');
  fixture.runner.Run([&] {
    fixture.form.list.items.Assign({"a.edi\tIK2QAA\t2IT_IK2QAA.edi", "abc.edi\tI2A\tx",
                                    "una riga senza colonne", name + "\tI2A\tx"});
  });
  const QAbstractItemModel& model = *fixture.window.list->model();
  const auto row = [&](int number) { return model.index(number, 0).data().toString(); };
  const auto at = [&](int number, const char* cell) { return row(number).indexOf(cell); };
  EXPECT_EQ(row(2), "una riga senza colonne");
  EXPECT_EQ(at(0, "IK2QAA"), at(1, "I2A"));
  EXPECT_EQ(at(0, "2IT_"), at(1, "x"));
  EXPECT_LT(at(1, "I2A"), 30) << "one long name pushes all columns away";
  EXPECT_GT(at(3, "I2A"), 30);
}

TEST(ListBinding, AnEventMovesTheRowsAndThenThePersonDoes) {
  Fixture fixture;
  RowView& view = *fixture.window.list;
  const auto first = [&] { return view.indexAt({5, 5}).row(); };
  const auto choose = [&] {
    fixture.runner.Run([&] {
      fixture.form.list.selection = 503;
      fixture.form.list.top = 500;
    });
  };
  fixture.runner.Run([&] { fixture.form.list.items.Assign(Rows(1000)); });
  choose();
  EXPECT_EQ(first(), 500);
  EXPECT_EQ(view.currentIndex().row(), 503);
  view.verticalScrollBar()->setValue(10);
  fixture.runner.Run([] {});
  EXPECT_EQ(first(), 10) << "a later event moves what the person has moved";
  ClickRow(view, 11);
  EXPECT_EQ(first(), 10);
  choose();
  view.verticalScrollBar()->setValue(10);
  choose();
  EXPECT_EQ(first(), 500) << "the same row is asked for again";
}

TEST(ListBinding, EnterOpensWhatADoubleClickOpens) {
  Fixture fixture;
  int opened = 0;
  int keys = 0;
  fixture.form.list.on_double_click = [&] { ++opened; };
  fixture.form.list.on_click = [&] { ++keys; };
  fixture.runner.Run([&] {
    fixture.form.list.items.Assign(Rows(3));
    fixture.form.list.selection = 2;
  });
  QTest::keyClick(fixture.window.list, Qt::Key_Enter);
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(keys, 0);
}

TEST(GridBinding, TheFirstRowAndColumnAreHeadings) {
  Fixture fixture;
  fixture.runner.Run([&] {
    fixture.form.grid.items.Assign({"\tQSO\tLog", "I 1\t10\t2", "I 2\t7"});
  });
  const QAbstractItemModel& model = *fixture.window.grid->model();
  EXPECT_EQ(model.rowCount(), 2);
  EXPECT_EQ(model.columnCount(), 2);
  EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), "Log");
  EXPECT_EQ(model.headerData(1, Qt::Vertical).toString(), "I 2");
  EXPECT_EQ(model.index(0, 1).data().toString(), "2");
  EXPECT_EQ(model.index(1, 1).data().toString(), "");
  emit fixture.window.grid->clicked(model.index(1, 0));
  EXPECT_EQ(fixture.form.grid.selection, 2);
}

TEST(TextBinding, TypingKeepsTheCursor) {
  Fixture fixture;
  fixture.runner.Run([&] { fixture.form.field.value = "ad"; });
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fixture.window));
  fixture.window.field->setFocus();
  fixture.window.field->setCursorPosition(1);
  for (const QChar typed : QStringLiteral("éЖ")) {
    QTest::simulateEvent(fixture.window.field, true, Qt::Key_unknown, {}, typed, false);
  }
  EXPECT_EQ(fixture.form.field.value, std::string("aé?d"_a));
  EXPECT_EQ(fixture.window.field->text(), QStringLiteral("aé?d"));
  EXPECT_EQ(fixture.window.field->cursorPosition(), 3);
}

TEST(TextBinding, TheCaptionIsSeenWithTheField) {
  Fixture fixture;
  EXPECT_EQ(fixture.window.caption->text(), "Campo");
  fixture.runner.Run([&] { fixture.form.field.visible = false; });
  EXPECT_TRUE(fixture.window.caption->isHidden());
  EXPECT_TRUE(fixture.window.field->isHidden());
}

TEST(KeyBinding, TheEventGetsTheNameOfTheKey) {
  Fixture fixture;
  std::vector<std::string> keys;
  fixture.form.button.on_key = [&](const std::string& key) { keys.push_back(key); };
  int clicks = 0;
  fixture.form.button.on_click = [&] { ++clicks; };
  for (const Qt::Key key : {Qt::Key_A, Qt::Key_F5, Qt::Key_Escape, Qt::Key_Shift, Qt::Key_Enter}) {
    QTest::keyClick(fixture.window.button, key);
  }
  EXPECT_EQ(keys, (std::vector<std::string>{"a", "F5", "Esc", "Enter"}));
  EXPECT_EQ(clicks, 1) << "Enter presses the button that has the focus";
}

TEST(ColourBinding, TheTextStaysReadable) {
  Fixture fixture;
  struct Case {
    int colour;
    QColor background;
    QColor text;
  };
  for (const Case& expected :
       {Case{colour::kRed, Qt::red, Qt::white}, Case{colour::kGreen, Qt::green, Qt::black},
        Case{colour::kYellow, Qt::yellow, Qt::black}, Case{0xFF0000, Qt::blue, Qt::white}}) {
    fixture.runner.Run([&] { fixture.form.label.colour = expected.colour; });
    const QPalette palette = fixture.window.label->palette();
    EXPECT_EQ(palette.color(QPalette::Window), expected.background);
    EXPECT_EQ(palette.color(QPalette::WindowText), expected.text);
  }
  fixture.runner.Run([&] { fixture.form.label.colour.reset(); });
  EXPECT_EQ(fixture.window.label->palette().color(QPalette::Window),
            QApplication::palette().color(QPalette::Window));
}

TEST(LampBinding, StatesDifferInShapeToo) {
  Fixture fixture;
  EXPECT_EQ(fixture.window.lamp->text(), "Excel");
  fixture.runner.Run([&] { fixture.form.lamp.colour = colour::kGreen; });
  EXPECT_EQ(fixture.window.lamp->text(), QStringLiteral("✓ Excel"));
  fixture.runner.Run([&] { fixture.form.lamp.colour = colour::kRed; });
  EXPECT_EQ(fixture.window.lamp->text(), QStringLiteral("✗ Excel"));
  fixture.runner.Run([&] { fixture.form.lamp.colour = colour::kYellow; });
  EXPECT_EQ(fixture.window.lamp->text(), QStringLiteral("▶ Excel"));
}

TEST(ButtonBinding, AColourHasAMarkToo) {
  Fixture fixture;
  struct Case {
    std::optional<int> colour;
    const char* text;
  };
  for (const Case& expected :
       {Case{colour::kGreen, "✓ C&omando"}, Case{colour::kYellow, "? C&omando"},
        Case{colour::kRed, "✗ C&omando"}, Case{colour::kWhite, "C&omando"},
        Case{std::nullopt, "C&omando"}}) {
    fixture.runner.Run([&] { fixture.form.button.colour = expected.colour; });
    EXPECT_EQ(fixture.window.button->text().toStdString(), expected.text);
  }
}

TEST(FocusBinding, AnEventPutsTheFocusEachTimeItAsks) {
  Fixture fixture;
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fixture.window));
  for (int i = 0; i < 2; ++i) {
    fixture.window.list->setFocus();
    fixture.runner.Run([&] { fixture.form.focus = &fixture.form.button; });
    EXPECT_TRUE(fixture.window.button->hasFocus());
  }
}

TEST(FocusBinding, AFocusAskedForAheadOfTheWindowHolds) {
  Fixture fixture;
  fixture.window.hide();
  fixture.runner.Run([&] { fixture.form.focus = &fixture.form.button; });
  fixture.window.show();
  EXPECT_EQ(fixture.window.focusWidget(), fixture.window.button);
  fixture.window.hide();
  fixture.window.show();
  EXPECT_EQ(fixture.window.focusWidget(), fixture.window.list) << "else the first one has it";
}

TEST(Binding, AControlOutOfReachHasNoEvent) {
  Fixture fixture;
  fixture.form.button.on_click = [] { FAIL() << "clicked"; };
  fixture.screen.Hide(fixture.form);
  fixture.window.button->click();
}

}  // namespace
}  // namespace velmar::test
