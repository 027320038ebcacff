#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <map>
#include <set>

#include "ui/binding.h"
#include "ui/event_runner.h"
#include "ui/qt_text.h"
#include "ui/widget_binding.h"

namespace velmar {

namespace {

class MenuBinding : public Binding {
 public:
  MenuBinding(QAction& action, Control& control) : Binding(control), action_(action) {
    action.setObjectName(ToQString(control.name));
    action.setMenuRole(QAction::NoRole);
  }

  QAction* action() const override { return &action_; }

  void Refresh() override {
    action_.setText(ToQString(control().caption));
    action_.setVisible(control().visible);
    action_.setEnabled(control().enabled);
    // Only an item that is ticked has room for a tick, and the procedures alone set it.
    action_.setCheckable(control().checked);
    action_.setChecked(control().checked);
  }

 private:
  QAction& action_;
};

void Click(EventRunner& runner, Control& control) {
  Act(runner, control, [](Control& clicked) { clicked.Click(); });
}

/// The action of a menu that others hang in.
QAction* AddMenu(QMenuBar& bar, QMenu* parent, Control& control, EventRunner& runner,
                 std::map<const Control*, QMenu*>& menus) {
  QMenu* menu = parent == nullptr ? bar.addMenu(QString()) : parent->addMenu(QString());
  menus[&control] = menu;
  QObject::connect(menu, &QMenu::aboutToShow, menu, [&control, &runner] {
    if (control.on_click) {
      Click(runner, control);
    }
  });
  return menu->menuAction();
}

QAction* AddItem(QMenuBar& bar, QMenu* parent, Control& control, EventRunner& runner) {
  QAction* action = parent == nullptr ? bar.addAction(QString()) : parent->addAction(QString());
  QObject::connect(action, &QAction::triggered, action,
                   [&control, &runner] { Click(runner, control); });
  return action;
}

}  // namespace

std::vector<BindingPtr> BindMenu(QMenuBar& bar,
                                 const std::vector<std::unique_ptr<Control>>& controls,
                                 EventRunner& runner) {
  std::set<const Control*> parents;
  for (const auto& control : controls) {
    parents.insert(control->container);
  }
  std::map<const Control*, QMenu*> menus{{nullptr, nullptr}};
  std::vector<BindingPtr> bindings;
  for (const auto& control : controls) {
    if (control->kind() == ControlKind::kMenu) {
      QMenu* parent = menus.at(control->container);
      QAction* action = parents.contains(control.get())
                            ? AddMenu(bar, parent, *control, runner, menus)
                            : AddItem(bar, parent, *control, runner);
      bindings.push_back(std::make_unique<MenuBinding>(*action, *control));
    }
  }
  return bindings;
}

}  // namespace velmar
