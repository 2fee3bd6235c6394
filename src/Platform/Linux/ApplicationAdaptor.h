#pragma once

#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusAbstractAdaptor>

class QDBusMessage;

namespace lanternix {

class BusSingleInstance;
struct ActivationToken;

/// What other programs can call on the bus, the interface of all applications that live there:
/// desktops start the program and its actions by it, users bind keys to it. Each call becomes a
/// request of the instance that this belongs to.
class ApplicationAdaptor : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  explicit ApplicationAdaptor(BusSingleInstance &instance);

  /// \p token as a caller hands it over.
  static QVariantMap platformData(const ActivationToken &token);

 public Q_SLOTS:
  /// Shows the panel.
  void Activate(const QVariantMap &platform_data);
  /// Shows the panel. The program takes no files, so \p uris are only logged.
  void Open(const QStringList &uris, const QVariantMap &platform_data);
  /// "toggle" hides or shows the panel, "show" shows it, "settings" opens the settings; none of
  /// them has a parameter. Any other name is logged, and the caller gets an error.
  void ActivateAction(const QString &action_name, const QVariantList &parameter,
                      const QVariantMap &platform_data, const QDBusMessage &message);

 private:
  BusSingleInstance &m_instance;
};

}  // namespace lanternix
