#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QTimer>
#include <functional>

#include "app/program.h"
#include "check/check_desk.h"
#include "intake/recalculation.h"
#include "intake/renaming.h"
#include "session/config_dialog.h"
#include "session/info_form.h"
#include "session/main_form.h"
#include "session/month_dialog.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"
#include "ui/desktop.h"
#include "ui/event_runner.h"
#include "utility/absent_stations.h"

namespace velmar::test {

/// The whole program with its windows, over a workspace of its own and a scripted manager.
struct DesktopFixture {
  TempWorkspace workspace;
  EventRunner runner;
  ScriptedManager manager;
  FixedClock clock;
  FakeMachine machine;
  FakeWeb web;
  RecordingPrinter printer;
  RecordingPictures pictures;
  RecordingWorkbooks workbooks{workspace.files()};
  Program program{workspace.paths().base(),
                  {workspace.files(), manager, clock, machine, web, printer, pictures, workbooks}};
  Desktop desktop{program, runner, manager};

  FormWindow& Window(Form& form) { return *desktop.WindowOf(form); }
  void Show(Form& form) {
    runner.Run([&] { program.screen().Show(form); });
  }
};

/// One form in one window, without the program.
template <typename FormType, typename Window>
struct WindowFixture {
  WindowFixture() {
    screen.Add(form);
    screen.Show(form);
    runner.on_refresh = [this] { window.Refresh(); };
    window.Refresh();
    window.show();
  }

  FormType form;
  Screen screen;
  EventRunner runner;
  Window window{form, runner};
};

/// Runs `talk` in an event; as soon as a dialog is open, `use` is given it.
inline void Converse(EventRunner& runner, const std::function<void()>& talk,
                     const std::function<void(QDialog&)>& use) {
  QTimer poll;
  QObject::connect(&poll, &QTimer::timeout, [&] {
    if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      poll.stop();
      use(*dialog);
    }
  });
  poll.start(0);
  runner.Run(talk);
  EXPECT_FALSE(poll.isActive()) << "no dialog came";
}

}  // namespace velmar::test
