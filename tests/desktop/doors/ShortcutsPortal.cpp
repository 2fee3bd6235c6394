#include "desktop/doors/ShortcutsPortal.h"

#include "support/HarnessError.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusVariant>

#include <utility>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString serviceName = u"org.freedesktop.portal.Desktop"_s;
const QString desktopPath = u"/org/freedesktop/portal/desktop"_s;
const QString shortcutsInterface = u"org.freedesktop.portal.GlobalShortcuts"_s;
const QString sessionInterface = u"org.freedesktop.portal.Session"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;

/// A method as callers have to spell it out.
struct Method {
  QString interface;
  QString name;
  QString signature;
};

const Method registerProgram{u"org.freedesktop.host.portal.Registry"_s, u"Register"_s, u"sa{sv}"_s};
const Method getProperty{u"org.freedesktop.DBus.Properties"_s, u"Get"_s, u"ss"_s};
const Method createSessionOf{shortcutsInterface, u"CreateSession"_s, u"a{sv}"_s};
const Method bindShortcutsOf{shortcutsInterface, u"BindShortcuts"_s, u"oa(sa{sv})sa{sv}"_s};
const Method closeSession{sessionInterface, u"Close"_s, u""_s};
const Method closeRequest{requestInterface, u"Close"_s, u""_s};

bool isCallOf(const Method &method, const QDBusMessage &call) {
  return call.interface() == method.interface && call.member() == method.name &&
         call.signature() == method.signature;
}

struct Shortcut {
  QString identifier;
  QVariantMap properties;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Shortcut &shortcut) {
  argument.beginStructure();
  argument << shortcut.identifier << shortcut.properties;
  argument.endStructure();
  return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Shortcut &shortcut) {
  argument.beginStructure();
  argument >> shortcut.identifier >> shortcut.properties;
  argument.endStructure();
  return argument;
}

QString freshName() {
  static int count = 0;
  return u"shortcuts-portal-%1"_s.arg(++count);
}

/// Where the portal makes an object for who sent \p call.
QString pathFor(const QDBusMessage &call, const QString &kind, const QString &token) {
  return desktopPath + u'/' + kind + u'/' + call.service().mid(1).replace(u'.', u'_') + u'/' +
         token;
}

QVariantMap optionsOf(const QDBusMessage &call) {
  return qdbus_cast<QVariantMap>(call.arguments().constLast());
}

}  // namespace

ShortcutsPortal::ShortcutsPortal(const QString &busAddress, Nature nature)
    : m_connectionName(freshName()),
      m_connection(QDBusConnection::connectToBus(busAddress, m_connectionName)),
      m_nature(nature) {
  qDBusRegisterMetaType<Shortcut>();
  qDBusRegisterMetaType<QList<Shortcut>>();
  if (!m_connection.registerVirtualObject(desktopPath, this, QDBusConnection::SubPath) ||
      !m_connection.registerService(serviceName)) {
    throw HarnessError(m_connection.lastError().message());
  }
}

ShortcutsPortal::~ShortcutsPortal() {
  // First: a call that comes in while the connection is being ended would be kept by the dead one.
  m_connection.unregisterObject(desktopPath, QDBusConnection::UnregisterTree);
  QDBusConnection::disconnectFromBus(m_connectionName);
}

QStringList ShortcutsPortal::triggers() const {
  return m_triggers.values();
}

void ShortcutsPortal::answerAll() {
  m_isSilent = false;
  const auto calls = std::exchange(m_unanswered, {});
  for (const QDBusMessage &call : calls) {
    answer(call);
  }
}

void ShortcutsPortal::press(const QString &identifier, const QString &session,
                            const QVariantMap &options) {
  auto signal =
      QDBusMessage::createTargetedSignal(m_client, desktopPath, shortcutsInterface, u"Activated"_s);
  signal.setArguments(
      {QVariant::fromValue(QDBusObjectPath(session)), identifier, quint64{1}, options});
  m_connection.send(signal);
}

void ShortcutsPortal::endSession() {
  auto signal =
      QDBusMessage::createTargetedSignal(m_client, m_session, sessionInterface, u"Closed"_s);
  signal.setArguments({QVariantMap()});
  m_bound.remove(m_session);
  m_triggers.remove(m_session);
  m_connection.send(signal);
}

bool ShortcutsPortal::handleMessage(const QDBusMessage &message,
                                    const QDBusConnection & /*connection*/) {
  m_calls.append(message.member());
  if (m_isSilent) {
    m_unanswered.append(message);
  } else {
    answer(message);
  }
  return true;
}

void ShortcutsPortal::answer(const QDBusMessage &call) {
  if (call.path() == desktopPath) {
    answerDesktop(call);
  } else if (isCallOf(closeSession, call) || isCallOf(closeRequest, call)) {
    close(call);
  } else {
    refuse(call);
  }
  m_callers.insert(call.service());
}

void ShortcutsPortal::answerDesktop(const QDBusMessage &call) {
  const bool hasShortcuts = m_nature.shortcuts == Shortcuts::yes;
  if (isCallOf(registerProgram, call) && m_nature.registry == Registry::yes) {
    introduce(call);
  } else if (isCallOf(getProperty, call) && hasShortcuts &&
             call.arguments() == QVariantList{shortcutsInterface, u"version"_s}) {
    m_connection.send(call.createReply(QVariant::fromValue(QDBusVariant(1U))));
  } else if (isCallOf(createSessionOf, call) && hasShortcuts) {
    createSession(call);
  } else if (isCallOf(bindShortcutsOf, call) && hasShortcuts) {
    bindShortcuts(call);
  } else {
    refuse(call);
  }
}

/// Whoever has called before is known under a name by then, which stays.
void ShortcutsPortal::introduce(const QDBusMessage &call) {
  if (m_callers.contains(call.service())) {
    m_connection.send(call.createErrorReply(u"org.freedesktop.portal.Error.Failed"_s,
                                            u"The connection has its application already"_s));
    return;
  }
  m_applications.append(call.arguments().constFirst().toString());
  m_connection.send(call.createReply());
}

void ShortcutsPortal::createSession(const QDBusMessage &call) {
  m_client = call.service();
  m_session = pathFor(call, u"session"_s, optionsOf(call)[u"session_handle_token"_s].toString());
  respond(call, 0, {{u"session_handle"_s, m_session}});
}

void ShortcutsPortal::bindShortcuts(const QDBusMessage &call) {
  const QString session = call.arguments().value(0).value<QDBusObjectPath>().path();
  const auto wanted = qdbus_cast<QList<Shortcut>>(call.arguments().value(1));
  switch (m_nature.user) {
    case User::agrees:
      m_bound[session] = wanted.constFirst().identifier;
      m_triggers[session] = wanted.constFirst().properties[u"preferred_trigger"_s].toString();
      respond(call, 0, {{u"shortcuts"_s, QVariant::fromValue(wanted)}});
      break;
    case User::declines:
      respond(call, 1, {});
      break;
    case User::strikes:
      respond(call, 0, {{u"shortcuts"_s, QVariant::fromValue(QList<Shortcut>())}});
      break;
    case User::waits:
      break;
  }
}

void ShortcutsPortal::close(const QDBusMessage &call) {
  m_calls.last() += u' ' + call.path().section(u'/', 5, 5);
  m_bound.remove(call.path());
  m_triggers.remove(call.path());
  m_connection.send(call.createReply());
}

void ShortcutsPortal::respond(const QDBusMessage &call, uint code, const QVariantMap &results) {
  const QString path = pathFor(call, u"request"_s, optionsOf(call)[u"handle_token"_s].toString());
  m_connection.send(call.createReply(QVariant::fromValue(QDBusObjectPath(path))));
  auto signal =
      QDBusMessage::createTargetedSignal(call.service(), path, requestInterface, u"Response"_s);
  signal.setArguments({code, results});
  m_connection.send(signal);
}

void ShortcutsPortal::refuse(const QDBusMessage &call) {
  m_connection.send(call.createErrorReply(QDBusError::UnknownMethod, u"What?"_s));
}

QString ShortcutsPortal::introspect(const QString & /*path*/) const {
  return {};
}

}  // namespace lanternix
