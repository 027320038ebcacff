#include "ui/system_clock.h"

#include <QDate>
#include <QTime>

namespace velmar {

std::string SystemClock::ShortDate() {
  return QDate::currentDate().toString(QStringLiteral("dd/MM/yyyy")).toStdString();
}

double SystemClock::Timer() {
  constexpr double kMilliseconds = 1000;
  return QTime::currentTime().msecsSinceStartOfDay() / kMilliseconds;
}

}  // namespace velmar
