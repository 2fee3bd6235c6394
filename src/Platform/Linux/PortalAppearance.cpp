#include "Platform/Linux/PortalAppearance.h"

#include "Platform/Linux/PortalPeer.h"

#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusVariant>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(appearanceLog, "lanternix.appearance", QtWarningMsg)

const QString interfaceName = u"org.freedesktop.portal.Settings"_s;

using NameSpaces = QMap<QString, QVariantMap>;

bool isUnknownMethod(const QDBusMessage &reply) {
  return reply.type() == QDBusMessage::ErrorMessage &&
         QDBusError(reply).type() == QDBusError::UnknownMethod;
}

}  // namespace

PortalAppearance::PortalAppearance(const QDBusConnection &bus)
    : m_bus(bus),
      m_watcher(PortalPeer::serviceName, bus, QDBusServiceWatcher::WatchForOwnerChange) {
  connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
          [this](const QString & /*service*/, const QString & /*before*/, const QString &owner) {
            m_owner = owner;
            if (!owner.isEmpty()) {
              askForAll();
            }
          });
  // From every sender, because naming the service here would wait for the bus to tell its owner.
  m_bus.connect(QString(), PortalPeer::objectPath, interfaceName, u"SettingChanged"_s, this,
                SLOT(readChange(QDBusMessage)));
  askForOwner();
  askForAll();
}

/// Where nobody has the portal's name yet, the watcher tells when somebody takes it.
void PortalAppearance::askForOwner() {
  send(PortalPeer::nameQuestion(), [this](const QDBusMessage &reply) {
    if (reply.signature() == "s"_L1 && m_owner.isEmpty()) {
      m_owner = reply.arguments().constFirst().toString();
    }
  });
}

void PortalAppearance::askForAll() {
  call(u"ReadAll"_s, {PortalSettings::nameSpaces()}, [this](const QDBusMessage &reply) {
    if (isUnknownMethod(reply)) {
      askForEach();
    } else {
      readAll(reply);
    }
  });
}

void PortalAppearance::readAll(const QDBusMessage &reply) {
  if (reply.signature() != "a{sa{sv}}"_L1) {
    qCInfo(appearanceLog).noquote()
        << "The portal does not tell the desktop's appearance:" << reply.errorName()
        << reply.errorMessage();
    return;
  }
  const auto spaces = qdbus_cast<NameSpaces>(reply.arguments().constFirst());
  for (const PortalSettings::Key &key : PortalSettings::keys()) {
    m_settings.set(key.nameSpace, key.name, spaces.value(key.nameSpace).value(key.name));
  }
  update();
}

// "ReadOne" came later than "Read", which it replaces.
void PortalAppearance::askForEach() {
  for (const PortalSettings::Key &key : PortalSettings::keys()) {
    askFor(key, u"ReadOne"_s, [this, key](const QDBusMessage & /*reply*/) {
      askFor(key, u"Read"_s, [](const QDBusMessage &reply) {
        qCInfo(appearanceLog).noquote() << "The portal has no settings:" << reply.errorMessage();
      });
    });
  }
}

void PortalAppearance::askFor(const PortalSettings::Key &key, const QString &method,
                              const Handler &onUnknownMethod) {
  call(method, {key.nameSpace, key.name}, [=, this](const QDBusMessage &reply) {
    if (isUnknownMethod(reply)) {
      onUnknownMethod(reply);
    } else if (reply.signature() == "v"_L1) {
      m_settings.set(key.nameSpace, key.name, reply.arguments().constFirst());
    } else if (reply.errorName() == "org.freedesktop.portal.Error.NotFound"_L1) {
      m_settings.set(key.nameSpace, key.name, QVariant());
    }
    update();
  });
}

void PortalAppearance::call(const QString &method, const QVariantList &arguments,
                            const Handler &handler) {
  auto message = QDBusMessage::createMethodCall(PortalPeer::serviceName, PortalPeer::objectPath,
                                                interfaceName, method);
  message.setArguments(arguments);
  send(message, handler);
}

void PortalAppearance::send(const QDBusMessage &message, const Handler &handler) {
  auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
  connect(pending, &QDBusPendingCallWatcher::finished, this, [pending, handler] {
    pending->deleteLater();
    handler(pending->reply());
  });
}

void PortalAppearance::readChange(const QDBusMessage &signal) {
  const bool isFromPortal = m_owner.isEmpty() || signal.service() == m_owner;
  if (!isFromPortal || signal.signature() != "ssv"_L1) {
    return;
  }
  const QVariantList arguments = signal.arguments();
  m_settings.set(arguments[0].toString(), arguments[1].toString(), arguments[2]);
  update();
}

void PortalAppearance::update() {
  const Appearance now = m_settings.appearance();
  if (now != m_appearance) {
    m_appearance = now;
    Q_EMIT changed();
  }
}

}  // namespace lanternix
