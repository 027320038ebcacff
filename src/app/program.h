#pragma once

#include <memory>
#include <string>

#include "platform/form.h"
#include "platform/ports.h"

namespace velmar {

class AbsentStations;
class CheckDesk;
class ConfigDialog;
class ExportForm;
struct InfoForm;
class MainForm;
class MonthDialog;
class Recalculation;
class Renaming;
class StatisticsForm;

/// The whole program without a front end: makes the modules, hands them their ports, and joins the
/// menu to the steps. A front end shows the forms of the screen and calls their events. Any event
/// may throw ProgramEnd.
class Program {
 public:
  /// `base_dir` is the folder that the workspace lies in, without a slash at its end.
  Program(const std::string& base_dir, const Ports& ports);
  ~Program();
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;

  /// Runs the start-up chain.
  void Start();

  Screen& screen();

  // The forms, for the windows that draw them.
  MainForm& main_form();
  MonthDialog& month_dialog();
  ConfigDialog& config_dialog();
  Recalculation& recalculation();
  Renaming& renaming();
  CheckDesk& check_desk();
  StatisticsForm& statistics_form();
  ExportForm& export_form();
  AbsentStations& absent_stations();
  InfoForm& info_form();

 private:
  struct Modules;
  std::unique_ptr<Modules> modules_;
};

}  // namespace velmar
