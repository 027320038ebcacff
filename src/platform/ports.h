#pragma once

#include "platform/clock.h"
#include "platform/file_system.h"
#include "platform/machine.h"
#include "platform/manager.h"
#include "platform/printer.h"
#include "platform/web.h"
#include "platform/workbook_app.h"

namespace velmar {

/// The outside of the program, as a front end hands it over.
struct Ports {
  FileSystem& files;
  Manager& manager;
  Clock& clock;
  Machine& machine;
  Web& web;
  Printer& printer;
  PictureFiles& pictures;
  WorkbookApp& workbooks;
};

}  // namespace velmar
