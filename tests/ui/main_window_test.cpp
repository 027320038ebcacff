#include "ui/main_window.h"

#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <algorithm>

#include "ui/qt_text.h"
#include "ui_fixture.h"

namespace velmar::test {
namespace {

struct Fixture : WindowFixture<MainForm, MainWindow> {
  template <typename Widget = QWidget>
  Widget* Find(const Control& control) {
    return window.findChild<Widget*>(QString::fromStdString(control.name));
  }

  bool HasLabel(const QString& text) {
    const auto labels = window.findChildren<QLabel*>();
    return std::ranges::any_of(
        labels, [&](const QLabel* label) { return label->isVisible() && label->text() == text; });
  }
};

TEST(MainWindow, ACaptionThatAnEventChangesIsDrawn) {
  Fixture fixture;
  EXPECT_TRUE(fixture.HasLabel("Differenza"));
  fixture.runner.Run([&] { fixture.form.differenza.caption = "Diff +"; });
  EXPECT_TRUE(fixture.HasLabel("Diff +"));
  EXPECT_FALSE(fixture.HasLabel("Differenza"));
}

TEST(MainWindow, WhatIsEmptyTakesNoRoom) {
  Fixture fixture;
  EXPECT_TRUE(fixture.Find(fixture.form.ultimo_call)->isHidden());
  EXPECT_FALSE(fixture.HasLabel("Righe in libreria")) << "a title without its number";
  fixture.runner.Run([&] {
    fixture.form.ultimo_call.caption = "2IT_IK2QAA.edi";
    fixture.form.perc_mem.caption = "12431";
  });
  EXPECT_TRUE(fixture.HasLabel("2IT_IK2QAA.edi"));
  EXPECT_TRUE(fixture.HasLabel("Righe in libreria"));
  fixture.runner.Run([&] { fixture.form.newcate.visible = false; });
  EXPECT_FALSE(fixture.HasLabel("Nuova categoria"));
}

TEST(MainWindow, ALongPathDoesNotWidenIt) {
  Fixture fixture;
  const QSize before = fixture.window.minimumSizeHint();
  const std::string path = "C:/" + std::string(300, 'x') + "/a.edi";
  fixture.runner.Run([&] {
    fixture.form.Nomedelfile.caption = path;
    fixture.form.Dir1.value = path;
  });
  EXPECT_EQ(fixture.window.minimumSizeHint().width(), before.width());
  for (const Control* control :
       std::initializer_list<const Control*>{&fixture.form.Nomedelfile, &fixture.form.Dir1}) {
    QWidget* widget = fixture.Find(*control);
    QHelpEvent pointed(QEvent::ToolTip, QPoint(5, 5), QPoint(5, 5));
    QCoreApplication::sendEvent(widget, &pointed);
    EXPECT_EQ(widget->toolTip().toStdString(), path) << control->name;
  }
}

TEST(MainWindow, RemarksAreReadWhole) {
  Fixture fixture;
  const std::string remarks(kLongestShown + 1, 'x');
  fixture.runner.Run([&] { fixture.form.Rem1.value = remarks; });
  EXPECT_EQ(fixture.Find<QPlainTextEdit>(fixture.form.Rem1)->toPlainText().toStdString(), remarks);
  fixture.runner.Run([&] { fixture.form.Rem1.value = std::string(5'000'000, 'x'); });
  EXPECT_TRUE(fixture.Find<QPlainTextEdit>(fixture.form.Rem1)->toPlainText().endsWith("x…"));
}

}  // namespace
}  // namespace velmar::test
