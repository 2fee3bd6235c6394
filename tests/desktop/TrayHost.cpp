#include "desktop/TrayHost.h"

#include "support/HarnessError.h"
#include "support/WaitUntil.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusPendingCall>
#include <QtDBus/QDBusVariant>

#include <algorithm>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString watcherName = u"org.kde.StatusNotifierWatcher"_s;
const QString watcherPath = u"/StatusNotifierWatcher"_s;
const QString itemPath = u"/StatusNotifierItem"_s;
const QString itemInterface = u"org.kde.StatusNotifierItem"_s;
const QString menuInterface = u"com.canonical.dbusmenu"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

const QDBusArgument &operator>>(const QDBusArgument &argument, TrayHost::Entry &entry) {
  argument.beginStructure();
  argument >> entry.id >> entry.properties;
  argument.beginArray();
  while (!argument.atEnd()) {
    QDBusVariant child;
    argument >> child;
    TrayHost::Entry below;
    qvariant_cast<QDBusArgument>(child.variant()) >> below;
    entry.children.append(below);
  }
  argument.endArray();
  argument.endStructure();
  return argument;
}

QString freshName() {
  static int count = 0;
  return u"tray-%1"_s.arg(++count);
}

}  // namespace

// A doubled "_" is one, a single one marks the access key.
QString TrayHost::Entry::text() const {
  if (properties.value(u"type"_s).toString() == "separator"_L1) {
    return u"-"_s;
  }
  QString label = properties.value(u"label"_s).toString();
  label.replace(u"__"_s, u"\n"_s).remove(u'_').replace(u'\n', u'_');
  return label;
}

TrayHost::TrayHost(const QString &busAddress, Shows shows)
    : m_connectionName(freshName()),
      m_connection(QDBusConnection::connectToBus(busAddress, m_connectionName)),
      m_hasHost(shows == Shows::items) {
  if (!m_connection.registerVirtualObject(watcherPath, this) ||
      !m_connection.registerService(watcherName)) {
    throw HarnessError(m_connection.lastError().message());
  }
}

TrayHost::~TrayHost() {
  // First: a call that comes in while the connection is being ended would be kept by the dead one.
  m_connection.unregisterObject(watcherPath);
  QDBusConnection::disconnectFromBus(m_connectionName);
}

void TrayHost::beginToShow() {
  m_hasHost = true;
  m_connection.send(
      QDBusMessage::createSignal(watcherPath, watcherName, u"StatusNotifierHostRegistered"_s));
}

void TrayHost::endToShow() {
  m_hasHost = false;
  m_connection.send(
      QDBusMessage::createSignal(watcherPath, watcherName, u"StatusNotifierHostUnregistered"_s));
}

bool TrayHost::hasItem() const {
  return waitUntil([this] { return !m_items.isEmpty(); });
}

QDBusMessage TrayHost::call(const QString &path, const QString &interface, const QString &method,
                            const QVariantList &arguments) const {
  if (m_items.isEmpty()) {
    throw HarnessError(u"there is no item in the tray"_s);
  }
  auto message = QDBusMessage::createMethodCall(m_items.last(), path, interface, method);
  message.setArguments(arguments);
  // Not blocking, because the program may ask the watcher something meanwhile.
  const QDBusPendingCall pending = m_connection.asyncCall(message);
  require(u"an answer to "_s + method, [&] { return pending.isFinished(); });
  return pending.reply();
}

QVariant TrayHost::property(const QString &name) const {
  const QDBusMessage reply = call(itemPath, propertiesInterface, u"Get"_s, {itemInterface, name});
  return reply.type() == QDBusMessage::ReplyMessage
             ? qvariant_cast<QDBusVariant>(reply.arguments().value(0)).variant()
             : QVariant();
}

QList<TrayHost::Entry> TrayHost::menu() const {
  const auto path = qvariant_cast<QDBusObjectPath>(property(u"Menu"_s)).path();
  const QDBusMessage reply =
      call(path, menuInterface, u"GetLayout"_s, {0, -1, QVariant(QStringList())});
  if (reply.signature() != "u(ia{sv}av)"_L1) {
    throw HarnessError(reply.errorMessage());
  }
  Entry root;
  qvariant_cast<QDBusArgument>(reply.arguments().at(1)) >> root;
  return root.children;
}

QStringList TrayHost::menuTexts() const {
  QStringList texts;
  const QList<Entry> entries = menu();
  for (const Entry &entry : entries) {
    texts.append(entry.text());
  }
  return texts;
}

void TrayHost::choose(const QString &text) const {
  const QList<Entry> entries = menu();
  const auto entry =
      std::ranges::find_if(entries, [&](const Entry &each) { return each.text() == text; });
  if (entry == entries.end()) {
    throw HarnessError(u"the menu has no entry "_s + text);
  }
  choose(*entry);
}

void TrayHost::choose(const Entry &entry) const {
  const auto path = qvariant_cast<QDBusObjectPath>(property(u"Menu"_s)).path();
  auto message = QDBusMessage::createMethodCall(m_items.last(), path, menuInterface, u"Event"_s);
  message.setArguments(
      {entry.id, u"clicked"_s, QVariant::fromValue(QDBusVariant(QString())), quint32{0}});
  m_connection.send(message);  // what ends the program need not be answered
}

void TrayHost::callAt(const QString &method, int x, int y) const {
  call(itemPath, itemInterface, method, {x, y});
}

bool TrayHost::handleMessage(const QDBusMessage &message, const QDBusConnection &connection) {
  if (message.member() == "RegisterStatusNotifierItem"_L1) {
    m_items.append(message.arguments().value(0).toString());
    connection.send(message.createReply());
    return true;
  }
  if (message.interface() == propertiesInterface && message.member() == "Get"_L1) {
    connection.send(message.createReply(QVariant::fromValue(QDBusVariant(m_hasHost))));
    return true;
  }
  return false;
}

QString TrayHost::introspect(const QString & /*path*/) const {
  return uR"(<interface name="org.kde.StatusNotifierWatcher">
    <method name="RegisterStatusNotifierItem"><arg name="service" type="s" direction="in"/></method>
    <property name="IsStatusNotifierHostRegistered" type="b" access="read"/>
    <signal name="StatusNotifierHostRegistered"/>
    <signal name="StatusNotifierHostUnregistered"/>
  </interface>)"_s;
}

}  // namespace lanternix
