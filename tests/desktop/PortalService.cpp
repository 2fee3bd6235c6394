#include "desktop/PortalService.h"

#include "support/HarnessError.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusVariant>

#include <utility>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString serviceName = u"org.freedesktop.portal.Desktop"_s;
const QString objectPath = u"/org/freedesktop/portal/desktop"_s;
const QString interfaceName = u"org.freedesktop.portal.Settings"_s;

struct Color {
  double red = 0;
  double green = 0;
  double blue = 0;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Color &color) {
  argument.beginStructure();
  argument << color.red << color.green << color.blue;
  argument.endStructure();
  return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Color &color) {
  argument.beginStructure();
  argument >> color.red >> color.green >> color.blue;
  argument.endStructure();
  return argument;
}

QString freshName() {
  static int count = 0;
  return u"portal-%1"_s.arg(++count);
}

}  // namespace

PortalService::PortalService(const QString &busAddress, Settings settings, Knows knows)
    : m_connectionName(freshName()),
      m_connection(QDBusConnection::connectToBus(busAddress, m_connectionName)),
      m_settings(std::move(settings)),
      m_knows(knows) {
  qDBusRegisterMetaType<Settings>();
  if (!m_connection.registerVirtualObject(objectPath, this) ||
      !m_connection.registerService(serviceName)) {
    throw HarnessError(m_connection.lastError().message());
  }
}

PortalService::~PortalService() {
  // First: a call that comes in while the connection is being ended would be kept by the dead one.
  m_connection.unregisterObject(objectPath);
  QDBusConnection::disconnectFromBus(m_connectionName);
}

QVariant PortalService::color(double red, double green, double blue) {
  qDBusRegisterMetaType<Color>();
  return QVariant::fromValue(Color{red, green, blue});
}

void PortalService::change(const QString &nameSpace, const QString &name, const QVariant &value) {
  m_settings[nameSpace][name] = value;
  auto signal = QDBusMessage::createSignal(objectPath, interfaceName, u"SettingChanged"_s);
  signal.setArguments({nameSpace, name, QVariant::fromValue(QDBusVariant(value))});
  m_connection.send(signal);
}

bool PortalService::knows(const QString &method) const {
  switch (m_knows) {
    case Knows::everything:
      return true;
    case Knows::readOneAndRead:
      return method != "ReadAll"_L1;
    case Knows::readOnly:
      return method == "Read"_L1;
    case Knows::nothing:
      break;
  }
  return false;
}

bool PortalService::handleMessage(const QDBusMessage &message, const QDBusConnection &connection) {
  if (message.interface() != interfaceName) {
    return false;
  }
  m_calls.append(message.member());
  if (!m_isSilent) {
    connection.send(knows(message.member())
                        ? answer(message)
                        : message.createErrorReply(QDBusError::UnknownMethod, u"What?"_s));
  }
  return true;
}

QDBusMessage PortalService::answer(const QDBusMessage &call) const {
  const QVariantList arguments = call.arguments();
  if (call.member() == "ReadAll"_L1) {
    return call.createReply(settings(arguments.value(0).toStringList()));
  }
  const QVariant value =
      m_settings.value(arguments.value(0).toString()).value(arguments.value(1).toString());
  if (!value.isValid()) {
    return call.createErrorReply(u"org.freedesktop.portal.Error.NotFound"_s, u"No"_s);
  }
  const QDBusVariant once(value);
  return call.createReply(QVariant::fromValue(
      call.member() == "Read"_L1 ? QDBusVariant(QVariant::fromValue(once)) : once));
}

QVariant PortalService::settings(const QStringList &nameSpaces) const {
  Settings wanted;
  for (const QString &nameSpace : nameSpaces) {
    if (m_settings.contains(nameSpace)) {
      wanted[nameSpace] = m_settings[nameSpace];
    }
  }
  return QVariant::fromValue(wanted);
}

QString PortalService::introspect(const QString & /*path*/) const {
  return {};
}

}  // namespace lanternix
