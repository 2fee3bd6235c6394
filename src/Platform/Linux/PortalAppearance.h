#pragma once

#include "Platform/Linux/PortalSettings.h"
#include "Platform/SystemAppearance.h"

#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusServiceWatcher>

#include <functional>

namespace lanternix {

/// The appearance as the desktop portal's "org.freedesktop.portal.Settings" tells it. Never waits
/// for the bus: what is not answered yet counts as not said. A portal that comes late, or anew, is
/// asked again; when it goes, what it said last stays.
class PortalAppearance : public SystemAppearance {
  Q_OBJECT

 public:
  explicit PortalAppearance(const QDBusConnection &bus);

  const Appearance &appearance() const override { return m_appearance; }

 private Q_SLOTS:
  void readChange(const QDBusMessage &signal);

 private:
  using Handler = std::function<void(const QDBusMessage &reply)>;

  void askForOwner();
  void askForAll();
  void readAll(const QDBusMessage &reply);
  void askForEach();
  void askFor(const PortalSettings::Key &key, const QString &method,
              const Handler &onUnknownMethod);
  void call(const QString &method, const QVariantList &arguments, const Handler &handler);
  void send(const QDBusMessage &message, const Handler &handler);
  void update();

  QDBusConnection m_bus;
  QDBusServiceWatcher m_watcher;
  /// The portal's own name on the bus. Empty while it is not known.
  QString m_owner;
  PortalSettings m_settings;
  Appearance m_appearance;
};

}  // namespace lanternix
