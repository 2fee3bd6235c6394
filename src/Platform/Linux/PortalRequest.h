#pragma once

#include <QtCore/QObject>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

namespace lanternix {

/// The running desktop portal, as one connection to the bus reaches it.
struct PortalPeer {
  QDBusConnection bus;
  /// Its own name on the bus, so that a portal that comes after it is never taken for it.
  QString name;

  /// The path of an object that the portal makes for this connection, of \p kind "request" or
  /// "session", when it is asked with \p token.
  QString pathOf(const QString &kind, const QString &token) const;
  /// A token that this process has not used before.
  static QString freshToken();
};

/// One request to the desktop portal. The answer comes later, perhaps after the user has been
/// asked, from an object that the portal makes for it.
class PortalRequest : public QObject {
  Q_OBJECT

 public:
  /// Sends \p method of \p interface, with \p options as its last argument.
  PortalRequest(const PortalPeer &portal, const QString &interface, const QString &method,
                QVariantList arguments, QVariantMap options);
  /// Without an answer: takes the request back.
  ~PortalRequest() override;

 Q_SIGNALS:
  // One of the two, once.
  void granted(const QVariantMap &results);
  void refused(const QString &reason);

 private Q_SLOTS:
  void readResponse(const QDBusMessage &response);

 private:
  void listenAt(const QString &path);
  void send(const QDBusMessage &call);

  PortalPeer m_portal;
  QString m_path;
  bool m_isAnswered = false;
};

}  // namespace lanternix
