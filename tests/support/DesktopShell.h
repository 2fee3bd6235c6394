#pragma once

#include <QtCore/QProcessEnvironment>
#include <QtCore/QVariantMap>
#include <QtDBus/QDBusConnection>

#include <optional>

namespace lanternix {

/// Calls the program on a session bus as a desktop's shell does. The bus starts it where it is not
/// running and a service file tells how.
class DesktopShell {
 public:
  explicit DesktopShell(const QString &busAddress);
  ~DesktopShell();
  Q_DISABLE_COPY_MOVE(DesktopShell)

  // Each waits for the answer and returns the error's name, such as
  // "org.freedesktop.DBus.Error.InvalidArgs"; an empty text when all went well.
  QString activate(const QVariantMap &platformData = {}) const;
  QString open(const QStringList &uris, const QVariantMap &platformData = {}) const;
  QString activateAction(const QString &name, const QVariantMap &platformData = {}) const;

  /// What the program says of itself, in XML.
  QString introspection() const;

  /// Tells the bus the variables for the programs that it starts from now on.
  void setStartEnvironment(const QProcessEnvironment &variables) const;
  /// The program's process; none when nobody has its name.
  std::optional<qint64> process() const;

 private:
  QString call(const QString &method, const QVariantList &arguments) const;

  const QString m_name;
  QDBusConnection m_connection;
};

}  // namespace lanternix
