#include "Platform/Linux/StatusNotifierHost.h"

#include <QtCore/QLoggingCategory>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>
#include <QtDBus/QDBusVariant>

namespace lanternix {
namespace {

using namespace Qt::StringLiterals;

Q_LOGGING_CATEGORY(trayLog, "lanternix.tray", QtWarningMsg)

const QString serviceName = u"org.kde.StatusNotifierWatcher"_s;
const QString objectPath = u"/StatusNotifierWatcher"_s;

}  // namespace

StatusNotifierHost::StatusNotifierHost(const QDBusConnection &bus)
    : m_bus(bus), m_watcher(serviceName, bus, QDBusServiceWatcher::WatchForOwnerChange) {
  connect(&m_watcher, &QDBusServiceWatcher::serviceRegistered, this, &StatusNotifierHost::ask);
  connect(&m_watcher, &QDBusServiceWatcher::serviceUnregistered, this,
          [this] { setPresence(Presence::absent); });
  // From every sender, because naming the service here would wait for the bus to tell its owner.
  for (const QString &signal :
       {u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s}) {
    m_bus.connect(QString(), objectPath, serviceName, signal, this, SLOT(ask()));
  }
  ask();
}

void StatusNotifierHost::ask() {
  auto call = QDBusMessage::createMethodCall(serviceName, objectPath,
                                             u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
  call.setArguments({serviceName, u"IsStatusNotifierHostRegistered"_s});
  call.setAutoStartService(false);
  auto *pending = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
  connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending] {
    pending->deleteLater();
    const QDBusPendingReply<QDBusVariant> reply = *pending;
    if (reply.isError()) {
      qCDebug(trayLog).noquote() << "No tray on the bus:" << reply.error().message();
    }
    const bool isPresent = reply.isValid() && reply.value().variant().toBool();
    setPresence(isPresent ? Presence::present : Presence::absent);
  });
}

void StatusNotifierHost::setPresence(Presence presence) {
  if (presence != m_presence) {
    m_presence = presence;
    Q_EMIT changed();
  }
}

}  // namespace lanternix
