#include "Platform/Linux/BusSingleInstance.h"

#include "Platform/Linux/SessionBusAddress.h"

#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusReply>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(instanceLog, "lanternix.instance", QtWarningMsg)

const QString serviceName = u"org.lanternix.Lanternix"_s;
const QString objectPath = u"/org/lanternix/Lanternix"_s;
const QString interfaceName = u"org.freedesktop.Application"_s;

/// How long a running program may take to answer, in milliseconds. It is asked either way.
constexpr int patience = 1000;

void askToShow(const QDBusConnection &bus) {
  auto call = QDBusMessage::createMethodCall(serviceName, objectPath, interfaceName, u"Activate"_s);
  call.setArguments({QVariantMap()});
  const QDBusMessage reply = bus.call(call, QDBus::Block, patience);
  if (reply.type() == QDBusMessage::ErrorMessage) {
    qCWarning(instanceLog).noquote()
        << "Lanternix is running but does not answer:" << reply.errorMessage();
  }
}

}  // namespace

BusSingleInstance::BusSingleInstance() {
  new ApplicationAdaptor(*this);  // a child of this
}

bool BusSingleInstance::isAvailable() {
  return isSessionBusAnnounced() && QDBusConnection::sessionBus().isConnected();
}

bool BusSingleInstance::claim() {
  QDBusConnection bus = QDBusConnection::sessionBus();
  // The object is there before its name is, so that nobody finds the one without the other.
  bus.registerObject(objectPath, this);
  const auto claimed = bus.interface()->registerService(serviceName);
  if (!claimed.isValid()) {
    qCWarning(instanceLog).noquote()
        << "The session bus refuses the program's name:" << claimed.error().message();
    return true;  // rather twice than not at all
  }
  if (claimed.value() == QDBusConnectionInterface::ServiceRegistered) {
    return true;
  }
  bus.unregisterObject(objectPath);
  askToShow(bus);
  return false;
}

ApplicationAdaptor::ApplicationAdaptor(BusSingleInstance &instance)
    : QDBusAbstractAdaptor(&instance), m_instance(instance) {}

void ApplicationAdaptor::Activate(const QVariantMap & /*platformData*/) {
  Q_EMIT m_instance.showRequested();
}

void ApplicationAdaptor::Open(const QStringList & /*uris*/, const QVariantMap & /*platformData*/) {
  Q_EMIT m_instance.showRequested();
}

void ApplicationAdaptor::ActivateAction(const QString & /*name*/,
                                        const QVariantList & /*parameters*/,
                                        const QVariantMap & /*platformData*/) {
  Q_EMIT m_instance.showRequested();
}

}  // namespace lanternix
