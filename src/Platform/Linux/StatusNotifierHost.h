#pragma once

#include <QtCore/QObject>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusServiceWatcher>

namespace lanternix {

/// Whether somebody on the session bus shows status notifier items. Asks the watcher of those items
/// once, and again whenever one comes or says that a host has come or gone; in between nothing is
/// sent.
class StatusNotifierHost : public QObject {
  Q_OBJECT

 public:
  enum class Presence { unknown, absent, present };

  explicit StatusNotifierHost(const QDBusConnection &bus);

  Presence presence() const { return m_presence; }

 Q_SIGNALS:
  void changed();

 private Q_SLOTS:
  void ask();

 private:
  void setPresence(Presence presence);

  QDBusConnection m_bus;
  QDBusServiceWatcher m_watcher;
  Presence m_presence = Presence::unknown;
};

}  // namespace lanternix
