#include "Platform/Linux/BusSingleInstance.h"

#include "Platform/ActivationToken.h"
#include "Platform/ApplicationId.h"
#include "Platform/Linux/ApplicationAdaptor.h"
#include "Platform/Linux/SessionBusAddress.h"

#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusReply>

#include <utility>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(instanceLog, "lanternix.instance", QtWarningMsg)

const QString interfaceName = u"org.freedesktop.Application"_s;

/// How long a running program may take to answer, in milliseconds. It is asked either way.
constexpr int patience = 1000;

void askToShow(const QDBusConnection &bus, const ActivationToken &token) {
  auto call =
      QDBusMessage::createMethodCall(applicationId, applicationPath, interfaceName, u"Activate"_s);
  call.setArguments({ApplicationAdaptor::platformData(token)});
  const QDBusMessage reply = bus.call(call, QDBus::Block, patience);
  if (reply.type() == QDBusMessage::ErrorMessage) {
    qCWarning(instanceLog).noquote()
        << "Lanternix is running but does not answer:" << reply.errorMessage();
  }
}

/// A bus says so to what it starts. That is not for programs started from here to hear as well.
bool isStartedByBus() {
  const bool isStarted = qgetenv("DBUS_STARTER_BUS_TYPE") == "session";
  qunsetenv("DBUS_STARTER_BUS_TYPE");
  qunsetenv("DBUS_STARTER_ADDRESS");
  return isStarted;
}

}  // namespace

BusSingleInstance::BusSingleInstance(std::chrono::milliseconds due) {
  if (isStartedByBus()) {
    m_reasonForStart.setRemainingTime(due);
  }
  new ApplicationAdaptor(*this);  // a child of this
}

bool BusSingleInstance::isAvailable() {
  return hasSessionBus();
}

bool BusSingleInstance::claim(const ActivationToken &token) {
  QDBusConnection bus = QDBusConnection::sessionBus();
  // The object is there before its name is, so that nobody finds the one without the other.
  bus.registerObject(applicationPath, this);
  const auto claimed = bus.interface()->registerService(applicationId);
  if (!claimed.isValid()) {
    qCWarning(instanceLog).noquote()
        << "The session bus refuses the program's name:" << claimed.error().message();
    return true;  // rather twice than not at all
  }
  if (claimed.value() == QDBusConnectionInterface::ServiceRegistered) {
    return true;
  }
  bus.unregisterObject(applicationPath);
  askToShow(bus, token);
  return false;
}

void BusSingleInstance::receive(Request request, const ActivationToken &token) {
  const bool isReasonForStart = !std::exchange(m_reasonForStart, {}).hasExpired();
  // It can come before the panel or, from a caller who first asks what can be called, after it.
  const bool meansShowing = isReasonForStart && request == Request::togglePanel;
  Q_EMIT requested(meansShowing ? Request::showPanel : request, token);
}

}  // namespace lanternix
