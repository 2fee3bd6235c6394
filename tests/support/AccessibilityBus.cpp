#include "support/AccessibilityBus.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

#include <QtCore/QFile>
#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusReply>

#include <array>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString connectionName = u"accessibility"_s;
const QString accessible = u"org.a11y.atspi.Accessible"_s;
const AccessibilityBus::Node desktop{u"org.a11y.atspi.Registry"_s,
                                     u"/org/a11y/atspi/accessible/root"_s};

/// The launcher lies where each distribution likes it; its service file knows.
QString launcherPath() {
  QFile file(u"/usr/share/dbus-1/services/org.a11y.Bus.service"_s);
  if (file.open(QIODevice::ReadOnly)) {
    const QStringList lines = QString::fromUtf8(file.readAll()).split(u'\n');
    for (const QString &line : lines) {
      if (line.startsWith("Exec="_L1)) {
        return line.mid(5).section(u' ', 0, 0);
      }
    }
  }
  return u"at-spi-bus-launcher"_s;
}

/// Asks the launcher, once it is there, for the address of the bus that it starts.
QString addressOnSessionBus(const QString &sessionBusAddress) {
  const QString name = u"accessibility-address"_s;
  QString address;
  {
    const QDBusConnection session = QDBusConnection::connectToBus(sessionBusAddress, name);
    require(u"the accessibility bus"_s, [&] {
      const QDBusReply<QString> reply = session.call(QDBusMessage::createMethodCall(
          u"org.a11y.Bus"_s, u"/org/a11y/bus"_s, u"org.a11y.Bus"_s, u"GetAddress"_s));
      address = reply.value();
      return !address.isEmpty();
    });
  }
  QDBusConnection::disconnectFromBus(name);
  return address;
}

AccessibilityBus::Node readNode(const QDBusArgument &argument) {
  AccessibilityBus::Node node;
  QDBusObjectPath path;
  argument.beginStructure();
  argument >> node.service >> path;
  argument.endStructure();
  node.path = path.path();
  return node;
}

QList<AccessibilityBus::Node> readNodes(const QDBusArgument &argument) {
  QList<AccessibilityBus::Node> nodes;
  argument.beginArray();
  while (!argument.atEnd()) {
    nodes.append(readNode(argument));
  }
  argument.endArray();
  return nodes;
}

/// A signal that programs send, and the name by which the registry is asked for it.
struct Signal {
  QString interface;
  QString member;
  QString eventName;
};

const std::array heardSignals{
    Signal{u"org.a11y.atspi.Event.Object"_s, u"StateChanged"_s, u"object:state-changed"_s},
    Signal{u"org.a11y.atspi.Event.Object"_s, u"ChildrenChanged"_s, u"object:children-changed"_s},
    Signal{u"org.a11y.atspi.Event.Window"_s, u"Deactivate"_s, u"window:"_s}};

}  // namespace

AccessibilityBus::AccessibilityBus(const QProcessEnvironment &session)
    : m_launcher(launcherPath(), u"at-spi2-core"_s), m_connection(connectionName) {
  m_launcher.start({u"--launch-immediately"_s, u"--a11y=1"_s}, session);
  m_connection = QDBusConnection::connectToBus(
      addressOnSessionBus(session.value(u"DBUS_SESSION_BUS_ADDRESS"_s)), connectionName);
  if (!m_connection.isConnected()) {
    throw HarnessError(m_connection.lastError().message());
  }
  for (const Signal &signal : heardSignals) {
    m_connection.connect({}, {}, signal.interface, signal.member, this, SLOT(hear(QDBusMessage)));
    // Programs send only what the registry has been asked for.
    call({desktop.service, u"/org/a11y/atspi/registry"_s}, u"org.a11y.atspi.Registry"_s,
         u"RegisterEvent"_s, {signal.eventName, QStringList(), QString()});
  }
}

AccessibilityBus::~AccessibilityBus() {
  // First: a signal that comes in while the connection is being ended would be kept by the dead
  // one.
  for (const Signal &signal : heardSignals) {
    m_connection.disconnect({}, {}, signal.interface, signal.member, this,
                            SLOT(hear(QDBusMessage)));
  }
  QDBusConnection::disconnectFromBus(connectionName);
}

void AccessibilityBus::hear(const QDBusMessage &signal) {
  const QString what = signal.arguments().value(0).toString();
  const Event event{what.isEmpty() ? signal.member() : what,
                    signal.arguments().value(1).toInt(),
                    {signal.service(), signal.path()}};
  m_events.append(event);
  if (event.what == u"focused"_s && event.detail == 1) {
    m_focus = event.node;
  }
}

QDBusMessage AccessibilityBus::call(const Node &node, const QString &interface,
                                    const QString &method, const QVariantList &arguments) const {
  QDBusMessage message = QDBusMessage::createMethodCall(node.service, node.path, interface, method);
  message.setArguments(arguments);
  return m_connection.call(message);
}

QString AccessibilityBus::property(const Node &node, const QString &name) const {
  const QDBusReply<QDBusVariant> reply =
      call(node, u"org.freedesktop.DBus.Properties"_s, u"Get"_s, {accessible, name});
  return reply.value().variant().toString();
}

AccessibilityBus::Node AccessibilityBus::program(const QString &name) {
  std::optional<Node> found;
  require(u"the program to describe itself"_s, [&] {
    found = findBelow(desktop, u"application"_s, name);
    return found.has_value();
  });
  return *found;
}

QList<AccessibilityBus::Node> AccessibilityBus::children(const Node &node) const {
  const QVariant list = call(node, accessible, u"GetChildren"_s).arguments().value(0);
  return list.canConvert<QDBusArgument>() ? readNodes(list.value<QDBusArgument>()) : QList<Node>();
}

QList<AccessibilityBus::Node> AccessibilityBus::labels(const Node &node) const {
  constexpr uint labelledBy = 2;
  const QVariant relations = call(node, accessible, u"GetRelationSet"_s).arguments().value(0);
  QList<Node> nodes;
  if (!relations.canConvert<QDBusArgument>()) {
    return nodes;
  }
  const auto argument = relations.value<QDBusArgument>();
  argument.beginArray();
  while (!argument.atEnd()) {
    uint kind = 0;
    argument.beginStructure();
    argument >> kind;
    const QList<Node> related = readNodes(argument);
    argument.endStructure();
    if (kind == labelledBy) {
      nodes.append(related);
    }
  }
  argument.endArray();
  return nodes;
}

std::optional<AccessibilityBus::Node> AccessibilityBus::findBelow(const Node &ancestor,
                                                                  const QString &role_,
                                                                  const QString &name_) const {
  const QList<Node> nodes = children(ancestor);
  for (const Node &node : nodes) {
    if (role(node) == role_ && name(node) == name_) {
      return node;
    }
    if (std::optional<Node> found = findBelow(node, role_, name_)) {
      return found;
    }
  }
  return std::nullopt;
}

AccessibilityBus::Node AccessibilityBus::find(const Node &ancestor, const QString &role,
                                              const QString &name) const {
  std::optional<Node> found;
  require(u"a %1 named %2"_s.arg(role, name), [&] {
    found = findBelow(ancestor, role, name);
    return found.has_value();
  });
  return *found;
}

QString AccessibilityBus::name(const Node &node) const {
  return property(node, u"Name"_s);
}

QString AccessibilityBus::description(const Node &node) const {
  return property(node, u"Description"_s);
}

QString AccessibilityBus::role(const Node &node) const {
  const QDBusReply<QString> reply = call(node, accessible, u"GetRoleName"_s);
  return reply.value();
}

QRect AccessibilityBus::geometry(const Node &node) const {
  constexpr uint onScreen = 0;
  const QDBusMessage reply = call(node, u"org.a11y.atspi.Component"_s, u"GetExtents"_s, {onScreen});
  const auto argument = reply.arguments().value(0).value<QDBusArgument>();
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  argument.beginStructure();
  argument >> x >> y >> width >> height;
  argument.endStructure();
  return {x, y, width, height};
}

bool AccessibilityBus::has(const Node &node, State state) const {
  const QDBusReply<QList<uint>> reply = call(node, accessible, u"GetState"_s);
  const auto bit = static_cast<unsigned>(state);
  return ((reply.value().value(static_cast<int>(bit / 32)) >> (bit % 32)) & 1U) != 0;
}

bool AccessibilityBus::isKnown(const Node &node) const {
  return call(node, accessible, u"GetRoleName"_s).type() == QDBusMessage::ReplyMessage;
}

void AccessibilityBus::act(const Node &node) const {
  call(node, u"org.a11y.atspi.Action"_s, u"DoAction"_s, {0});
}

}  // namespace lanternix
