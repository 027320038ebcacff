#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QTranslator>

#include "app/program.h"
#include "platform/disk_file_system.h"
#include "platform/xlsx_app.h"
#include "ui/desktop.h"
#include "ui/event_runner.h"
#include "ui/look.h"
#include "ui/qt_machine.h"
#include "ui/qt_manager.h"
#include "ui/qt_picture_files.h"
#include "ui/qt_printer.h"
#include "ui/qt_text.h"
#include "ui/qt_web.h"
#include "ui/system_clock.h"

namespace velmar {
namespace {

int Run(char* arguments[]) {
  int count = 1;  // the program has no command line, nor has the toolkit
  QApplication application(count, arguments);
  ApplyLook();
  QTranslator translator;  // for what the toolkit says by itself, such as in a file dialog
  if (translator.load(QStringLiteral("qtbase_it"),
                      QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&translator);
  }

  DiskFileSystem files;
  EventRunner runner;
  QtManager manager(runner);
  SystemClock clock;
  XlsxApp workbooks(files);
  QtMachine machine(workbooks);
  QtWeb web;
  QtPrinter printer(runner);
  QtPictureFiles pictures(files);
  Program program(FromDiskName(QDir::currentPath()),
                  {files, manager, clock, machine, web, printer, pictures, workbooks});
  Desktop desktop(program, runner, manager);
  return desktop.Run();
}

}  // namespace
}  // namespace velmar

int main(int, char* arguments[]) {
  return velmar::Run(arguments);
}
