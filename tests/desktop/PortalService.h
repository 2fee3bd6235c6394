#pragma once

#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusVirtualObject>

namespace lanternix {

/// The settings of a desktop portal on a session bus, for as long as this object lives.
class PortalService : public QDBusVirtualObject {
  Q_OBJECT

 public:
  /// Which calls it knows, from the newest portals back to the first ones, whose answers are
  /// wrapped twice.
  enum class Knows { everything, readOneAndRead, readOnly, nothing };
  using Settings = QMap<QString, QVariantMap>;

  /// Takes the portal's name on the bus at \p busAddress.
  PortalService(const QString &busAddress, Settings settings, Knows knows = Knows::everything);
  ~PortalService() override;

  /// A colour as the portal sends it.
  static QVariant color(double red, double green, double blue);

  /// Changes one setting and says so.
  void change(const QString &nameSpace, const QString &name, const QVariant &value);

  /// From now on, calls are kept instead of answered.
  void keepSilent() { m_isSilent = true; }
  /// Of the calls so far, the ones for settings.
  const QStringList &calls() const { return m_calls; }

  bool handleMessage(const QDBusMessage &message, const QDBusConnection &connection) override;
  QString introspect(const QString &path) const override;

 private:
  bool knows(const QString &method) const;
  QDBusMessage answer(const QDBusMessage &call) const;
  QVariant settings(const QStringList &nameSpaces) const;

  QString m_connectionName;
  QDBusConnection m_connection;
  Settings m_settings;
  Knows m_knows;
  bool m_isSilent = false;
  QStringList m_calls;
};

}  // namespace lanternix
