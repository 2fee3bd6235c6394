#pragma once

#include "support/ChildProcess.h"

#include <QtCore/QTemporaryDir>

namespace lanternix {

/// A session bus of its own, which starts those services that a test puts into its service
/// directory, and no others unless it is told to.
class SessionBus {
 public:
  /// Whether the bus also starts the services that are installed on this machine.
  enum class Services { ownOnly, installed };

  /// Starts the bus, and with it its services, in \p environment and returns once it accepts
  /// connections.
  explicit SessionBus(
      Services services = Services::ownOnly,
      const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment());

  /// As DBUS_SESSION_BUS_ADDRESS names it.
  const QString &address() const { return m_address; }

  /// Where ".service" files are looked for. The bus notices new ones by itself.
  QString serviceDirectory() const { return m_directory.filePath(QStringLiteral("services")); }

 private:
  QTemporaryDir m_directory;
  ChildProcess m_daemon;
  QString m_address;
};

}  // namespace lanternix
