#pragma once

#include <QtCore/QObject>
#include <QtCore/QStringList>
#include <QtDBus/QDBusConnection>

namespace lanternix {

/// A file manager on a session bus: remembers what it was asked to show.
class FileManagerService : public QObject {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

 public:
  /// Takes the file manager's name on the bus at \p busAddress.
  explicit FileManagerService(const QString &busAddress);
  ~FileManagerService() override;

  /// The URIs of every request so far.
  const QStringList &shownItems() const { return m_shownItems; }

 public Q_SLOTS:
  // Called over the bus, under this name.
  void ShowItems(const QStringList &uris, const QString &startupId);  // NOLINT

 private:
  QDBusConnection m_connection;
  QStringList m_shownItems;
};

}  // namespace lanternix
