#pragma once

#include "Platform/Linux/PortalRequest.h"

#include <memory>

namespace lanternix {

/// One global shortcut that the desktop portal has been asked for, in a session of its own, since a
/// session's shortcuts can be set only once.
class PortalShortcut : public QObject {
  Q_OBJECT

 public:
  /// Asks for the combination \p trigger, such as "SHIFT+LOGO+space". The desktop may let the user
  /// choose another one for it.
  PortalShortcut(const PortalPeer &portal, const QString &trigger);
  /// Gives the shortcut back, or takes the question back.
  ~PortalShortcut() override;

 Q_SIGNALS:
  void granted();
  /// The user or the desktop has refused it. Nothing comes after this.
  void refused(const QString &reason);
  /// The desktop has taken it away. Nothing comes after this.
  void ended();
  /// It was pressed. \p token lets the program's window come to the front; empty where the desktop
  /// gives none.
  void activated(const QString &token);

 private Q_SLOTS:
  void readActivation(const QDBusMessage &signal);

 private:
  void bind(const QVariantMap &session);
  void readBound(const QVariantMap &results);
  void ask(const QString &method, const QVariantList &arguments, const QVariantMap &options,
           void (PortalShortcut::*onGranted)(const QVariantMap &));

  PortalPeer m_portal;
  QString m_trigger;
  QString m_identifier;
  QString m_session;
  std::unique_ptr<PortalRequest> m_request;
};

}  // namespace lanternix
