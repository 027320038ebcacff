#include "ui/desktop.h"

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <stdexcept>

#include "ui/qt_manager.h"
#include "ui_fixture.h"

namespace velmar::test {
namespace {

QPushButton* ButtonOf(FormWindow& window, const char* name) {
  return window.findChild<QPushButton*>(name);
}

TEST(Desktop, TheFirstStartEndsTheApplication) {
  DesktopFixture fixture;
  EXPECT_EQ(fixture.desktop.Run(), 0);
  EXPECT_EQ(fixture.manager.boxes.size(), 2u);
}

TEST(Desktop, AFailureIsToldAndEndsTheApplication) {
  DesktopFixture fixture;
  QTimer::singleShot(0, [&] { fixture.runner.Run([] { throw std::logic_error("guasto"); }); });
  EXPECT_EQ(QApplication::exec(), EventRunner::kFailureCode);
  ASSERT_EQ(fixture.manager.boxes.size(), 1u);
  EXPECT_EQ(fixture.manager.boxes[0].lines.back(), "guasto");
}

/// A program that has come to its main screen.
struct StartedFixture : DesktopFixture {
  StartedFixture() {
    workspace.WithTree()
        .WithSettings()
        .WithMonth("GENNAIO 2025")
        .WithLog("ik2qaa.edi", LogText("IK2QAA", "JN45PL", {QsoRow("IZ1ABC", "JN35SC")}));
    runner.Run([&] { program.Start(); });
    manager.boxes.clear();
  }

  MainForm& main = program.main_form();
  FormWindow& main_window = Window(main);
  FormWindow& month_window = Window(program.month_dialog().form());
  FormWindow& config_window = Window(program.config_dialog().form());
  FormWindow& recalculation_window = Window(program.recalculation().form());
  FormWindow& renaming_window = Window(program.renaming().form());
};

TEST(Desktop, TheWindowsFollowTheForms) {
  StartedFixture fixture;
  EXPECT_FALSE(fixture.main_window.isVisible());
  EXPECT_TRUE(fixture.month_window.isVisible());
  EXPECT_EQ(fixture.month_window.findChild<QComboBox*>("Combo_anno")->currentText(), "2025");
  QTest::keyClick(fixture.month_window.findChild<QComboBox*>("Combo_mese"), Qt::Key_Return);
  EXPECT_FALSE(fixture.month_window.isVisible());
  ASSERT_TRUE(fixture.config_window.isVisible());
  ButtonOf(fixture.config_window, "Command2")->click();
  EXPECT_FALSE(fixture.config_window.isVisible());
  EXPECT_TRUE(fixture.main_window.isVisible());
  EXPECT_TRUE(fixture.main_window.windowTitle().contains("GENNAIO 2025"));
}

TEST(Desktop, AWindowThatIsShownAgainComesBackToTheTop) {
  DesktopFixture fixture;
  Form& desk = fixture.program.check_desk().form();
  Form& notices = fixture.program.check_desk().notices_form();
  fixture.Show(desk);
  fixture.Show(notices);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fixture.Window(notices)));
  fixture.Window(desk).activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&fixture.Window(desk)));
  fixture.runner.Run([] {});
  EXPECT_TRUE(fixture.Window(desk).isActiveWindow()) << "any event takes the person elsewhere";
  fixture.Show(notices);
  EXPECT_TRUE(QTest::qWaitForWindowActive(&fixture.Window(notices)));
}

TEST(Desktop, TheMonthCannotBeTyped) {
  StartedFixture fixture;
  auto* month = fixture.month_window.findChild<QComboBox*>("Combo_mese");
  QTest::keyClicks(month, "x");
  EXPECT_EQ(month->currentText(), "Gennaio ");
}

TEST(Desktop, TheYearMayBeTypedInItsMiddle) {
  StartedFixture fixture;
  auto* year = fixture.month_window.findChild<QComboBox*>("Combo_anno");
  year->lineEdit()->setCursorPosition(2);
  QTest::keyClicks(year, "19");
  EXPECT_EQ(year->currentText(), "201925");
  EXPECT_EQ(fixture.program.month_dialog().form().Combo_anno.value, "201925");
}

TEST(Desktop, TheStepsStandInPlaceOfAnEmptyScreen) {
  StartedFixture fixture;
  fixture.Show(fixture.main);
  const auto step = [&] {
    for (QPushButton* button : fixture.main_window.findChildren<QPushButton*>()) {
      if (button->text().contains("1) Ricalcola") && button->isVisible()) {
        return button;
      }
    }
    return static_cast<QPushButton*>(nullptr);
  };
  ASSERT_NE(step(), nullptr);
  fixture.runner.Run([&] { fixture.main.restore_1KM.checked = true; });
  EXPECT_TRUE(step()->text().startsWith(QStringLiteral("✓")));
  fixture.runner.Run([&] { fixture.main.ShowHeaderPanel(); });
  EXPECT_EQ(step(), nullptr);
  fixture.runner.Run([&] { fixture.main.HideHeaderPanel(); });
  step()->click();
  EXPECT_TRUE(fixture.recalculation_window.isVisible());
}

TEST(Desktop, TheRecalculationIsRunFromItsWindow) {
  StartedFixture fixture;
  fixture.Show(fixture.main);
  fixture.runner.Run([&] { fixture.main.restore_1KM.Click(); });
  FormWindow& window = fixture.recalculation_window;
  EXPECT_EQ(window.findChildren<QGroupBox*>().front()->title(),
            QStringLiteral("01 Log da RICALCOLARE  –  1 file"));
  ButtonOf(window, "rinomina")->click();
  EXPECT_EQ(fixture.manager.TakeFirstLines(), (std::vector<std::string>{" finito"}));
  EXPECT_EQ(window.findChild<QLineEdit*>("Text1")->text(), "1");
  EXPECT_EQ(window.findChild<QProgressBar*>("Bar1")->value(), 2);
  EXPECT_FALSE(ButtonOf(window, "rinomina")->isEnabled());
  window.close();
  EXPECT_FALSE(window.isVisible()) << "closing the window leaves the step";
  EXPECT_TRUE(fixture.main_window.isVisible());
}

TEST(Desktop, TheRenamingIsRunFromItsWindow) {
  StartedFixture fixture;
  fixture.workspace
      .With("02 Log ricalcolati/ik2qaa.edi",
            LogText("IK2QAA", "JN45PL", {QsoRow("IZ1ABC", "JN35SC")}))
      .With("02 Log ricalcolati/altro.edi", "non un log");
  fixture.Show(fixture.main);
  fixture.runner.Run([&] { fixture.main.Rinomina_ita.Click(); });
  FormWindow& window = fixture.renaming_window;
  ASSERT_TRUE(window.isVisible());
  ButtonOf(window, "rinomina")->click();
  EXPECT_EQ(window.findChild<QLabel*>("file_letti")->text(), "1");
  EXPECT_EQ(window.findChild<QLabel*>("file_nonvalidi")->text(), "1");
  EXPECT_EQ(window.findChildren<QGroupBox*>().at(1)->title(),
            QStringLiteral("03 Log da inserire  –  1 file"));
  auto* set_aside = window.findChild<QListView*>("List2");
  QTest::mouseClick(set_aside->viewport(), Qt::LeftButton, {}, {5, 5});
  EXPECT_TRUE(window.findChild<QPlainTextEdit*>("Text2")->toPlainText().startsWith("altro.edi - "));
  window.close();
  EXPECT_FALSE(window.isVisible()) << "closing the window leaves the step";
  EXPECT_TRUE(fixture.main_window.isVisible());
}

TEST(Desktop, ClosingTheMainWindowAsksFirst) {
  StartedFixture fixture;
  fixture.Show(fixture.main);
  fixture.manager.replies = {Reply::kNo};
  fixture.main_window.close();
  EXPECT_EQ(fixture.manager.boxes.size(), 1u);
  EXPECT_TRUE(fixture.main_window.isVisible());
}

TEST(Desktop, ADialogMustBeConfirmed) {
  StartedFixture fixture;
  fixture.month_window.close();
  QTest::keyClick(&fixture.month_window, Qt::Key_Escape);
  EXPECT_TRUE(fixture.month_window.isVisible());
  EXPECT_FALSE(fixture.month_window.windowFlags().testFlag(Qt::WindowCloseButtonHint));
  fixture.Show(fixture.program.config_dialog().form());
  fixture.config_window.close();
  EXPECT_TRUE(fixture.config_window.isVisible());
}

TEST(Desktop, ProgressKeepsTheWindowsAlive) {
  StartedFixture fixture;
  QtManager manager(fixture.runner);
  auto& form = fixture.program.recalculation().form();
  fixture.Show(form);
  auto* bar = fixture.recalculation_window.findChild<QProgressBar*>("Bar1");
  fixture.runner.Run([&] {
    form.progress.maximum = 10;
    form.progress.value = "4";
    EXPECT_NE(bar->value(), 4);
    manager.Progress(4, 10);
    EXPECT_EQ(bar->value(), 4);
  });
}

}  // namespace
}  // namespace velmar::test
