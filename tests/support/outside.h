#pragma once

#include "platform/ports.h"
#include "session/contest_session.h"
#include "support/doubles.h"
#include "support/temp_workspace.h"

namespace velmar::test {

/// What a module under test is handed from outside: a workspace with its disk, which can be made to
/// break, doubles of all ports, and the session. A fixture is derived from it.
struct Outside {
  TempWorkspace workspace;
  FailingFileSystem files{workspace.files()};
  ScriptedManager manager;
  FixedClock clock;
  FakeMachine machine;
  FakeWeb web;
  RecordingPrinter printer;
  RecordingPictures pictures;
  RecordingWorkbooks workbooks{files};
  Ports ports{files, manager, clock, machine, web, printer, pictures, workbooks};
  ContestSession session{workspace.paths().base()};
  Screen screen;
};

}  // namespace velmar::test
