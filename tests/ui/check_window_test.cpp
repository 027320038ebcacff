#include "ui/check_window.h"

#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>
#include <QShortcut>
#include <QTest>
#include <algorithm>
#include <set>

#include "ui/row_view.h"
#include "ui_fixture.h"

namespace velmar::test {
namespace {

struct Fixture : WindowFixture<CheckForm, CheckWindow> {
  Fixture() { EXPECT_TRUE(QTest::qWaitForWindowActive(&window)); }

  template <typename Widget>
  Widget* Find(const Control& control) {
    return window.findChild<Widget*>(QString::fromStdString(control.name));
  }

  void Redraw() {
    runner.Run([] {});
  }
};

TEST(CheckWindow, AKeyClicksWhatCanBeClicked) {
  Fixture fixture;
  int clicks = 0;
  fixture.form.QSO_ok.on_click = [&] { ++clicks; };
  const auto press = [&] { QTest::keyClick(&fixture.window, Qt::Key_F8); };
  press();
  EXPECT_EQ(clicks, 0) << "its frame is hidden";
  fixture.form.Frame_Controllo_locatori.visible = true;
  fixture.Redraw();
  press();
  EXPECT_EQ(clicks, 1);
  fixture.form.QSO_ok.enabled = false;
  fixture.Redraw();
  press();
  EXPECT_EQ(clicks, 1) << "it is disabled";
}

TEST(CheckWindow, EachKeyHasOneButtonThatTellsIt) {
  Fixture fixture;
  std::set<QKeySequence> keys;
  for (const QShortcut* shortcut : fixture.window.findChildren<QShortcut*>()) {
    const QString name = shortcut->key().toString(QKeySequence::NativeText);
    EXPECT_TRUE(keys.insert(shortcut->key()).second) << name.toStdString() << " twice";
    EXPECT_TRUE(std::ranges::any_of(fixture.window.findChildren<QPushButton*>(),
                                    [&](const QPushButton* button) {
                                      return button->toolTip() == name ||
                                             button->toolTip().endsWith(
                                                 QStringLiteral("(%1)").arg(name));
                                    }))
        << name.toStdString();
  }
  for (const Button* decision : {&fixture.form.conferma_errore, &fixture.form.errore_call,
                                 &fixture.form.not_inlog, &fixture.form.QSO_ok}) {
    EXPECT_FALSE(fixture.Find<QPushButton>(*decision)->toolTip().isEmpty()) << decision->name;
  }
}

TEST(CheckWindow, EnterStartsTheChosenCall) {
  Fixture fixture;
  int starts = 0;
  fixture.form.listacall_banda.on_double_click = [&] { ++starts; };
  fixture.form.listacall_banda.Fill({"Call", "IK2QAA"});
  fixture.Redraw();
  auto* queue = fixture.Find<RowView>(fixture.form.listacall_banda);
  QTest::keyClick(queue, Qt::Key_Return);
  EXPECT_EQ(starts, 0) << "no row is chosen";
  fixture.form.listacall_banda.selection = 1;
  fixture.Redraw();
  QTest::keyClick(queue, Qt::Key_Return);
  EXPECT_EQ(starts, 1);
}

TEST(CheckWindow, AFinishedCheckLeavesItsRoomToTheNext) {
  Fixture fixture;
  CheckForm& form = fixture.form;
  const auto shown = [&](const Control& control) {
    return fixture.Find<QWidget>(control)->isVisible();
  };
  fixture.runner.Run([&] {
    form.Frame_Controllo_locatori.visible = true;
    form.Lista_dubbi.Fill({"un dubbio"});
  });
  EXPECT_TRUE(shown(form.Frame_Controllo_locatori));
  EXPECT_FALSE(shown(form.Frame_Log_errori_tempo)) << "no time differs";
  fixture.runner.Run([&] { form.Frame_unici.visible = true; });
  EXPECT_TRUE(shown(form.Frame_Controllo_locatori)) << "a doubt is open";
  fixture.runner.Run([&] {
    form.Lista_dubbi.Fill({});
    form.Lista_err_orario.Fill({"un orario"});
  });
  EXPECT_FALSE(shown(form.Frame_Controllo_locatori));
  EXPECT_TRUE(shown(form.Frame_Log_errori_tempo));
  EXPECT_TRUE(shown(form.Frame_unici));
}

TEST(CheckWindow, TheWideViewHasTheWindowForItself) {
  Fixture fixture;
  CheckForm& form = fixture.form;
  fixture.runner.Run([&] {
    for (const auto& control : form.controls()) {
      control->visible = control->visible && control->container != nullptr;
    }
    form.Frame_solo_classifica.visible = true;
    form.uscita2.visible = true;
  });
  QCoreApplication::processEvents();
  const auto* wide = fixture.Find<QGroupBox>(form.Frame_solo_classifica);
  EXPECT_TRUE(fixture.Find<RowView>(form.visualizza_classifica)->isVisible());
  EXPECT_GT(wide->height(), fixture.window.centralWidget()->height() * 9 / 10);
  EXPECT_GT(wide->width(), fixture.window.centralWidget()->width() * 9 / 10);
  for (const QWidget* widget : fixture.window.centralWidget()->findChildren<QWidget*>()) {
    EXPECT_TRUE(!widget->isVisible() || widget == wide || wide->isAncestorOf(widget))
        << widget->objectName().toStdString();
  }
  for (const BindingPtr& binding : fixture.window.bindings()) {
    if (const QAction* action = binding->action(); action && !binding->control().container) {
      EXPECT_EQ(action->isVisible(), &binding->control() == &form.uscita2)
          << binding->control().name;
    }
  }
}

TEST(CheckWindow, TheRowUnderExaminationStandsUnderItsColumns) {
  Fixture fixture;
  fixture.runner.Run([&] {
    fixture.form.listacall_banda.Fill({std::string(400, 'w')});
    fixture.form.evidenzia.caption = fixture.form.titoli.caption = "   M";
  });
  const auto ink = [&](const Control& control) {
    auto* label = fixture.Find<QLabel>(control);
    const QImage image = label->grab().toImage();
    for (int x = 0; x < image.width(); ++x) {
      for (int y = 0; y < image.height(); ++y) {
        if (image.pixel(x, y) != image.pixel(image.width() - 1, 0)) {
          return label->mapTo(&fixture.window, QPoint(x, 0)).x();
        }
      }
    }
    return -1;
  };
  auto* queue = fixture.Find<RowView>(fixture.form.listacall_banda);
  const int start = ink(fixture.form.titoli);
  EXPECT_GT(start, queue->viewport()->mapTo(&fixture.window, QPoint()).x());
  EXPECT_EQ(ink(fixture.form.evidenzia), start);
  constexpr int kMoved = 10;
  queue->grab();  // lays the rows out
  queue->horizontalScrollBar()->setValue(kMoved);
  EXPECT_EQ(ink(fixture.form.titoli), start - kMoved) << "the titles go along";
  EXPECT_EQ(ink(fixture.form.evidenzia), start - kMoved);
}

}  // namespace
}  // namespace velmar::test
