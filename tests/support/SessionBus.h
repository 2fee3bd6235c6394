#pragma once

#include "support/ChildProcess.h"

#include <QtCore/QTemporaryDir>

namespace lanternix {

/// A session bus of its own, which starts no service but those that a test puts into its service
/// directory.
class SessionBus {
 public:
  /// Starts the bus and returns once it accepts connections.
  SessionBus();

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
