#include "ui/desktop.h"

#include <QApplication>
#include <QTimer>
#include <utility>

#include "check/check_desk.h"
#include "intake/renaming.h"
#include "platform/ansi.h"
#include "publish/export_form.h"
#include "publish/statistics_form.h"
#include "session/info_form.h"
#include "ui/absent_window.h"
#include "ui/archive_window.h"
#include "ui/check_window.h"
#include "ui/config_window.h"
#include "ui/event_runner.h"
#include "ui/export_window.h"
#include "ui/info_page.h"
#include "ui/look.h"
#include "ui/main_window.h"
#include "ui/month_window.h"
#include "ui/notices_window.h"
#include "ui/recalculation_window.h"
#include "ui/renaming_window.h"
#include "ui/statistics_window.h"
#include "utility/absent_stations.h"

namespace velmar {

Desktop::Desktop(Program& program, EventRunner& runner, Manager& manager)
    : program_(program), runner_(runner), manager_(manager) {
  Add(std::make_unique<MainWindow>(program.main_form(), runner));
  Add(std::make_unique<MonthWindow>(program.month_dialog().form(), runner));
  Add(std::make_unique<ConfigWindow>(program.config_dialog().form(), runner));
  Add(std::make_unique<RecalculationWindow>(program.recalculation().form(), runner));
  Add(std::make_unique<RenamingWindow>(program.renaming().form(), runner));
  Add(std::make_unique<CheckWindow>(program.check_desk().form(), runner));
  Add(std::make_unique<ArchiveWindow>(program.check_desk().archive_form(), runner));
  Add(std::make_unique<NoticesWindow>(program.check_desk().notices_form(), runner));
  Add(std::make_unique<StatisticsWindow>(program.statistics_form(), runner));
  Add(std::make_unique<ExportWindow>(program.export_form(), runner));
  Add(std::make_unique<AbsentWindow>(program.absent_stations().form(), runner));
  Add(std::make_unique<InfoPage>(program.info_form(), runner));
  program.screen().on_visibility = [this](Form& form) { ShowOrHide(form); };
  runner.on_refresh = [this] { Refresh(); };
  runner.on_failure = [this](const std::string& what) { TellFailure(what); };
  // The program ends by its own ways out, and between two windows none is to be seen.
  QApplication::setQuitOnLastWindowClosed(false);
}

Desktop::~Desktop() {
  program_.screen().on_visibility = nullptr;
  runner_.on_refresh = nullptr;
  runner_.on_failure = nullptr;
}

int Desktop::Run() {
  QTimer::singleShot(0, &runner_, [this] { runner_.Run([this] { program_.Start(); }); });
  return QApplication::exec();
}

FormWindow* Desktop::WindowOf(const Form& form) const {
  const auto found = windows_.find(&form);
  return found == windows_.end() ? nullptr : found->second.get();
}

void Desktop::Add(std::unique_ptr<FormWindow> window) {
  const Form* form = &window->form();
  Centre(*window);
  windows_.emplace(form, std::move(window));
}

void Desktop::ShowOrHide(Form& form) {
  if (FormWindow* window = WindowOf(form)) {
    window->Refresh();
    window->setVisible(form.visible());
  }
}

void Desktop::Refresh() {
  for (const auto& [form, window] : windows_) {
    if (form->visible()) {
      window->Refresh();
    }
  }
  const auto& visible = program_.screen().visible_forms();
  const Form* top = visible.empty() ? nullptr : visible.front();
  const bool other = std::exchange(top_, top) != top;
  // A window that the person put behind another one comes back when its form is shown again.
  const bool again = std::exchange(shows_, program_.screen().shows()) != program_.screen().shows();
  if ((other || again) && top != nullptr) {
    if (FormWindow* window = WindowOf(*top)) {
      window->raise();
      window->activateWindow();
    }
  }
}

void Desktop::TellFailure(const std::string& what) {
  manager_.Show({.lines = {" Il programma si ferma per un errore imprevisto: "_a, what},
                 .icon = Icon::kStop});
}

}  // namespace velmar
