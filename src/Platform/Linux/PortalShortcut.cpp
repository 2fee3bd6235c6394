#include "Platform/Linux/PortalShortcut.h"

#include <QtDBus/QDBusArgument>
#include <QtDBus/QDBusMetaType>
#include <QtDBus/QDBusObjectPath>

#include <algorithm>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString shortcutsInterface = u"org.freedesktop.portal.GlobalShortcuts"_s;
const QString sessionInterface = u"org.freedesktop.portal.Session"_s;

/// A shortcut in the portal's words.
struct Entry {
  QString identifier;
  QVariantMap properties;
};

QDBusArgument &operator<<(QDBusArgument &argument, const Entry &entry) {
  argument.beginStructure();
  argument << entry.identifier << entry.properties;
  argument.endStructure();
  return argument;
}

const QDBusArgument &operator>>(const QDBusArgument &argument, Entry &entry) {
  argument.beginStructure();
  argument >> entry.identifier >> entry.properties;
  argument.endStructure();
  return argument;
}

/// Desktops keep what the user has assigned to an identifier, and ask no more for a wish that comes
/// under a known one. So the usual combination has a name that people can write into their
/// compositor's configuration, and every other one has its own.
QString identifierFor(const QString &trigger) {
  return trigger == "SHIFT+LOGO+space"_L1 ? u"toggle"_s : u"toggle-"_s + trigger;
}

}  // namespace

PortalShortcut::PortalShortcut(const PortalPeer &portal, const QString &trigger)
    : m_portal(portal), m_trigger(trigger), m_identifier(identifierFor(trigger)) {
  qDBusRegisterMetaType<Entry>();
  qDBusRegisterMetaType<QList<Entry>>();
  m_portal.bus.connect(m_portal.name, PortalPeer::objectPath, shortcutsInterface, u"Activated"_s,
                       this, SLOT(readActivation(QDBusMessage)));
  const QString token = PortalPeer::freshToken();
  m_session = m_portal.pathOf(u"session"_s, token);
  ask(u"CreateSession"_s, {}, {{u"session_handle_token"_s, token}}, &PortalShortcut::bind);
}

PortalShortcut::~PortalShortcut() {
  m_request.reset();
  m_portal.bus.send(
      QDBusMessage::createMethodCall(m_portal.name, m_session, sessionInterface, u"Close"_s));
}

void PortalShortcut::ask(const QString &method, const QVariantList &arguments,
                         const QVariantMap &options,
                         void (PortalShortcut::*onGranted)(const QVariantMap &)) {
  m_request =
      std::make_unique<PortalRequest>(m_portal, shortcutsInterface, method, arguments, options);
  // Queued, because what follows an answer may put an end to the request that tells it.
  connect(m_request.get(), &PortalRequest::granted, this, onGranted, Qt::QueuedConnection);
  connect(m_request.get(), &PortalRequest::refused, this, &PortalShortcut::refused,
          Qt::QueuedConnection);
}

void PortalShortcut::bind(const QVariantMap &session) {
  const QVariant handle = session.value(u"session_handle"_s);
  if (handle.metaType() == QMetaType::fromType<QDBusObjectPath>()) {
    m_session = handle.value<QDBusObjectPath>().path();
  } else if (!handle.toString().isEmpty()) {
    m_session = handle.toString();
  }
  m_portal.bus.connect(m_portal.name, m_session, sessionInterface, u"Closed"_s, this,
                       SIGNAL(ended()));
  const QList<Entry> shortcuts{
      {m_identifier,
       {{u"description"_s, u"Show or hide the panel"_s}, {u"preferred_trigger"_s, m_trigger}}}};
  const QString noParentWindow = u""_s;
  ask(u"BindShortcuts"_s,
      {QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(shortcuts),
       noParentWindow},
      {}, &PortalShortcut::readBound);
}

/// A user who was asked may have struck the shortcut from the list.
void PortalShortcut::readBound(const QVariantMap &results) {
  const auto list = results.value(u"shortcuts"_s).value<QDBusArgument>();
  const bool isList = list.currentSignature() == "a(sa{sv})"_L1;
  const auto bound = isList ? qdbus_cast<QList<Entry>>(list) : QList<Entry>();
  const bool isOurs = std::ranges::find(bound, m_identifier, &Entry::identifier) != bound.end();
  if (isOurs || !isList) {
    Q_EMIT granted();
  } else {
    Q_EMIT refused(u"the user declined"_s);
  }
}

void PortalShortcut::readActivation(const QDBusMessage &signal) {
  if (signal.signature() != "osta{sv}"_L1) {
    return;
  }
  const QVariantList arguments = signal.arguments();
  if (arguments[0].value<QDBusObjectPath>().path() == m_session &&
      arguments[1].toString() == m_identifier) {
    const auto options = qdbus_cast<QVariantMap>(arguments[3]);
    Q_EMIT activated(options.value(u"activation_token"_s).toString());
  }
}

}  // namespace lanternix
