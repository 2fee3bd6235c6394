#pragma once

#include "Platform/SingleInstance.h"

#include <QtCore/QStringList>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusAbstractAdaptor>

namespace lanternix {

/// One program per session bus: whoever owns the name "org.lanternix.Lanternix". Others reach it
/// there by the "org.freedesktop.Application" interface.
class BusSingleInstance : public SingleInstance {
  Q_OBJECT

 public:
  BusSingleInstance();

  /// Whether there is a session bus to claim the name on.
  static bool isAvailable();

  bool claim() override;
};

/// What other programs can call. Whatever they ask for, the program answers by its panel.
class ApplicationAdaptor : public QDBusAbstractAdaptor {
  Q_OBJECT
  Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

 public:
  explicit ApplicationAdaptor(BusSingleInstance &instance);

 public Q_SLOTS:
  void Activate(const QVariantMap &platformData);
  void Open(const QStringList &uris, const QVariantMap &platformData);
  void ActivateAction(const QString &name, const QVariantList &parameters,
                      const QVariantMap &platformData);

 private:
  BusSingleInstance &m_instance;
};

}  // namespace lanternix
