#include "support/DesktopShell.h"

#include <QtDBus/QDBusConnectionInterface>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusReply>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

using StringMap = QMap<QString, QString>;

const QString service = u"org.lanternix.Lanternix"_s;
const QString path = u"/org/lanternix/Lanternix"_s;

QString freshName() {
  static int count = 0;
  return u"shell-%1"_s.arg(++count);
}

}  // namespace

DesktopShell::DesktopShell(const QString &busAddress)
    : m_name(freshName()), m_connection(QDBusConnection::connectToBus(busAddress, m_name)) {}

DesktopShell::~DesktopShell() {
  QDBusConnection::disconnectFromBus(m_name);
}

QString DesktopShell::activate(const QVariantMap &platformData) const {
  return call(u"Activate"_s, {platformData});
}

QString DesktopShell::open(const QStringList &uris, const QVariantMap &platformData) const {
  return call(u"Open"_s, {uris, platformData});
}

QString DesktopShell::activateAction(const QString &name, const QVariantMap &platformData) const {
  return call(u"ActivateAction"_s, {name, QVariantList(), platformData});
}

QString DesktopShell::introspection() const {
  const auto call = QDBusMessage::createMethodCall(
      service, path, u"org.freedesktop.DBus.Introspectable"_s, u"Introspect"_s);
  return QDBusReply<QString>(m_connection.call(call)).value();
}

void DesktopShell::setStartEnvironment(const QProcessEnvironment &variables) const {
  qDBusRegisterMetaType<StringMap>();
  StringMap map;
  const QStringList names = variables.keys();
  for (const QString &name : names) {
    map.insert(name, variables.value(name));
  }
  m_connection.interface()->call(u"UpdateActivationEnvironment"_s, QVariant::fromValue(map));
}

std::optional<qint64> DesktopShell::process() const {
  const QDBusReply<uint> reply = m_connection.interface()->servicePid(service);
  return reply.isValid() ? std::optional(qint64{reply.value()}) : std::nullopt;
}

QString DesktopShell::call(const QString &method, const QVariantList &arguments) const {
  auto message =
      QDBusMessage::createMethodCall(service, path, u"org.freedesktop.Application"_s, method);
  message.setArguments(arguments);
  return m_connection.call(message).errorName();
}

}  // namespace lanternix
