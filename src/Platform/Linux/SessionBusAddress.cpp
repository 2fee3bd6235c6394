#include "Platform/Linux/SessionBusAddress.h"

#include <QtCore/QFileInfo>
#include <QtDBus/QDBusConnection>

namespace lanternix {

using namespace Qt::StringLiterals;

bool isSessionBusAnnounced() {
  if (!qEnvironmentVariableIsEmpty("DBUS_SESSION_BUS_ADDRESS")) {
    return true;
  }
  // The place for a user's bus where no variable names another.
  const QString runtimeDirectory = qEnvironmentVariable("XDG_RUNTIME_DIR");
  return !runtimeDirectory.isEmpty() && QFileInfo::exists(runtimeDirectory + "/bus"_L1);
}

bool hasSessionBus() {
  return isSessionBusAnnounced() && QDBusConnection::sessionBus().isConnected();
}

}  // namespace lanternix
