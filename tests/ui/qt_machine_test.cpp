#include "ui/qt_machine.h"

#include <gtest/gtest.h>

#include <QRegularExpression>

#include "platform/disk_file_system.h"
#include "platform/error.h"
#include "platform/xlsx_app.h"
#include "ui/qt_web.h"
#include "ui/system_clock.h"

namespace velmar {
namespace {

TEST(QtMachine, ReadsThePingOfEverySystem) {
  EXPECT_EQ(PingTime("PING 127.0.0.1 (127.0.0.1) 56(84) bytes of data.\n"
                     "64 bytes from 127.0.0.1: icmp_seq=1 ttl=64 time=0.035 ms\n\n"
                     "1 packets transmitted, 1 received, 0% packet loss, time 0ms\n"),
            0.035);
  EXPECT_EQ(PingTime("Risposta da 127.0.0.1: byte=32 durata<1ms TTL=128\r\n"), 1);
  EXPECT_EQ(PingTime("Richiesta scaduta.\r\n"), std::nullopt);
  EXPECT_EQ(PingTime(""), std::nullopt);
}

TEST(QtMachine, NamesTheSystem) {
  DiskFileSystem files;
  XlsxApp workbooks(files);
  QtMachine machine(workbooks);
  EXPECT_FALSE(machine.ProductName().empty());
  EXPECT_EQ(machine.WorkbookVersion(), 16);
}

TEST(QtWeb, APageThatCannotBeHadIsADeviceError) {
  try {
    QtWeb().Fetch("nessuno:pagina");
    FAIL() << "a page came";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.number(), ErrorNumber::kDeviceError);
  }
}

TEST(SystemClock, TheDateHasTheItalianForm) {
  const QString date = QString::fromStdString(SystemClock().ShortDate());
  EXPECT_TRUE(QRegularExpression("^\\d\\d/\\d\\d/\\d{4}$").match(date).hasMatch());
  const double timer = SystemClock().Timer();
  EXPECT_TRUE(timer >= 0 && timer < 86'400) << timer;
}

}  // namespace
}  // namespace velmar
