#include "session/config_dialog.h"

#include <gtest/gtest.h>

#include "model/text.h"
#include "platform/error.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {
namespace {

std::string IniText(std::initializer_list<const char*> lines) {
  std::string text;
  for (const char* line : lines) {
    text += Join(line, "\r\n");
  }
  return text;
}

class ConfigTest : public testing::Test {
 protected:
  ConfigTest() {
    workspace.WithTree();
    session.tree_existed = true;
    screen.Add(main);
    screen.Add(config.form());
  }

  void OpenWith(const std::string& ini) {
    workspace.With("VartoVLM.ini", ini);
    config.Prepare();
    config.Open();
  }

  /// For each line "+" where the mark is green, and the state of its box.
  std::string Marks() {
    std::string marks;
    for (const ConfigForm::Line& line : config.form().lines) {
      marks += line.mark->colour == colour::kGreen ? '+' : '-';
      marks += line.box == nullptr ? ' ' : line.box->checked ? 'x' : 'o';
    }
    return marks;
  }

  TempWorkspace workspace;
  ScriptedManager manager;
  Screen screen;
  ContestSession session{workspace.paths().base()};
  MainForm main;
  CheckOptions check;
  MenuTrap trap{manager};
  ConfigDialog config{session, workspace.files(), manager, trap, screen, main, check};
};

TEST_F(ConfigTest, EachLineShowsItsSettingHereAndOnTheDesk) {
  OpenWith(IniText({"SI", "NO", "SI", "NO", "SI", "NO", "SI", "NO"}));
  EXPECT_EQ(Marks(), "+ -o+x-o+x-o+x-o");
  EXPECT_EQ(config.form().lines[0].text->caption,
            "Controllo orario sui qso ( 10 minuti tolleranza), ATTIVO");
  EXPECT_EQ(config.form().lines[1].text->caption, "controllo NOT IN LOG, DISATTIVATO");
  EXPECT_TRUE(check.no_control_time.checked);
  EXPECT_FALSE(check.NOT_IN_LOG.checked);
  EXPECT_TRUE(check.Check7.checked);
  EXPECT_FALSE(check.Check8.checked);
}

TEST_F(ConfigTest, OnlyExactlySiIsOn) {
  OpenWith(IniText({"si", "SI ", " SI", "", "x", "SI", "", ""}));
  EXPECT_EQ(Marks(), "- -o-o-o-o+x-o-o");
}

TEST_F(ConfigTest, OfTheLastTwoTheLaterOneWins) {
  OpenWith(IniText({"NO", "NO", "NO", "NO", "NO", "NO", "SI", "SI"}));
  EXPECT_EQ(Marks(), "- -o-o-o-o-o-o+x");
}

TEST_F(ConfigTest, TheConfirmationMakesAMissingFileAndBringsTheMainScreen) {
  config.Prepare();
  config.Open();
  EXPECT_EQ(Marks(), "- -o-o-o-o-o-o-o");
  config.form().Command2.Click();
  EXPECT_EQ(workspace.Read("VartoVLM.ini"),
            IniText({"NO", "SI", "NO", "NO", "SI", "SI", "SI", "NO"}));
  EXPECT_TRUE(session.settings.On(Setting::kHideOverTwo));
  EXPECT_TRUE(check.NOT_IN_LOG.checked && check.Check5.checked && check.Check6.checked &&
              check.Check7.checked && check.Check9.checked);
  EXPECT_TRUE(main.visible());
  EXPECT_FALSE(config.form().visible());
}

TEST_F(ConfigTest, AFileThatIsThereStaysAsItIs) {
  const std::string odd = "NO\nfurther\n\n\n\n\n\n\n\n\nline 11\n";
  OpenWith(odd);
  config.form().Command2.Click();
  EXPECT_EQ(workspace.Read("VartoVLM.ini"), odd);
}

TEST_F(ConfigTest, TheFirstStartOfATreeEndsHere) {
  session.tree_existed = false;
  config.Prepare();
  config.Open();
  EXPECT_THROW(config.form().Command2.Click(), ProgramEnd);
  EXPECT_EQ(manager.boxes.at(0).icon, Icon::kExclamation);
  EXPECT_EQ(manager.boxes.at(0).lines.back(), " Programma Terminato. Riavvia");
  EXPECT_NE(workspace.Read("VartoVLM.ini"), "<missing>");
}

TEST_F(ConfigTest, SavingRepairsEmptyValues) {
  struct Case {
    std::string before;
    std::string after;
    bool ticked;
  };
  const std::vector<Case> cases = {
      {"", IniText({"NO", "SI", "NO", "NO", "SI", "SI", "NO", "SI"}), true},
      {IniText({"SI", "NO", "SI", "SI", "NO", "NO", "NO", "NO"}),
       IniText({"SI", "NO", "SI", "SI", "NO", "NO", "NO", "SI"}), true},
      {IniText({"SI", "NO", "SI", "SI", "NO", "NO", "SI", "NO"}),
       IniText({"SI", "NO", "SI", "SI", "NO", "NO", "SI", "NO"}), false}};
  for (const Case& c : cases) {
    check.Check8.checked = false;
    session.settings.Parse(c.before);
    SaveSettings(session, workspace.files(), check);
    EXPECT_EQ(workspace.Read("VartoVLM.ini"), c.after);
    EXPECT_EQ(check.Check8.checked, c.ticked);
  }
}

}  // namespace
}  // namespace velmar::test
