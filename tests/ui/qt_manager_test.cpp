#include "ui/qt_manager.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>

#include "platform/ansi.h"
#include "ui_fixture.h"

namespace velmar::test {
namespace {

struct ManagerFixture {
  EventRunner runner;
  QtManager manager{runner};

  Reply Show(const Box& box, const std::function<void(QDialog&)>& use) {
    Reply reply{};
    Converse(
        runner, [&] { reply = manager.Show(box); }, use);
    return reply;
  }
  std::optional<std::string> Ask(const InputBox& box, const std::function<void(QDialog&)>& use) {
    std::optional<std::string> reply;
    Converse(
        runner, [&] { reply = manager.Ask(box); }, use);
    return reply;
  }
};

QString TextOf(const QDialog& dialog) {
  return dialog.findChild<QPlainTextEdit*>()->toPlainText();
}

QStringList CaptionsOf(const QDialog& dialog) {
  QStringList captions;
  for (const QPushButton* button : dialog.findChildren<QPushButton*>()) {
    captions += QString(button->text()).remove('&');
  }
  return captions;
}

auto Press(Qt::Key key) {
  return [key](QDialog& dialog) { QTest::keyClick(&dialog, key); };
}

TEST(QtManager, ABoxShowsItsWordsAndGivesItsReply) {
  ManagerFixture fixture;
  const Box box{.lines = {"   È tutto ?"_a, "", " fine"},
                .icon = Icon::kQuestion,
                .title = " Controllo",
                .buttons = Buttons::kYesNoCancel,
                .default_button = 2};
  const Reply reply = fixture.Show(box, [](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), " Controllo");
    EXPECT_EQ(TextOf(dialog), QStringLiteral("   È tutto ?\n\n fine"));
    EXPECT_EQ(CaptionsOf(dialog), QStringList({QStringLiteral("Sì"), "No", "Annulla"}));
    QTest::mouseClick(dialog.findChildren<QPushButton*>().front(), Qt::LeftButton);
  });
  EXPECT_EQ(reply, Reply::kYes);
  EXPECT_EQ(fixture.Show(box, Press(Qt::Key_Return)), Reply::kNo);
}

TEST(QtManager, EscapeTakesTheLastWayOut) {
  struct Case {
    Buttons buttons;
    Reply reply;
  };
  for (const Case& expected :
       {Case{Buttons::kOk, Reply::kOk}, Case{Buttons::kOkCancel, Reply::kCancel},
        Case{Buttons::kYesNo, Reply::kNo}, Case{Buttons::kYesNoCancel, Reply::kCancel}}) {
    ManagerFixture fixture;
    const Box box{.lines = {"?"}, .buttons = expected.buttons};
    EXPECT_EQ(fixture.Show(box, Press(Qt::Key_Escape)), expected.reply);
    EXPECT_EQ(fixture.Show(box, [](QDialog& dialog) { dialog.close(); }), expected.reply);
  }
}

TEST(QtManager, EscapeInABoxDoesNotEndARun) {
  ManagerFixture fixture;
  QPushButton button("x");
  Converse(
      fixture.runner,
      [&] {
        fixture.manager.Show({.lines = {"?"}});
        EXPECT_FALSE(fixture.manager.StopWanted());
        QTest::keyClick(&button, Qt::Key_Escape);
        EXPECT_TRUE(fixture.manager.StopWanted());
      },
      Press(Qt::Key_Escape));
}

TEST(QtManager, AnEndlessRowAndAThousandLinesStayOnTheScreen) {
  ManagerFixture fixture;
  std::vector<std::string> lines(1000, "riga");
  lines.emplace_back(50'000'000, 'x');
  fixture.Show({.lines = lines}, [](QDialog& dialog) {
    EXPECT_TRUE(dialog.screen()->availableGeometry().contains(QRect({0, 0}, dialog.size())));
    EXPECT_TRUE(TextOf(dialog).endsWith("x…"));
    Press(Qt::Key_Escape)(dialog);
  });
}

TEST(QtManager, AnInputBoxOffersItsDefault) {
  ManagerFixture fixture;
  const InputBox box{"Mese", {" Scrivi il mese "}, "GENNAIO 2025"};
  EXPECT_EQ(fixture.Ask(box, Press(Qt::Key_Return)), "GENNAIO 2025");
  EXPECT_EQ(fixture.Ask(box, Press(Qt::Key_Escape)), std::nullopt);
  const auto typed = fixture.Ask(box, [](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Mese");
    EXPECT_EQ(TextOf(dialog), " Scrivi il mese ");
    auto* field = dialog.findChild<QLineEdit*>();
    EXPECT_EQ(field->selectedText(), "GENNAIO 2025");
    QTest::keyClicks(field, "MARZO");
    Press(Qt::Key_Return)(dialog);
  });
  EXPECT_EQ(typed, "MARZO");
}

TEST(QtManager, AFileIsPickedByItsPath) {
  ManagerFixture fixture;
  TempWorkspace workspace;
  workspace.With("a b.cla", "x").With("altro.txt", "x");
  const FileDialog wanted{"Apri", "file_cla (*.cla)|*.cla|tutti|*.*", workspace.paths().base()};
  std::optional<std::string> picked;
  Converse(
      fixture.runner, [&] { picked = fixture.manager.PickFile(wanted); },
      [](QDialog& dialog) {
        auto& files = dynamic_cast<QFileDialog&>(dialog);
        EXPECT_EQ(files.nameFilters(), QStringList({"file_cla (*.cla)", "tutti (*.*)"}));
        files.selectFile("a b.cla");
        QMetaObject::invokeMethod(&files, "accept");
      });
  EXPECT_EQ(picked, workspace.paths().base() + "/a b.cla");
  Converse(
      fixture.runner, [&] { picked = fixture.manager.PickFile(wanted); }, Press(Qt::Key_Escape));
  EXPECT_EQ(picked, std::nullopt);
}

TEST(QtManager, AFilterMayHaveManyPatterns) {
  EXPECT_EQ(NameFilters("log|*.edi;*.EDI"), QStringList({"log (*.edi *.EDI)"}));
  EXPECT_EQ(NameFilters(""), QStringList());
}

}  // namespace
}  // namespace velmar::test
