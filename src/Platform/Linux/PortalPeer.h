#pragma once

#include <QtCore/QString>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>

namespace lanternix {

/// The running desktop portal, as one connection to the bus reaches it.
struct PortalPeer {
  /// The name that every portal takes on the bus, and its object's path there.
  static constexpr auto serviceName = QLatin1StringView("org.freedesktop.portal.Desktop");
  static constexpr auto objectPath = QLatin1StringView("/org/freedesktop/portal/desktop");

  /// Asks the bus for the present portal's own name; the reply is one text. By it the portal is
  /// told apart, because replies do not name their sender in every version of Qt.
  static QDBusMessage nameQuestion();

  QDBusConnection bus;
  /// Its own name on the bus, so that a portal that comes after it is never taken for it.
  QString name;

  /// The path of an object that the portal makes for this connection, of \p kind "request" or
  /// "session", when it is asked with \p token.
  QString pathOf(const QString &kind, const QString &token) const;
  /// A token that this process has not used before.
  static QString freshToken();
};

}  // namespace lanternix
