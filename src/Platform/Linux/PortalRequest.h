#pragma once

#include "Platform/Linux/PortalPeer.h"

#include <QtCore/QObject>
#include <QtCore/QVariantMap>

namespace lanternix {

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
