#include "ui/qt_machine.h"

#include <QNetworkInformation>
#include <QNetworkInterface>
#include <QProcess>
#include <QSysInfo>
#include <algorithm>

#include "model/text.h"
#include "platform/hosts.h"
#include "ui/qt_text.h"

namespace velmar {

namespace {

constexpr int kPingMilliseconds = 5000;

#ifdef Q_OS_WIN
constexpr auto kCountOption = "-n";
#else
constexpr auto kCountOption = "-c";
#endif

/// Whether any way out of the machine is up.
bool AnyInterfaceUp() {
  const auto interfaces = QNetworkInterface::allInterfaces();
  return std::ranges::any_of(interfaces, [](const QNetworkInterface& interface) {
    const auto flags = interface.flags();
    return flags.testFlag(QNetworkInterface::IsRunning) &&
           !flags.testFlag(QNetworkInterface::IsLoopBack) && !interface.addressEntries().isEmpty();
  });
}

}  // namespace

bool QtMachine::Connected() {
  using Reachability = QNetworkInformation::Reachability;
  if (QNetworkInformation::loadBackendByFeatures(QNetworkInformation::Feature::Reachability)) {
    const Reachability reachability = QNetworkInformation::instance()->reachability();
    if (reachability != Reachability::Unknown) {
      return reachability == Reachability::Online;
    }
  }
  return AnyInterfaceUp();
}

std::optional<double> QtMachine::Ping() {
  QProcess ping;
  ping.start(QStringLiteral("ping"), {kCountOption, QString::fromLatin1(hosts::kPing)});
  if (!ping.waitForFinished(kPingMilliseconds)) {
    ping.kill();
    ping.waitForFinished();
    return std::nullopt;
  }
  return PingTime(ping.readAllStandardOutput().toStdString());
}

std::string QtMachine::ProductName() {
  return FromQString(QSysInfo::prettyProductName());
}

std::optional<double> PingTime(std::string output) {
  for (std::size_t at = output.find(" ms"); at != std::string::npos; at = output.find(" ms", at)) {
    output.replace(at, 3, "ms ");
  }
  return PingMilliseconds(output);
}

}  // namespace velmar
