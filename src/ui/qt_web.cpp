#include "ui/qt_web.h"

#include <QDesktopServices>
#include <QEventLoop>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>
#include <chrono>
#include <memory>

#include "platform/error.h"
#include "ui/qt_text.h"

namespace velmar {

namespace {

constexpr std::chrono::seconds kLimit(5);

}  // namespace

std::string QtWeb::Fetch(const std::string& url) {
  QNetworkAccessManager network;
  const std::unique_ptr<QNetworkReply> reply(network.get(QNetworkRequest(QUrl(ToQString(url)))));
  QEventLoop loop;
  QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
  QTimer::singleShot(kLimit, &loop, &QEventLoop::quit);
  if (!reply->isFinished()) {
    loop.exec();
  }
  if (!reply->isFinished() || reply->error() != QNetworkReply::NoError) {
    throw RunTimeError(ErrorNumber::kDeviceError, url);
  }
  return reply->readAll().toStdString();
}

void QtWeb::Open(const std::string& url) {
  QDesktopServices::openUrl(QUrl(ToQString(url)));
}

}  // namespace velmar
