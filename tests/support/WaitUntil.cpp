#include "support/WaitUntil.h"

#include "support/HarnessError.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDeadlineTimer>
#include <QtCore/QThread>

namespace lanternix {

using namespace Qt::StringLiterals;

bool waitUntil(const std::function<bool()> &condition, std::chrono::milliseconds timeout) {
  const QDeadlineTimer deadline(timeout);
  while (!condition()) {
    if (deadline.hasExpired()) {
      return false;
    }
    QCoreApplication::processEvents();
    QThread::msleep(1);
  }
  return true;
}

void require(const QString &what, const std::function<bool()> &condition,
             std::chrono::milliseconds timeout) {
  if (!waitUntil(condition, timeout)) {
    throw HarnessError(u"waited in vain for "_s + what);
  }
}

}  // namespace lanternix
