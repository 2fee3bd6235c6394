#include "Platform/Linux/PortalRequest.h"

#include <QtDBus/QDBusObjectPath>
#include <QtDBus/QDBusPendingCallWatcher>
#include <QtDBus/QDBusPendingReply>

namespace lanternix {

using namespace Qt::StringLiterals;

namespace {

const QString requestInterface = u"org.freedesktop.portal.Request"_s;

}  // namespace

PortalRequest::PortalRequest(const PortalPeer &portal, const QString &interface,
                             const QString &method, QVariantList arguments, QVariantMap options)
    : m_portal(portal) {
  const QString token = PortalPeer::freshToken();
  // Before the call, because the answer may be quicker than the return.
  listenAt(m_portal.pathOf(u"request"_s, token));
  options.insert(u"handle_token"_s, token);
  arguments.append(options);
  auto call =
      QDBusMessage::createMethodCall(m_portal.name, PortalPeer::objectPath, interface, method);
  call.setArguments(arguments);
  send(call);
}

PortalRequest::~PortalRequest() {
  if (!m_isAnswered) {
    m_portal.bus.send(
        QDBusMessage::createMethodCall(m_portal.name, m_path, requestInterface, u"Close"_s));
  }
}

void PortalRequest::listenAt(const QString &path) {
  m_path = path;
  m_portal.bus.connect(m_portal.name, m_path, requestInterface, u"Response"_s, this,
                       SLOT(readResponse(QDBusMessage)));
}

void PortalRequest::send(const QDBusMessage &call) {
  auto *pending = new QDBusPendingCallWatcher(m_portal.bus.asyncCall(call), this);
  connect(pending, &QDBusPendingCallWatcher::finished, this, [this, pending] {
    pending->deleteLater();
    const QDBusPendingReply<QDBusObjectPath> reply = *pending;
    if (m_isAnswered) {
      return;
    }
    if (reply.isError()) {
      m_isAnswered = true;
      Q_EMIT refused(reply.error().message());
    } else if (reply.value().path() != m_path) {
      listenAt(reply.value().path());  // the first portals chose the path themselves
    }
  });
}

void PortalRequest::readResponse(const QDBusMessage &response) {
  if (m_isAnswered || response.signature() != "ua{sv}"_L1) {
    return;
  }
  m_isAnswered = true;
  constexpr uint success = 0;
  constexpr uint cancelled = 1;
  const uint code = response.arguments().constFirst().toUInt();
  if (code == success) {
    Q_EMIT granted(qdbus_cast<QVariantMap>(response.arguments().constLast()));
  } else {
    Q_EMIT refused(code == cancelled ? u"the user declined"_s : u"the desktop declined"_s);
  }
}

}  // namespace lanternix
