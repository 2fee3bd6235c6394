#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusVirtualObject>

#include <optional>

namespace lanternix {

/// The tray of a desktop that shows status notifier items, on a session bus, for as long as this
/// object lives: the watcher that items tell of themselves, and the host that shows the last one.
class TrayHost : public QDBusVirtualObject {
  Q_OBJECT

 public:
  enum class Shows { items, nothing };

  /// An entry of an item's menu.
  struct Entry {
    int id = 0;
    QVariantMap properties;
    QList<Entry> children;

    /// As it is shown; "-" for a divider.
    QString text() const;
    bool isEnabled() const { return properties.value(QStringLiteral("enabled"), true).toBool(); }
  };

  /// Takes the watcher's name on the bus at \p busAddress. One that shows nothing is a watcher
  /// without a host.
  explicit TrayHost(const QString &busAddress, Shows shows = Shows::items);
  ~TrayHost() override;

  /// A host comes, or goes, and the watcher says so.
  void beginToShow();
  void endToShow();

  /// Where the items have told of themselves, in that order.
  const QStringList &items() const { return m_items; }
  /// Whether an item comes.
  bool hasItem() const;

  /// A property of the item; invalid when it has none.
  QVariant property(const QString &name) const;
  /// The entries of the item's menu, asked for anew.
  QList<Entry> menu() const;
  QStringList menuTexts() const;
  /// Chooses the first entry with this text from the menu as it is now.
  void choose(const QString &text) const;
  void choose(const Entry &entry) const;
  /// Calls a method of the item that takes a place on the screen, such as "Activate".
  void callAt(const QString &method, int x, int y) const;

  bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
  QString introspect(const QString &path) const override;

 private:
  QDBusMessage call(const QString &path, const QString &interface, const QString &method,
                    const QVariantList &arguments) const;

  QString m_connectionName;
  QDBusConnection m_connection;
  bool m_hasHost;
  QStringList m_items;
};

}  // namespace lanternix
