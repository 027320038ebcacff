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
    form.Lista_err_orario.Fill({"un orario"});
  });
  EXPECT_TRUE(shown(form.Frame_Controllo_locatori));
  EXPECT_TRUE(shown(form.Lista_err_orario));
  EXPECT_FALSE(shown(form.conf_err_time)) << "the doubts come first";
  fixture.runner.Run([&] { form.Lista_dubbi.Fill({}); });
  EXPECT_TRUE(shown(form.conf_err_time));
  EXPECT_FALSE(shown(form.Frame_Controllo_locatori)) << "no doubt is left";
  fixture.runner.Run([&] {
    form.Lista_err_orario.Fill({" tempo intercorso: 23 ore  e  55  minuti"});
    form.Frame_unici.visible = true;
  });
  EXPECT_TRUE(shown(form.Frame_unici));
  EXPECT_TRUE(shown(form.Lista_err_orario)) << "the time on the air is told";
  EXPECT_FALSE(shown(form.conf_err_time)) << "no time differs";
  QCoreApplication::processEvents();
  const auto* told = fixture.Find<QWidget>(form.Frame_Log_errori_tempo);
  EXPECT_LT(told->height(), fixture.Find<QWidget>(form.Frame_unici)->height() / 2);
  fixture.runner.Run([&] { form.Lista_err_orario.Fill({}); });
  EXPECT_FALSE(shown(form.Frame_Log_errori_tempo)) << "nothing to tell";
  fixture.runner.Run([&] { form.messaggio.caption = " tutti gli orari risultano corretti"; });
  EXPECT_TRUE(shown(form.Frame_Log_errori_tempo));
}

TEST(CheckWindow, WhatIsNotInALogStandsBesideItsExplanation) {
  Fixture fixture;
  CheckForm& form = fixture.form;
  const auto find = [&](const Control& control) { return fixture.Find<QWidget>(control); };
  fixture.runner.Run([&] {
    form.Frame_unici.visible = true;
    form.Call_unici.Fill({"un unico"});
    form.Lista_simili.Fill({"un simile"});
  });
  EXPECT_TRUE(find(form.error_call_unici)->isVisible());
  EXPECT_FALSE(find(form.NO_in_log)->isVisible()) << "a similar call is nothing to decide on";
  std::vector<std::string> rows(40, "IZ8QQQ      123   NOT in log");
  fixture.runner.Run([&] {
    form.Call_unici.Fill({});
    form.Lista_simili.Fill(rows);
    form.lista_notlog.Fill(rows);
  });
  EXPECT_FALSE(find(form.error_call_unici)->isVisible());
  EXPECT_TRUE(find(form.NO_in_log)->isVisible());
  auto* items = fixture.Find<RowView>(form.Lista_simili);
  auto* explanations = fixture.Find<RowView>(form.lista_notlog);
  items->grab();
  explanations->grab();
  constexpr int kMoved = 7;
  items->verticalScrollBar()->setValue(kMoved);
  EXPECT_EQ(explanations->verticalScrollBar()->value(), kMoved);
  explanations->verticalScrollBar()->setValue(0);
  EXPECT_EQ(items->verticalScrollBar()->value(), 0);
}

TEST(CheckWindow, TwoLogsTakeThePlaceOfTheQueueUntilTheyAreClosed) {
  Fixture fixture;
  CheckForm& form = fixture.form;
  form.chiudi.on_click = [&] { form.Frame_log.visible = false; };
  const auto* queue = fixture.Find<RowView>(form.listacall_banda);
  fixture.runner.Run([&] { form.Frame_log.visible = true; });
  EXPECT_FALSE(queue->isVisible());
  EXPECT_TRUE(fixture.Find<RowView>(form.List_log_corrispondente)->isVisible());
  QTest::keyClick(&fixture.window, Qt::Key_Escape);
  EXPECT_TRUE(queue->isVisible());
}

TEST(CheckWindow, TheKeysToldAreThoseOfTheOpenCheck) {
  Fixture fixture;
  CheckForm& form = fixture.form;
  const auto told = [&](const QString& key) {
    return std::ranges::any_of(fixture.window.findChildren<QLabel*>(),
                               [&](const QLabel* label) { return label->text().contains(key); });
  };
  fixture.runner.Run([&] { form.Frame_Controllo_locatori.visible = true; });
  EXPECT_TRUE(told("F8 NON è un errore"));
  EXPECT_FALSE(told("Alt+1"));
  fixture.runner.Run([&] {
    form.Frame_Controllo_locatori.visible = false;
    form.Frame_unici.visible = true;
  });
  EXPECT_TRUE(told("Alt+1 Error Call"));
  EXPECT_FALSE(told("F8 NON è un errore"));
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
