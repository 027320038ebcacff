#include "app/program.h"

#include "check/check_desk.h"
#include "intake/insertion.h"
#include "intake/leaving.h"
#include "intake/recalculation.h"
#include "intake/renaming.h"
#include "model/contest_store.h"
#include "publish/area_classifications.h"
#include "publish/excel_export.h"
#include "publish/export_form.h"
#include "publish/statistics.h"
#include "session/config_dialog.h"
#include "session/contest_session.h"
#include "session/info_form.h"
#include "session/main_form.h"
#include "session/main_menu.h"
#include "session/month_assignment.h"
#include "session/month_dialog.h"
#include "session/start_up.h"
#include "utility/absent_stations.h"
#include "utility/info_window.h"

namespace velmar {

struct Program::Modules {
  Modules(const std::string& base_dir, const Ports& ports)
      : session(base_dir),
        store(ports.files, session.workspace),
        trap(ports.manager),
        months(session, ports.files, ports.manager, trap, ports.clock),
        config(session, ports.files, ports.manager, trap, screen, main, check),
        month_dialog(session, ports.files, ports.manager, trap, ports.clock, screen, main, config),
        recalculation(session, ports.files, ports.manager, screen, main),
        renaming(session, ports.files, ports.manager, screen, main),
        insertion(session, ports.files, ports.manager, store, months, main),
        desk(session, ports, store, screen, main, check),
        area_classifications(session, ports.files, ports.manager, trap),
        statistics(session, ports, screen, main, statistics_form, [this] { absent.Open(); }),
        absent(session, ports, screen, main, [this] { statistics.Open(); }),
        exporting(session, ports, screen, main, export_form),
        info_window(screen, info),
        leaving(session, ports.files, ports.manager, main),
        menu(session, ports.files, ports.manager, trap, screen, main, months,
             {.open_recalculation = [this] { recalculation.Open(); },
              .open_renaming = [this] { renaming.Open(); },
              .open_check = [this] { desk.Open(); },
              .open_absent = [this] { absent.Open(); },
              .open_info = [this] { info_window.Open(); },
              .classify_areas = [this] { area_classifications.cla_x_callarea_Click(); },
              .open_statistics = [this] { statistics.Open(); },
              .open_export = [this] { exporting.Open(); }}),
        start_up(session, ports, trap, screen, main, info, months, month_dialog) {
    for (Form* form : std::initializer_list<Form*>{
             &main, &month_dialog.form(), &config.form(), &recalculation.form(), &renaming.form(),
             &check, &statistics_form, &export_form, &desk.archive_form(), &desk.notices_form(),
             &absent.form(), &info}) {
      screen.Add(*form);
    }
  }

  Screen screen;
  ContestSession session;
  MainForm main;
  CheckForm check;
  StatisticsForm statistics_form;
  ExportForm export_form;
  InfoForm info;
  ContestStore store;
  MenuTrap trap;
  MonthAssignment months;
  ConfigDialog config;
  MonthDialog month_dialog;
  Recalculation recalculation;
  Renaming renaming;
  Insertion insertion;
  CheckDesk desk;
  AreaClassifications area_classifications;
  Statistics statistics;
  AbsentStations absent;
  ExcelExport exporting;
  InfoWindow info_window;
  Leaving leaving;
  MainMenu menu;
  StartUp start_up;
};

Program::Program(const std::string& base_dir, const Ports& ports)
    : modules_(std::make_unique<Modules>(base_dir, ports)) {}

Program::~Program() = default;

void Program::Start() {
  modules_->start_up.Run();
}

Screen& Program::screen() {
  return modules_->screen;
}

MainForm& Program::main_form() {
  return modules_->main;
}

MonthDialog& Program::month_dialog() {
  return modules_->month_dialog;
}

ConfigDialog& Program::config_dialog() {
  return modules_->config;
}

Recalculation& Program::recalculation() {
  return modules_->recalculation;
}

Renaming& Program::renaming() {
  return modules_->renaming;
}

CheckDesk& Program::check_desk() {
  return modules_->desk;
}

StatisticsForm& Program::statistics_form() {
  return modules_->statistics_form;
}

ExportForm& Program::export_form() {
  return modules_->export_form;
}

AbsentStations& Program::absent_stations() {
  return modules_->absent;
}

InfoForm& Program::info_form() {
  return modules_->info;
}

}  // namespace velmar
