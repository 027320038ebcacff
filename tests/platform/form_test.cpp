#include "platform/form.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace velmar {
namespace {

using Texts = std::vector<std::string>;

struct TestForm : Form {
  explicit TestForm(const std::string& name = "form") : Form(name, "A form") {}

  Menu& file = AddMenu("file", "&File");
  Menu& recent = AddMenu("recent", "&Recent", &file);
  Menu& item = AddMenu("item", "a.edi", &recent);
  Check& filter = AddCheck("filter", "Filter");
  Option& first = AddOption("first", "First");
  Option& second = AddOption("second", "Second");
  TextField& text = AddText("text");
  List& list = AddList("list");
  Combo& combo = AddCombo("combo", {"GENNAIO", "FEBBRAIO"});
};

TEST(Control, IsReachableWhenItsFormAndItsMenusAre) {
  TestForm form;
  EXPECT_FALSE(form.item.Reachable());
  Screen screen;
  screen.Show(form);
  for (Menu* menu : {&form.item, &form.recent, &form.file}) {
    for (bool Control::*state : {&Control::visible, &Control::enabled}) {
      EXPECT_TRUE(form.item.Reachable());
      menu->*state = false;
      EXPECT_FALSE(form.item.Reachable()) << menu->name;
      EXPECT_TRUE(form.text.Reachable());
      menu->*state = true;
    }
  }
  form.recent.enabled = false;
  EXPECT_TRUE(form.file.Reachable());
  screen.Hide(form);
  EXPECT_FALSE(form.file.Reachable());
}

TEST(Control, ShowsAnEventTheStateThatTheDeedLeft) {
  TestForm form;
  form.text.Press("Esc");  // nobody listens yet
  form.list.DoubleClick();
  Texts seen;
  form.filter.on_click = [&] { seen.emplace_back(form.filter.checked ? "on" : "off"); };
  form.first.on_click = [&] { form.second.checked = false; };
  form.second.on_click = [&] { form.first.checked = false; };
  form.text.on_change = [&] { seen.push_back(form.text.value); };
  form.text.on_key = [&](const std::string& key) { seen.push_back(key); };
  form.list.on_click = [&] { seen.push_back(std::to_string(form.list.selection)); };
  form.list.on_double_click = [&] { seen.emplace_back("twice"); };

  form.filter.Click();
  form.filter.Click();
  form.first.Click();
  form.second.Click();
  form.second.Click();
  form.item.Click();
  form.text.Type("I");
  form.text.Press("F5");
  form.list.Select(3);
  form.list.DoubleClick();

  EXPECT_EQ(seen, (Texts{"on", "off", "I", "F5", "3", "twice"}));
  EXPECT_FALSE(form.first.checked);
  EXPECT_TRUE(form.second.checked);
  EXPECT_FALSE(form.item.checked);
}

TEST(Combo, AChosenRowIsTheTextAndATypedTextIsNoRow) {
  TestForm form;
  Texts seen;
  const auto see = [&] {
    seen.push_back(form.combo.value + " " + std::to_string(form.combo.selection));
  };
  form.combo.on_click = see;
  form.combo.on_change = see;
  form.combo.Select(1);
  form.combo.Type("MARZO");
  EXPECT_THROW(form.combo.Select(2), std::out_of_range);
  EXPECT_EQ(seen, (Texts{"FEBBRAIO 1", "MARZO -1"}));
  EXPECT_EQ(form.combo.value, "MARZO");
}

TEST(Items, TheVersionGrowsWithEveryChange) {
  Items items;
  const std::size_t empty = items.version();
  items.Add("a");
  const std::size_t added = items.version();
  EXPECT_GT(added, empty);
  items.Assign(items.rows());
  EXPECT_GT(items.version(), added);
  EXPECT_EQ(items.rows(), Texts{"a"});
}

TEST(Screen, TheFormShownLastIsOnTopAndOnlyRealChangesAreTold) {
  TestForm one("one");
  TestForm two("two");
  Screen screen;
  Texts told;
  screen.on_visibility = [&](const Form& form) {
    told.push_back(form.name() + (form.visible() ? "+" : "-") +
                   std::to_string(screen.visible_forms().size()));
  };
  screen.Hide(two);
  screen.Show(one);
  screen.Show(two);
  EXPECT_EQ(screen.visible_forms(), (std::vector<Form*>{&two, &one}));
  screen.Show(one);
  EXPECT_EQ(screen.visible_forms(), (std::vector<Form*>{&one, &two}));
  screen.Hide(one);
  screen.Hide(one);
  EXPECT_EQ(screen.visible_forms(), std::vector<Form*>{&two});
  EXPECT_EQ(told, (Texts{"one+1", "two+2", "one-1"}));
}

}  // namespace
}  // namespace velmar
